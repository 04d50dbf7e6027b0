#include "Style/VantraStyleHelperTabBar.h"

#include "StyleOptions/VantraStyleOptionTab.h"
#include "Theme/VantraStyleTheme.h"

void VantraStyleHelperTabBar::drawTab(const VantraStyleOptionTab &option, QPainter *painter,
                                      const QWidget *widget) const
{
    VantraStyleOptionTab tab = option;
    mStyle->drawControl(QStyle::CE_TabBarTabShape, &tab, painter, widget);
    const VantraPainterSaver saver(painter);
    mTheme->adjustFontAndColor(&tab, painter, widget, false);
    mStyle->drawControl(QStyle::CE_TabBarTabLabel, &tab, painter, widget);
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
    const VantraPainterSaver saver(painter);
    const Content content{option.icon,        option.iconSize, option.text,
                          option.fontMetrics, Qt::NoArrow,     mTheme->tabBarSpacing(&option)};
    const Look look{VantraIconPalette::IconTintingNone, Qt::AlignCenter, option.state, option.palette};
    drawIconTextArrow(content, look, option.rect.adjusted(margins.left(), 0, -margins.right(), 0), painter);
}

QSize VantraStyleHelperTabBar::size(const VantraStyleOptionTab &option, const QWidget *widget) const
{
    VantraStyleOptionTab tab = option;
    mTheme->adjustFontAndColor(&tab, nullptr, widget, true);
    const int radius = mTheme->tabBarRadii(&tab).topLeft();
    return iconTextSize(tab.icon, tab.iconSize, tab.text, tab.fontMetrics, mTheme->tabBarSpacing(&tab))
        .grownBy(paddingWithRadii(mTheme->tabBarPadding(&tab), radius, radius));
}
