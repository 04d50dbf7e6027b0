#pragma once

// Applies adjustments to pixels. Knows nothing of windows; every function may run on any thread.

#include <QtCore/QVector>
#include <QtGui/QImage>

#include <array>
#include <functional>

struct PhotoAdjustments;

// The look of one set of adjustments as tables, ready for any number of pixels.
class PhotoLook
{
public:
    explicit PhotoLook(const PhotoAdjustments &inAdjustments);

    // Changes some rows of an image of 32 bits per pixel, Format_RGB32 or Format_ARGB32.
    void apply(QImage &ioImage, int inFirstRow, int inRowCount) const;

private:
    using Table = std::array<uchar, 256>;
    Table mRed;
    Table mGreen;
    Table mBlue;
    int mSaturation; // 256 leaves the colours as they are
};

namespace PhotoRenderer {

// Shows in colour where an image has lost its shadows (blue) and its highlights (red). Of Format_RGB32.
void markClipped(QImage &ioImage);

// The curve through the points, without overshoot, at 256 equal steps; 0 to 1.
std::array<double, 256> curveTable(const QVector<QPointF> &inPoints);

// The crop in pixels of a turned photo of that size; never empty for a photo that isn't.
QRect cropRect(const PhotoAdjustments &inAdjustments, const QSize &inTurnedSize);

// The size after turning and cropping.
QSize resultSize(const PhotoAdjustments &inAdjustments, const QSize &inSourceSize);

// Turns and crops, without the look. Shares the pixels when there is nothing to do.
QImage arranged(const PhotoAdjustments &inAdjustments, const QImage &inSource);

// Called now and then with the rows that are done; false stops the work.
using Report = std::function<bool(int inDoneRows, int inAllRows)>;

// The finished photo; null if the report stopped it.
QImage render(const PhotoAdjustments &inAdjustments, const QImage &inSource, const Report &inReport = {});

} // namespace PhotoRenderer
