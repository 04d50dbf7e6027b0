#include "PhotoPixels.h"

#include "PhotoFile.h"

#include <algorithm>

namespace {
constexpr int kSmallestSide = 512;
}

PhotoPixels::Ptr PhotoPixels::load(const QString &inPath)
{
    QString reason;
    const QImage image = PhotoFile::load(inPath, reason);
    if (!image.isNull())
        return fromImage(image, image.size(), kSmallestSide);
    auto pixels = std::make_shared<PhotoPixels>();
    pixels->reason = reason;
    return pixels;
}

PhotoPixels::Ptr PhotoPixels::fromImage(const QImage &inImage, const QSize &inSize, int inSmallestSide)
{
    auto pixels = std::make_shared<PhotoPixels>();
    pixels->size = inSize;
    pixels->levels << inImage;
    while (std::max(pixels->levels.last().width(), pixels->levels.last().height()) > inSmallestSide) {
        const QImage &last = pixels->levels.last();
        pixels->levels << last.scaled((last.size() + QSize(1, 1)) / 2, Qt::IgnoreAspectRatio,
                                      Qt::SmoothTransformation);
    }
    return pixels;
}

const QImage &PhotoPixels::levelFor(double inScale) const
{
    int index = static_cast<int>(levels.size()) - 1;
    while (index > 0 && levels[index].width() < inScale * size.width())
        --index;
    return levels[index];
}
