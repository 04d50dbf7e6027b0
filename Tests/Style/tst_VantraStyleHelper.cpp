#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/StyleSamples.h"
#include "Support/ThemeFixture.h"

// The library keeps its painting families to itself; their common verbs need nothing but its public theme.
#include "../../Source/Common/Style/VantraStamp.cpp"
#include "../../Source/Common/Style/VantraStyleHelper.cpp"
#include "../../Source/Common/Style/VantraTextMeasure.cpp"

#include <QtWidgets/QApplication>

using namespace StyleSamples;
using ThemeFixture::ink;

namespace {

struct RoundRow
{
    const char *name;
    int radii[4];
    QRect grown; // what is filled of a rectangle from (20, 20), 20 wide and 10 high, in a picture of 60 by 50
};

// A radius of 4 grows the square sides by 8; of a single round corner at the bottom left the bottom moves up.
const RoundRow kRounds[] = {
    {"square", {0, 0, 0, 0}, {17, 17, 26, 16}},
    {"negative", {-4, 0, -1, 0}, {17, 17, 26, 16}},
    {"top left", {4, 0, 0, 0}, {20, 20, 28, 18}},
    {"top right", {0, 4, 0, 0}, {12, 20, 28, 18}},
    {"bottom left", {0, 0, 4, 0}, {20, 20, 28, 2}},
    {"bottom right", {0, 0, 0, 4}, {12, 12, 28, 18}},
    {"all", {4, 4, 4, 4}, {20, 20, 20, 10}},
    {"all, limited to half the height", {50, 7, 1000, 5}, {20, 20, 20, 10}},
    {"left", {4, 0, 4, 0}, {20, 20, 28, 10}},
    {"right", {0, 4, 0, 4}, {12, 20, 28, 10}},
    {"top", {4, 4, 0, 0}, {20, 20, 20, 18}},
    {"bottom", {0, 0, 4, 4}, {20, 12, 20, 18}},
};

void fillRounded(const QRect &inRect, const int (&inRadii)[4], QPainter &ioPainter)
{
    VantraStyleHelper::drawRoundedBackground(&ioPainter, inRect, inRadii[0], inRadii[1], inRadii[2],
                                             inRadii[3]);
}

// The smallest rectangle around everything that is painted.
QRect inked(const QImage &inImage)
{
    QRect result;
    for (int y = 0; y < inImage.height(); ++y) {
        for (int x = 0; x < inImage.width(); ++x) {
            if (inImage.pixelColor(x, y).alpha() > 0) {
                result |= QRect(x, y, 1, 1);
            }
        }
    }
    return result;
}

} // namespace

FATAL_CASE(diagonalCorners)
{
    ThemeFixture::paint({40, 40}, [](QPainter &ioPainter) {
        fillRounded({0, 0, 40, 40}, {4, 0, 0, 4}, ioPainter);
    });
}

FATAL_CASE(unequalCorners)
{
    ThemeFixture::paint({40, 40}, [](QPainter &ioPainter) {
        fillRounded({0, 0, 40, 40}, {4, 5, 0, 0}, ioPainter);
    });
}

class tst_VantraStyleHelper : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void roundedBackgroundGrowsPastSquareCorners_data() { DataRows::add(kRounds); }
    void roundedBackgroundGrowsPastSquareCorners();
    void otherCornersStopTheProcess();
    void bottomLineIsWholeDevicePixelsThick_data();
    void bottomLineIsWholeDevicePixelsThick();
    void arrowsPointTheirWay();
    void contentSaysWhetherItPaintedAnything();
};

void tst_VantraStyleHelper::roundedBackgroundGrowsPastSquareCorners()
{
    const RoundRow row = DataRows::current(kRounds);
    const QPen pen(Qt::red, 5.0);
    const QImage image = ThemeFixture::paint({60, 50}, [&](QPainter &ioPainter) {
        ioPainter.setPen(pen);
        ioPainter.setBrush(kPane);
        fillRounded({20, 20, 20, 10}, row.radii, ioPainter);
        QCOMPARE(ioPainter.pen(), pen);
        QVERIFY(!ioPainter.testRenderHint(QPainter::Antialiasing));
    });
    QCOMPARE(inked(image), row.grown);
    const bool isSquare = row.radii[0] <= 0 && row.radii[1] <= 0 && row.radii[2] <= 0 && row.radii[3] <= 0;
    QCOMPARE(image.pixelColor(row.grown.topLeft()) == kPane, isSquare);
}

void tst_VantraStyleHelper::otherCornersStopTheProcess()
{
    const QString words =
        "VantraStyleHelper::drawRoundedBackground: Currently only the case above are supported "
        "feel free to add more";
    QCOMPARE(FatalTest::assertionOf("diagonalCorners"), words);
    QCOMPARE(FatalTest::assertionOf("unequalCorners"), words);
}

void tst_VantraStyleHelper::bottomLineIsWholeDevicePixelsThick_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("thickness");
    QTest::newRow("1") << 1.0 << 1;
    QTest::newRow("1.5") << 1.5 << 2;
    QTest::newRow("2") << 2.0 << 2;
}

void tst_VantraStyleHelper::bottomLineIsWholeDevicePixelsThick()
{
    QFETCH(const double, ratio);
    const QImage image = ThemeFixture::paint(
        {20, 20},
        [](QPainter &ioPainter) {
            VantraStyleHelper::drawBottomLine(&ioPainter, QRect(0, 0, 20, 10), kLine, 1);
            QVERIFY(ioPainter.pen().isCosmetic());
        },
        Qt::transparent, ratio);
    QTEST(inked(image).height(), "thickness");
    QVERIFY(qAbs(inked(image).center().y() - 9.0 * ratio) <= 1.0);
}

void tst_VantraStyleHelper::arrowsPointTheirWay()
{
    const auto painted = [](Qt::ArrowType inType) {
        return ThemeFixture::paint({20, 20}, [inType](QPainter &ioPainter) {
            VantraStyleHelper::drawArrow(inType, Qt::white, QSizeF(10.0, 6.0), 1.0, QRect(0, 0, 20, 20),
                                         &ioPainter);
        });
    };
    QCOMPARE(ink(painted(Qt::NoArrow)), 0.0);
    const QImage down = painted(Qt::DownArrow);
    QVERIFY(inked(down).width() > inked(down).height());
    QVERIFY(ink(down.copy(8, 10, 4, 4)) > ink(down.copy(8, 6, 4, 4)));
    QVERIFY(ink(painted(Qt::UpArrow).copy(8, 6, 4, 4)) > ink(down.copy(8, 6, 4, 4)));
    const QImage right = painted(Qt::RightArrow);
    QVERIFY(inked(right).width() < inked(right).height());
    QVERIFY(ink(right.copy(10, 8, 4, 4)) > ink(right.copy(6, 8, 4, 4)));
    QVERIFY(ink(painted(Qt::LeftArrow).copy(6, 8, 4, 4)) > ink(right.copy(6, 8, 4, 4)));
}

void tst_VantraStyleHelper::contentSaysWhetherItPaintedAnything()
{
    const VantraStyleHelper helper(QApplication::style(), &VantraStyleTheme::instance());
    const QFontMetrics metrics((QFont()));
    const QPalette palette;
    const auto paints = [&](const QIcon &inIcon, const QString &inText, Qt::ArrowType inArrow,
                            bool inNoText) {
        bool painted = false;
        const QImage image = ThemeFixture::paint({80, 20}, [&](QPainter &ioPainter) {
            const VantraStyleHelper::Content content{inIcon, {16, 16}, inText, metrics, inArrow, 1, inNoText};
            const VantraStyleHelper::Look look{VantraIconPalette::IconTintingNone, Qt::AlignCenter, kEnabled,
                                               palette};
            painted = helper.drawIconTextArrow(content, look, QRect(0, 0, 80, 20), &ioPainter);
        });
        return painted && ink(image) > 3.0;
    };
    QVERIFY(!paints({}, {}, Qt::NoArrow, false));
    QVERIFY(!paints({}, "hidden", Qt::NoArrow, true));
    QVERIFY(paints({}, "text", Qt::NoArrow, false));
    QVERIFY(paints({}, {}, Qt::DownArrow, false));
    QVERIFY(paints(icon(), {}, Qt::NoArrow, true));
}

FATAL_TEST_MAIN(tst_VantraStyleHelper)

#include "tst_VantraStyleHelper.moc"
