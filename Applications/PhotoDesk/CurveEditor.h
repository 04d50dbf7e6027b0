#pragma once

// The tone curve: a click makes a point, a drag moves one, a double click removes it.

#include <QtCore/QPointF>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class CurveEditor : public QWidget
{
    Q_OBJECT

public:
    explicit CurveEditor(QWidget *inParent = nullptr);

    // As in PhotoAdjustments; without a signal.
    void setPoints(const QVector<QPointF> &inPoints);

    // How often each of the 256 levels comes in the photo, shown behind the curve.
    void setHistogram(const QVector<int> &inCounts);

signals:
    void pointsChanged(const QVector<QPointF> &inPoints);
    void finished();

protected:
    void paintEvent(QPaintEvent *inEvent) override;
    void mousePressEvent(QMouseEvent *inEvent) override;
    void mouseMoveEvent(QMouseEvent *inEvent) override;
    void mouseReleaseEvent(QMouseEvent *inEvent) override;
    void mouseDoubleClickEvent(QMouseEvent *inEvent) override;

private:
    QRectF area() const { return QRectF(rect()).adjusted(6, 6, -6, -6); }
    QPointF toWidget(const QPointF &inPoint) const;
    QPointF fromWidget(const QPointF &inPosition) const;
    int pointAt(const QPointF &inPosition) const;

    QVector<QPointF> mPoints{{0.0, 0.0}, {1.0, 1.0}};
    QVector<int> mHistogram;
    int mDragged = -1;
};
