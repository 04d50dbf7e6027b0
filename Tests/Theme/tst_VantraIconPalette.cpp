#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Theme/VantraIconPalette.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPixmapCache>

namespace {

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

QPixmap tint(const QIcon &inIcon, QIcon::Mode inMode, QIcon::State inState,
             VantraIconPalette::IconTintings inTinting, const QColor &inForeground = kForeground,
             double inRatio = 1.0)
{
    return VantraStyleTheme::instance().tintedPixmap(inIcon, QSize(16, 16), inRatio, inMode, inState,
                                                     inTinting, inForeground, kAlternate);
}

QColor solidColor(const QPixmap &inPixmap)
{
    return inPixmap.toImage().pixelColor(15, 8);
}

using I = VantraIconPalette;

struct FlagRow
{
    const char *name;
    QIcon::Mode mode;
    QIcon::State state;
    int foreground;
    int alternate;
};

const FlagRow kFlagRows[] = {
    {"normal on", QIcon::Normal, QIcon::On, I::IconTintingOnNormalForeground,
     I::IconTintingOnNormalAlternate},
    {"normal off", QIcon::Normal, QIcon::Off, I::IconTintingOffNormalForeground,
     I::IconTintingOffNormalAlternate},
    {"disabled on", QIcon::Disabled, QIcon::On, I::IconTintingOnDisabledForeground,
     I::IconTintingOnDisabledAlternate},
    {"disabled off", QIcon::Disabled, QIcon::Off, I::IconTintingOffDisabledForeground,
     I::IconTintingOffDisabledAlternate},
    {"active on", QIcon::Active, QIcon::On, I::IconTintingOnActiveForeground,
     I::IconTintingOnActiveAlternate},
    {"active off", QIcon::Active, QIcon::Off, I::IconTintingOffActiveForeground,
     I::IconTintingOffActiveAlternate},
    {"selected on", QIcon::Selected, QIcon::On, I::IconTintingOnSelectedForeground,
     I::IconTintingOnSelectedAlternate},
    {"selected off", QIcon::Selected, QIcon::Off, I::IconTintingOffSelectedForeground,
     I::IconTintingOffSelectedAlternate},
};

} // namespace

class tst_VantraIconPalette : public QObject
{
    Q_OBJECT

private slots:
    void init() { QPixmapCache::clear(); }

    void flagsOfModeAndStateDecide_data() { DataRows::add(kFlagRows); }
    void flagsOfModeAndStateDecide();
    void alphaOfTheIconStays();
    void resultsAreCachedByRatioAndColour();
    void nullIconStaysNull();
};

void tst_VantraIconPalette::flagsOfModeAndStateDecide()
{
    const auto [name, mode, state, foreground, alternate] = DataRows::current(kFlagRows);
    Q_UNUSED(name);
    const QIcon icon = makeIcon();
    const auto color = [&icon, mode = mode, state = state](int inFlags,
                                                           const QColor &inForeground = kForeground) {
        return solidColor(
            tint(icon, mode, state, VantraIconPalette::IconTintings(QFlag(inFlags)), inForeground));
    };
    const QColor untinted = solidColor(icon.pixmap(QSize(16, 16), 1.0, mode, state));
    const QColor opaqueAlternate(kAlternate.rgb());
    QCOMPARE(color(foreground), kForeground);
    QCOMPARE(color(alternate), opaqueAlternate);
    QCOMPARE(color(foreground | alternate), kForeground);
    QCOMPARE(color(foreground | VantraIconPalette::IconTintingNone), kForeground);
    QCOMPARE(color(foreground | alternate, QColor()), untinted); // the foreground flag has decided
    QCOMPARE(color(0xffffff & ~(foreground | alternate)), untinted);
    QCOMPARE(color(VantraIconPalette::IconTintingNone), untinted);
    QCOMPARE(color(0), untinted);
    const bool on = state == QIcon::On;
    QCOMPARE(color(VantraIconPalette::IconTintingOnAlternateOffForeground),
             on ? opaqueAlternate : kForeground);
}

void tst_VantraIconPalette::alphaOfTheIconStays()
{
    const QImage image = tint(makeIcon(), QIcon::Normal, QIcon::Off, VantraIconPalette::IconTintingAlternate)
                             .toImage()
                             .convertToFormat(QImage::Format_ARGB32);
    for (int x = 0; x < 16; ++x) {
        QCOMPARE(qAlpha(image.pixel(x, 3)), x * 17);
    }
}

void tst_VantraIconPalette::resultsAreCachedByRatioAndColour()
{
    const QIcon icon = makeIcon();
    const QString plainKey = QString("%1-16-16-%2-1-0").arg(icon.cacheKey());
    QPixmap found;
    const QPixmap once = tint(icon, QIcon::Disabled, QIcon::On, VantraIconPalette::IconTintingNone);
    QVERIFY(!QPixmapCache::find(plainKey.arg("1.5"), &found));
    const QPixmap finer =
        tint(icon, QIcon::Disabled, QIcon::On, VantraIconPalette::IconTintingNone, kForeground, 1.5);
    QCOMPARE(finer.devicePixelRatio(), 1.5);
    // QIcon::On is 0.
    QVERIFY(QPixmapCache::find(plainKey.arg("1"), &found));
    QCOMPARE(found.cacheKey(), once.cacheKey());
    QVERIFY(QPixmapCache::find(plainKey.arg("1.5"), &found));
    QCOMPARE(found.cacheKey(), finer.cacheKey());

    const QPixmap tinted = tint(icon, QIcon::Disabled, QIcon::On, VantraIconPalette::IconTintingForeground);
    QVERIFY(QPixmapCache::find(plainKey.arg("1") + "-10-20-30", &found));
    QCOMPARE(found.cacheKey(), tinted.cacheKey());
    QCOMPARE(tint(icon, QIcon::Disabled, QIcon::On, VantraIconPalette::IconTintingForeground).cacheKey(),
             tinted.cacheKey());
}

void tst_VantraIconPalette::nullIconStaysNull()
{
    QVERIFY(tint(QIcon(), QIcon::Normal, QIcon::On, VantraIconPalette::IconTintingForeground).isNull());
    QVERIFY(tint(QIcon(), QIcon::Normal, QIcon::On, VantraIconPalette::IconTintingNone).isNull());
}

FATAL_TEST_MAIN(tst_VantraIconPalette)
#include "tst_VantraIconPalette.moc"
