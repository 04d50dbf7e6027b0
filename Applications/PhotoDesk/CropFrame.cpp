#include "CropFrame.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <cmath>

namespace {
constexpr double kReach = 10.0;        // of a handle, in pixels
constexpr double kHandleLength = 18.0; // in pixels
constexpr double kSmallestPart = 0.02;
} // namespace

CropFrame::CropFrame(QWidget *inParent) : QWidget(inParent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Crop frame"));
}

void CropFrame::setPhotoRect(const QRectF &inRect)
{
    mPhotoRect = inRect;
    update();
}

void CropFrame::setCrop(const QRectF &inCrop)
{
    mCrop = inCrop;
    update();
}

QRectF CropFrame::frame() const
{
    return {mPhotoRect.left() + mCrop.left() * mPhotoRect.width(),
            mPhotoRect.top() + mCrop.top() * mPhotoRect.height(), mCrop.width() * mPhotoRect.width(),
            mCrop.height() * mPhotoRect.height()};
}

Qt::Edges CropFrame::edgesAt(const QPointF &inPosition) const
{
    const QRectF rect = frame();
    Qt::Edges edges;
    if (!rect.adjusted(-kReach, -kReach, kReach, kReach).contains(inPosition))
        return edges;
    edges.setFlag(Qt::LeftEdge, std::abs(inPosition.x() - rect.left()) <= kReach);
    edges.setFlag(Qt::RightEdge, std::abs(inPosition.x() - rect.right()) <= kReach);
    edges.setFlag(Qt::TopEdge, std::abs(inPosition.y() - rect.top()) <= kReach);
    edges.setFlag(Qt::BottomEdge, std::abs(inPosition.y() - rect.bottom()) <= kReach);
    return edges;
}

void CropFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF rect = frame().toRect();
    QPainterPath outside;
    outside.addRect(mPhotoRect.toAlignedRect());
    outside.addRect(rect);
    painter.fillPath(outside, QColor(0, 0, 0, 150));
    painter.setPen(QColor(255, 255, 255, 90));
    for (const double part : {1.0 / 3.0, 2.0 / 3.0}) {
        const double x = std::round(rect.left() + part * rect.width()) + 0.5;
        const double y = std::round(rect.top() + part * rect.height()) + 0.5;
        painter.drawLine(QPointF(x, rect.top()), QPointF(x, rect.bottom()));
        painter.drawLine(QPointF(rect.left(), y), QPointF(rect.right(), y));
    }
    painter.setPen(QColor(255, 255, 255, 220));
    painter.drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setPen(QPen(Qt::white, 4.0, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    const QRectF inner = rect.adjusted(1, 1, -1, -1);
    const double arm = std::min({kHandleLength, inner.width() / 3.0, inner.height() / 3.0});
    for (const double x : {inner.left(), inner.right()}) {
        for (const double y : {inner.top(), inner.bottom()}) {
            const double across = x == inner.left() ? arm : -arm;
            const double down = y == inner.top() ? arm : -arm;
            painter.drawPolyline(QPolygonF({{x + across, y}, {x, y}, {x, y + down}}));
        }
        painter.drawLine(QPointF(x, inner.center().y() - arm / 2), QPointF(x, inner.center().y() + arm / 2));
    }
    for (const double y : {inner.top(), inner.bottom()})
        painter.drawLine(QPointF(inner.center().x() - arm / 2, y), QPointF(inner.center().x() + arm / 2, y));
}

void CropFrame::mousePressEvent(QMouseEvent *inEvent)
{
    mEdges = edgesAt(inEvent->position());
    mDrags = inEvent->button() == Qt::LeftButton && (mEdges || frame().contains(inEvent->position()));
    mDragFrom = inEvent->position();
    mDragCrop = mCrop;
}

void CropFrame::mouseMoveEvent(QMouseEvent *inEvent)
{
    if (!mDrags) {
        const Qt::Edges edges = edgesAt(inEvent->position());
        const bool across = edges & (Qt::LeftEdge | Qt::RightEdge);
        const bool down = edges & (Qt::TopEdge | Qt::BottomEdge);
        const bool falling = edges.testFlag(Qt::LeftEdge) == edges.testFlag(Qt::TopEdge);
        setCursor(across && down ? (falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor)
                  : across       ? Qt::SizeHorCursor
                  : down         ? Qt::SizeVerCursor
                                 : Qt::SizeAllCursor);
        return;
    }
    const QPointF pixels = inEvent->position() - mDragFrom;
    const QPointF way(pixels.x() / mPhotoRect.width(), pixels.y() / mPhotoRect.height());
    QRectF crop = mDragCrop;
    if (mEdges == Qt::Edges()) {
        crop.moveLeft(std::clamp(crop.left() + way.x(), 0.0, 1.0 - crop.width()));
        crop.moveTop(std::clamp(crop.top() + way.y(), 0.0, 1.0 - crop.height()));
    }
    if (mEdges & Qt::LeftEdge)
        crop.setLeft(std::clamp(crop.left() + way.x(), 0.0, crop.right() - kSmallestPart));
    if (mEdges & Qt::RightEdge)
        crop.setRight(std::clamp(crop.right() + way.x(), crop.left() + kSmallestPart, 1.0));
    if (mEdges & Qt::TopEdge)
        crop.setTop(std::clamp(crop.top() + way.y(), 0.0, crop.bottom() - kSmallestPart));
    if (mEdges & Qt::BottomEdge)
        crop.setBottom(std::clamp(crop.bottom() + way.y(), crop.top() + kSmallestPart, 1.0));
    setCrop(crop);
}

void CropFrame::mouseReleaseEvent(QMouseEvent *)
{
    mDrags = false;
}

void CropFrame::keyPressEvent(QKeyEvent *inEvent)
{
    if (inEvent->key() == Qt::Key_Return || inEvent->key() == Qt::Key_Enter)
        emit finished(true);
    else if (inEvent->key() == Qt::Key_Escape)
        emit finished(false);
    else
        QWidget::keyPressEvent(inEvent);
}
