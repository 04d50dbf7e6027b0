#include "Style/VantraStyle.h"
#include "Style/VantraStyleHelperItemView.h"
#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/StyleSamples.h"
#include "Support/ThemeFixture.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QtWidgets>

#include <memory>

// Calls the style with everything that Qt's own option classes and ours can hold, for every enumerator that
// QStyle has. Nothing may stop, warn about its painter, or read past the end of an option; the sanitizers
// watch the latter.

namespace {

struct Subject
{
    const char *name;
    std::shared_ptr<QStyleOption> option;
    std::shared_ptr<QWidget> widget;
    QStyleOptionComplex *complex = nullptr;
};

void fill(...)
{
}

template <typename Option>
auto fill(Option *ioOption) -> decltype(ioOption->text, ioOption->icon, void())
{
    ioOption->text = "Text\tCtrl+T";
    ioOption->icon = QApplication::windowIcon();
    if constexpr (std::is_base_of_v<QStyleOptionViewItem, Option>) {
        ioOption->features = QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasCheckIndicator |
                             QStyleOptionViewItem::HasDisplay;
        ioOption->checkState = Qt::PartiallyChecked;
        ioOption->decorationSize = QSize(16, 16);
    }
}

template <typename Option>
auto fill(Option *ioOption) -> decltype(ioOption->sliderValue, void())
{
    ioOption->maximum = 100;
    ioOption->sliderValue = ioOption->sliderPosition = 50;
}

template <typename Option, typename Widget>
void add(std::vector<Subject> &ioSubjects, const char *inName)
{
    for (const bool hasWidget : {false, true}) {
        const auto option = std::make_shared<Option>();
        Subject subject{inName, option, nullptr};
        if constexpr (std::is_base_of_v<QStyleOptionComplex, Option>) {
            subject.complex = option.get();
        }
        if (hasWidget) {
            subject.widget = std::make_shared<Widget>();
            subject.widget->resize(60, 24);
            option->initFrom(subject.widget.get());
        }
        option->rect = QRect(0, 0, 60, 24);
        fill(option.get());
        ioSubjects.push_back(subject);
    }
}

std::vector<Subject> subjects()
{
    std::vector<Subject> all;
    add<QStyleOption, QWidget>(all, "default");
    add<QStyleOptionFocusRect, QWidget>(all, "focus rect");
    add<QStyleOptionFrame, QFrame>(all, "frame");
    add<QStyleOptionFrame, QLineEdit>(all, "line edit");
    add<QStyleOptionTabWidgetFrame, QTabWidget>(all, "tab widget frame");
    add<QStyleOptionHeaderV2, QWidget>(all, "header, version 2");
    add<QStyleOptionButton, QPushButton>(all, "button");
    add<QStyleOptionButton, QCheckBox>(all, "check box");
    add<QStyleOptionTab, QTabBar>(all, "tab");
    add<QStyleOptionToolBar, QToolBar>(all, "tool bar");
    add<QStyleOptionProgressBar, QProgressBar>(all, "progress bar");
    add<QStyleOptionMenuItem, QMenu>(all, "menu item");
    add<QStyleOptionMenuItem, QMenuBar>(all, "menu bar item");
    add<QStyleOptionMenuItem, QComboBox>(all, "combo box menu item");
    add<QStyleOptionViewItem, QListView>(all, "list row");
    add<QStyleOptionViewItem, QTreeView>(all, "tree row");
    add<QStyleOptionComplex, QWidget>(all, "complex");
    add<QStyleOptionSlider, QSlider>(all, "slider");
    add<QStyleOptionSlider, QScrollBar>(all, "scroll bar");
    add<QStyleOptionSpinBox, QSpinBox>(all, "spin box");
    add<QStyleOptionToolButton, QToolButton>(all, "tool button");
    add<QStyleOptionComboBox, QComboBox>(all, "combo box");
    add<QStyleOptionTitleBar, QWidget>(all, "title bar");
    add<QStyleOptionGroupBox, QGroupBox>(all, "group box");

    add<VantraStyleOptionButton, QPushButton>(all, "our button");
    add<VantraStyleOptionComboBox, QComboBox>(all, "our combo box");
    add<VantraStyleOptionFrame, QFrame>(all, "our frame");
    add<VantraStyleOptionFramePane, QFrame>(all, "our pane");
    add<VantraStyleOptionGroupBox, QGroupBox>(all, "our group box");
    add<VantraStyleOptionLineEdit, QLineEdit>(all, "our line edit");
    add<VantraStyleOptionTextEdit, QTextEdit>(all, "our text edit");
    add<VantraStyleOptionMenuItem, QMenu>(all, "our menu item");
    add<VantraStyleOptionSlider, QSlider>(all, "our slider");
    add<VantraStyleOptionSpinBox, QSpinBox>(all, "our spin box");
    add<VantraStyleOptionTab, QTabBar>(all, "our tab");
    add<VantraStyleOptionToolButton, QToolButton>(all, "our tool button");
    add<VantraStyleOptionViewItem, QTreeView>(all, "our row");
    return all;
}

const QStyle::State kStates[] = {
    QStyle::State_None,
    QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_On | QStyle::State_Horizontal,
    QStyle::State_Enabled | QStyle::State_Selected | QStyle::State_NoChange | QStyle::State_Children,
    QStyle::State_Enabled | QStyle::State_Sunken | QStyle::State_HasFocus | kStateEditing,
};

template <typename Enum, typename Call>
void forEach(const Call &inCall)
{
    const QMetaEnum keys = QMetaEnum::fromType<Enum>();
    QVERIFY(keys.keyCount() > 5);
    for (int index = 0; index < keys.keyCount(); ++index) {
        if (!QByteArray(keys.key(index)).endsWith("CustomBase")) {
            inCall(static_cast<Enum>(keys.value(index)));
        }
    }
}

template <typename Call>
void forEachPart(const Subject &inSubject, const Call &inCall)
{
    if (inSubject.complex != nullptr) {
        forEach<QStyle::ComplexControl>([&](QStyle::ComplexControl inControl) {
            forEach<QStyle::SubControl>([&](QStyle::SubControl inPart) { inCall(inControl, inPart); });
        });
    }
}

// A record of a line or text edit has no room for what the style reads of a frame; it is for panels alone.
bool isFrameOnly(int inPrimitive)
{
    return inPrimitive == QStyle::PE_Frame || inPrimitive == QStyle::PE_FrameGroupBox;
}

} // namespace

class tst_VantraStyleSweep : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void init() { QTest::failOnWarning(QRegularExpression("QPainter")); }

    void takesAnything_data() { DataRows::add(subjects()); }
    void takesAnything()
    {
        const Subject subject = DataRows::current(subjects());
        for (const QStyle::State state : kStates) {
            subject.option->state = state;
            paints(subject);
        }
        for (const QRect &rect : {QRect(0, 0, 60, 24), QRect(5, 5, 1, 1), QRect()}) {
            subject.option->rect = rect;
            measures(subject);
        }
        answers(subject.option.get(), subject.widget.get());
    }

    void answersWithoutAnOption()
    {
        QMenu menu;
        for (const QWidget *widget : {static_cast<QWidget *>(nullptr), static_cast<QWidget *>(&menu)}) {
            answers(nullptr, widget);
        }
    }

private:
    void paints(const Subject &inSubject)
    {
        const QStyleOption *option = inSubject.option.get();
        const QWidget *widget = inSubject.widget.get();
        const bool isPanel =
            qstrcmp(inSubject.name, "our line edit") == 0 || qstrcmp(inSubject.name, "our text edit") == 0;
        QPixmap pixmap(60, 24);
        QPainter painter(&pixmap);
        forEach<QStyle::PrimitiveElement>([&](QStyle::PrimitiveElement inElement) {
            if (!isPanel || !isFrameOnly(inElement)) {
                mStyle.drawPrimitive(inElement, option, &painter, widget);
            }
        });
        forEach<QStyle::ControlElement>([&](QStyle::ControlElement inElement) {
            if (!isPanel || inElement != QStyle::CE_ShapedFrame) {
                mStyle.drawControl(inElement, option, &painter, widget);
            }
        });
        forEachPart(inSubject, [&](QStyle::ComplexControl inControl, QStyle::SubControl inPart) {
            inSubject.complex->subControls = inSubject.complex->activeSubControls = inPart;
            mStyle.drawComplexControl(inControl, inSubject.complex, &painter, widget);
        });
    }

    void measures(const Subject &inSubject)
    {
        const QStyleOption *option = inSubject.option.get();
        const QWidget *widget = inSubject.widget.get();
        forEach<QStyle::ContentsType>([&](QStyle::ContentsType inType) {
            mStyle.sizeFromContents(inType, option, QSize(20, 10), widget);
        });
        forEach<QStyle::SubElement>(
            [&](QStyle::SubElement inElement) { mStyle.subElementRect(inElement, option, widget); });
        forEachPart(inSubject, [&](QStyle::ComplexControl inControl, QStyle::SubControl inPart) {
            if (inControl !=
                QStyle::CC_Dial) { // of whose parts Qt's common style says at each call that it knows none
                mStyle.subControlRect(inControl, inSubject.complex, inPart, widget);
                mStyle.hitTestComplexControl(inControl, inSubject.complex, QPoint(3, 3), widget);
            }
        });
    }

    void answers(const QStyleOption *inOption, const QWidget *inWidget)
    {
        forEach<QStyle::PixelMetric>(
            [&](QStyle::PixelMetric inMetric) { mStyle.pixelMetric(inMetric, inOption, inWidget); });
        forEach<QStyle::StyleHint>(
            [&](QStyle::StyleHint inHint) { mStyle.styleHint(inHint, inOption, inWidget, nullptr); });
        forEach<QStyle::StandardPixmap>(
            [&](QStyle::StandardPixmap inPixmap) { mStyle.standardIcon(inPixmap, inOption, inWidget); });
        mStyle.layoutSpacing(QSizePolicy::PushButton, QSizePolicy::LineEdit, Qt::Horizontal, inOption,
                             inWidget);
    }

    VantraStyle mStyle;
};

FATAL_TEST_MAIN(tst_VantraStyleSweep)
#include "tst_VantraStyleSweep.moc"
