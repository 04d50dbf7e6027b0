#include "Support/FatalTest.h"
#include "Theme/VantraIconPalette.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPixmapCache>

namespace {

using I = VantraIconPalette;

const QColor kForeground(10, 20, 30);
const QColor kAlternate(200, 100, 50, 128); // its alpha isn't used
const QColor kOwn(7, 8, 9);

// A square of one colour that grows more opaque from left to right.
QIcon makeIcon()
{
    QImage image(16, 16, QImage::Format_ARGB32);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            image.setPixel(x, y, qRgba(kOwn.red(), kOwn.green(), kOwn.blue(), x * 17));
        }
    }
    return QIcon(QPixmap::fromImage(image));
}

QPixmap tint(const QIcon &inIcon, QIcon::Mode inMode, QIcon::State inState, I::IconTintings inTinting,
             const QColor &inForeground = kForeground, double inRatio = 1.0)
{
    return VantraStyleTheme::instance().tintedPixmap(inIcon, QSize(16, 16), inRatio, inMode, inState,
                                                     inTinting, inForeground, kAlternate);
}

QColor solidColor(const QPixmap &inPixmap)
{
    return inPixmap.toImage().pixelColor(15, 8);
}

} // namespace

class tst_VantraIconPalette : public QObject
{
    Q_OBJECT

private slots:
    void init() { QPixmapCache::clear(); }

    void flagsOfModeAndStateDecide()
    {
        // The flags of a pair of mode and state, and a tint of all others leaves it alone.
        struct Flags
        {
            QIcon::Mode mode;
            QIcon::State state;
            int foreground, alternate;
        };
        for (const Flags &flags : {Flags{QIcon::Normal, QIcon::On, I::IconTintingOnNormalForeground,
                                         I::IconTintingOnNormalAlternate},
                                   Flags{QIcon::Disabled, QIcon::Off, I::IconTintingOffDisabledForeground,
                                         I::IconTintingOffDisabledAlternate},
                                   Flags{QIcon::Active, QIcon::On, I::IconTintingOnActiveForeground,
                                         I::IconTintingOnActiveAlternate},
                                   Flags{QIcon::Selected, QIcon::Off, I::IconTintingOffSelectedForeground,
                                         I::IconTintingOffSelectedAlternate}}) {
            const QIcon icon = makeIcon();
            const auto color = [&](int inFlags, const QColor &inForeground = kForeground) {
                return solidColor(
                    tint(icon, flags.mode, flags.state, I::IconTintings(QFlag(inFlags)), inForeground));
            };
            const int both = flags.foreground | flags.alternate;
            const QColor untinted = solidColor(icon.pixmap(QSize(16, 16), 1.0, flags.mode, flags.state));
            QCOMPARE(color(flags.foreground | I::IconTintingNone), kForeground);
            QCOMPARE(color(flags.alternate), QColor(kAlternate.rgb()));
            QCOMPARE(color(both), kForeground);
            QCOMPARE(color(both, QColor()), untinted); // the foreground flag has decided
            QCOMPARE(color(0xffffff & ~both), untinted);
            QCOMPARE(color(I::IconTintingNone), untinted);
        }
    }

    void alphaOfTheIconStays()
    {
        const QImage image = tint(makeIcon(), QIcon::Normal, QIcon::Off, I::IconTintingAlternate)
                                 .toImage()
                                 .convertToFormat(QImage::Format_ARGB32);
        for (int x = 0; x < 16; ++x) {
            QCOMPARE(qAlpha(image.pixel(x, 3)), x * 17);
        }
    }

    void resultsAreCachedByRatioAndColour()
    {
        const QIcon icon = makeIcon();
        const QString key = QString("%1-16-16-%2-1-0").arg(icon.cacheKey()); // QIcon::On is 0
        const auto isKeptAs = [&](const QString &inKey, I::IconTintings inTinting, double inRatio) {
            const auto painted = [&] {
                return tint(icon, QIcon::Disabled, QIcon::On, inTinting, kForeground, inRatio);
            };
            QPixmap found;
            const bool isNew = !QPixmapCache::find(inKey, &found);
            const qint64 first = painted().cacheKey();
            return isNew && QPixmapCache::find(inKey, &found) && found.cacheKey() == first &&
                   painted().cacheKey() == first && painted().devicePixelRatio() == inRatio;
        };
        QVERIFY(isKeptAs(key.arg("1"), I::IconTintingNone, 1.0));
        QVERIFY(isKeptAs(key.arg("1.5"), I::IconTintingNone, 1.5));
        QVERIFY(isKeptAs(key.arg("1") + "-10-20-30", I::IconTintingForeground, 1.0));
    }

    void nullIconStaysNull()
    {
        QVERIFY(tint(QIcon(), QIcon::Normal, QIcon::On, I::IconTintingForeground).isNull());
        QVERIFY(tint(QIcon(), QIcon::Normal, QIcon::On, I::IconTintingNone).isNull());
    }
};

FATAL_TEST_MAIN(tst_VantraIconPalette)
#include "tst_VantraIconPalette.moc"
