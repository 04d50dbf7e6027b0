#pragma once

// Icons painted in code, so that the gallery needs no picture files. All come at one and two pixels a point.

#include <QtGui/QColor>
#include <QtGui/QIcon>
#include <QtGui/QImage>

namespace DrawnIcons {
// One-coloured, with soft edges and holes: a landscape in a frame, a folder, and an adjustment slider.
QIcon picture(const QColor &inColor = Qt::gray);
QIcon folder(const QColor &inColor = Qt::gray);
QIcon adjust(const QColor &inColor = Qt::gray);

// The tools that the animated tool tips show: a brush and a crop frame.
QIcon brush(const QColor &inColor = Qt::gray);
QIcon crop(const QColor &inColor = Qt::gray);

// The gallery's own, in colours: the landscape on a plate.
QIcon application();

// A filled circle of a diameter in logical pixels.
QIcon dot(int inSize, const QColor &inColor);

// An icon as an image of 24 by 24 logical pixels in double resolution.
QImage image(const QIcon &inIcon);
} // namespace DrawnIcons
