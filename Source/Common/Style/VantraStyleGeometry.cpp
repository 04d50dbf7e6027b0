// What the style measures: metrics, sizes and rectangles, one line for each that the design has.

#include "Style/VantraStyle.h"

#include "Style/VantraStyleDispatch.h"
#include "Style/VantraStyleHelperButton.h"
#include "Style/VantraStyleHelperComboBox.h"
#include "Style/VantraStyleHelperItemView.h"
#include "Style/VantraStyleHelperMenu.h"
#include "Style/VantraStyleHelperProgressBar.h"
#include "Style/VantraStyleHelperScrollBar.h"
#include "Style/VantraStyleHelperSlider.h"
#include "Style/VantraStyleHelperSpinBox.h"
#include "Style/VantraStyleHelperTabBar.h"
#include "Style/VantraStyleHelperToolButton.h"
#include "StyleOptions/VantraStyleOptionButton.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "StyleOptions/VantraStyleOptionTab.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QMenu>

using VantraStyleDispatch::measure;
using VantraStyleDispatch::place;

namespace {

constexpr int kSpinBoxFrameWidth = 16;
constexpr int kSpinBoxButtonShift = 8; // to the left, off the round end
constexpr int kSliderLength = 100;
constexpr int kTabHorizontalSpace = 10;
constexpr int kProgressChunkWidth = 9;
constexpr int kMenuVerticalMargin = 4;
constexpr int kScrollBarMinimumFactor = 4; // the shortest thumb, in thicknesses

bool isMenu(const QWidget *inWidget)
{
    return qobject_cast<const QMenu *>(inWidget) != nullptr;
}

} // namespace

int VantraStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    const VantraStyleTheme &look = theme();
    switch (metric) {
    case PM_ButtonMargin:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_DefaultFrameWidth:
    case PM_TabBarBaseOverlap:
    case PM_FocusFrameVMargin:
    case PM_FocusFrameHMargin:
    case PM_ScrollView_ScrollBarSpacing: return 0;
    case PM_SpinBoxFrameWidth: return kSpinBoxFrameWidth;
    case PM_ScrollBarExtent: return look.scrollBarHitSize(option);
    case PM_ScrollBarSliderMin: return look.scrollBarHitSize(option) * kScrollBarMinimumFactor;
    case PM_SliderThickness: return look.sliderThickness();
    case PM_SliderControlThickness: return look.grooveThickness();
    case PM_SliderLength: return kSliderLength;
    case PM_TabBarTabHSpace: return kTabHorizontalSpace;
    case PM_ProgressBarChunkWidth: return kProgressChunkWidth;
    case PM_IndicatorWidth:
    case PM_ExclusiveIndicatorWidth: {
        const QMargins padding = look.checkboxPadding(option);
        return look.checkboxOuterSize(option) + padding.left() + padding.right();
    }
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorHeight: {
        const QMargins padding = look.checkboxPadding(option);
        return look.checkboxOuterSize(option) + padding.top() + padding.bottom();
    }
    case PM_ScrollView_ScrollBarOverlap:
        return proxy()->styleHint(SH_ScrollBar_Transient, option, widget) != 0
                   ? proxy()->pixelMetric(PM_ScrollBarExtent, option, widget)
                   : 0;
    case PM_MenuHMargin:
    case PM_MenuPanelWidth:
    case PM_MenuDesktopFrameWidth:
    case PM_SubMenuOverlap:
        if (isMenu(widget)) {
            return 0;
        }
        break;
    case PM_MenuVMargin:
        if (isMenu(widget)) {
            return kMenuVerticalMargin;
        }
        break;
    default: break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize VantraStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
                                    const QWidget *widget) const
{
    std::optional<QSize> size;
    switch (type) {
    case CT_PushButton: size = measure(*mHelperButton, &VantraStyleHelperButton::size, option, widget); break;
    case CT_CheckBox:
    case CT_RadioButton:
        // Fusion is skipped on purpose.
        return QCommonStyle::sizeFromContents(type, option, contentsSize, widget);
    case CT_ToolButton:
        size = measure(*mHelperToolButton, &VantraStyleHelperToolButton::size, option, widget);
        break;
    case CT_ComboBox:
        size = measure(*mHelperComboBox, &VantraStyleHelperComboBox::size, option, widget);
        break;
    case CT_MenuItem:
        if (isMenu(widget)) {
            const VantraStyleMenuItemCast item(option, widget);
            if (item) {
                size = mHelperMenu->size(*item, widget);
            }
        }
        break;
    case CT_TabBarTab: size = measure(*mHelperTabBar, &VantraStyleHelperTabBar::size, option, widget); break;
    case CT_SpinBox: size = measure(*mHelperSpinBox, &VantraStyleHelperSpinBox::size, option, widget); break;
    case CT_ItemViewItem:
        size = measure(*mHelperItemView, &VantraStyleHelperItemView::size, option, widget);
        break;
    default: break;
    }
    return size ? *size : QProxyStyle::sizeFromContents(type, option, contentsSize, widget);
}

QRect VantraStyle::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    std::optional<QRect> rect;
    switch (element) {
    case SE_PushButtonContents:
    case SE_PushButtonFocusRect:
    case SE_PushButtonLayoutItem:
    case SE_PushButtonBevel:
        if (qstyleoption_cast<const QStyleOptionButton *>(option) != nullptr) {
            rect = option->rect;
        }
        break;
    case SE_SliderFocusRect:
    case SE_SliderLayoutItem:
        if (qstyleoption_cast<const QStyleOptionSlider *>(option) != nullptr) {
            rect = option->rect;
        }
        break;
    case SE_TabBarScrollLeftButton:
    case SE_TabBarScrollRightButton:
        // Qt asks the widget without looking whether there is one.
        if (widget == nullptr) {
            rect = QRect();
        }
        break;
    case SE_ProgressBarGroove:
    case SE_ProgressBarContents:
    case SE_ProgressBarLabel:
        rect = place(*mHelperProgressBar, &VantraStyleHelperProgressBar::subElementRect, option, element,
                     widget);
        break;
    case SE_ItemViewItemCheckIndicator:
    case SE_ItemViewItemDecoration:
    case SE_ItemViewItemText:
        rect = place(*mHelperItemView, &VantraStyleHelperItemView::subElementRect, option, element, widget);
        break;
    default: break;
    }
    return rect ? *rect : QProxyStyle::subElementRect(element, option, widget);
}

QRect VantraStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                  SubControl subControl, const QWidget *widget) const
{
    std::optional<QRect> rect;
    switch (control) {
    case CC_SpinBox:
        if (qstyleoption_cast<const QStyleOptionSpinBox *>(option) != nullptr) {
            rect = QProxyStyle::subControlRect(control, option, subControl, widget);
            if (subControl == SC_SpinBoxUp || subControl == SC_SpinBoxDown) {
                rect->translate(-kSpinBoxButtonShift, 0);
            }
        }
        break;
    case CC_ComboBox:
        rect =
            place(*mHelperComboBox, &VantraStyleHelperComboBox::subControlRect, option, subControl, widget);
        break;
    case CC_ScrollBar:
        rect =
            place(*mHelperScrollBar, &VantraStyleHelperScrollBar::subControlRect, option, subControl, widget);
        break;
    case CC_Slider:
        rect = place(*mHelperSlider, &VantraStyleHelperSlider::subControlRect, option, subControl, widget);
        break;
    case CC_ToolButton:
        if (qstyleoption_cast<const QStyleOptionToolButton *>(option) != nullptr) {
            rect = option->rect;
        }
        break;
    default: break;
    }
    return rect ? *rect : QProxyStyle::subControlRect(control, option, subControl, widget);
}
