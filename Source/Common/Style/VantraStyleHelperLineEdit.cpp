#include "Style/VantraStyleHelperLineEdit.h"

#include "StyleOptions/VantraStyleOptionLineEdit.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPainterPath>

namespace {

constexpr double kOutlineWidth = 2.0;

} // namespace

void VantraStyleHelperLineEdit::drawPanel(const VantraStyleOptionLineEdit &option, QPainter *painter,
                                          const QWidget *) const
{
    const QBrush brush = mTheme->lineEditBackgroundBrush(&option);
    if (brush.color().alpha() == 0) {
        return; // a bare field: filling it would only cost time
    }
    const double radius = mTheme->lineEditLeftRadius(&option);
    const VantraPainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(brush);
    const double outerRadius = radius + kOutlineWidth * 0.25;
    const bool opaque = brush.color().alpha() == 255 && painter->opacity() == 1.0;
    if (opaque && outerRadius * 2.0 < qMin(option.rect.width(), option.rect.height())) {
        // One opaque fill gives the same as fill and outline of the path below, and costs less.
        painter->setPen(Qt::NoPen);
        painter->drawRoundedRect(option.rect, outerRadius, outerRadius, Qt::AbsoluteSize);
        return;
    }
    // The outline has the fill's colour: it rounds the shape off on its antialiased edge and shows no line.
    painter->setPen(QPen(QBrush(brush.color()), kOutlineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));

    const double inset = kOutlineWidth * 0.5;
    const double arc = qMax(2.0 * radius - inset, 0.0);
    const QRectF box = QRectF(option.rect).adjusted(inset, inset, -inset, -inset);
    const double x = box.x();
    const double y = box.y();
    const double w = box.width();
    const double h = box.height();

    QPainterPath path;
    path.moveTo(x + radius, y);
    if (radius > 0.0) {
        path.arcTo(x, y, arc, arc, 90.0, 90.0);
    }
    path.lineTo(x, y + h - radius);
    if (radius > 0.0) {
        path.arcTo(x, y + h - arc, arc, arc, 180.0, 90.0);
    }
    path.lineTo(x + w - radius, y + h);
    if (radius > 0.0) {
        path.arcTo(x + w - arc, y + h - arc, arc, arc, 270.0, 90.0);
    }
    path.lineTo(x + w, y + radius);
    if (radius > 0.0) {
        path.arcTo(x + w - arc, y, arc, arc, 0.0, 90.0);
    }
    path.closeSubpath();
    painter->drawPath(path);
}
