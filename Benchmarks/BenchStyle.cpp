// Every painted element against Fusion painting the same element. Targets are ratios.

#include "BenchSupport.h"

#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

namespace Bench {

namespace {

QIcon icon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(QColor(90, 160, 90));
    return QIcon(pixmap);
}

// A widget of the given style with an option filled as the widget's own would be.
template <typename Widget, typename Option>
struct Prepared
{
    Prepared(QStyle *inStyle, const QSize &inSize) : widget(std::make_shared<Widget>())
    {
        widget->setStyle(inStyle);
        QPalette palette = inStyle->standardPalette();
        inStyle->polish(palette);
        widget->setPalette(palette);
        widget->ensurePolished();
        widget->resize(inSize);
        option.initFrom(widget.get());
        option.palette = palette;
        option.rect = QRect(QPoint(0, 0), inSize);
        option.state |= QStyle::State_Enabled | QStyle::State_Active;
    }

    std::shared_ptr<Widget> widget;
    Option option;
};

// inDraw paints the option: draw(style, option, painter, widget).
template <typename Widget, typename Option, typename Draw, typename Change>
void element(const char *inName, Draw inDraw, const QSize &inSize, double inTarget, Change inChange)
{
    const auto make = [=](QStyle *style) {
        Prepared<Widget, Option> prepared(style, inSize);
        inChange(prepared.option);
        return Sample{prepared.widget, [style, inDraw, prepared](QPainter *painter) {
                          inDraw(*style, prepared.option, painter, prepared.widget.get());
                      }};
    };
    benchmark::RegisterBenchmark(inName, pairedPaint, MakeSample(make), inSize, inTarget)
        ->UseManualTime()
        ->Iterations(kRounds);
}

template <typename Widget, typename Option, typename Change>
void primitive(const char *inName, QStyle::PrimitiveElement inElement, const QSize &inSize, double inTarget,
               Change inChange)
{
    const auto draw = [inElement](QStyle &style, const Option &option, QPainter *painter, QWidget *widget) {
        style.drawPrimitive(inElement, &option, painter, widget);
    };
    element<Widget, Option>(inName, draw, inSize, inTarget, inChange);
}

template <typename Widget, typename Option, typename Change>
void control(const char *inName, QStyle::ControlElement inElement, const QSize &inSize, double inTarget,
             Change inChange)
{
    const auto draw = [inElement](QStyle &style, const Option &option, QPainter *painter, QWidget *widget) {
        style.drawControl(inElement, &option, painter, widget);
    };
    element<Widget, Option>(inName, draw, inSize, inTarget, inChange);
}

template <typename Widget, typename Option, typename Change>
void complex(const char *inName, QStyle::ComplexControl inControl, const QSize &inSize, double inTarget,
             Change inChange, bool inWithLabel = false)
{
    const auto draw = [=](QStyle &style, const Option &option, QPainter *painter, QWidget *widget) {
        style.drawComplexControl(inControl, &option, painter, widget);
        if (inWithLabel) {
            style.drawControl(QStyle::CE_ComboBoxLabel, &option, painter, widget);
        }
    };
    const auto change = [inChange](Option &option) {
        option.subControls = QStyle::SC_All;
        inChange(option);
    };
    element<Widget, Option>(inName, draw, inSize, inTarget, change);
}

void asItIs(QStyleOption &)
{
}

void checkedOn(QStyleOption &option)
{
    option.state |= QStyle::State_On;
}

void registerButtons()
{
    const auto fill = [](QStyleOptionButton &option) { option.text = QStringLiteral("Button"); };
    control<QPushButton, QStyleOptionButton>("CE_PushButton", QStyle::CE_PushButton, {80, 24}, 1.1, fill);
    control<QPushButton, QStyleOptionButton>("CE_PushButton/hovered", QStyle::CE_PushButton, {80, 24}, 0.0,
                                             [fill](QStyleOptionButton &option) {
                                                 fill(option);
                                                 option.state |= QStyle::State_MouseOver;
                                             });
    control<QPushButton, QStyleOptionButton>("CE_PushButtonBevel", QStyle::CE_PushButtonBevel, {80, 24}, 0.0,
                                             fill);
    control<QPushButton, QStyleOptionButton>("CE_PushButtonLabel", QStyle::CE_PushButtonLabel, {80, 24}, 0.0,
                                             fill);
    control<QPushButton, QStyleOptionButton>(
        "CE_PushButton/elided", QStyle::CE_PushButton, {80, 24}, 0.0,
        [](QStyleOptionButton &option) { option.text = QStringLiteral("A text too long for it"); });
    const auto check = [](QStyleOptionButton &option) {
        option.text = QStringLiteral("Check box");
        option.state |= QStyle::State_On;
    };
    control<QCheckBox, QStyleOptionButton>("CE_CheckBox", QStyle::CE_CheckBox, {100, 20}, 0.85, check);
    control<QCheckBox, QStyleOptionButton>("CE_RadioButton", QStyle::CE_RadioButton, {100, 20}, 0.0, check);
    control<QCheckBox, QStyleOptionButton>("CE_CheckBoxLabel", QStyle::CE_CheckBoxLabel, {100, 20}, 0.0,
                                           check);
    primitive<QCheckBox, QStyleOptionButton>("PE_IndicatorRadioButton", QStyle::PE_IndicatorRadioButton,
                                             {16, 16}, 0.0, check);
    primitive<QCheckBox, QStyleOptionButton>("PE_IndicatorCheckBox", QStyle::PE_IndicatorCheckBox, {16, 16},
                                             0.0, check);
    const auto tool = [](QStyleOptionToolButton &option) {
        option.icon = icon();
        option.iconSize = QSize(16, 16);
        option.subControls = QStyle::SC_ToolButton;
        option.arrowType = Qt::NoArrow;
    };
    complex<QToolButton, QStyleOptionToolButton>("CC_ToolButton", QStyle::CC_ToolButton, {24, 24}, 1.0, tool);
    control<QToolButton, QStyleOptionToolButton>("CE_ToolButtonLabel", QStyle::CE_ToolButtonLabel, {24, 24},
                                                 0.0, tool);
    primitive<QToolButton, QStyleOptionToolButton>("PE_PanelButtonTool/checked", QStyle::PE_PanelButtonTool,
                                                   {24, 24}, 0.0, [tool](QStyleOptionToolButton &option) {
                                                       tool(option);
                                                       checkedOn(option);
                                                   });
}

void registerFields()
{
    const auto sunken = [](QStyleOptionFrame &option) {
        option.lineWidth = 1;
        option.state |= QStyle::State_Sunken;
    };
    primitive<QLineEdit, QStyleOptionFrame>("PE_PanelLineEdit", QStyle::PE_PanelLineEdit, {120, 24}, 0.4,
                                            sunken);
    complex<QComboBox, QStyleOptionComboBox>(
        "CC_ComboBox+label", QStyle::CC_ComboBox, {120, 24}, 1.3,
        [](QStyleOptionComboBox &option) { option.currentText = QStringLiteral("Current"); }, true);
    complex<QSpinBox, QStyleOptionSpinBox>(
        "CC_SpinBox", QStyle::CC_SpinBox, {80, 24}, 0.0, [](QStyleOptionSpinBox &option) {
            option.frame = true;
            option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
        });
}

void registerRanges()
{
    const auto slider = [](QStyleOptionSlider &option) {
        option.maximum = 100;
        option.sliderPosition = option.sliderValue = 40;
        option.orientation = Qt::Horizontal;
        option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    };
    const auto bar = [](QStyleOptionSlider &option) {
        option.maximum = 900;
        option.pageStep = 100;
        option.sliderPosition = option.sliderValue = 40;
        option.orientation = Qt::Vertical;
        option.state &= ~QStyle::State_Horizontal;
    };
    const auto progress = [](QStyleOptionProgressBar &option) {
        option.maximum = 100;
        option.progress = 40;
        option.state |= QStyle::State_Horizontal;
    };
    complex<QSlider, QStyleOptionSlider>("CC_Slider", QStyle::CC_Slider, {200, 22}, 0.0, slider);
    complex<QScrollBar, QStyleOptionSlider>("CC_ScrollBar", QStyle::CC_ScrollBar, {14, 200}, 0.06, bar);
    control<QProgressBar, QStyleOptionProgressBar>("CE_ProgressBarGroove", QStyle::CE_ProgressBarGroove,
                                                   {200, 8}, 0.0, progress);
    control<QProgressBar, QStyleOptionProgressBar>("CE_ProgressBarContents", QStyle::CE_ProgressBarContents,
                                                   {200, 8}, 0.0, progress);
    control<QScrollBar, QStyleOptionSlider>("CE_ScrollBarSlider", QStyle::CE_ScrollBarSlider, {8, 60}, 0.0,
                                            bar);
    control<QProgressBar, QStyleOptionProgressBar>("CE_ProgressBar", QStyle::CE_ProgressBar, {200, 20}, 0.07,
                                                   progress);
}

void registerContainers()
{
    const auto tab = [](QStyleOptionTab &option) { option.text = QStringLiteral("Tab"); };
    control<QTabBar, QStyleOptionTab>("CE_TabBarTab", QStyle::CE_TabBarTab, {80, 28}, 0.6, tab);
    control<QTabBar, QStyleOptionTab>("CE_TabBarTab/selected", QStyle::CE_TabBarTab, {80, 28}, 0.0,
                                      [tab](QStyleOptionTab &option) {
                                          tab(option);
                                          option.state |= QStyle::State_Selected;
                                      });
    control<QTabBar, QStyleOptionTab>("CE_TabBarTabShape", QStyle::CE_TabBarTabShape, {80, 28}, 0.0, tab);
    control<QTabBar, QStyleOptionTab>("CE_TabBarTabLabel", QStyle::CE_TabBarTabLabel, {80, 28}, 0.0, tab);
    const auto item = [](QStyleOptionMenuItem &option) {
        option.menuItemType = QStyleOptionMenuItem::Normal;
        option.text = QStringLiteral("Open...\tCtrl+O");
        option.maxIconWidth = 16;
    };
    control<QMenu, QStyleOptionMenuItem>("CE_MenuItem", QStyle::CE_MenuItem, {200, 24}, 0.8, item);
    control<QMenu, QStyleOptionMenuItem>(
        "CE_MenuItem/separator", QStyle::CE_MenuItem, {200, 8}, 0.0,
        [](QStyleOptionMenuItem &option) { option.menuItemType = QStyleOptionMenuItem::Separator; });
    primitive<QMenu, QStyleOptionMenuItem>("PE_IndicatorMenuCheckMark", QStyle::PE_IndicatorMenuCheckMark,
                                           {16, 16}, 0.0, checkedOn);
    primitive<QMenu, QStyleOptionMenuItem>("PE_PanelMenu", QStyle::PE_PanelMenu, {200, 90}, 0.0, asItIs);
    control<QFrame, QStyleOptionFrame>("CE_ShapedFrame/panel", QStyle::CE_ShapedFrame, {200, 90}, 0.0,
                                       [](QStyleOptionFrame &option) { option.frameShape = QFrame::Panel; });
    control<QFrame, QStyleOptionFrame>("CE_ShapedFrame/line", QStyle::CE_ShapedFrame, {200, 8}, 0.0,
                                       [](QStyleOptionFrame &option) {
                                           option.frameShape = QFrame::HLine;
                                           option.lineWidth = 1;
                                       });
    primitive<QFrame, QStyleOptionFrame>("PE_Frame", QStyle::PE_Frame, {200, 90}, 0.0, asItIs);
    primitive<QGroupBox, QStyleOptionFrame>("PE_FrameGroupBox", QStyle::PE_FrameGroupBox, {200, 90}, 0.0,
                                            asItIs);
    control<QWidget, QStyleOption>(
        "CE_Splitter/hovered", QStyle::CE_Splitter, {8, 200}, 0.0,
        [](QStyleOption &option) { option.state |= QStyle::State_MouseOver | QStyle::State_Horizontal; });
    primitive<QWidget, QStyleOption>("PE_IndicatorArrowDown", QStyle::PE_IndicatorArrowDown, {16, 16}, 0.0,
                                     asItIs);
}

void registerItemViews()
{
    const auto row = [](QStyleOptionViewItem &option) {
        option.text = QStringLiteral("A row of a view");
        option.icon = icon();
        option.decorationSize = QSize(16, 16);
        option.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration |
                          QStyleOptionViewItem::HasCheckIndicator;
        option.checkState = Qt::Checked;
        option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
        option.showDecorationSelected = true;
    };
    primitive<QTreeView, QStyleOptionViewItem>(
        "PE_PanelItemViewItem/selected", QStyle::PE_PanelItemViewItem, {200, 22}, 0.0,
        [](QStyleOptionViewItem &option) { option.state |= QStyle::State_Selected; });
    primitive<QTreeView, QStyleOptionViewItem>(
        "PE_IndicatorBranch", QStyle::PE_IndicatorBranch, {20, 22}, 0.0,
        [](QStyleOptionViewItem &option) { option.state |= QStyle::State_Children; });
    primitive<QTreeView, QStyleOption>("PE_IndicatorItemViewItemDrop", QStyle::PE_IndicatorItemViewItemDrop,
                                       {200, 2}, 0.0, asItIs);
    control<QTreeView, QStyleOptionViewItem>("CE_ItemViewItem", QStyle::CE_ItemViewItem, {200, 22}, 0.7, row);
    control<QTreeView, QStyleOptionViewItem>("CE_ItemViewItem/selected", QStyle::CE_ItemViewItem, {200, 22},
                                             0.0, [row](QStyleOptionViewItem &option) {
                                                 row(option);
                                                 option.state |= QStyle::State_Selected;
                                             });
}

} // namespace

void registerStyle()
{
    registerButtons();
    registerFields();
    registerRanges();
    registerContainers();
    registerItemViews();
}

} // namespace Bench
