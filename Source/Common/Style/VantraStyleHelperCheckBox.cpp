#include "Style/VantraStyleHelperCheckBox.h"

#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPainterPath>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyleOption>

namespace {

QRectF centredSquare(const QPointF &inCentre, double inSide)
{
    return QRectF(inCentre.x() - inSide * 0.5, inCentre.y() - inSide * 0.5, inSide, inSide);
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
    const QRectF ring = centredSquare(box.center(), outer).adjusted(border, border, -border, -border);
    const QRectF dot = centredSquare(ring.center(), inner);

    const VantraPainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    if (qobject_cast<const QMenu *>(widget) != nullptr) {
        if (option.state & QStyle::State_On) {
            drawCheckMark(painter, box, color);
        }
        return;
    }

    const QBrush brush(color, Qt::SolidPattern);
    painter->setPen(QPen(brush, border, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(ring, outer * 0.5, outer * 0.5, Qt::AbsoluteSize);
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
    if (option.state & QStyle::State_On) {
        painter->drawRoundedRect(dot, inner * 0.5, inner * 0.5, Qt::AbsoluteSize);
    } else if (option.state & QStyle::State_NoChange) {
        QPainterPath path;
        path.addRoundedRect(dot, inner * 0.5, inner * 0.5, Qt::AbsoluteSize);
        painter->setClipPath(path, Qt::ReplaceClip);
        painter->drawRect(dot.adjusted(0.0, dot.height() * 0.5, 0.0, 0.0));
    }
}
