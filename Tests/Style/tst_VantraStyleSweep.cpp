#include "Style/VantraStyle.h"
#include "StyleOptions/VantraStyleOptionButton.h"
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

template <typename Option, typename Widget>
void add(std::vector<Subject> &ioSubjects, const char *inName, void (*inFill)(Option &) = nullptr)
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
        if (inFill != nullptr) {
            inFill(*option);
        }
        ioSubjects.push_back(subject);
    }
}

template <typename Option>
void fillButton(Option &ioOption)
{
    ioOption.text = "Text of a button";
    ioOption.icon = QApplication::windowIcon();
    ioOption.iconSize = QSize(16, 16);
}

template <typename Option>
void fillItem(Option &ioOption)
{
    ioOption.text = "Text\tCtrl+T";
    ioOption.icon = QApplication::windowIcon();
}

template <typename Option>
void fillRow(Option &ioOption)
{
    fillItem(ioOption);
    ioOption.features = QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasCheckIndicator |
                        QStyleOptionViewItem::HasDisplay;
    ioOption.checkState = Qt::PartiallyChecked;
    ioOption.decorationSize = QSize(16, 16);
}

template <typename Option>
void fillRange(Option &ioOption)
{
    ioOption.maximum = 100;
    ioOption.sliderValue = 50;
    ioOption.sliderPosition = 50;
}

std::vector<Subject> subjects()
{
    std::vector<Subject> all;
    add<QStyleOption, QWidget>(all, "default");
    add<QStyleOptionFocusRect, QWidget>(all, "focus rect");
    add<QStyleOptionFrame, QFrame>(all, "frame");
    add<QStyleOptionFrame, QLineEdit>(all, "line edit");
    add<QStyleOptionTabWidgetFrame, QTabWidget>(all, "tab widget frame");
    add<QStyleOptionTabBarBase, QTabBar>(all, "tab bar base");
    add<QStyleOptionHeader, QWidget>(all, "header");
    add<QStyleOptionHeaderV2, QWidget>(all, "header, version 2");
    add<QStyleOptionButton, QPushButton>(all, "button", fillButton);
    add<QStyleOptionButton, QCheckBox>(all, "check box", fillButton);
    add<QStyleOptionTab, QTabBar>(all, "tab", fillButton);
    add<QStyleOptionToolBar, QToolBar>(all, "tool bar");
    add<QStyleOptionProgressBar, QProgressBar>(all, "progress bar");
    add<QStyleOptionMenuItem, QMenu>(all, "menu item", fillItem);
    add<QStyleOptionMenuItem, QMenuBar>(all, "menu bar item", fillItem);
    add<QStyleOptionMenuItem, QComboBox>(all, "combo box menu item", fillItem);
    add<QStyleOptionDockWidget, QDockWidget>(all, "dock widget");
    add<QStyleOptionViewItem, QListView>(all, "list row", fillRow);
    add<QStyleOptionViewItem, QTreeView>(all, "tree row", fillRow);
    add<QStyleOptionToolBox, QToolBox>(all, "tool box", fillItem);
    add<QStyleOptionRubberBand, QWidget>(all, "rubber band");
    add<QStyleOptionGraphicsItem, QWidget>(all, "graphics item");
    add<QStyleOptionComplex, QWidget>(all, "complex");
    add<QStyleOptionSlider, QSlider>(all, "slider", fillRange);
    add<QStyleOptionSlider, QScrollBar>(all, "scroll bar", fillRange);
    add<QStyleOptionSpinBox, QSpinBox>(all, "spin box");
    add<QStyleOptionToolButton, QToolButton>(all, "tool button", fillButton);
    add<QStyleOptionComboBox, QComboBox>(all, "combo box");
    add<QStyleOptionTitleBar, QWidget>(all, "title bar");
    add<QStyleOptionGroupBox, QGroupBox>(all, "group box");
    add<QStyleOptionSizeGrip, QWidget>(all, "size grip");

    add<VantraStyleOptionButton, QPushButton>(all, "our button", fillButton);
    add<VantraStyleOptionComboBox, QComboBox>(all, "our combo box");
    add<VantraStyleOptionFrame, QFrame>(all, "our frame");
    add<VantraStyleOptionFramePane, QFrame>(all, "our pane");
    add<VantraStyleOptionGroupBox, QGroupBox>(all, "our group box");
    add<VantraStyleOptionLineEdit, QLineEdit>(all, "our line edit");
    add<VantraStyleOptionTextEdit, QTextEdit>(all, "our text edit");
    add<VantraStyleOptionMenuItem, QMenu>(all, "our menu item", fillItem);
    add<VantraStyleOptionSlider, QSlider>(all, "our slider", fillRange);
    add<VantraStyleOptionSpinBox, QSpinBox>(all, "our spin box");
    add<VantraStyleOptionTab, QTabBar>(all, "our tab", fillButton);
    add<VantraStyleOptionToolButton, QToolButton>(all, "our tool button", fillButton);
    add<VantraStyleOptionViewItem, QTreeView>(all, "our row", fillRow);
    return all;
}

const QStyle::State kStates[] = {
    QStyle::State_None,
    QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_On | QStyle::State_Horizontal,
    QStyle::State_Enabled | QStyle::State_Selected | QStyle::State_NoChange | QStyle::State_Children,
    QStyle::State_Enabled | QStyle::State_Sunken | QStyle::State_HasFocus | QStyle::State_Editing,
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

// A record of a line or text edit has no room for what the style reads of a frame; it is for panels alone.
bool isFrameOnly(int inPrimitive)
{
    return inPrimitive == QStyle::PE_Frame || inPrimitive == QStyle::PE_FrameGroupBox;
}

// Qt's common style, from which Fusion takes these, asks the widget for its direction.
bool needsWidget(QStyle::SubElement inElement)
{
    return inElement == QStyle::SE_TabBarScrollLeftButton || inElement == QStyle::SE_TabBarScrollRightButton;
}

} // namespace

class tst_VantraStyleSweep : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void init() { QTest::failOnWarning(QRegularExpression("QPainter")); }

    void paintsAnything_data() { DataRows::add(subjects()); }
    void paintsAnything();
    void measuresAnything_data() { DataRows::add(subjects()); }
    void measuresAnything();
    void answersAnything_data() { DataRows::add(subjects()); }
    void answersAnything();
    void answersWithoutAnOption();

private:
    VantraStyle mStyle;
};

void tst_VantraStyleSweep::paintsAnything()
{
    const Subject subject = DataRows::current(subjects());
    const QWidget *widget = subject.widget.get();
    const bool isPanel =
        qstrcmp(subject.name, "our line edit") == 0 || qstrcmp(subject.name, "our text edit") == 0;
    QPixmap pixmap(60, 24);
    pixmap.fill(Qt::transparent);
    for (const QStyle::State state : kStates) {
        QPainter painter(&pixmap);
        subject.option->state = state;
        forEach<QStyle::PrimitiveElement>([&](QStyle::PrimitiveElement inElement) {
            if (!isPanel || !isFrameOnly(inElement)) {
                mStyle.drawPrimitive(inElement, subject.option.get(), &painter, widget);
            }
        });
        forEach<QStyle::ControlElement>([&](QStyle::ControlElement inElement) {
            if (!isPanel || inElement != QStyle::CE_ShapedFrame) {
                mStyle.drawControl(inElement, subject.option.get(), &painter, widget);
            }
        });
        if (subject.complex == nullptr) {
            continue;
        }
        forEach<QStyle::ComplexControl>([&](QStyle::ComplexControl inControl) {
            forEach<QStyle::SubControl>([&](QStyle::SubControl inPart) {
                subject.complex->subControls = inPart;
                subject.complex->activeSubControls = inPart;
                mStyle.drawComplexControl(inControl, subject.complex, &painter, widget);
            });
        });
    }
}

void tst_VantraStyleSweep::measuresAnything()
{
    const Subject subject = DataRows::current(subjects());
    const QWidget *widget = subject.widget.get();
    for (const QRect &rect : {QRect(0, 0, 60, 24), QRect(5, 5, 1, 1), QRect()}) {
        subject.option->rect = rect;
        forEach<QStyle::ContentsType>([&](QStyle::ContentsType inType) {
            mStyle.sizeFromContents(inType, subject.option.get(), QSize(20, 10), widget);
        });
        forEach<QStyle::SubElement>([&](QStyle::SubElement inElement) {
            if (widget != nullptr || !needsWidget(inElement)) {
                mStyle.subElementRect(inElement, subject.option.get(), widget);
            }
        });
        if (subject.complex == nullptr) {
            continue;
        }
        forEach<QStyle::ComplexControl>([&](QStyle::ComplexControl inControl) {
            if (inControl == QStyle::CC_Dial) {
                return; // Qt's common style knows no parts of a dial, and says so at each call
            }
            forEach<QStyle::SubControl>([&](QStyle::SubControl inPart) {
                mStyle.subControlRect(inControl, subject.complex, inPart, widget);
            });
            mStyle.hitTestComplexControl(inControl, subject.complex, QPoint(3, 3), widget);
        });
    }
}

void tst_VantraStyleSweep::answersAnything()
{
    const Subject subject = DataRows::current(subjects());
    const QStyleOption *option = subject.option.get();
    const QWidget *widget = subject.widget.get();
    forEach<QStyle::PixelMetric>(
        [&](QStyle::PixelMetric inMetric) { mStyle.pixelMetric(inMetric, option, widget); });
    forEach<QStyle::StyleHint>([&](QStyle::StyleHint inHint) {
        QStyleHintReturn plain;
        mStyle.styleHint(inHint, option, widget, nullptr);
        mStyle.styleHint(inHint, option, widget, &plain);
    });
    forEach<QStyle::StandardPixmap>([&](QStyle::StandardPixmap inPixmap) {
        mStyle.standardIcon(inPixmap, option, widget);
        mStyle.standardPixmap(inPixmap, option, widget);
    });
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
        QPixmap pixmap(8, 8);
        pixmap.fill(Qt::white);
        QCOMPARE(mStyle.generatedIconPixmap(mode, pixmap, option).size(), pixmap.size());
    }
    mStyle.layoutSpacing(QSizePolicy::PushButton, QSizePolicy::LineEdit, Qt::Horizontal, option, widget);
    mStyle.itemTextRect(QFontMetrics(QFont()), option->rect, Qt::AlignCenter, true, "text");
}

void tst_VantraStyleSweep::answersWithoutAnOption()
{
    QMenu menu;
    for (const QWidget *widget : {static_cast<QWidget *>(nullptr), static_cast<QWidget *>(&menu)}) {
        forEach<QStyle::PixelMetric>(
            [&](QStyle::PixelMetric inMetric) { mStyle.pixelMetric(inMetric, nullptr, widget); });
        forEach<QStyle::StyleHint>(
            [&](QStyle::StyleHint inHint) { mStyle.styleHint(inHint, nullptr, widget, nullptr); });
        forEach<QStyle::StandardPixmap>(
            [&](QStyle::StandardPixmap inPixmap) { mStyle.standardIcon(inPixmap, nullptr, widget); });
    }
    mStyle.layoutSpacing(QSizePolicy::CheckBox, QSizePolicy::CheckBox, Qt::Vertical);
}

FATAL_TEST_MAIN(tst_VantraStyleSweep)

#include "tst_VantraStyleSweep.moc"
