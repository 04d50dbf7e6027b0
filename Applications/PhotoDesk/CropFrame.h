#pragma once

// Lies over the canvas while the user crops: the part that stays, with handles at its corners and sides.

#include <QtWidgets/QWidget>

class CropFrame : public QWidget
{
    Q_OBJECT

public:
    explicit CropFrame(QWidget *inParent);

    // Where the whole photo lies, in this widget's pixels.
    void setPhotoRect(const QRectF &inRect);

    // In parts of the photo's sides.
    const QRectF &crop() const { return mCrop; }
    void setCrop(const QRectF &inCrop);

    // The part that stays, in this widget's pixels.
    QRectF frame() const;

signals:
    // By Return or a double click with true, by Escape with false.
    void finished(bool inTakeCrop);

protected:
    void paintEvent(QPaintEvent *inEvent) override;
    void mousePressEvent(QMouseEvent *inEvent) override;
    void mouseMoveEvent(QMouseEvent *inEvent) override;
    void mouseReleaseEvent(QMouseEvent *inEvent) override;
    void mouseDoubleClickEvent(QMouseEvent *inEvent) override
    {
        Q_UNUSED(inEvent)
        emit finished(true);
    }
    void keyPressEvent(QKeyEvent *inEvent) override;

private:
    Qt::Edges edgesAt(const QPointF &inPosition) const;

    QRectF mPhotoRect;
    QRectF mCrop{0.0, 0.0, 1.0, 1.0};
    Qt::Edges mEdges;    // under the pointer
    bool mDrags = false; // its edges, or the whole frame if there are none
    QPointF mDragFrom;
    QRectF mDragCrop;
};
