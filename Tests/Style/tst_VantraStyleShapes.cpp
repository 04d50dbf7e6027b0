// The style blits kept pictures and fills nested shapes where it could clip and stroke. These tests hold the
// result against the shape painted the long way.

#include "Support/StyleSamples.h"
#include "Support/ThemeFixture.h"

#include "Style/VantraStyle.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtTest/QtTest>
#include <QtWidgets/QStyleOption>

using namespace StyleSamples;

namespace {

const VantraStyleTheme &theme()
{
    return VantraStyleTheme::instance();
}

QBrush brush(VantraPalette::PaletteRole inRole)
{
    return theme().colorPalette().brush(VantraPalette::Normal, inRole);
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
    int minimum, maximum, value;
    int anchor; // where the span begins
};

void paintSlider(QPainter &ioPainter, const QRect &inRect, const Range &inRange)
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
    ioPainter.setBrush(brush(VantraPalette::SliderValue));
    ioPainter.drawRect(QRectF(position(inRange.anchor), groove.y(),
                              position(inRange.value) - position(inRange.anchor), groove.height()));
    ioPainter.restore();
}

} // namespace

class tst_VantraStyleShapes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }

    void pillsAreRoundedRectangles()
    {
        // Even and odd, square, taller than wide, one pixel more than its ends, and too large for pictures; a
        // picture of one colour must not serve for another.
        for (const QSize &size :
             {QSize(80, 24), QSize(80, 25), QSize(22, 22), QSize(13, 40), QSize(25, 24), QSize(300, 180)}) {
            for (const auto group : {VantraPalette::Normal, VantraPalette::Disabled}) {
                const bool enabled = group == VantraPalette::Normal;
                const auto option = of<QStyleOptionButton>(size, enabled ? kEnabled : QStyle::State_None);
                const QImage ours = painted(option.rect, [&](QPainter &painter) {
                    mStyle.drawControl(QStyle::CE_PushButtonBevel, &option, &painter);
                });
                const QImage expected = painted(option.rect, [&](QPainter &painter) {
                    fillRounded(painter, option.rect, qMin(size.width(), size.height()) / 2,
                                theme().colorPalette().brush(group, VantraPalette::ButtonBackground));
                });
                QCOMPARE(differenceOf(ours, expected).pixels, 0);
            }
        }
    }

    void fieldsAreTheirOutlinedPath()
    {
        for (const auto style : {VantraLineEditBase::BorderHighlight, VantraLineEditBase::BorderStandard}) {
            for (const QSize &size : {QSize(120, 24), QSize(120, 25), QSize(4, 24)}) {
                for (const double opacity : {1.0, 0.5}) {
                    auto option = of<VantraStyleOptionLineEdit>(size);
                    option.borderStyle = style;
                    const QImage ours = painted(option.rect, [&](QPainter &painter) {
                        painter.setOpacity(opacity);
                        mStyle.drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter);
                    });
                    const QImage expected = painted(option.rect, [&](QPainter &painter) {
                        painter.setOpacity(opacity);
                        paintField(painter, option.rect, theme().lineEditLeftRadius(&option),
                                   theme().lineEditBackgroundBrush(&option));
                    });
                    QVERIFY(sameButForSeams(ours, expected));
                }
            }
        }
    }

    void menusAreTheirOutlinedPanel()
    {
        for (const double opacity : {1.0, 0.5}) {
            const auto option = of<QStyleOptionMenuItem>({120, 80});
            const QImage ours = painted(option.rect, [&](QPainter &painter) {
                painter.setOpacity(opacity);
                mStyle.drawPrimitive(QStyle::PE_PanelMenu, &option, &painter);
            });
            const QImage expected = painted(option.rect, [&](QPainter &painter) {
                painter.setOpacity(opacity);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(QPen(brush(VantraPalette::MenuLine), 1.0));
                painter.setBrush(brush(VantraPalette::MenuBackground));
                painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 5.0, 5.0);
            });
            QVERIFY(sameButForSeams(ours, expected));
        }
    }

    // Two strokes from fixed coordinates, in the middle of boxes of all parities. A translucent painter shows
    // where they overlap.
    void ticksAreTheirTwoStrokes()
    {
        for (const QSize &size : {QSize(16, 16), QSize(17, 16), QSize(16, 21), QSize(13, 15)}) {
            for (const double opacity : {1.0, 0.5}) {
                auto option = of<QStyleOptionMenuItem>(size, kEnabled | QStyle::State_On);
                const QImage ours = painted(option.rect, [&](QPainter &painter) {
                    painter.setOpacity(opacity);
                    mStyle.drawPrimitive(QStyle::PE_IndicatorMenuCheckMark, &option, &painter);
                });
                const QImage expected = painted(option.rect, [&](QPainter &painter) {
                    painter.setOpacity(opacity);
                    painter.setRenderHint(QPainter::Antialiasing);
                    painter.translate((size.width() - 11.2687 - 0.73125) * 0.5,
                                      (size.height() - 7.48264 - 0.696475) * 0.5);
                    painter.setPen(QPen(brush(VantraPalette::Checkmark), 2.0, Qt::SolidLine, Qt::RoundCap));
                    painter.drawLine(QPointF(0.73125, 4.14313), QPointF(4.36875, 7.48264));
                    painter.drawLine(QPointF(4.36875, 7.48264), QPointF(11.2687, 0.696475));
                });
                QCOMPARE(differenceOf(ours, expected).pixels, 0);
            }
        }
    }

    void grooveAndValueStayInTheRoundedGroove()
    {
        // From the low end, unless zero lies between the ends.
        for (const Range &range :
             {Range{0, 100, 60, 0}, Range{0, 100, 100, 0}, Range{-100, 100, 40, 0}, Range{-100, 100, -100, 0},
              Range{-100, 100, 0, 0}, Range{10, 20, 15, 10}, Range{-20, -10, -15, -20}}) {
            auto option = of<VantraStyleOptionSlider>({200, 22});
            option.minimum = range.minimum;
            option.maximum = range.maximum;
            option.sliderValue = range.value;
            option.subControls = QStyle::SC_SliderGroove;
            const QImage ours = painted(option.rect, [&](QPainter &painter) {
                mStyle.drawComplexControl(QStyle::CC_Slider, &option, &painter);
            });
            const QImage expected =
                painted(option.rect, [&](QPainter &painter) { paintSlider(painter, option.rect, range); });
            QVERIFY2(sameButForSeams(ours, expected), qPrintable(QString::number(range.value)));
        }
    }

    // Half a pixel further, a kept picture would be blurred or off.
    void picturesGiveWayToPaintingAtOddOffsets()
    {
        QStyleOptionButton option;
        option.rect = QRect(4, 4, 16, 16);
        option.state = QStyle::State_Enabled | QStyle::State_On;
        const auto indicator = [&](double offset) {
            return painted(QRect(0, 0, 30, 30), [&](QPainter &painter) {
                painter.translate(offset, 0.0);
                mStyle.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
            });
        };
        // The dot is four pixels wide, from 10 to 14; half a pixel on, its edges are shared by two columns
        // each.
        QCOMPARE(indicator(0.0).pixelColor(11, 12), kAccent);
        QVERIFY(indicator(0.0) != indicator(0.5));
        QCOMPARE(indicator(0.5).pixelColor(12, 12), kAccent);
        QCOMPARE(indicator(1.0).copy(1, 0, 29, 30), indicator(0.0).copy(0, 0, 29, 30));
    }

private:
    QImage painted(const QRect &inRect, const Painting &inPainting) const;

    VantraStyle mStyle;
};

QImage tst_VantraStyleShapes::painted(const QRect &inRect, const Painting &inPainting) const
{
    return ThemeFixture::paint(inRect.size(), inPainting, QColor(200, 60, 120));
}

QTEST_MAIN(tst_VantraStyleShapes)
#include "tst_VantraStyleShapes.moc"
