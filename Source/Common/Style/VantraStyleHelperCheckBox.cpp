#include "Style/VantraStyleHelperCheckBox.h"

#include "Style/VantraStamp.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPainterPath>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyleOption>

namespace {

QRectF centredSquare(const QPointF &inCentre, double inSide)
{
    return QRectF(inCentre.x() - inSide * 0.5, inCentre.y() - inSide * 0.5, inSide, inSide);
}

// All that the indicator's pixels depend on; sizes in logical pixels.
struct Indicator
{
    int outer;
    int inner;
    int border;
    VantraStamp::Shape shape;
    QColor color;
};

VantraStamp::Shape shapeOf(QStyle::State inState)
{
    if (inState & QStyle::State_On) {
        return VantraStamp::Shape::RingWithDot;
    }
    return inState & QStyle::State_NoChange ? VantraStamp::Shape::RingWithHalfDot : VantraStamp::Shape::Ring;
}

void paintIndicator(const Indicator &inIndicator, const QPointF &inOrigin, QPainter *ioPainter)
{
    const int border = inIndicator.border;
    const QRectF ring = QRectF(inOrigin, QSizeF(inIndicator.outer, inIndicator.outer))
                            .adjusted(border, border, -border, -border);
    const QRectF dot = centredSquare(ring.center(), inIndicator.inner);
    const double ringRadius = inIndicator.outer * 0.5;
    const double dotRadius = inIndicator.inner * 0.5;
    const QBrush brush(inIndicator.color, Qt::SolidPattern);
    ioPainter->setPen(QPen(brush, border, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    ioPainter->setBrush(Qt::NoBrush);
    ioPainter->drawRoundedRect(ring, ringRadius, ringRadius, Qt::AbsoluteSize);
    ioPainter->setPen(Qt::NoPen);
    ioPainter->setBrush(brush);
    if (inIndicator.shape == VantraStamp::Shape::RingWithDot) {
        ioPainter->drawRoundedRect(dot, dotRadius, dotRadius, Qt::AbsoluteSize);
    } else if (inIndicator.shape == VantraStamp::Shape::RingWithHalfDot) {
        QPainterPath path;
        path.addRoundedRect(dot, dotRadius, dotRadius, Qt::AbsoluteSize);
        ioPainter->setClipPath(path, Qt::ReplaceClip);
        ioPainter->drawRect(dot.adjusted(0.0, dot.height() * 0.5, 0.0, 0.0));
    }
}

} // namespace

void VantraStyleHelperCheckBox::drawIndicator(const QStyleOption &option, QPainter *painter,
                                              const QWidget *widget) const
{
    const QColor color = mTheme->checkboxColor(&option);
    const int outer = mTheme->checkboxOuterSize(&option);
    const int inner = mTheme->checkboxInnerSize(&option);
    const int border = mTheme->checkboxOuterBorderSize(&option);
    const QRectF box(option.rect);
    if (qobject_cast<const QMenu *>(widget) != nullptr) {
        if (option.state & QStyle::State_On) {
            drawCheckMark(painter, box, color);
        }
        return;
    }

    const Indicator indicator{outer, inner, border, shapeOf(option.state), color};
    const QPointF origin = centredSquare(box.center(), outer).topLeft();
    if (origin == origin.toPoint() && VantraStamp::applies(painter)) {
        const VantraStamp::Key key{indicator.shape, static_cast<quint8>(inner * 16 + border),
                                   static_cast<quint16>(outer), color.rgba()};
        painter->drawImage(origin, VantraStamp::picture(key, [&indicator](QPainter *stamp) {
                               paintIndicator(indicator, QPointF(0.0, 0.0), stamp);
                           }));
        return;
    }
    const VantraPainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    paintIndicator(indicator, origin, painter);
}
