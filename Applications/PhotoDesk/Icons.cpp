#include "Icons.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPixmap>

namespace {
constexpr int kGrid = 24; // the units of the drawings
constexpr int kSide = 48; // in pixels

template <typename Draw>
QImage drawn(Draw inDraw, int inSide = kSide)
{
    QImage image(inSide, inSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(static_cast<double>(inSide) / kGrid, static_cast<double>(inSide) / kGrid);
    painter.setPen(QPen(Qt::white, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    inDraw(painter);
    return image;
}

void drawTurn(QPainter &ioPainter)
{
    ioPainter.drawArc(QRectF(5.0, 5.5, 14.0, 14.0), -60 * 16, 270 * 16);
    ioPainter.setBrush(Qt::white);
    ioPainter.drawPolygon(QPolygonF({{2.8, 10.6}, {8.4, 10.2}, {5.0, 14.6}}));
}

QIcon icon(const QImage &inImage)
{
    return QIcon(QPixmap::fromImage(inImage));
}
} // namespace

QImage Icons::turnLeft()
{
    return drawn(drawTurn);
}

QImage Icons::turnRight()
{
    return drawn([](QPainter &ioPainter) {
        ioPainter.translate(kGrid, 0.0);
        ioPainter.scale(-1.0, 1.0);
        drawTurn(ioPainter);
    });
}

QImage Icons::crop()
{
    return drawn([](QPainter &ioPainter) {
        ioPainter.drawPolyline(QPolygonF({{7.0, 2.5}, {7.0, 17.0}, {21.5, 17.0}}));
        ioPainter.drawPolyline(QPolygonF({{2.5, 7.0}, {17.0, 7.0}, {17.0, 21.5}}));
    });
}

QImage Icons::zoomOut()
{
    return drawn([](QPainter &ioPainter) { ioPainter.drawLine(QPointF(6, 12), QPointF(18, 12)); });
}

QImage Icons::zoomIn()
{
    return drawn([](QPainter &ioPainter) {
        ioPainter.drawLine(QPointF(6, 12), QPointF(18, 12));
        ioPainter.drawLine(QPointF(12, 6), QPointF(12, 18));
    });
}

QIcon Icons::edited()
{
    static const QIcon sIcon = icon(drawn([](QPainter &ioPainter) {
        ioPainter.drawPolygon(QPolygonF({{4, 20}, {5.2, 14.8}, {16, 4}, {20, 8}, {9.2, 18.8}}));
        ioPainter.drawLine(QPointF(13.2, 6.8), QPointF(17.2, 10.8));
    }));
    return sIcon;
}

QIcon Icons::exported()
{
    static const QIcon sIcon = icon(drawn([](QPainter &ioPainter) {
        ioPainter.drawEllipse(QPointF(12, 12), 9.0, 9.0);
        ioPainter.drawPolyline(QPolygonF({{7.8, 12.4}, {10.8, 15.4}, {16.4, 9.0}}));
    }));
    return sIcon;
}

QIcon Icons::program()
{
    return icon(drawn(
        [](QPainter &ioPainter) {
            ioPainter.setPen(Qt::NoPen);
            ioPainter.setBrush(QColor(38, 44, 56));
            ioPainter.drawRoundedRect(QRectF(1, 1, 22, 22), 5, 5);
            ioPainter.setBrush(QColor(250, 190, 90));
            ioPainter.drawEllipse(QPointF(15.5, 8.5), 2.6, 2.6);
            ioPainter.setBrush(QColor(90, 150, 220));
            ioPainter.drawPolygon(QPolygonF({{3.5, 19}, {9.5, 9.5}, {14, 16}, {16, 13.5}, {20.5, 19}}));
        },
        256));
}
