#include "Theme/VantraIconPalette.h"

#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPixmapCache>

#include <algorithm>
#include <charconv>

namespace {

// The flag sets hold one bit for each state and mode, the states four bits apart, starting at the given bit.
constexpr int kForegroundShift = 8;
constexpr int kAlternateShift = 16;

bool hasFlag(VantraIconPalette::IconTintings inTinting, QIcon::Mode inMode, QIcon::State inState, int inShift)
{
    const int stateShift = inState == QIcon::On ? 0 : 4;
    return ((static_cast<uint>(inTinting) >> (inShift + stateShift + static_cast<int>(inMode))) & 1U) != 0;
}

// Null when the icon is to be left as it is.
const QColor *chooseTint(VantraIconPalette::IconTintings inTinting, QIcon::Mode inMode, QIcon::State inState,
                         const QColor &inForeground, const QColor &inAlternate)
{
    if (inTinting == VantraIconPalette::IconTintings(VantraIconPalette::IconTintingNone)) {
        return nullptr;
    }
    const QColor *tint = nullptr;
    if (hasFlag(inTinting, inMode, inState, kForegroundShift)) {
        tint = &inForeground;
    } else if (hasFlag(inTinting, inMode, inState, kAlternateShift)) {
        tint = &inAlternate;
    }
    return tint != nullptr && tint->isValid() ? tint : nullptr;
}

// Writes the fields of a cache key, decimal numbers joined by hyphens. A key is made at each paint of an
// icon, so it takes one allocation, where QString::arg would take one a field.
class KeyWriter
{
public:
    KeyWriter(const QIcon &inIcon, const QSize &inSize, double inDevicePixelRatio, QIcon::Mode inMode,
              QIcon::State inState)
    {
        append(inIcon.cacheKey());
        append(inSize.width());
        append(inSize.height());
        append(inDevicePixelRatio);
        append(static_cast<int>(inMode));
        append(static_cast<int>(inState));
    }

    void append(const QColor &inColor)
    {
        append(inColor.red());
        append(inColor.green());
        append(inColor.blue());
    }

    // The key without a copy, valid as long as the writer.
    QString view() const { return QString::fromRawData(mText, mEnd - mText); }

    QString key() const { return QString(mText, mEnd - mText); }

private:
    void append(qint64 inValue)
    {
        char digits[24];
        write(digits, std::to_chars(std::begin(digits), std::end(digits), inValue).ptr);
    }

    void append(int inValue) { append(static_cast<qint64>(inValue)); }

    void append(double inValue)
    {
        const int whole = static_cast<int>(inValue);
        if (inValue == whole) {
            append(whole);
        } else {
            const QByteArray text = QByteArray::number(inValue);
            write(text.constBegin(), text.constEnd());
        }
    }

    void write(const char *inBegin, const char *inEnd)
    {
        if (mEnd != mText) {
            *mEnd++ = QLatin1Char('-');
        }
        mEnd = std::transform(inBegin, inEnd, mEnd, [](char character) { return QLatin1Char(character); });
    }

    QChar mText[160]; // nine fields of at most 20 characters, the last three of at most 3
    QChar *mEnd = mText;
};

QImage tinted(const QPixmap &inPixmap, const QColor &inColor)
{
    QImage image = inPixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    const QRgb tint = inColor.rgb() & RGB_MASK;
    for (int y = 0; y < image.height(); ++y) {
        QRgb *pixel = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (QRgb *end = pixel + image.width(); pixel != end; ++pixel) {
            *pixel = (*pixel & ~RGB_MASK) | tint;
        }
    }
    return image;
}

} // namespace

QPixmap VantraIconPalette::tintPixmap(const QIcon &inIcon, const QSize &inSize, double inDevicePixelRatio,
                                      QIcon::Mode inMode, QIcon::State inState, IconTintings inTinting,
                                      const QColor &inForeground, const QColor &inAlternate) const
{
    const QColor *tint = chooseTint(inTinting, inMode, inState, inForeground, inAlternate);
    KeyWriter key(inIcon, inSize, inDevicePixelRatio, inMode, inState);
    if (tint != nullptr) {
        key.append(*tint);
    }
    QPixmap pixmap;
    if (QPixmapCache::find(key.view(), &pixmap)) {
        return pixmap;
    }
    pixmap = inIcon.pixmap(inSize, inDevicePixelRatio, inMode, inState);
    if (tint != nullptr) {
        pixmap = QPixmap::fromImage(tinted(pixmap, *tint));
    }
    pixmap.setDevicePixelRatio(inDevicePixelRatio);
    QPixmapCache::insert(tint != nullptr
                             ? cacheKey(inIcon, inSize, inDevicePixelRatio, inMode, inState, *tint)
                             : cacheKey(inIcon, inSize, inDevicePixelRatio, inMode, inState),
                         pixmap);
    return pixmap;
}

QString VantraIconPalette::cacheKey(const QIcon &inIcon, const QSize &inSize, double inDevicePixelRatio,
                                    QIcon::Mode inMode, QIcon::State inState) const
{
    return KeyWriter(inIcon, inSize, inDevicePixelRatio, inMode, inState).key();
}

QString VantraIconPalette::cacheKey(const QIcon &inIcon, const QSize &inSize, double inDevicePixelRatio,
                                    QIcon::Mode inMode, QIcon::State inState, const QColor &inColor) const
{
    KeyWriter writer(inIcon, inSize, inDevicePixelRatio, inMode, inState);
    writer.append(inColor);
    return writer.key();
}
