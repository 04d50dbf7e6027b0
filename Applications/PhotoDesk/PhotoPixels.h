#pragma once

// A photo's pixels in halving sizes, so that any zoom has at most twice the pixels that the screen needs.
// Shared between threads once made, and never changed.

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QImage>

#include <memory>

struct PhotoPixels
{
    using Ptr = std::shared_ptr<const PhotoPixels>;

    QSize size;
    QVector<QImage> levels; // from the whole size downwards; empty for a photo that can't be read
    QString reason;         // why it can't

    // Any thread; slow.
    static Ptr load(const QString &inPath);
    static Ptr fromImage(const QImage &inImage, const QSize &inSize, int inSmallestSide);

    // The smallest level that has a pixel for each pixel of the screen at that scale, or else the largest.
    const QImage &levelFor(double inScale) const;
};
