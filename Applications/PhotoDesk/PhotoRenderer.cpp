#include "PhotoRenderer.h"

#include "PhotoAdjustments.h"

#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>

namespace {
constexpr double kGamma = 2.2;
constexpr int kRowsPerReport = 64;
constexpr int kClippedShadow = 1;
constexpr int kClippedHighlight = 254;

// Brightness of a channel, 0 to 1, after the light adjustments and before the curve.
double lightened(double inValue, const PhotoAdjustments &inAdjustments, double inGain)
{
    const double linear = std::pow(inValue, kGamma) * std::exp2(inAdjustments.exposure) * inGain;
    double value = std::pow(std::min(linear, 1.0), 1.0 / kGamma);
    // Each has its weight at its own end and none at the other, so that black and white stay.
    value += inAdjustments.shadows / 100.0 * 1.2 * value * std::pow(1.0 - value, 3.0);
    value += inAdjustments.highlights / 100.0 * 1.2 * (1.0 - value) * std::pow(value, 3.0);
    const double centred = 2.0 * value - 1.0;
    const double steepness = inAdjustments.contrast / 100.0;
    value += steepness * 0.5 * centred * (1.0 - std::abs(centred));
    return std::clamp(value, 0.0, 1.0);
}
} // namespace

PhotoLook::PhotoLook(const PhotoAdjustments &inAdjustments)
    : mSaturation(qRound(256.0 * (1.0 + inAdjustments.saturation / 100.0)))
{
    const std::array<double, 256> curve = PhotoRenderer::curveTable(inAdjustments.curve);
    const double warmth = inAdjustments.temperature / 100.0;
    const double magenta = inAdjustments.tint / 100.0;
    const auto fill = [&](Table &outTable, double inGain) {
        for (int level = 0; level < 256; ++level) {
            const double light = lightened(level / 255.0, inAdjustments, inGain);
            const double position = light * 255.0;
            const int below = static_cast<int>(position);
            const double share = position - below;
            const double value = curve[below] * (1.0 - share) + curve[std::min(below + 1, 255)] * share;
            outTable[level] = static_cast<uchar>(qRound(std::clamp(value, 0.0, 1.0) * 255.0));
        }
    };
    fill(mRed, std::exp2(0.6 * warmth + 0.2 * magenta));
    fill(mGreen, std::exp2(-0.4 * magenta));
    fill(mBlue, std::exp2(-0.6 * warmth + 0.2 * magenta));
}

void PhotoLook::apply(QImage &ioImage, int inFirstRow, int inRowCount) const
{
    const int width = ioImage.width();
    for (int row = inFirstRow; row < inFirstRow + inRowCount; ++row) {
        auto *pixel = reinterpret_cast<QRgb *>(ioImage.scanLine(row));
        for (const QRgb *end = pixel + width; pixel != end; ++pixel) {
            int red = mRed[qRed(*pixel)];
            int green = mGreen[qGreen(*pixel)];
            int blue = mBlue[qBlue(*pixel)];
            if (mSaturation != 256) {
                const int grey = (54 * red + 183 * green + 19 * blue) >> 8;
                red = std::clamp(grey + ((red - grey) * mSaturation >> 8), 0, 255);
                green = std::clamp(grey + ((green - grey) * mSaturation >> 8), 0, 255);
                blue = std::clamp(grey + ((blue - grey) * mSaturation >> 8), 0, 255);
            }
            *pixel = (*pixel & 0xFF000000u) | static_cast<QRgb>(red << 16 | green << 8 | blue);
        }
    }
}

void PhotoRenderer::markClipped(QImage &ioImage)
{
    for (int row = 0; row < ioImage.height(); ++row) {
        auto *pixel = reinterpret_cast<QRgb *>(ioImage.scanLine(row));
        for (const QRgb *end = pixel + ioImage.width(); pixel != end; ++pixel) {
            const auto [lowest, highest] = std::minmax({qRed(*pixel), qGreen(*pixel), qBlue(*pixel)});
            if (highest <= kClippedShadow)
                *pixel = qRgb(60, 110, 255);
            else if (lowest >= kClippedHighlight)
                *pixel = qRgb(255, 50, 50);
        }
    }
}

std::array<double, 256> PhotoRenderer::curveTable(const QVector<QPointF> &inPoints)
{
    std::array<double, 256> table{};
    const int count = static_cast<int>(inPoints.size());
    QVector<double> slopes(count, 0.0);
    const auto steepness = [&](int inIndex) {
        const QPointF step = inPoints[inIndex + 1] - inPoints[inIndex];
        return step.y() / step.x();
    };
    for (int index = 0; index < count; ++index) {
        if (index == 0 || index == count - 1) {
            slopes[index] = steepness(std::min(index, count - 2));
            continue;
        }
        const double before = steepness(index - 1);
        const double after = steepness(index);
        // The harmonic mean keeps the curve between its points.
        slopes[index] = before * after > 0.0 ? 2.0 * before * after / (before + after) : 0.0;
    }
    int part = 0;
    for (int level = 0; level < 256; ++level) {
        const double x = level / 255.0;
        while (part < count - 2 && x > inPoints[part + 1].x())
            ++part;
        const QPointF from = inPoints[part];
        const QPointF to = inPoints[part + 1];
        const double width = to.x() - from.x();
        const double t = std::clamp((x - from.x()) / width, 0.0, 1.0);
        const double square = t * t;
        const double cube = square * t;
        const double value =
            (2.0 * cube - 3.0 * square + 1.0) * from.y() + (3.0 * square - 2.0 * cube) * to.y() +
            width * ((cube - 2.0 * square + t) * slopes[part] + (cube - square) * slopes[part + 1]);
        table[level] = std::clamp(value, 0.0, 1.0);
    }
    return table;
}

QRect PhotoRenderer::cropRect(const PhotoAdjustments &inAdjustments, const QSize &inTurnedSize)
{
    const QRectF crop = inAdjustments.crop;
    const int left = std::clamp(qRound(crop.left() * inTurnedSize.width()), 0, inTurnedSize.width() - 1);
    const int top = std::clamp(qRound(crop.top() * inTurnedSize.height()), 0, inTurnedSize.height() - 1);
    const int right = std::clamp(qRound(crop.right() * inTurnedSize.width()), left + 1, inTurnedSize.width());
    const int bottom =
        std::clamp(qRound(crop.bottom() * inTurnedSize.height()), top + 1, inTurnedSize.height());
    return {left, top, right - left, bottom - top};
}

QSize PhotoRenderer::resultSize(const PhotoAdjustments &inAdjustments, const QSize &inSourceSize)
{
    if (inSourceSize.isEmpty())
        return {};
    const bool swapsSides = inAdjustments.quarterTurns % 2 != 0;
    return cropRect(inAdjustments, swapsSides ? inSourceSize.transposed() : inSourceSize).size();
}

QImage PhotoRenderer::arranged(const PhotoAdjustments &inAdjustments, const QImage &inSource)
{
    if (inSource.isNull())
        return inSource;
    const QImage turned = inAdjustments.quarterTurns == 0
                              ? inSource
                              : inSource.transformed(QTransform().rotate(90.0 * inAdjustments.quarterTurns));
    const QRect crop = cropRect(inAdjustments, turned.size());
    return crop == turned.rect() ? turned : turned.copy(crop);
}

QImage PhotoRenderer::render(const PhotoAdjustments &inAdjustments, const QImage &inSource,
                             const Report &inReport)
{
    QImage result = arranged(inAdjustments, inSource);
    result.convertTo(result.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const PhotoLook look(inAdjustments);
    for (int row = 0; row < result.height(); row += kRowsPerReport) {
        if (inReport && !inReport(row, result.height()))
            return {};
        look.apply(result, row, std::min(kRowsPerReport, result.height() - row));
    }
    return result;
}
