// What the style paints: one switch for each kind of element, one line for each element.

#include "Style/VantraStyle.h"

#include "Style/VantraStyleDispatch.h"
#include "Style/VantraStyleHelperButton.h"
#include "Style/VantraStyleHelperCheckBox.h"
#include "Style/VantraStyleHelperComboBox.h"
#include "Style/VantraStyleHelperFrame.h"
#include "Style/VantraStyleHelperGroupBox.h"
#include "Style/VantraStyleHelperItemView.h"
#include "Style/VantraStyleHelperLineEdit.h"
#include "Style/VantraStyleHelperMenu.h"
#include "Style/VantraStyleHelperProgressBar.h"
#include "Style/VantraStyleHelperScrollBar.h"
#include "Style/VantraStyleHelperSlider.h"
#include "Style/VantraStyleHelperSpinBox.h"
#include "Style/VantraStyleHelperSplitter.h"
#include "Style/VantraStyleHelperTabBar.h"
#include "Style/VantraStyleHelperToolButton.h"
#include "StyleOptions/VantraStyleOptionButton.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionFrame.h"
#include "StyleOptions/VantraStyleOptionLineEdit.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "StyleOptions/VantraStyleOptionTab.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QMenu>

using VantraStyleDispatch::paint;

void VantraStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const
{
    if (!drawOwnPrimitive(element, option, painter, widget)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void VantraStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    if (!drawOwnControl(element, option, painter, widget)) {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void VantraStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                     QPainter *painter, const QWidget *widget) const
{
    if (!drawOwnComplexControl(control, option, painter, widget)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

bool VantraStyle::drawOwnPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                   const QWidget *widget) const
{
    const auto paintMenu = [&](auto member) {
        const VantraStyleMenuItemCast item(option, widget);
        if (item) {
            (*mHelperMenu.*member)(*item, painter, widget);
        }
        return static_cast<bool>(item);
    };
    switch (element) {
    case PE_Frame:
        return paint(*mHelperFrame, &VantraStyleHelperFrame::drawBackground, option, painter, widget);
    case PE_FrameFocusRect: return true;
    case PE_FrameGroupBox: {
        const VantraStyleOptionCast<VantraStyleOptionFrame> frame(option);
        if (frame) {
            mHelperGroupBox->drawFrame(*frame, *mHelperFrame, painter, widget);
        }
        return static_cast<bool>(frame);
    }
    case PE_FrameMenu: return static_cast<bool>(VantraStyleMenuItemCast(option, widget));
    case PE_PanelButtonTool:
        return paint(*mHelperToolButton, &VantraStyleHelperToolButton::drawPanel, option, painter, widget) ||
               paint(*mHelperComboBox, &VantraStyleHelperComboBox::drawPanel, option, painter, widget);
    case PE_PanelLineEdit:
        paint(*mHelperLineEdit, &VantraStyleHelperLineEdit::drawPanel, option, painter, widget);
        return true;
    case PE_IndicatorSpinDown:
    case PE_IndicatorArrowDown: return drawArrowIndicator(Qt::DownArrow, option, painter);
    case PE_IndicatorSpinUp:
    case PE_IndicatorArrowUp: return drawArrowIndicator(Qt::UpArrow, option, painter);
    case PE_IndicatorArrowLeft: return drawArrowIndicator(Qt::LeftArrow, option, painter);
    case PE_IndicatorArrowRight: return drawArrowIndicator(Qt::RightArrow, option, painter);
    case PE_IndicatorBranch:
        return paint(*mHelperItemView, &VantraStyleHelperItemView::drawBranch, option, painter, widget);
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        return paint(*mHelperCheckBox, &VantraStyleHelperCheckBox::drawIndicator, option, painter, widget);
    case PE_IndicatorMenuCheckMark: return paintMenu(&VantraStyleHelperMenu::drawCheckMarkIndicator);
    case PE_IndicatorItemViewItemDrop:
        return paint(*mHelperItemView, &VantraStyleHelperItemView::drawDropIndicator, option, painter,
                     widget);
    case PE_PanelItemViewItem:
    case PE_PanelItemViewRow:
        return paint(*mHelperItemView, &VantraStyleHelperItemView::drawPanel, option, painter, widget);
    case PE_PanelMenu: return paintMenu(&VantraStyleHelperMenu::drawPanel);
    default: return false;
    }
}

bool VantraStyle::drawArrowIndicator(Qt::ArrowType type, const QStyleOption *option, QPainter *painter) const
{
    if (option == nullptr || option->rect.isEmpty()) {
        return false;
    }
    const QColor color = option->palette.color(VantraStyleHelper::colorGroup(option->state), QPalette::Text);
    const bool enlarged = option->state & (State_Selected | State_MouseOver);
    VantraStyleHelper::drawArrow(type, color, theme().arrowSize(enlarged), theme().arrowLineSize(enlarged),
                                 option->rect, painter);
    return true;
}

bool VantraStyle::drawOwnControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    switch (element) {
    case CE_PushButton:
        return paint(*mHelperButton, &VantraStyleHelperButton::drawButton, option, painter, widget);
    case CE_PushButtonBevel:
        return paint(*mHelperButton, &VantraStyleHelperButton::drawBevel, option, painter, widget);
    case CE_PushButtonLabel:
        return paint(*mHelperButton, &VantraStyleHelperButton::drawLabel, option, painter, widget);
    case CE_CheckBox:
    case CE_RadioButton:
        // Fusion is skipped on purpose; the common style calls back for indicator and label.
        QCommonStyle::drawControl(element, option, painter, widget);
        return true;
    case CE_CheckBoxLabel:
    case CE_RadioButtonLabel: return drawCheckLabel(element, option, painter, widget);
    case CE_TabBarTab:
        return paint(*mHelperTabBar, &VantraStyleHelperTabBar::drawTab, option, painter, widget);
    case CE_TabBarTabShape:
        return paint(*mHelperTabBar, &VantraStyleHelperTabBar::drawShape, option, painter, widget);
    case CE_TabBarTabLabel:
        return paint(*mHelperTabBar, &VantraStyleHelperTabBar::drawLabel, option, painter, widget);
    case CE_ProgressBar:
        return paint(*mHelperProgressBar, &VantraStyleHelperProgressBar::drawBar, option, painter, widget);
    case CE_ProgressBarGroove:
        return paint(*mHelperProgressBar, &VantraStyleHelperProgressBar::drawGroove, option, painter, widget);
    case CE_ProgressBarContents:
        return paint(*mHelperProgressBar, &VantraStyleHelperProgressBar::drawContents, option, painter,
                     widget);
    case CE_ProgressBarLabel: return qstyleoption_cast<const QStyleOptionProgressBar *>(option) != nullptr;
    case CE_MenuItem:
    case CE_MenuScroller:
    case CE_MenuVMargin:
    case CE_MenuHMargin:
    case CE_MenuTearoff:
    case CE_MenuEmptyArea: return drawMenuElement(element, option, painter, widget);
    case CE_ToolButtonLabel:
        return paint(*mHelperToolButton, &VantraStyleHelperToolButton::drawLabel, option, painter, widget);
    case CE_Splitter:
        return paint(*mHelperSplitter, &VantraStyleHelperSplitter::drawSplitter, option, painter, widget);
    case CE_ScrollBarSlider:
        return paint(*mHelperScrollBar, &VantraStyleHelperScrollBar::drawSlider, option, painter, widget);
    case CE_ScrollBarAddLine:
    case CE_ScrollBarSubLine:
    case CE_ScrollBarAddPage:
    case CE_ScrollBarSubPage:
    case CE_ScrollBarFirst:
    case CE_ScrollBarLast: return qstyleoption_cast<const QStyleOptionSlider *>(option) != nullptr;
    case CE_ComboBoxLabel:
        return paint(*mHelperComboBox, &VantraStyleHelperComboBox::drawLabel, option, painter, widget);
    case CE_ItemViewItem:
        return paint(*mHelperItemView, &VantraStyleHelperItemView::drawItem, option, painter, widget);
    case CE_ShapedFrame:
        return paint(*mHelperFrame, &VantraStyleHelperFrame::drawShaped, option, painter, widget);
    default: return false;
    }
}

bool VantraStyle::drawCheckLabel(ControlElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    const VantraStyleOptionCast<VantraStyleOptionButton> button(option);
    if (!button) {
        return false;
    }
    const VantraPainterSaver saver(painter);
    VantraStyleOptionButton label = *button;
    theme().adjustFontAndColor(&label, widget, false);
    QProxyStyle::drawControl(element, &label, painter, widget);
    return true;
}

bool VantraStyle::drawMenuElement(ControlElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const
{
    const VantraStyleMenuItemCast cast(option, widget);
    if (!cast) {
        return false;
    }
    if (qobject_cast<const QMenu *>(widget) != nullptr) {
        if (element == CE_MenuItem) {
            mHelperMenu->drawItem(*cast, painter, widget);
        }
        return true;
    }

    // Elsewhere, as in the popup of a combo box, Fusion paints the item and our frame the separator.
    if (element != CE_MenuItem) {
        return false;
    }
    VantraStyleOptionMenuItem item = *cast;
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        QStyleOptionFrame line;
        if (widget != nullptr) {
            line.initFrom(widget);
        }
        line.rect = item.rect;
        line.frameShape = QFrame::HLine;
        proxy()->drawControl(CE_ShapedFrame, &line, painter, widget);
        return true;
    }
    if (item.state & State_Selected) {
        item.rect.adjust(0, -1, 0, 1);
    }
    painter->setBrush(theme().menuItemBrush(&item));
    QProxyStyle::drawControl(CE_MenuItem, &item, painter, widget);
    return true;
}

bool VantraStyle::drawOwnComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                        QPainter *painter, const QWidget *widget) const
{
    switch (control) {
    case CC_SpinBox:
        return paint(*mHelperSpinBox, &VantraStyleHelperSpinBox::drawComplex, option, painter, widget);
    case CC_ComboBox:
        return paint(*mHelperComboBox, &VantraStyleHelperComboBox::drawComplex, option, painter, widget);
    case CC_ScrollBar:
        return paint(*mHelperScrollBar, &VantraStyleHelperScrollBar::drawComplex, option, painter, widget);
    case CC_Slider:
        return paint(*mHelperSlider, &VantraStyleHelperSlider::drawComplex, option, painter, widget);
    case CC_ToolButton:
        return paint(*mHelperToolButton, &VantraStyleHelperToolButton::drawComplex, option, painter, widget);
    default: return false;
    }
}
