// The canvas under the mouse: zoom by the wheel, pan by a drag, and the line between before and after.

#include "PhotoCanvas.h"

#include "Photo.h"

#include <QtGui/QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {
constexpr int kDividerReach = 8; // logical pixels
}

void PhotoCanvas::wheelEvent(QWheelEvent *inEvent)
{
    zoomAround(mZoom * std::pow(kZoomStep, inEvent->angleDelta().y() / 120.0), inEvent->position());
}

void PhotoCanvas::mousePressEvent(QMouseEvent *inEvent)
{
    if (inEvent->button() != Qt::LeftButton || mPhoto == nullptr)
        return;
    mDragFrom = inEvent->position();
    const double divider = (mVisible.left() + mDivider * mVisible.width()) / devicePixelRatioF();
    mDragsDivider = mBeforeAfter && std::abs(mDragFrom.x() - divider) <= kDividerReach;
    setCursor(mDragsDivider ? Qt::SplitHCursor : Qt::ClosedHandCursor);
}

void PhotoCanvas::mouseMoveEvent(QMouseEvent *inEvent)
{
    if (!(inEvent->buttons() & Qt::LeftButton) || mPixels == nullptr)
        return;
    const QPointF way = (inEvent->position() - mDragFrom) * devicePixelRatioF();
    mDragFrom = inEvent->position();
    if (mDragsDivider) {
        mDivider = std::clamp(mDivider + way.x() / std::max(1, mVisible.width()), 0.0, 1.0);
        mApplied = QImage();
        update();
    } else {
        mCentre -= way / mZoom;
        place();
    }
}

void PhotoCanvas::mouseReleaseEvent(QMouseEvent *)
{
    unsetCursor();
}

void PhotoCanvas::mouseDoubleClickEvent(QMouseEvent *inEvent)
{
    if (mFits)
        zoomAround(1.0, inEvent->position());
    else
        fit();
}
