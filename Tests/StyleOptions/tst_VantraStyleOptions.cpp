#include "StyleOptions/VantraStyleOptionCast.h"
#include "Support/FatalTest.h"
#include "Support/StyleSamples.h"

namespace {

// A plain option becomes a record of its own; a record is used where it lies; anything else is refused.
template <typename Record>
void upgrades()
{
    using Cast = VantraStyleOptionCast<Record>;
    typename Record::QtOption plain;
    plain.rect = QRect(1, 2, 30, 40);
    plain.state = QStyle::State_On;
    const Cast upgraded(&plain);
    QVERIFY(upgraded && static_cast<const void *>(upgraded.get()) != &plain);
    QCOMPARE(upgraded->rect, plain.rect);
    QCOMPARE(upgraded->state, plain.state);
    QCOMPARE(upgraded->type, plain.type);
    QCOMPARE(upgraded->version, 2);
    const Record copy(*upgraded);
    QCOMPARE(copy.version, 2);
    QCOMPARE(copy.rect, plain.rect);
    QCOMPARE(Cast(&copy).get(), &copy);
    Record assigned;
    assigned = copy;
    QCOMPARE(assigned.version, 2);

    QVERIFY(!Cast(nullptr));
    plain.version = 0;
    QVERIFY(!Cast(&plain));
    plain.version = 3;
    ++plain.type;
    QVERIFY(!Cast(&plain));
}

} // namespace

class tst_VantraStyleOptions : public QObject
{
    Q_OBJECT

private slots:
    void plainOptionsAreUpgraded()
    {
        upgrades<VantraStyleOptionButton>();
        upgrades<VantraStyleOptionComboBox>();
        upgrades<VantraStyleOptionFrame>();
        upgrades<VantraStyleOptionGroupBox>();
        upgrades<VantraStyleOptionLineEdit>();
        upgrades<VantraStyleOptionTextEdit>();
        upgrades<VantraStyleOptionMenuItem>();
        upgrades<VantraStyleOptionSlider>();
        upgrades<VantraStyleOptionSpinBox>();
        upgrades<VantraStyleOptionTab>();
        upgrades<VantraStyleOptionToolButton>();
        upgrades<VantraStyleOptionViewItem>();
    }

    void addedFieldsHaveDefaultsAndAreCopied()
    {
        QStyleOptionToolButton plain;
        plain.text = "text";
        VantraStyleOptionCast<VantraStyleOptionToolButton> cast(&plain);
        QCOMPARE(cast->text, plain.text);
        QCOMPARE(cast->backgroundButtonRole, VantraPalette::DefaultRole);
        QCOMPARE(cast->alternateTintRole, VantraPalette::Accent);
        QVERIFY(cast->iconTinting == VantraIconPalette::IconTintingNone);
        cast.writable().backgroundButtonRole = VantraPalette::FrameLine;
        QCOMPARE(VantraStyleOptionToolButton(*cast).backgroundButtonRole, VantraPalette::FrameLine);
    }

    void paneIsTheThirdVersion()
    {
        VantraStyleOptionFramePane pane;
        QCOMPARE(pane.version, 3);
        pane.paneState = VantraFramePane::PaneStateExpanded;
        const VantraStyleOptionFramePane copy(pane);
        QCOMPARE(copy.version, 3);
        QCOMPARE(copy.paneState, pane.paneState);
        QCOMPARE(VantraStyleOptionCast<VantraStyleOptionFrame>(&pane).get(), &pane); // a frame as it is
        QCOMPARE(VantraStyleOptionFrame(pane).version, 2);
    }

    void sunkenLineEditIsHighlighted()
    {
        QStyleOptionFrame plain;
        plain.state = QStyle::State_Enabled | QStyle::State_Sunken;
        QCOMPARE(VantraStyleOptionCast<VantraStyleOptionLineEdit>(&plain)->borderStyle,
                 VantraLineEditBase::BorderHighlight);
        QCOMPARE(VantraStyleOptionCast<VantraStyleOptionTextEdit>(&plain)->borderStyle,
                 VantraTextEdit::BorderNone);
    }

    // The style can't tell these three apart and reads the first added word as what the element expects.
    void panelRecordsBeginAlike()
    {
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
};

FATAL_TEST_MAIN(tst_VantraStyleOptions)
#include "tst_VantraStyleOptions.moc"
