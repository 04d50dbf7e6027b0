// The style blits kept pictures and fills nested shapes where it could clip and stroke. These tests hold the
// result against the shape painted the long way.

#include "Support/ThemeFixture.h"

#include "Style/VantraStyle.h"
#include "StyleOptions/VantraStyleOptionLineEdit.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtTest/QtTest>
#include <QtWidgets/QStyleOption>

namespace {

const VantraStyleTheme &theme()
{
    return VantraStyleTheme::instance();
}

using Painting = std::function<void(QPainter &)>;

struct Difference
{
    int largest = 0; // of any channel of any pixel
    int pixels = 0;  // that differ by more than rounding
};

Difference differenceOf(const QImage &inLeft, const QImage &inRight)
{
    constexpr int kRounding = 2;
    Difference result;
    for (int y = 0; y < inLeft.height(); ++y) {
        for (int x = 0; x < inLeft.width(); ++x) {
            const QRgb left = inLeft.pixel(x, y);
            const QRgb right = inRight.pixel(x, y);
            const int difference =
                qMax(qMax(qAbs(qRed(left) - qRed(right)), qAbs(qGreen(left) - qGreen(right))),
                     qAbs(qBlue(left) - qBlue(right)));
            result.largest = qMax(result.largest, difference);
            result.pixels += difference > kRounding ? 1 : 0;
        }
    }
    return result;
}

// The same but for the pixels along a curve where two antialiased shapes meet: painted one by one they let a
// trace of the ground through, filled as one shape they don't.
bool sameButForSeams(const QImage &inLeft, const QImage &inRight)
{
    constexpr int kFaint = 40;
    constexpr int kSeamPixels = 60;
    const Difference difference = differenceOf(inLeft, inRight);
    if (difference.largest > kFaint || difference.pixels > kSeamPixels) {
        qWarning("%d pixels differ, by %d at most", difference.pixels, difference.largest);
        return false;
    }
    return true;
}

void fillRounded(QPainter &ioPainter, const QRectF &inRect, double inRadius, const QBrush &inBrush)
{
    ioPainter.setRenderHint(QPainter::Antialiasing);
    ioPainter.setPen(Qt::NoPen);
    ioPainter.setBrush(inBrush);
    ioPainter.drawRoundedRect(inRect, inRadius, inRadius, Qt::AbsoluteSize);
}

// The path of a field's panel, filled and outlined in one colour.
void paintField(QPainter &ioPainter, const QRect &inRect, double inRadius, const QBrush &inBrush)
{
    const QRectF box = QRectF(inRect).adjusted(1.0, 1.0, -1.0, -1.0);
    const double arc = 2.0 * inRadius - 1.0;
    QPainterPath path;
    path.moveTo(box.x() + inRadius, box.y());
    path.arcTo(box.x(), box.y(), arc, arc, 90.0, 90.0);
    path.lineTo(box.x(), box.y() + box.height() - inRadius);
    path.arcTo(box.x(), box.bottom() - arc, arc, arc, 180.0, 90.0);
    path.lineTo(box.right() - inRadius, box.bottom());
    path.arcTo(box.right() - arc, box.bottom() - arc, arc, arc, 270.0, 90.0);
    path.lineTo(box.right(), box.y() + inRadius);
    path.arcTo(box.right() - arc, box.y(), arc, arc, 0.0, 90.0);
    path.closeSubpath();
    ioPainter.setRenderHint(QPainter::Antialiasing);
    ioPainter.setBrush(inBrush);
    ioPainter.setPen(QPen(inBrush, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    ioPainter.drawPath(path);
}

struct Range
{
    int minimum;
    int maximum;
    int value;
};

void paintSlider(QPainter &ioPainter, const QRect &inRect, const Range &inRange, int inAnchor)
{
    const QRectF groove =
        QRectF(inRect).adjusted(0.5, inRect.height() * 0.5 - 2.0, -0.5, 2.0 - inRect.height() * 0.5);
    const auto position = [&](int value) {
        return QStyle::sliderPositionFromValue(inRange.minimum, inRange.maximum, value, inRect.width());
    };
    ioPainter.save();
    ioPainter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.addRoundedRect(groove, 2.0, 2.0, Qt::AbsoluteSize);
    ioPainter.setClipPath(path, Qt::ReplaceClip);
    ioPainter.setPen(Qt::NoPen);
    ioPainter.setBrush(theme().sliderGrooveColor());
    ioPainter.drawRect(groove);
    ioPainter.setBrush(theme().colorPalette().brush(VantraPalette::Normal, VantraPalette::SliderValue));
    ioPainter.drawRect(QRectF(position(inAnchor), groove.y(), position(inRange.value) - position(inAnchor),
                              groove.height()));
    ioPainter.restore();
}

} // namespace

class tst_VantraStyleShapes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pillsAreRoundedRectangles_data();
    void pillsAreRoundedRectangles();
    void fieldsAreTheirOutlinedPath_data();
    void fieldsAreTheirOutlinedPath();
    void menusAreTheirOutlinedPanel();
    void grooveAndValueStayInTheRoundedGroove_data();
    void grooveAndValueStayInTheRoundedGroove();
    void picturesGiveWayToPaintingAtOddOffsets();

private:
    QImage painted(const QRect &inRect, const Painting &inPainting) const;

    VantraStyle mStyle;
};

void tst_VantraStyleShapes::initTestCase()
{
    QVERIFY(ThemeFixture::load());
}

QImage tst_VantraStyleShapes::painted(const QRect &inRect, const Painting &inPainting) const
{
    return ThemeFixture::paint(inRect.size(), inPainting, QColor(200, 60, 120));
}

void tst_VantraStyleShapes::pillsAreRoundedRectangles_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("even height") << QSize(80, 24);
    QTest::newRow("odd height") << QSize(80, 25);
    QTest::newRow("square") << QSize(22, 22);
    QTest::newRow("odd square") << QSize(21, 21);
    QTest::newRow("taller than wide") << QSize(13, 40);
    QTest::newRow("one pixel more than its ends") << QSize(25, 24);
    QTest::newRow("too large for pictures") << QSize(300, 180);
}

void tst_VantraStyleShapes::pillsAreRoundedRectangles()
{
    QFETCH(const QSize, size);
    const QRect rect(QPoint(0, 0), size);
    QStyleOptionButton option;
    option.rect = rect;
    option.state = QStyle::State_Enabled;
    const QImage ours = painted(
        rect, [&](QPainter &painter) { mStyle.drawControl(QStyle::CE_PushButtonBevel, &option, &painter); });
    const QImage expected = painted(rect, [&](QPainter &painter) {
        fillRounded(painter, rect, qMin(size.width(), size.height()) / 2,
                    theme().colorPalette().brush(VantraPalette::Normal, VantraPalette::ButtonBackground));
    });
    QCOMPARE(differenceOf(ours, expected).pixels, 0);
}

void tst_VantraStyleShapes::fieldsAreTheirOutlinedPath_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<VantraLineEditBase::BorderStyle>("borderStyle");
    QTest::newRow("plate") << QSize(120, 24) << VantraLineEditBase::BorderHighlight;
    QTest::newRow("pill") << QSize(120, 24) << VantraLineEditBase::BorderStandard;
    QTest::newRow("odd pill") << QSize(120, 25) << VantraLineEditBase::BorderStandard;
}

void tst_VantraStyleShapes::fieldsAreTheirOutlinedPath()
{
    QFETCH(const QSize, size);
    QFETCH(const VantraLineEditBase::BorderStyle, borderStyle);
    VantraStyleOptionLineEdit option;
    option.rect = QRect(QPoint(0, 0), size);
    option.state = QStyle::State_Enabled;
    option.borderStyle = borderStyle;
    const QImage ours = painted(option.rect, [&](QPainter &painter) {
        mStyle.drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter);
    });
    const QImage expected = painted(option.rect, [&](QPainter &painter) {
        paintField(painter, option.rect, theme().lineEditLeftRadius(&option),
                   theme().lineEditBackgroundBrush(&option));
    });
    QVERIFY(sameButForSeams(ours, expected));
}

void tst_VantraStyleShapes::menusAreTheirOutlinedPanel()
{
    QStyleOptionMenuItem option;
    option.rect = QRect(0, 0, 120, 80);
    option.state = QStyle::State_Enabled;
    const QImage ours = painted(option.rect, [&](QPainter &painter) {
        mStyle.drawPrimitive(QStyle::PE_PanelMenu, &option, &painter);
    });
    const QImage expected = painted(option.rect, [&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(theme().colorPalette().brush(VantraPalette::Normal, VantraPalette::MenuLine), 1.0,
                            Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.setBrush(theme().colorPalette().brush(VantraPalette::Normal, VantraPalette::MenuBackground));
        painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 5.0, 5.0);
    });
    QVERIFY(sameButForSeams(ours, expected));
}

void tst_VantraStyleShapes::grooveAndValueStayInTheRoundedGroove_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("anchor");
    QTest::newRow("from the left end") << 0 << 100 << 60 << 0;
    QTest::newRow("both ends") << 0 << 100 << 100 << 0;
    QTest::newRow("to the right of zero") << -100 << 100 << 40 << 0;
    QTest::newRow("to the left of zero") << -100 << 100 << -100 << 0;
    QTest::newRow("no span") << -100 << 100 << 0 << 0;
    QTest::newRow("above zero") << 10 << 20 << 15 << 10;
}

void tst_VantraStyleShapes::grooveAndValueStayInTheRoundedGroove()
{
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    QFETCH(const int, value);
    QFETCH(const int, anchor);
    VantraStyleOptionSlider option;
    option.rect = QRect(0, 0, 200, 22);
    option.state = QStyle::State_Enabled;
    option.minimum = minimum;
    option.maximum = maximum;
    option.sliderValue = option.sliderPosition = value;
    option.subControls = QStyle::SC_SliderGroove;
    const QImage ours = painted(option.rect, [&](QPainter &painter) {
        mStyle.drawComplexControl(QStyle::CC_Slider, &option, &painter);
    });
    const QImage expected = painted(option.rect, [&](QPainter &painter) {
        paintSlider(painter, option.rect, {minimum, maximum, value}, anchor);
    });
    QVERIFY(sameButForSeams(ours, expected));
}

// Half a pixel further, a kept picture would be blurred or off.
void tst_VantraStyleShapes::picturesGiveWayToPaintingAtOddOffsets()
{
    const QRect rect(0, 0, 30, 30);
    QStyleOptionButton option;
    option.rect = QRect(4, 4, 16, 16);
    option.state = QStyle::State_Enabled | QStyle::State_On;
    const auto indicator = [&](double offset) {
        return painted(rect, [&](QPainter &painter) {
            painter.translate(offset, 0.0);
            mStyle.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
        });
    };
    const QColor accent = theme().colorPalette().color(VantraPalette::Normal, VantraPalette::Checkbox);
    // The dot is four pixels wide, from 10 to 14; half a pixel on, its edges are shared by two columns each.
    QCOMPARE(indicator(0.0).pixelColor(11, 12), accent);
    QVERIFY(indicator(0.0) != indicator(0.5));
    QCOMPARE(indicator(0.5).pixelColor(12, 12), accent);
    QCOMPARE(indicator(1.0).copy(1, 0, 29, 30), indicator(0.0).copy(0, 0, 29, 30));
}

QTEST_MAIN(tst_VantraStyleShapes)
#include "tst_VantraStyleShapes.moc"
