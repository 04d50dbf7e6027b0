#pragma once

// What the display asks of sizes and pictures. All operations belong to the GUI thread and work on the system
// as a whole; the ratio of one window is QWidget::devicePixelRatioF().

#include "VTQtCoreLiteExport.h"

class QPainter;

class VTQTCORELITE_EXPORT VTDpiUtils
{
public:
    VTDpiUtils() = delete;

    // Point size to use on this display for a design size in points. Qt 6 scales by itself on all systems, so
    // this is the identity here.
    static int scaleFontPointSize(int inPointSize);

    // True when double-resolution pictures are to be used: some screen has a ratio above 1.
    static bool canUseHighDpiImages();

    // The largest device pixel ratio of all screens, rounded up to an integer; 1 without screens.
    static int devicePixelRatio();

    // The largest device pixel ratio of all screens; 1.0 without screens.
    static float devicePixelRatioF();

    // Prepares a painter for pictures that are drawn at another size than their own: smooth scaling. Qt's own
    // scaling does the rest. A null painter is left alone.
    static void configureQPainterForDpi(QPainter *ioPainter);
};
