#pragma once

// Constants of the application's own drawing, chiefly of its tone curves, which no theme file changes, and
// two functions that print values for style sheets. The library reads none of the constants itself.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QMargins>
#include <QtCore/QString>
#include <QtGui/QColor>

class VTWIDGETSLITE_EXPORT VTTheme
{
public:
    VTTheme() = delete;

    static const int BUTTON_RADIUS; // logical pixels
    static const QColor BUTTON_BACKGROUND_COLOR;
    static const double CURVES_PEN_WIDTH; // logical pixels
    static const QColor CURVES_BACKGROUND_COLOR;
    static const QColor CURVES_RED_PEN_COLOR;
    static const QColor CURVES_GREEN_PEN_COLOR;
    static const QColor CURVES_BLUE_PEN_COLOR;
    static const QColor CURVES_COMPOSITE_PEN_COLOR;
    static const QColor CURVES_GRID_PEN_COLOR;
    static const QColor CURVES_GRID_MIDPOINT_PEN_COLOR;
    static const QColor CURVES_GRID_PEN_DIVIDER_COLOR;
    static const double DISABLED_OPACITY; // 0.5 on Windows, 0.75 elsewhere; decided at load time

    // "rgba(1,2,3,4)", with alpha from 0 to 255 like the colours. An invalid colour prints as opaque black.
    static QString toString(const QColor &inColor);

    // "2 3 4 1" for margins 1,2,3,4: top, right, bottom, left, the order of style sheets.
    static QString toString(const QMargins &inMargins);
};
