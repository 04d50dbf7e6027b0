#include "Style/VantraStyleHelperButton.h"

#include "StyleOptions/VantraStyleOptionButton.h"
#include "Theme/VantraStyleTheme.h"

void VantraStyleHelperButton::drawButton(VantraStyleOptionButton &option, QPainter *painter,
                                         const QWidget *widget) const
{
    mTheme->adjustFontAndColor(&option, widget, false);
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, painter, widget);
    option.rect = style()->subElementRect(QStyle::SE_PushButtonContents, &option, widget);
    style()->drawControl(QStyle::CE_PushButtonLabel, &option, painter, widget);
}

void VantraStyleHelperButton::drawBevel(const VantraStyleOptionButton &option, QPainter *painter,
                                        const QWidget *) const
{
    bool isTab = false;
    switch (option.buttonStyle) {
    case VantraButton::TextOnlyStyle:
    case VantraButton::LinkButtonStyle: return;
    case VantraButton::LeftAndRightCapTabButtonStyle:
    case VantraButton::LeftCapTabButtonStyle:
    case VantraButton::RightCapTabButtonStyle:
    case VantraButton::NoCapTabButtonStyle: isTab = true; break;
    default: break;
    }
    const QBrush brush = painter->brush();
    if (isTab && option.state.testFlag(QStyle::State_On)) {
        drawCheckedTab(option, painter);
    } else {
        painter->setBrush(mTheme->buttonBackgroundBrush(&option));
        drawRoundedBackground(painter, option.rect, mTheme->buttonRadii(&option));
    }
    painter->setBrush(brush);
}

// The bar of the button's own caps, with the checked tab standing on it.
void VantraStyleHelperButton::drawCheckedTab(const VantraStyleOptionButton &option, QPainter *painter) const
{
    const VantraPalette::PaletteRole role = option.backgroundButtonRole != VantraPalette::DefaultRole
                                                ? option.backgroundButtonRole
                                                : VantraPalette::TabButtonBackground;
    const VantraPalette::PaletteGroup group =
        option.state & QStyle::State_Enabled ? VantraPalette::Normal : VantraPalette::Disabled;
    painter->setBrush(QBrush(mTheme->colorPalette().color(group, role)));
    drawRoundedBackground(painter, option.rect, mTheme->buttonRadii(&option));

    VantraStyleOptionButton tab = option;
    tab.buttonStyle = VantraButton::LeftAndRightCapTabButtonStyle;
    painter->setBrush(mTheme->buttonBackgroundBrush(&tab));
    drawRoundedBackground(painter, tab.rect, mTheme->buttonRadii(&tab));
}

void VantraStyleHelperButton::drawLabel(const VantraStyleOptionButton &option, QPainter *painter,
                                        const QWidget *) const
{
    const VantraCornerRadii radii = mTheme->buttonRadii(&option);
    const QMargins margins =
        paddingWithRadii(mTheme->buttonPadding(&option), radii.maxLeft(), radii.maxRight());
    const VantraLabelSaver saver(painter);
    painter->setFont(option.font);
    const Content content{option.icon,        option.iconSize, option.text,
                          option.fontMetrics, Qt::NoArrow,     mTheme->buttonSpacing(&option)};
    const Look look{VantraIconPalette::IconTintingNone, static_cast<int>(option.alignment.toInt()),
                    option.state, option.palette};
    drawIconTextArrow(content, look, option.rect.adjusted(margins.left(), 0, -margins.right(), 0), painter);
}

QSize VantraStyleHelperButton::size(VantraStyleOptionButton &option, const QWidget *widget) const
{
    mTheme->adjustFontAndColor(&option, widget, true);
    const VantraCornerRadii radii = mTheme->buttonRadii(&option);
    return iconTextSize(option.icon, option.iconSize, option.text, option.fontMetrics,
                        mTheme->buttonSpacing(&option))
        .grownBy(paddingWithRadii(mTheme->buttonPadding(&option), radii.maxLeft(), radii.maxRight()));
}
