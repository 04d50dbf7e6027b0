#include "Style/VantraStamp.h"

#include <QtGui/QImage>
#include <QtGui/QPaintEngine>

#include <unordered_map>

namespace VantraStamp {

namespace {

// A theme uses some dozens of pictures of a few hundred pixels; switching accents adds a few each time.
constexpr std::size_t kMostPictures = 512;

// Larger round ends are rare, and their pictures large.
constexpr int kLargestRadius = 64;

struct KeyHash
{
    std::size_t operator()(const Key &inKey) const
    {
        const quint64 shape = (static_cast<quint64>(inKey.shape) << 24) |
                              (static_cast<quint64>(inKey.detail) << 16) | inKey.size;
        return static_cast<std::size_t>((shape << 32) | inKey.color);
    }
};

std::unordered_map<Key, QImage, KeyHash> &pictures()
{
    static std::unordered_map<Key, QImage, KeyHash> sPictures;
    return sPictures;
}

void paintRounded(QPainter *ioPainter, const QRect &inRect, int inRadius, const QBrush &inBrush)
{
    const bool antialiased = ioPainter->testRenderHint(QPainter::Antialiasing);
    const QBrush brush = ioPainter->brush();
    const QPen pen = ioPainter->pen();
    ioPainter->setRenderHint(QPainter::Antialiasing);
    ioPainter->setBrush(inBrush);
    ioPainter->setPen(Qt::NoPen);
    ioPainter->drawRoundedRect(inRect, inRadius, inRadius, Qt::AbsoluteSize);
    ioPainter->setPen(pen);
    ioPainter->setBrush(brush);
    ioPainter->setRenderHint(QPainter::Antialiasing, antialiased);
}

} // namespace

bool applies(const QPainter *inPainter)
{
    const QPaintEngine *engine = inPainter->paintEngine();
    if (engine == nullptr || engine->type() != QPaintEngine::Raster ||
        inPainter->compositionMode() != QPainter::CompositionMode_SourceOver || inPainter->opacity() != 1.0) {
        return false;
    }
    const QTransform &transform = inPainter->deviceTransform();
    return transform.type() <= QTransform::TxTranslate &&
           transform.dx() == static_cast<int>(transform.dx()) &&
           transform.dy() == static_cast<int>(transform.dy());
}

const QImage *find(const Key &inKey)
{
    const auto found = pictures().find(inKey);
    return found == pictures().end() ? nullptr : &found->second;
}

const QImage &insert(const Key &inKey, const QImage &inImage)
{
    if (pictures().size() >= kMostPictures) {
        pictures().clear();
    }
    return pictures().insert_or_assign(inKey, inImage).first->second;
}

QImage blank(const Key &inKey)
{
    QImage image(inKey.size, inKey.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void fillRounded(QPainter *ioPainter, const QRect &inRect, int inRadius, const QBrush &inBrush)
{
    const int radius = qMin(inRadius, qMin(inRect.width(), inRect.height()) / 2);
    if (inBrush.style() != Qt::SolidPattern || radius <= 0 || radius > kLargestRadius ||
        !applies(ioPainter)) {
        paintRounded(ioPainter, inRect, inRadius, inBrush);
        return;
    }
    const int side = 2 * radius;
    const Key key{Shape::Disc, 0, static_cast<quint16>(side), inBrush.color().rgba()};
    const QImage &disc = picture(key, [&](QPainter *painter) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(inBrush);
        painter->drawRoundedRect(QRect(0, 0, side, side), radius, radius, Qt::AbsoluteSize);
    });
    const int x = inRect.x();
    const int y = inRect.y();
    const int right = x + inRect.width() - radius;
    const int bottom = y + inRect.height() - radius;
    const bool pill = inRect.height() == side;
    const int cap = pill ? side : radius;
    ioPainter->drawImage(QPoint(x, y), disc, QRect(0, 0, radius, cap));
    ioPainter->drawImage(QPoint(right, y), disc, QRect(radius, 0, radius, cap));
    if (!pill) {
        ioPainter->drawImage(QPoint(x, bottom), disc, QRect(0, radius, radius, radius));
        ioPainter->drawImage(QPoint(right, bottom), disc, QRect(radius, radius, radius, radius));
        ioPainter->fillRect(QRect(x, y + radius, inRect.width(), bottom - y - radius), inBrush);
        ioPainter->fillRect(QRect(x + radius, y, right - x - radius, radius), inBrush);
        ioPainter->fillRect(QRect(x + radius, bottom, right - x - radius, radius), inBrush);
    } else if (right > x + radius) {
        ioPainter->fillRect(QRect(x + radius, y, right - x - radius, side), inBrush);
    }
}

} // namespace VantraStamp
