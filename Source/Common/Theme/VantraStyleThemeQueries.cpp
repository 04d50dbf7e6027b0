// The questions that painters and measurers ask of the theme. Loading stands in VantraStyleTheme.cpp.

#include "Theme/VantraStyleTheme.h"

#include "StyleOptions/VantraStyleOptionButton.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionFramePane.h"
#include "StyleOptions/VantraStyleOptionGroupBox.h"
#include "StyleOptions/VantraStyleOptionLineEdit.h"
#include "StyleOptions/VantraStyleOptionMenuItem.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "StyleOptions/VantraStyleOptionTab.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Theme/VantraFont.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTabBar>

namespace {

using Group = VantraPalette::PaletteGroup;
using Role = VantraPalette::PaletteRole;

Group groupOf(QStyle::State inState)
{
    return inState.testFlag(QStyle::State_Enabled) ? VantraPalette::Normal : VantraPalette::Disabled;
}

// Disabled when not enabled, Highlighted when any of the given flags is set, otherwise Normal.
Group groupOf(QStyle::State inState, QStyle::State inHighlighting)
{
    const Group group = groupOf(inState);
    return group == VantraPalette::Normal && (inState & inHighlighting) ? VantraPalette::Highlighted : group;
}

constexpr QStyle::State kHover = QStyle::State_MouseOver;
constexpr QStyle::State kSelected = QStyle::State_Selected;
constexpr QStyle::State kOnOrHover = QStyle::State(QStyle::State_On | QStyle::State_MouseOver);
constexpr QStyle::State kSelectedOrHover = QStyle::State(QStyle::State_Selected | QStyle::State_MouseOver);
constexpr QStyle::State kSunkenOrHover = QStyle::State(QStyle::State_Sunken | QStyle::State_MouseOver);

// Keyboard focus that is to be shown highlights a control even while it is disabled.
Group focusGroupOf(QStyle::State inState)
{
    const QStyle::State focus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return (inState & focus) == focus ? VantraPalette::Highlighted : groupOf(inState);
}

int pillRadius(const QRect &inRect)
{
    return qMin(inRect.width(), inRect.height()) / 2;
}

bool isTabStyle(VantraButton::ButtonStyle inStyle)
{
    switch (inStyle) {
    case VantraButton::LeftAndRightCapTabButtonStyle:
    case VantraButton::LeftCapTabButtonStyle:
    case VantraButton::RightCapTabButtonStyle:
    case VantraButton::NoCapTabButtonStyle: return true;
    default: return false;
    }
}

// The three families whose metrics a tool button's background borrows.
enum class ToolButtonFamily {
    Button,
    ComboBox,
    ToolButton,
};

ToolButtonFamily familyOf(VantraToolButton::BackgroundStyle inStyle)
{
    switch (inStyle) {
    case VantraToolButton::BackgroundStyleButton:
    case VantraToolButton::BackgroundStyleAccentButton:
    case VantraToolButton::BackgroundStyleAlternateButton:
    case VantraToolButton::BackgroundStyleTobButton: return ToolButtonFamily::Button;
    case VantraToolButton::BackgroundStyleComboBoxNone:
    case VantraToolButton::BackgroundStyleComboBoxStandard: return ToolButtonFamily::ComboBox;
    case VantraToolButton::BackgroundStyleToolButton: break;
    }
    return ToolButtonFamily::ToolButton;
}

bool isPill(VantraToolButton::BackgroundStyle inStyle)
{
    return familyOf(inStyle) == ToolButtonFamily::Button ||
           inStyle == VantraToolButton::BackgroundStyleComboBoxStandard;
}

QFontMetrics metricsFor(const QFont &inFont, const QWidget *inWidget)
{
    return inWidget != nullptr ? QFontMetrics(inFont, inWidget) : QFontMetrics(inFont);
}

} // namespace

QColor VantraStyleTheme::paletteColor(QPalette::ColorGroup inGroup, Role inRole) const
{
    const bool normal = inGroup == QPalette::Active || inGroup == QPalette::Inactive;
    return mColorPalette.color(normal ? VantraPalette::Normal : VantraPalette::Disabled, inRole);
}

QBrush VantraStyleTheme::solidBrush(Group inGroup, Role inRole) const
{
    QBrush brush = mColorPalette.brush(inGroup, inRole);
    return brush.style() == Qt::SolidPattern ? brush : QBrush(brush.color(), Qt::SolidPattern);
}

// General

QColor VantraStyleTheme::dropShadowColor() const
{
    return QColor(25, 25, 25);
}

QColor VantraStyleTheme::accentColor(QPalette::ColorGroup inGroup) const
{
    return paletteColor(inGroup, VantraPalette::Accent);
}

QColor VantraStyleTheme::windowBackgroundColor(QPalette::ColorGroup inGroup) const
{
    return paletteColor(inGroup, VantraPalette::WindowBackground);
}

QColor VantraStyleTheme::windowTextColor(QPalette::ColorGroup inGroup) const
{
    return paletteColor(inGroup, VantraPalette::WindowText);
}

QColor VantraStyleTheme::buttonBackgroundColor(QPalette::ColorGroup inGroup) const
{
    return paletteColor(inGroup, VantraPalette::ButtonBackground);
}

QColor VantraStyleTheme::buttonTextColor(QPalette::ColorGroup inGroup) const
{
    return paletteColor(inGroup, VantraPalette::ButtonText);
}

QColor VantraStyleTheme::highlightedTextBackgroundColor(QPalette::ColorGroup inGroup) const
{
    return paletteColor(inGroup, VantraPalette::HighlightedTextBackground);
}

QColor VantraStyleTheme::highlightedTextColor(QPalette::ColorGroup inGroup) const
{
    return paletteColor(inGroup, VantraPalette::HighlightedText);
}

QSizeF VantraStyleTheme::arrowSize(bool inEnlarged) const
{
    return inEnlarged ? QSizeF(10.0, 5.46) : QSizeF(8.0, 4.368);
}

double VantraStyleTheme::arrowLineSize(bool inEnlarged) const
{
    return inEnlarged ? 1.5 : 1.0;
}

QPixmap VantraStyleTheme::tintedPixmap(const QIcon &inIcon, const QSize &inSize, double inDevicePixelRatio,
                                       QIcon::Mode inMode, QIcon::State inState,
                                       VantraIconPalette::IconTintings inTinting, const QColor &inForeground,
                                       const QColor &inAlternate) const
{
    return mIconPalette.tintPixmap(inIcon, inSize, inDevicePixelRatio, inMode, inState, inTinting,
                                   inForeground, inAlternate);
}

void VantraStyleTheme::adjustFontAndTextColor(Group inGroup, Role inRole, QWidget *ioWidget) const
{
    QFont font = ioWidget->font();
    QPalette palette = ioWidget->palette();
    mFontPalette.applyFont(inGroup, inRole, font);
    mColorPalette.adjustPalette(inGroup, inRole, ioWidget->foregroundRole(), ioWidget, palette);
    ioWidget->setFont(font);
    ioWidget->setPalette(palette);
}

// Check box

QColor VantraStyleTheme::checkboxColor(const QStyleOption *inOption) const
{
    if (qobject_cast<QMenu *>(inOption->styleObject) != nullptr) {
        return checkMarkColor(inOption->state);
    }
    return mColorPalette.color(groupOf(inOption->state), VantraPalette::Checkbox);
}

QColor VantraStyleTheme::checkMarkColor(const QStyle::State &inState) const
{
    return mColorPalette.color(groupOf(inState, kSelected), VantraPalette::Checkmark);
}

// Scroll bar and progress bar

QBrush VantraStyleTheme::scrollBarBrush(const QStyleOption *inOption) const
{
    return mColorPalette.brush(groupOf(inOption->state, kHover), VantraPalette::ScrollBar);
}

QBrush VantraStyleTheme::progressBarGrooveBrush(const QStyleOption *inOption) const
{
    return mColorPalette.brush(groupOf(inOption->state), VantraPalette::ProgressBarGroove);
}

QBrush VantraStyleTheme::progressBarContentsBrush(const QStyleOption *inOption) const
{
    return mColorPalette.brush(groupOf(inOption->state), VantraPalette::ProgressBarContents);
}

// Frame and pane

QBrush VantraStyleTheme::frameBrush(const VantraStyleOptionFrame *inOption) const
{
    Role role = VantraPalette::FrameBackground;
    if (inOption->hudOverlay) {
        role = VantraPalette::FrameOverlayBackground;
    } else if (inOption->state & QStyle::State_Raised) {
        role = VantraPalette::FrameRaisedBackground;
    } else if (inOption->state & QStyle::State_Sunken) {
        role = VantraPalette::FrameSunkenBackground;
    }
    return mColorPalette.brush(groupOf(inOption->state), role);
}

QPen VantraStyleTheme::frameLinePen(const VantraStyleOptionFrame *inOption) const
{
    return QPen(solidBrush(groupOf(inOption->state), VantraPalette::FrameLine), inOption->lineWidth,
                Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

int VantraStyleTheme::paneRadius(const VantraStyleOptionFramePane *inOption) const
{
    return inOption->paneStyle == VantraFramePane::PaneStyleStandard ? mPaneRadius : 0;
}

QColor VantraStyleTheme::paneBackgroundColor(Group inGroup) const
{
    return mColorPalette.color(inGroup, VantraPalette::PaneBackground);
}

QColor VantraStyleTheme::paneBackgroundColor(const VantraStyleOptionFramePane *inOption) const
{
    const bool highlighted = inOption->paneBorderStyle != VantraFramePane::PaneBorderStyleNone &&
                             inOption->paneState.testFlag(VantraFramePane::PaneStateSelected);
    return paneBackgroundColor(highlighted ? VantraPalette::Highlighted : groupOf(inOption->state));
}

QColor VantraStyleTheme::paneLineColor(const VantraStyleOptionFramePane *inOption) const
{
    const bool highlighted = inOption->paneState.testFlag(VantraFramePane::PaneStateSelected) &&
                             inOption->paneBorderStyle != VantraFramePane::PaneBorderStyleNone &&
                             (inOption->paneStyle != VantraFramePane::PaneStyleStandard ||
                              inOption->paneState.testFlag(VantraFramePane::PaneStateExpanded));
    return mColorPalette.color(highlighted ? VantraPalette::Highlighted : groupOf(inOption->state),
                               VantraPalette::PaneLine);
}

// Slider

int VantraStyleTheme::handleThickness(bool inEnlarged) const
{
    return inEnlarged ? mHandleThicknessEnlarged : mHandleThickness;
}

int VantraStyleTheme::handleRadius(bool inEnlarged) const
{
    return handleThickness(inEnlarged) / 2;
}

QBrush VantraStyleTheme::sliderValueBrush(const VantraStyleOptionSlider *inOption) const
{
    return solidBrush(focusGroupOf(inOption->state), VantraPalette::SliderValue);
}

QBrush VantraStyleTheme::sliderHandleBrush(const VantraStyleOptionSlider *inOption) const
{
    return solidBrush(focusGroupOf(inOption->state), VantraPalette::SliderHandle);
}

QColor VantraStyleTheme::sliderGrooveColor() const
{
    return mColorPalette.color(VantraPalette::Normal, VantraPalette::SliderGrove);
}

QBrush VantraStyleTheme::sliderGrooveBrush(const VantraStyleOptionSlider *inOption,
                                           const QRectF &inRect) const
{
    const Group group = groupOf(inOption->state);
    if (inOption->gradientStops.isEmpty()) {
        return solidBrush(group, VantraPalette::SliderGrove);
    }
    QLinearGradient gradient(inRect.topLeft(), inRect.bottomRight());
    QGradientStops stops = inOption->gradientStops;
    disableColor(group == VantraPalette::Normal ? QPalette::Active : QPalette::Disabled, stops);
    gradient.setStops(stops);
    return QBrush(gradient);
}

void VantraStyleTheme::disableColor(QPalette::ColorGroup inGroup,
                                    QList<std::pair<double, QColor>> &ioStops) const
{
    const int factor = inGroup == QPalette::Disabled ? 130 : inGroup == QPalette::Inactive ? 120 : 100;
    if (factor == 100) {
        return;
    }
    for (std::pair<double, QColor> &stop : ioStops) {
        stop.second = stop.second.darker(factor);
    }
}

// Button

QMargins VantraStyleTheme::buttonPadding(const VantraStyleOptionButton *inOption) const
{
    QMargins padding = mButtonPadding;
    if (inOption->buttonStyle == VantraButton::TextOnlyStyle ||
        inOption->buttonStyle == VantraButton::LinkButtonStyle) {
        padding.setLeft(0);
        padding.setRight(0);
    }
    return padding;
}

VantraCornerRadii VantraStyleTheme::buttonRadii(const VantraStyleOptionButton *inOption) const
{
    const int pill = pillRadius(inOption->rect);
    const int tab = static_cast<int>(mButtonRadius);
    switch (inOption->buttonStyle) {
    case VantraButton::LeftAndRightCapButtonStyle:
    case VantraButton::LeftAndRightCapButtonAccentStyle: return VantraCornerRadii(pill);
    case VantraButton::LeftCapButtonStyle: return VantraCornerRadii(pill, 0, pill, 0);
    case VantraButton::RightCapButtonStyle: return VantraCornerRadii(0, pill, 0, pill);
    case VantraButton::LeftAndRightCapTabButtonStyle: return VantraCornerRadii(tab, tab, 0, 0);
    case VantraButton::LeftCapTabButtonStyle: return VantraCornerRadii(tab, 0, 0, 0);
    case VantraButton::RightCapTabButtonStyle: return VantraCornerRadii(0, tab, 0, 0);
    case VantraButton::NoCapButtonStyle:
    case VantraButton::TextOnlyStyle:
    case VantraButton::NoCapTabButtonStyle:
    case VantraButton::LinkButtonStyle: break;
    }
    return VantraCornerRadii();
}

QBrush VantraStyleTheme::buttonBackgroundBrush(const VantraStyleOptionButton *inOption) const
{
    const QStyle::State state = inOption->state;
    Role role = VantraPalette::ButtonBackground;
    Group group = groupOf(state, kOnOrHover);
    if (isTabStyle(inOption->buttonStyle)) {
        role = VantraPalette::TabButtonBackground;
        group = groupOf(state, QStyle::State_On);
    } else if (inOption->buttonStyle == VantraButton::LeftAndRightCapButtonAccentStyle) {
        role = VantraPalette::AccentButtonBackground;
    } else if (inOption->buttonStyle == VantraButton::TextOnlyStyle ||
               inOption->buttonStyle == VantraButton::LinkButtonStyle) {
        group = VantraPalette::Disabled;
    }
    if (inOption->backgroundButtonRole != VantraPalette::DefaultRole) {
        role = inOption->backgroundButtonRole;
    }
    return solidBrush(group, role);
}

// View item

int VantraStyleTheme::viewItemIndent(const VantraStyleOptionViewItem *inOption) const
{
    return inOption->useIndent ? mViewItemIndent : 0;
}

QBrush VantraStyleTheme::viewItemBrush(const VantraStyleOptionViewItem *inOption) const
{
    return solidBrush(groupOf(inOption->state, kSelected), VantraPalette::ViewItemBackground);
}

QColor VantraStyleTheme::viewItemDropLineColor(const QStyleOption *inOption) const
{
    return mColorPalette.color(groupOf(inOption->state), VantraPalette::FrameLine);
}

// Combo box

QBrush VantraStyleTheme::comboBoxBrush(const VantraStyleOptionComboBox *inOption) const
{
    if (inOption->backgroundStyle == VantraComboBoxBase::BackgroundTransparent) {
        return QBrush(Qt::transparent, Qt::SolidPattern);
    }
    return solidBrush(groupOf(inOption->state, kSelected), VantraPalette::ComboBoxBackground);
}

VantraCornerRadii VantraStyleTheme::comboBoxRadii(const VantraStyleOptionComboBox *inOption) const
{
    const bool none = inOption->backgroundStyle == VantraComboBoxBase::BackgroundStyleNone;
    return VantraCornerRadii(none ? 0 : pillRadius(inOption->rect));
}

// Line edit

QBrush VantraStyleTheme::lineEditBackgroundBrush(const VantraStyleOptionLineEdit *inOption) const
{
    switch (inOption->borderStyle) {
    case VantraLineEditBase::BorderStandard:
        return solidBrush(VantraPalette::Normal, VantraPalette::TokenBoxBackground);
    case VantraLineEditBase::BorderHighlight:
        return solidBrush(groupOf(inOption->state, kHover), VantraPalette::LineEditBackground);
    case VantraLineEditBase::BorderNone: break;
    }
    return solidBrush(groupOf(inOption->state, kHover), VantraPalette::LineEditBackgroundNone);
}

int VantraStyleTheme::lineEditLeftRadius(const VantraStyleOptionLineEdit *inOption) const
{
    return inOption->borderStyle == VantraLineEditBase::BorderStandard ? inOption->rect.height() / 2
                                                                       : mLineEditRadius;
}

int VantraStyleTheme::lineEditRightRadius(const VantraStyleOptionLineEdit *inOption) const
{
    return lineEditLeftRadius(inOption);
}

QBrush VantraStyleTheme::lineEditTextColor(const VantraStyleOptionLineEdit *inOption) const
{
    return solidBrush(groupOf(inOption->state, kOnOrHover), VantraPalette::LineEditText);
}

// Tool button

QMargins VantraStyleTheme::toolButtonPadding(const VantraStyleOptionToolButton *inOption) const
{
    switch (familyOf(inOption->backgroundStyle)) {
    case ToolButtonFamily::Button: return mButtonPadding;
    case ToolButtonFamily::ComboBox: return mComboBoxPadding;
    case ToolButtonFamily::ToolButton: break;
    }
    return mToolButtonPadding;
}

double VantraStyleTheme::toolButtonSpacing(const VantraStyleOptionToolButton *inOption) const
{
    switch (familyOf(inOption->backgroundStyle)) {
    case ToolButtonFamily::Button: return mButtonSpacing;
    case ToolButtonFamily::ComboBox: return mComboBoxSpacing;
    case ToolButtonFamily::ToolButton: break;
    }
    return mToolButtonSpacing;
}

VantraCornerRadii VantraStyleTheme::toolButtonRadii(const VantraStyleOptionToolButton *inOption) const
{
    return VantraCornerRadii(isPill(inOption->backgroundStyle) ? pillRadius(inOption->rect) : 0);
}

QBrush VantraStyleTheme::toolButtonIconBackgroundBrush(const VantraStyleOptionToolButton *inOption) const
{
    const Role role = inOption->backgroundButtonRole != VantraPalette::DefaultRole
                          ? inOption->backgroundButtonRole
                          : VantraPalette::ToolButtonIconBackground;
    return solidBrush(groupOf(inOption->state, kOnOrHover), role);
}

QBrush VantraStyleTheme::toolButtonBackgroundBrush(const VantraStyleOptionToolButton *inOption) const
{
    Role role = VantraPalette::DefaultRole;
    switch (inOption->backgroundStyle) {
    case VantraToolButton::BackgroundStyleButton: role = VantraPalette::ButtonBackground; break;
    case VantraToolButton::BackgroundStyleAccentButton: role = VantraPalette::AccentButtonBackground; break;
    case VantraToolButton::BackgroundStyleAlternateButton:
        role = VantraPalette::AlternateButtonBackground;
        break;
    case VantraToolButton::BackgroundStyleComboBoxStandard: role = VantraPalette::ComboBoxBackground; break;
    case VantraToolButton::BackgroundStyleTobButton: role = VantraPalette::TobButtonBackground; break;
    default: return QBrush(Qt::NoBrush);
    }
    if (inOption->backgroundButtonRole != VantraPalette::DefaultRole) {
        role = inOption->backgroundButtonRole;
    }
    return solidBrush(groupOf(inOption->state, kOnOrHover), role);
}

// Splitter

QBrush VantraStyleTheme::splitterBackgroundBrush(const QStyleOption *inOption) const
{
    return solidBrush(groupOf(inOption->state, kSunkenOrHover), VantraPalette::SplitterBackground);
}

QBrush VantraStyleTheme::splitterHandleBrush(const QStyleOption *inOption) const
{
    return solidBrush(groupOf(inOption->state, kSunkenOrHover), VantraPalette::SplitterHandle);
}

// Tab bar

QBrush VantraStyleTheme::tabBarBackgroundBrush(const VantraStyleOptionTab *inOption) const
{
    return solidBrush(groupOf(inOption->state, kSelected), VantraPalette::TabBarBackground);
}

// Spin box

VantraCornerRadii VantraStyleTheme::spinBoxRadii(const VantraStyleOptionSpinBox *inOption) const
{
    return VantraCornerRadii(inOption->rect.height() / 2);
}

QBrush VantraStyleTheme::spinBoxBackgroundBrush(const VantraStyleOptionSpinBox *inOption) const
{
    return solidBrush(groupOf(inOption->state, kOnOrHover), VantraPalette::SpinBoxBackground);
}

QColor VantraStyleTheme::spinBoxTextColor(const VantraStyleOptionSpinBox *inOption) const
{
    return mColorPalette.color(groupOf(inOption->state, kOnOrHover), VantraPalette::SpinBoxText);
}

// Menu

QBrush VantraStyleTheme::menuItemBrush(const VantraStyleOptionMenuItem *inOption) const
{
    return solidBrush(groupOf(inOption->state, kSelected), inOption->hudOverlay
                                                               ? VantraPalette::OverlayMenuBackground
                                                               : VantraPalette::MenuBackground);
}

QColor VantraStyleTheme::menuItemLineColor(const VantraStyleOptionMenuItem *inOption) const
{
    return mColorPalette.color(groupOf(inOption->state, kSelected), inOption->hudOverlay
                                                                        ? VantraPalette::OverlayMenuLine
                                                                        : VantraPalette::MenuLine);
}

QColor VantraStyleTheme::menuItemCheckColor(const VantraStyleOptionMenuItem *inOption) const
{
    return checkMarkColor(inOption->state);
}

// Group box

QBrush VantraStyleTheme::groupBoxFrameBrush(const VantraStyleOptionGroupBox *inOption) const
{
    return solidBrush(groupOf(inOption->state, kSelected), VantraPalette::GroupBoxFrameBackground);
}

QBrush VantraStyleTheme::groupBoxContentsBrush(const VantraStyleOptionGroupBox *inOption) const
{
    return solidBrush(groupOf(inOption->state, kSelected), VantraPalette::GroupBoxContentsBackground);
}

// Preset browser

QFont VantraStyleTheme::presetBrowserFont() const
{
    QFont font = VantraFont::fontPlus();
    font.setWeight(QFont::Medium);
    return font;
}

QColor VantraStyleTheme::presetBrowserTextColor() const
{
    return QColor(238, 238, 238);
}

QColor VantraStyleTheme::presetBrowserBandColor() const
{
    return QColor(0, 0, 0, 128);
}

float VantraStyleTheme::presetBrowserRadius() const
{
    return 10.0F;
}

float VantraStyleTheme::presetBrowserBandHeight() const
{
    return 38.0F;
}

// Fonts and text colours

template <typename Option>
void VantraStyleTheme::adjustOption(Group inGroup, Role inRole, QPalette::ColorRole inColorRole,
                                    Option *ioOption, const QWidget *inWidget, bool inUseLargestFont) const
{
    mColorPalette.adjustPalette(inGroup, inRole, inColorRole, inWidget, ioOption->palette);
    if (mFontPalette.adjustFont(inGroup, inRole, inWidget, ioOption->font, inUseLargestFont)) {
        ioOption->fontMetrics = metricsFor(ioOption->font, inWidget);
    }
}

void VantraStyleTheme::adjustFontAndColor(VantraStyleOptionButton *ioOption, const QWidget *inWidget,
                                          bool inUseLargestFont) const
{
    Role role = VantraPalette::ButtonText;
    if (ioOption->buttonStyle == VantraButton::LeftAndRightCapButtonAccentStyle) {
        role = VantraPalette::AccentButtonText;
    } else if (isTabStyle(ioOption->buttonStyle)) {
        role = VantraPalette::TabButtonText;
    }
    adjustOption(groupOf(ioOption->state, kOnOrHover), role, QPalette::ButtonText, ioOption, inWidget,
                 inUseLargestFont);
}

void VantraStyleTheme::adjustFontAndColor(VantraStyleOptionComboBox *ioOption, const QWidget *inWidget,
                                          bool inUseLargestFont) const
{
    adjustOption(groupOf(ioOption->state, kOnOrHover), VantraPalette::ComboBoxText, QPalette::ButtonText,
                 ioOption, inWidget, inUseLargestFont);
}

void VantraStyleTheme::adjustFontAndColor(VantraStyleOptionViewItem *ioOption, const QWidget *inWidget,
                                          bool inUseLargestFont) const
{
    adjustOption(groupOf(ioOption->state, kSelectedOrHover), VantraPalette::ViewItemText, QPalette::Text,
                 ioOption, inWidget, inUseLargestFont);
}

void VantraStyleTheme::adjustFontAndColor(VantraStyleOptionToolButton *ioOption, const QWidget *inWidget,
                                          bool inUseLargestFont) const
{
    const QStyle::State state = ioOption->state;
    const Group group = groupOf(state, kOnOrHover);
    Role role = VantraPalette::ModuleToolButtonText;
    const bool plainIcon = ioOption->buttonStyle == VantraToolButton::IconStyle ||
                           ioOption->buttonStyle == VantraToolButton::IconOnOffStyle;
    // A module button takes the accent when it is on; hovering alone must not give it that colour.
    const bool onlyHovered = group == VantraPalette::Highlighted && !state.testFlag(QStyle::State_On);
    if (plainIcon || onlyHovered) {
        role = VantraPalette::ToolButtonText;
    }
    switch (ioOption->backgroundStyle) {
    case VantraToolButton::BackgroundStyleButton: role = VantraPalette::ButtonText; break;
    case VantraToolButton::BackgroundStyleAccentButton:
    case VantraToolButton::BackgroundStyleTobButton: role = VantraPalette::AccentButtonText; break;
    case VantraToolButton::BackgroundStyleComboBoxNone:
    case VantraToolButton::BackgroundStyleComboBoxStandard: role = VantraPalette::ComboBoxText; break;
    case VantraToolButton::BackgroundStyleToolButton:
    case VantraToolButton::BackgroundStyleAlternateButton: break;
    }
    adjustOption(group, role, QPalette::ButtonText, ioOption, inWidget, inUseLargestFont);
}

void VantraStyleTheme::adjustFontAndColor(QStyleOptionMenuItem *ioOption, const QWidget *inWidget,
                                          bool inUseLargestFont) const
{
    Group group = groupOf(ioOption->state, kSelected);
    const bool checkedIcon = ioOption->checkType != QStyleOptionMenuItem::NotCheckable && ioOption->checked &&
                             !ioOption->icon.isNull();
    if (checkedIcon && group == VantraPalette::Normal) {
        group = VantraPalette::Highlighted;
    }
    adjustOption(group, VantraPalette::MenuItemText, QPalette::Text, ioOption, inWidget, inUseLargestFont);
}

void VantraStyleTheme::adjustFontAndColor(VantraStyleOptionTab *ioOption, QPainter *ioPainter,
                                          const QWidget *inWidget, bool inUseLargestFont) const
{
    Group group = groupOf(ioOption->state, kSelected);
    if (group == VantraPalette::Normal && qobject_cast<const QTabBar *>(inWidget) != nullptr) {
        // The unselected tabs of a tab bar are dim on purpose, until the pointer is on them.
        group = ioOption->hoveredTabIndex == ioOption->tabIndex ? VantraPalette::Highlighted
                                                                : VantraPalette::Disabled;
    }
    mColorPalette.adjustPalette(group, VantraPalette::TabBarText, QPalette::ButtonText, inWidget,
                                ioOption->palette);
    QFont font = inWidget != nullptr ? inWidget->font() : QApplication::font();
    if (mFontPalette.adjustFont(group, VantraPalette::TabBarText, inWidget, font, inUseLargestFont)) {
        ioOption->fontMetrics = metricsFor(font, inWidget);
        if (ioPainter != nullptr) {
            ioPainter->setFont(font);
        }
    }
}
