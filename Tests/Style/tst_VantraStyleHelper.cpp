#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/StyleSamples.h"
#include "Support/ThemeFixture.h"

// The library keeps its painting families to itself; their common verbs need nothing but its public theme.
#include "../../Source/Common/Style/VantraStamp.cpp"
#include "../../Source/Common/Style/VantraStyleHelper.cpp"
#include "../../Source/Common/Style/VantraTextMeasure.cpp"

#include <QtCore/QFile>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QApplication>

using namespace StyleSamples;

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
    {"top right", {0, 4, 0, 0}, {12, 20, 28, 18}},
    {"bottom left", {0, 0, 4, 0}, {20, 20, 28, 2}},
    {"bottom right", {0, 0, 0, 4}, {12, 12, 28, 18}},
    {"all, limited to half the height", {50, 7, 1000, 5}, {20, 20, 20, 10}},
    {"right", {0, 4, 0, 4}, {12, 20, 28, 10}},
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

// A font of the resources under a family name that no system has. The name is in the file as UTF-16.
QByteArray renamedFont()
{
    QFile file(":/VTWidgets/Fonts/Roboto-Black.ttf");
    if (!file.open(QIODevice::ReadOnly)) {
        return QByteArray();
    }
    return file.readAll().replace(QByteArray("R\0o\0b\0o\0t\0o", 11), QByteArray("C\0o\0t\0o\0b\0o", 11));
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
    void roundedBackgroundGrowsPastSquareCorners()
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
        const bool isSquare =
            std::all_of(std::begin(row.radii), std::end(row.radii), [](int r) { return r == 0; });
        QCOMPARE(image.pixelColor(row.grown.topLeft()) == kPane, isSquare);
    }

    void measuresFollowTheFontDatabase()
    {
        const QFontMetrics metrics(QFont("Cotobo", 20));
        const QString text("Measured in one font and then in another");
        const auto areRight = [&] {
            return VantraTextMeasure::size(text, metrics) == metrics.size(0, text) &&
                   VantraTextMeasure::rowSize(text, metrics, 0) == metrics.size(0, text) &&
                   VantraTextMeasure::rowBoundingWidth(text, metrics) == metrics.boundingRect(text).width() &&
                   VantraTextMeasure::elided(text, metrics, Qt::ElideRight, 200, 0) ==
                       metrics.elidedText(text, Qt::ElideRight, 200);
        };
        const int before = metrics.horizontalAdvance(text);
        QVERIFY(areRight());
        const int font = QFontDatabase::addApplicationFontFromData(renamedFont());
        QVERIFY2(metrics.horizontalAdvance(text) != before, "the test needs a font that changes the widths");
        QVERIFY(areRight());
        QVERIFY(QFontDatabase::removeApplicationFont(font));
        QVERIFY(areRight());
    }

    void otherCornersStopTheProcess()
    {
        const QString words =
            "VantraStyleHelper::drawRoundedBackground: Currently only the case above are supported "
            "feel free to add more";
        QCOMPARE(FatalTest::assertionOf("diagonalCorners"), words);
        QCOMPARE(FatalTest::assertionOf("unequalCorners"), words);
    }

    void bottomLineIsWholeDevicePixelsThick()
    {
        for (const double ratio : {1.0, 1.5, 2.0}) {
            const auto line = [](QPainter &ioPainter) {
                VantraStyleHelper::drawBottomLine(&ioPainter, QRect(0, 0, 20, 10), kLine, 1);
            };
            const QRect lined = inked(ThemeFixture::paint({20, 20}, line, Qt::transparent, ratio));
            QCOMPARE(lined.height(), qCeil(ratio));
            QVERIFY(qAbs(lined.center().y() - 9.0 * ratio) <= 1.0);
        }
    }
};

FATAL_TEST_MAIN(tst_VantraStyleHelper)

#include "tst_VantraStyleHelper.moc"
