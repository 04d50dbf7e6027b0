#pragma once

// Pictures of widgets that are not on the screen themselves.

#include <QtGui/QImage>

class QWidget;

// Paints the widget at that size in logical pixels, on transparent ground and at that device pixel ratio. The
// widget may be hidden and is left with the size.
QImage widgetPicture(QWidget *ioWidget, const QSize &inSize, double inRatio);
