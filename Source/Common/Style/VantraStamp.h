#pragma once

// Small antialiased shapes that many controls share, kept as pictures: rendering a round end costs as much as
// a text, blitting it next to nothing. A stamp is used only where it gives the pixels that painting would: on
// a raster device, with whole device pixels and no scale; anywhere else the shape is painted.
//
// Pictures are kept by shape, size and colour, so a changed theme needs no flush. GUI thread only.

#include <QtGui/QColor>
#include <QtGui/QPainter>

class QImage;

namespace VantraStamp {

enum class Shape : quint8 {
    Disc,
    Handle,
    Tick,
    Ring,
    RingWithDot,
    RingWithHalfDot,
};

struct Key
{
    Shape shape;
    quint8 detail; // what else the shape depends on
    quint16 size;  // logical pixels, both sides
    QRgb color;    // straight, with alpha

    friend bool operator==(const Key &inLeft, const Key &inRight)
    {
        return inLeft.shape == inRight.shape && inLeft.detail == inRight.detail &&
               inLeft.size == inRight.size && inLeft.color == inRight.color;
    }
};

// True when pictures may stand in for painting on this painter, as it is set up now.
bool applies(const QPainter *inPainter);

const QImage *find(const Key &inKey);
const QImage &insert(const Key &inKey, const QImage &inImage);
QImage blank(const Key &inKey);

// The picture of a key, size by size; made by inPaint, on a transparent ground, the first time.
template <typename Paint>
const QImage &picture(const Key &inKey, Paint inPaint)
{
    if (const QImage *found = find(inKey)) {
        return *found;
    }
    QImage image = blank(inKey);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    inPaint(&painter);
    painter.end();
    return insert(inKey, image);
}

// Fills a rounded rectangle with the solid colour, as QPainter::drawRoundedRect with antialiasing and no pen
// would.
void fillRounded(QPainter *ioPainter, const QRect &inRect, int inRadius, const QBrush &inBrush);

} // namespace VantraStamp
