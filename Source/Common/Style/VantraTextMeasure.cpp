#include "Style/VantraTextMeasure.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>

#include <array>
#include <optional>

namespace VantraTextMeasure {

namespace {

// Each text has one place, which the next text of the same place takes over.
constexpr std::size_t kPlaces = 256;

// More texts than this are measured again.
constexpr qsizetype kRows = 16384;

// Between two alternatives of different length in one text; Qt chooses among them.
constexpr QChar kVariantSeparator(0x9c);

// Counts the changes of the font database. Metrics stay equal to themselves when fonts are added or removed,
// but may measure differently afterwards.
int fontGeneration()
{
    static int sGeneration = 0;
    static QPointer<QGuiApplication> sApplication;
    if (sApplication != qGuiApp) {
        sApplication = qGuiApp;
        ++sGeneration;
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp, [] { ++sGeneration; });
    }
    return sGeneration;
}

struct Place
{
    QString text;
    std::optional<QFontMetrics> metrics;
    int generation = 0;

    bool holds(const QString &inText, const QFontMetrics &inMetrics) const
    {
        return metrics && *metrics == inMetrics && generation == fontGeneration() && text == inText;
    }

    void take(const QString &inText, const QFontMetrics &inMetrics)
    {
        text = inText;
        metrics = inMetrics;
        generation = fontGeneration();
    }
};

struct SizePlace : Place
{
    QSize size;
};

struct ElisionPlace : Place
{
    double textWidth = 0.0;
    QString elided;
    int elidedWidth = -1; // -1 as long as nothing was cut
    Qt::TextElideMode mode = Qt::ElideNone;
};

// One measure of many texts.
template <typename Value>
class RowMemo
{
public:
    template <typename Measure>
    Value of(const QString &inText, const QFontMetrics &inMetrics, int inFlags, Measure inMeasure)
    {
        const int generation = fontGeneration();
        if (!mMetrics || *mMetrics != inMetrics || mFlags != inFlags || mGeneration != generation ||
            mValues.size() >= kRows) {
            mValues.clear();
            mMetrics = inMetrics;
            mFlags = inFlags;
            mGeneration = generation;
        }
        const auto found = mValues.constFind(inText);
        return found != mValues.cend() ? *found : *mValues.insert(inText, inMeasure());
    }

private:
    QHash<QString, Value> mValues;
    std::optional<QFontMetrics> mMetrics;
    int mFlags = 0;
    int mGeneration = 0;
};

template <typename PlaceType>
PlaceType &placeOf(const QString &inText)
{
    static std::array<PlaceType, kPlaces> sPlaces;
    return sPlaces[qHash(inText) % kPlaces];
}

} // namespace

QSize size(const QString &inText, const QFontMetrics &inMetrics)
{
    auto &place = placeOf<SizePlace>(inText);
    if (!place.holds(inText, inMetrics)) {
        place.take(inText, inMetrics);
        place.size = inMetrics.size(0, inText);
    }
    return place.size;
}

QString elided(const QString &inText, const QFontMetrics &inMetrics, Qt::TextElideMode inMode, int inWidth,
               int inFlags)
{
    // Mnemonics take no width, and variants have several.
    if ((inFlags & Qt::TextShowMnemonic) != 0 || inText.contains(kVariantSeparator)) {
        return inMetrics.elidedText(inText, inMode, inWidth, inFlags);
    }
    auto &place = placeOf<ElisionPlace>(inText);
    if (!place.holds(inText, inMetrics)) {
        place.take(inText, inMetrics);
        place.textWidth = QFontMetricsF(inMetrics).horizontalAdvance(inText);
        place.elidedWidth = -1;
    }
    if (place.textWidth <= inWidth) {
        return inText;
    }
    if (place.elidedWidth != inWidth || place.mode != inMode) {
        place.elided = inMetrics.elidedText(inText, inMode, inWidth, inFlags);
        place.elidedWidth = inWidth;
        place.mode = inMode;
    }
    return place.elided;
}

QSize rowSize(const QString &inText, const QFontMetrics &inMetrics, int inFlags)
{
    static RowMemo<QSize> sSizes;
    return sSizes.of(inText, inMetrics, inFlags, [&] { return inMetrics.size(inFlags, inText); });
}

int rowBoundingWidth(const QString &inText, const QFontMetrics &inMetrics)
{
    static RowMemo<int> sWidths;
    return sWidths.of(inText, inMetrics, 0, [&] { return inMetrics.boundingRect(inText).width(); });
}

} // namespace VantraTextMeasure
