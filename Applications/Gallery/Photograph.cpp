#include "Photograph.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace {
// A ridge of soft hills across the rectangle, from its middle height in parts of the rectangle.
QPainterPath ridge(const QRectF &inRect, double inHeight, double inSwing)
{
    const auto at = [&inRect](double inX, double inY) {
        return QPointF(inRect.left() + inX * inRect.width(), inRect.top() + inY * inRect.height());
    };
    QPainterPath path(at(0.0, inHeight));
    path.cubicTo(at(0.2, inHeight - inSwing), at(0.35, inHeight + inSwing), at(0.55, inHeight));
    path.cubicTo(at(0.7, inHeight - inSwing), at(0.85, inHeight - inSwing * 0.5), at(1.0, inHeight));
    path.lineTo(inRect.bottomRight());
    path.lineTo(inRect.bottomLeft());
    path.closeSubpath();
    return path;
}
} // namespace

void paintPhotograph(QPainter &ioPainter, const QRect &inRect)
{
    const QRectF rect(inRect);
    ioPainter.save();
    ioPainter.setRenderHint(QPainter::Antialiasing);
    ioPainter.setPen(Qt::NoPen);
    QLinearGradient sky(rect.topLeft(), rect.bottomLeft());
    sky.setColorAt(0.0, QColor(40, 70, 130));
    sky.setColorAt(0.7, QColor(235, 170, 120));
    ioPainter.fillRect(rect, sky);
    ioPainter.setBrush(QColor(255, 225, 150));
    ioPainter.drawEllipse(QPointF(rect.left() + rect.width() * 0.7, rect.top() + rect.height() * 0.5), 18,
                          18);
    ioPainter.setBrush(QColor(88, 96, 104));
    ioPainter.drawPath(ridge(rect, 0.58, 0.09));
    ioPainter.setBrush(QColor(44, 66, 48));
    ioPainter.drawPath(ridge(rect, 0.74, -0.08));
    ioPainter.restore();
}

void PhotographWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintPhotograph(painter, rect());
}
