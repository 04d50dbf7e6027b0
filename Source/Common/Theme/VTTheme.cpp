#include "Theme/VTTheme.h"

#include "VTQtSysInfo.h"

const int VTTheme::BUTTON_RADIUS = 4;
const QColor VTTheme::BUTTON_BACKGROUND_COLOR(80, 80, 80);
const double VTTheme::CURVES_PEN_WIDTH = 1.25;
const QColor VTTheme::CURVES_BACKGROUND_COLOR(48, 48, 48);
const QColor VTTheme::CURVES_RED_PEN_COLOR(232, 14, 26);
const QColor VTTheme::CURVES_GREEN_PEN_COLOR(34, 232, 0);
const QColor VTTheme::CURVES_BLUE_PEN_COLOR(33, 0, 255);
const QColor VTTheme::CURVES_COMPOSITE_PEN_COLOR(Qt::white);
const QColor VTTheme::CURVES_GRID_PEN_COLOR(30, 30, 30, 128);
const QColor VTTheme::CURVES_GRID_MIDPOINT_PEN_COLOR(30, 30, 30, 128);
const QColor VTTheme::CURVES_GRID_PEN_DIVIDER_COLOR(30, 30, 30, 128);
const double VTTheme::DISABLED_OPACITY = VTQtSysInfo::isWinPlatform() ? 0.5 : 0.75;

QString VTTheme::toString(const QColor &inColor)
{
    return QStringLiteral("rgba(%1,%2,%3,%4)")
        .arg(inColor.red())
        .arg(inColor.green())
        .arg(inColor.blue())
        .arg(inColor.alpha());
}

QString VTTheme::toString(const QMargins &inMargins)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(inMargins.top())
        .arg(inMargins.right())
        .arg(inMargins.bottom())
        .arg(inMargins.left());
}
