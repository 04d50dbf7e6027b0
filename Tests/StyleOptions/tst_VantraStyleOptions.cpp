#include "StyleOptions/VantraStyleOptionButton.h"
#include "StyleOptions/VantraStyleOptionCast.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionFramePane.h"
#include "StyleOptions/VantraStyleOptionGroupBox.h"
#include "StyleOptions/VantraStyleOptionLineEdit.h"
#include "StyleOptions/VantraStyleOptionMenuItem.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "StyleOptions/VantraStyleOptionTab.h"
#include "StyleOptions/VantraStyleOptionTextEdit.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Support/DataRows.h"
#include "Support/FatalTest.h"

#include <functional>

namespace {

// The defaults must hold for a new record and for one that stands for a plain option.
template <typename Record, typename Defaults>
void upgrades(int inType, Defaults inHasDefaults)
{
    using Cast = VantraStyleOptionCast<Record>;
    const QRect rect(1, 2, 30, 40);
    QVERIFY(inHasDefaults(Record()));
    QCOMPARE(Record().type, inType);
    QCOMPARE(Record().version, 2);

    typename Record::QtOption plain;
    QCOMPARE(plain.version, 1);
    plain.rect = rect;
    plain.state = QStyle::State_On;
    const Cast upgraded(&plain);
    QVERIFY(upgraded);
    QVERIFY(static_cast<const void *>(upgraded.get()) != &plain);
    QVERIFY(inHasDefaults(*upgraded));
    QCOMPARE(upgraded->rect, rect);
    QCOMPARE(upgraded->state, QStyle::State(QStyle::State_On));
    QCOMPARE(upgraded->version, 2);
    QCOMPARE(upgraded->type, inType);

    const Record copy(*upgraded);
    QCOMPARE(copy.version, 2);
    QCOMPARE(copy.rect, rect);
    QCOMPARE(Cast(&copy).get(), &copy); // a record is used where it lies
    Record assigned;
    assigned = copy;
    QCOMPARE(assigned.version, 2);
    QCOMPARE(assigned.rect, rect);

    QVERIFY(!Cast(nullptr));
    plain.type = QStyleOption::SO_Default;
    QVERIFY(!Cast(&plain));
    plain.type = inType;
    plain.version = 0;
    QVERIFY(!Cast(&plain));
    QStyleOption other(3, inType + 1);
    QVERIFY(!Cast(&other));
}

struct Row
{
    const char *name;
    std::function<void()> check;
};

template <typename Record, typename Defaults>
Row row(const char *inName, int inType, Defaults inHasDefaults)
{
    return {inName, [=] { upgrades<Record>(inType, inHasDefaults); }};
}

std::vector<Row> rows()
{
    using O = QStyleOption;
    const auto untinted = VantraIconPalette::IconTintingNone;
    return {
        row<VantraStyleOptionButton>("button", O::SO_Button,
                                     [](const auto &inButton) {
                                         return inButton.font == QFont() && inButton.buttonStyle == 0 &&
                                                inButton.backgroundButtonRole == 0 &&
                                                inButton.alignment == Qt::AlignCenter;
                                     }),
        row<VantraStyleOptionComboBox>("combo box", O::SO_ComboBox,
                                       [](const auto &inBox) {
                                           return inBox.font == QFont() &&
                                                  inBox.backgroundStyle ==
                                                      VantraComboBoxBase::BackgroundStyleStandard;
                                       }),
        row<VantraStyleOptionFrame>("frame", O::SO_Frame,
                                    [](const auto &inFrame) {
                                        return inFrame.cornerShapes == 0 &&
                                               inFrame.cornerRadius == 0x7FFFFFFF && !inFrame.hudOverlay;
                                    }),
        row<VantraStyleOptionGroupBox>("group box", O::SO_GroupBox, [](const auto &) { return true; }),
        row<VantraStyleOptionLineEdit>("line edit", O::SO_Frame,
                                       [](const auto &inEdit) { return inEdit.borderStyle == 0; }),
        row<VantraStyleOptionTextEdit>("text edit", O::SO_Frame,
                                       [](const auto &inEdit) { return inEdit.borderStyle == 0; }),
        row<VantraStyleOptionMenuItem>(
            "menu item", O::SO_MenuItem,
            [](const auto &inItem) { return !inItem.hudOverlay && !inItem.hudOverlayResolved; }),
        row<VantraStyleOptionSlider>(
            "slider", O::SO_Slider,
            [](const auto &inSlider) { return inSlider.gradientStops.isEmpty() && !inSlider.enlargeHandle; }),
        row<VantraStyleOptionSpinBox>("spin box", O::SO_SpinBox,
                                      [](const auto &inBox) {
                                          return inBox.displayText.isEmpty() && inBox.highlightStart == 0 &&
                                                 inBox.highlightEnd == 0;
                                      }),
        row<VantraStyleOptionTab>("tab", O::SO_Tab,
                                  [](const auto &inTab) { return inTab.hoveredTabIndex == -1; }),
        row<VantraStyleOptionToolButton>("tool button", O::SO_ToolButton,
                                         [=](const auto &inTool) {
                                             return inTool.buttonStyle == 0 && inTool.backgroundStyle == 0 &&
                                                    inTool.backgroundButtonRole == 0 &&
                                                    inTool.iconTinting == untinted &&
                                                    inTool.alternateTintRole == VantraPalette::Accent &&
                                                    !inTool.enlargeIconOnHover;
                                         }),
        row<VantraStyleOptionViewItem>(
            "view item", O::SO_ViewItem,
            [=](const auto &inItem) { return inItem.iconTinting == untinted && !inItem.useIndent; }),
    };
}

} // namespace

class tst_VantraStyleOptions : public QObject
{
    Q_OBJECT

private slots:
    void plainOptionsAreUpgraded_data() { DataRows::add(rows()); }
    void plainOptionsAreUpgraded() { DataRows::current(rows()).check(); }
    void qtFieldsComeAlong();
    void copiesKeepAddedFields();
    void paneIsTheThirdVersion();
    void sunkenLineEditIsHighlighted();
    void panelRecordsBeginAlike();
};

void tst_VantraStyleOptions::qtFieldsComeAlong()
{
    QStyleOptionComboBox plain;
    plain.currentText = "text";
    plain.activeSubControls = QStyle::SC_ComboBoxArrow;
    plain.palette = QPalette(Qt::magenta);
    const VantraStyleOptionCast<VantraStyleOptionComboBox> upgraded(&plain);
    QCOMPARE(upgraded->currentText, plain.currentText);
    QCOMPARE(upgraded->activeSubControls, plain.activeSubControls);
    QCOMPARE(upgraded->palette, plain.palette);
}

void tst_VantraStyleOptions::copiesKeepAddedFields()
{
    VantraStyleOptionToolButton tool;
    tool.text = "text";
    tool.backgroundButtonRole = VantraPalette::FrameLine;
    tool.iconTinting = VantraIconPalette::IconTintingForeground;
    tool.enlargeIconOnHover = true;
    const VantraStyleOptionToolButton copy(tool);
    QCOMPARE(copy.text, tool.text);
    QCOMPARE(copy.backgroundButtonRole, tool.backgroundButtonRole);
    QCOMPARE(copy.iconTinting, tool.iconTinting);
    QVERIFY(copy.enlargeIconOnHover);
}

void tst_VantraStyleOptions::paneIsTheThirdVersion()
{
    VantraStyleOptionFramePane pane;
    QCOMPARE(pane.version, 3);
    QCOMPARE(int(pane.paneStyle) + int(pane.panePart) + int(pane.paneBorderStyle) + int(pane.paneState), 0);
    pane.cornerRadius = 7;
    pane.paneState = VantraFramePane::PaneStateExpanded;
    const VantraStyleOptionFramePane copy(pane);
    QCOMPARE(copy.version, 3);
    QCOMPARE(copy.cornerRadius, 7);
    QCOMPARE(copy.paneState, pane.paneState);
    const VantraStyleOptionCast<VantraStyleOptionFrame> frame(&pane); // a pane is a frame as it is
    QCOMPARE(frame.get(), &pane);
    const VantraStyleOptionFrame sliced(pane);
    QCOMPARE(sliced.version, 2);
}

void tst_VantraStyleOptions::sunkenLineEditIsHighlighted()
{
    QStyleOptionFrame plain;
    plain.state = QStyle::State_Enabled | QStyle::State_Sunken;
    plain.lineWidth = 3;
    const VantraStyleOptionCast<VantraStyleOptionLineEdit> lineEdit(&plain);
    QCOMPARE(lineEdit->borderStyle, VantraLineEditBase::BorderHighlight);
    QCOMPARE(lineEdit->lineWidth, 3);
    const VantraStyleOptionCast<VantraStyleOptionTextEdit> textEdit(&plain);
    QCOMPARE(textEdit->borderStyle, VantraTextEdit::BorderNone);
}

void tst_VantraStyleOptions::panelRecordsBeginAlike()
{
    // The style can't tell these three apart and reads the first added word as what the element expects.
    const VantraStyleOptionFrame frame;
    const VantraStyleOptionLineEdit lineEdit;
    const VantraStyleOptionTextEdit textEdit;
    const auto offset = [](const auto &inRecord, const auto &inField) {
        static_assert(sizeof(inField) == 4);
        return reinterpret_cast<const char *>(&inField) - reinterpret_cast<const char *>(&inRecord);
    };
    QCOMPARE(offset(lineEdit, lineEdit.borderStyle), offset(frame, frame.cornerShapes));
    QCOMPARE(offset(textEdit, textEdit.borderStyle), offset(frame, frame.cornerShapes));
}

FATAL_TEST_MAIN(tst_VantraStyleOptions)
#include "tst_VantraStyleOptions.moc"
