#include "CurveEditor.h"

#include "PhotoRenderer.h"
#include "Theme/VTTheme.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <algorithm>

namespace {
constexpr double kReach = 9.0;  // of a point, in pixels
constexpr double kLeast = 0.01; // between two points
constexpr int kHeight = 190;
constexpr int kMostPoints = 12;
} // namespace

CurveEditor::CurveEditor(QWidget *inParent) : QWidget(inParent)
{
    setFixedHeight(kHeight);
    setAccessibleName(tr("Tone curve"));
    setToolTip(tr("Click to make a point, drag to move it, double-click to remove it"));
}

void CurveEditor::setPoints(const QVector<QPointF> &inPoints)
{
    mPoints = inPoints;
    update();
}

void CurveEditor::setHistogram(const QVector<int> &inCounts)
{
    mHistogram = inCounts;
    update();
}

QPointF CurveEditor::toWidget(const QPointF &inPoint) const
{
    return {area().left() + inPoint.x() * area().width(), area().bottom() - inPoint.y() * area().height()};
}

QPointF CurveEditor::fromWidget(const QPointF &inPosition) const
{
    return {std::clamp((inPosition.x() - area().left()) / area().width(), 0.0, 1.0),
            std::clamp((area().bottom() - inPosition.y()) / area().height(), 0.0, 1.0)};
}

int CurveEditor::pointAt(const QPointF &inPosition) const
{
    for (int index = 0; index < mPoints.size(); ++index) {
        if ((toWidget(mPoints[index]) - inPosition).manhattanLength() <= kReach)
            return index;
    }
    return -1;
}

void CurveEditor::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(VTTheme::CURVES_BACKGROUND_COLOR);
    painter.drawRoundedRect(rect(), VTTheme::BUTTON_RADIUS, VTTheme::BUTTON_RADIUS);
    if (!mHistogram.isEmpty()) {
        const double most = std::max(1, *std::max_element(mHistogram.begin() + 1, mHistogram.end() - 1));
        QPolygonF shape{toWidget({0, 0})};
        for (int level = 0; level < mHistogram.size(); ++level)
            shape << toWidget({level / 255.0, std::min(1.0, mHistogram[level] / most) * 0.9});
        shape << toWidget({1, 0});
        painter.setBrush(VTTheme::CURVES_GRID_PEN_COLOR);
        painter.drawPolygon(shape);
    }
    painter.setBrush(Qt::NoBrush);
    for (int quarter = 0; quarter <= 4; ++quarter) {
        painter.setPen(quarter == 2   ? VTTheme::CURVES_GRID_MIDPOINT_PEN_COLOR
                       : quarter == 0 ? VTTheme::CURVES_GRID_PEN_DIVIDER_COLOR
                                      : VTTheme::CURVES_GRID_PEN_COLOR);
        const double part = quarter / 4.0;
        painter.drawLine(toWidget({part, 0}), toWidget({part, 1}));
        painter.drawLine(toWidget({0, part}), toWidget({1, part}));
    }
    const std::array<double, 256> table = PhotoRenderer::curveTable(mPoints);
    QPolygonF line;
    for (int level = 0; level < 256; ++level)
        line << toWidget({level / 255.0, table[level]});
    painter.setPen(QPen(VTTheme::CURVES_COMPOSITE_PEN_COLOR, VTTheme::CURVES_PEN_WIDTH));
    painter.drawPolyline(line);
    for (int index = 0; index < mPoints.size(); ++index) {
        painter.setBrush(index == mDragged ? VantraStyleTheme::instance().accentColor(QPalette::Active)
                                           : VTTheme::CURVES_BACKGROUND_COLOR);
        painter.drawEllipse(toWidget(mPoints[index]), 4.0, 4.0);
    }
}

void CurveEditor::mousePressEvent(QMouseEvent *inEvent)
{
    if (inEvent->button() != Qt::LeftButton)
        return;
    mDragged = pointAt(inEvent->position());
    const QPointF point = fromWidget(inEvent->position());
    if (mDragged < 0 && mPoints.size() < kMostPoints) {
        const auto place = std::find_if(mPoints.begin(), mPoints.end(),
                                        [&](const QPointF &inOther) { return inOther.x() > point.x(); });
        const int index = static_cast<int>(place - mPoints.begin());
        const bool hasRoom = (index == 0 || point.x() - mPoints[index - 1].x() >= kLeast) &&
                             (index == mPoints.size() || mPoints[index].x() - point.x() >= kLeast);
        if (hasRoom) {
            mPoints.insert(index, point);
            mDragged = index;
            emit pointsChanged(mPoints);
        }
    }
    update();
}

void CurveEditor::mouseMoveEvent(QMouseEvent *inEvent)
{
    if (mDragged < 0)
        return;
    QPointF point = fromWidget(inEvent->position());
    const double least = mDragged == 0 ? 0.0 : mPoints[mDragged - 1].x() + kLeast;
    const double most = mDragged == mPoints.size() - 1 ? 1.0 : mPoints[mDragged + 1].x() - kLeast;
    point.setX(std::max(least, std::min(point.x(), most)));
    mPoints[mDragged] = point;
    emit pointsChanged(mPoints);
    update();
}

void CurveEditor::mouseReleaseEvent(QMouseEvent *)
{
    mDragged = -1;
    emit finished();
    update();
}

void CurveEditor::mouseDoubleClickEvent(QMouseEvent *inEvent)
{
    const int index = pointAt(inEvent->position());
    if (index <= 0 || index == mPoints.size() - 1)
        return;
    mPoints.removeAt(index);
    emit pointsChanged(mPoints);
    emit finished();
    update();
}
