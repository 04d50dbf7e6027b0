#include "Style/VantraStyleHelperTabBar.h"

#include "StyleOptions/VantraStyleOptionTab.h"
#include "Theme/VantraStyleTheme.h"

void VantraStyleHelperTabBar::drawTab(VantraStyleOptionTab &option, QPainter *painter,
                                      const QWidget *widget) const
{
    style()->drawControl(QStyle::CE_TabBarTabShape, &option, painter, widget);
    const VantraLabelSaver saver(painter);
    mTheme->adjustFontAndColor(&option, painter, widget, false);
    style()->drawControl(QStyle::CE_TabBarTabLabel, &option, painter, widget);
}

void VantraStyleHelperTabBar::drawShape(const VantraStyleOptionTab &option, QPainter *painter,
                                        const QWidget *) const
{
    painter->setBrush(mTheme->tabBarBackgroundBrush(&option));
    drawRoundedBackground(painter, option.rect, mTheme->tabBarRadii(&option));
}

void VantraStyleHelperTabBar::drawLabel(const VantraStyleOptionTab &option, QPainter *painter,
                                        const QWidget *) const
{
    const int radius = mTheme->tabBarRadii(&option).topLeft();
    const QMargins margins = paddingWithRadii(mTheme->tabBarPadding(&option), radius, radius);
    const VantraLabelSaver saver(painter);
    const Content content{option.icon,        option.iconSize, option.text,
                          option.fontMetrics, Qt::NoArrow,     mTheme->tabBarSpacing(&option)};
    const Look look{VantraIconPalette::IconTintingNone, Qt::AlignCenter, option.state, option.palette};
    drawIconTextArrow(content, look, option.rect.adjusted(margins.left(), 0, -margins.right(), 0), painter);
}

QSize VantraStyleHelperTabBar::size(VantraStyleOptionTab &option, const QWidget *widget) const
{
    mTheme->adjustFontAndColor(&option, nullptr, widget, true);
    const int radius = mTheme->tabBarRadii(&option).topLeft();
    return iconTextSize(option.icon, option.iconSize, option.text, option.fontMetrics,
                        mTheme->tabBarSpacing(&option))
        .grownBy(paddingWithRadii(mTheme->tabBarPadding(&option), radius, radius));
}
