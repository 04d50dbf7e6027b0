#include "DrawnIcons.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPixmap>

namespace {
// The grid on which the icons are drawn, and the sizes that an icon holds; others are scaled from these.
constexpr int kGrid = 24;
constexpr int kSizes[] = {16, 24, 32};

template <typename Draw>
QIcon drawnIcon(const QColor &inColor, Draw inDraw)
{
    QIcon icon;
    for (const int size : kSizes) {
        for (const int ratio : {1, 2}) {
            QPixmap pixmap(size * ratio, size * ratio);
            pixmap.fill(Qt::transparent);
            QPainter painter(&pixmap);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(double(size * ratio) / kGrid, double(size * ratio) / kGrid);
            painter.setPen(QPen(inColor, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.setBrush(Qt::NoBrush);
            inDraw(painter, inColor);
            painter.end();
            pixmap.setDevicePixelRatio(ratio);
            icon.addPixmap(pixmap);
        }
    }
    return icon;
}
} // namespace

QIcon DrawnIcons::picture(const QColor &inColor)
{
    return drawnIcon(inColor, [](QPainter &ioPainter, const QColor &inInk) {
        ioPainter.drawRoundedRect(QRectF(2, 4, 20, 16), 2.5, 2.5);
        ioPainter.setPen(Qt::NoPen);
        ioPainter.setBrush(inInk);
        ioPainter.drawEllipse(QPointF(8, 9.5), 2.0, 2.0);
        QPainterPath hill(QPointF(4.5, 18));
        hill.lineTo(12.5, 11);
        hill.lineTo(19.5, 18);
        hill.closeSubpath();
        // Half as dense, to show that a tint keeps the alpha.
        ioPainter.setOpacity(0.5);
        ioPainter.drawPath(hill);
    });
}

QIcon DrawnIcons::folder(const QColor &inColor)
{
    return drawnIcon(inColor, [](QPainter &ioPainter, const QColor &) {
        QPainterPath path(QPointF(2.5, 19));
        path.lineTo(2.5, 5);
        path.lineTo(9, 5);
        path.lineTo(11.5, 8);
        path.lineTo(21.5, 8);
        path.lineTo(21.5, 19);
        path.closeSubpath();
        ioPainter.drawPath(path);
    });
}

QIcon DrawnIcons::adjust(const QColor &inColor)
{
    return drawnIcon(inColor, [](QPainter &ioPainter, const QColor &inInk) {
        const struct
        {
            double y;
            double knob;
        } rows[] = {{6, 15}, {12, 8}, {18, 13}};
        for (const auto &row : rows)
            ioPainter.drawLine(QPointF(3, row.y), QPointF(21, row.y));
        ioPainter.setPen(Qt::NoPen);
        ioPainter.setBrush(inInk);
        for (const auto &row : rows)
            ioPainter.drawEllipse(QPointF(row.knob, row.y), 2.6, 2.6);
    });
}

QIcon DrawnIcons::brush(const QColor &inColor)
{
    return drawnIcon(inColor, [](QPainter &ioPainter, const QColor &inInk) {
        ioPainter.drawLine(QPointF(20.5, 3.5), QPointF(11.5, 12.5));
        ioPainter.setPen(Qt::NoPen);
        ioPainter.setBrush(inInk);
        QPainterPath tip(QPointF(11.5, 17.5));
        tip.cubicTo(QPointF(10, 21.5), QPointF(5.5, 21.5), QPointF(2.5, 20.5));
        tip.cubicTo(QPointF(5.5, 18.5), QPointF(4, 14.5), QPointF(7.5, 13));
        tip.cubicTo(QPointF(10, 12), QPointF(12.5, 15), QPointF(11.5, 17.5));
        ioPainter.drawPath(tip);
    });
}

QIcon DrawnIcons::crop(const QColor &inColor)
{
    return drawnIcon(inColor, [](QPainter &ioPainter, const QColor &) {
        ioPainter.drawPolyline(QPolygonF({{7, 2}, {7, 17}, {22, 17}}));
        ioPainter.drawPolyline(QPolygonF({{2, 7}, {17, 7}, {17, 22}}));
    });
}

QIcon DrawnIcons::application()
{
    QIcon icon;
    for (const int size : {16, 32, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / 32.0, size / 32.0);
        QLinearGradient plate(0, 0, 0, 32);
        plate.setColorAt(0, QColor(86, 104, 190));
        plate.setColorAt(1, QColor(44, 52, 110));
        painter.setPen(Qt::NoPen);
        painter.setBrush(plate);
        painter.drawRoundedRect(QRectF(1, 1, 30, 30), 7, 7);
        painter.setBrush(QColor(255, 214, 140));
        painter.drawEllipse(QPointF(11, 11), 3.2, 3.2);
        QPainterPath hills(QPointF(4, 26));
        hills.lineTo(12, 17);
        hills.lineTo(16, 21);
        hills.lineTo(21, 14);
        hills.lineTo(28, 26);
        hills.closeSubpath();
        painter.setBrush(QColor(235, 238, 250));
        painter.drawPath(hills);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon DrawnIcons::dot(int inSize, const QColor &inColor)
{
    QIcon icon;
    for (const int ratio : {1, 2}) {
        QPixmap pixmap(inSize * ratio, inSize * ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(inColor);
        // Leaves room for the plate of a checked button to show around it.
        const double inset = inSize * ratio / 9.0;
        painter.drawEllipse(QRectF(pixmap.rect()).adjusted(inset, inset, -inset, -inset));
        painter.end();
        pixmap.setDevicePixelRatio(ratio);
        icon.addPixmap(pixmap);
    }
    return icon;
}

QImage DrawnIcons::image(const QIcon &inIcon)
{
    return inIcon.pixmap(QSize(kGrid, kGrid), 2.0).toImage();
}
