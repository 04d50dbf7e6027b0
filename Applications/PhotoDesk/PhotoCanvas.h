#pragma once

// Shows one photo with its adjustments, at any zoom. Only the pixels of the screen are ever worked on: the
// visible part is scaled once for a zoom and a place, and each change of the look is applied to that.

#include "PhotoPixels.h"

#include <QtCore/QPointer>
#include <QtCore/QThreadPool>
#include <QtWidgets/QWidget>

class CropFrame;
class Photo;

class PhotoCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit PhotoCanvas(QWidget *inParent = nullptr);
    ~PhotoCanvas() override;

    // Null shows none. The photo's pixels are loaded by another thread; its thumbnail stands in until then.
    void setPhoto(Photo *inPhoto);
    bool isLoading() const { return mLoading; }

    // Pixels of the screen for each of the photo; 1 is 100 %.
    double zoom() const { return mZoom; }
    void setZoom(double inZoom) { zoomAround(inZoom, QRectF(rect()).center()); }
    void zoomIn() { setZoom(mZoom * kZoomStep); }
    void zoomOut() { setZoom(mZoom / kZoomStep); }
    void fit();

    void setBeforeAfter(bool inOn);
    void setClippingShown(bool inOn);

    // Cropping shows the whole photo with a frame. Leaving it with true changes the photo.
    bool isCropping() const;
    void beginCrop();
    void endCrop(bool inTakeCrop);

    // Where the photo lies, in this widget's logical pixels.
    QRectF photoRect() const;

signals:
    void zoomChanged();
    void croppingChanged(bool inCropping);

protected:
    void paintEvent(QPaintEvent *inEvent) override;
    void resizeEvent(QResizeEvent *inEvent) override;
    void wheelEvent(QWheelEvent *inEvent) override;
    void mousePressEvent(QMouseEvent *inEvent) override;
    void mouseMoveEvent(QMouseEvent *inEvent) override;
    void mouseReleaseEvent(QMouseEvent *inEvent) override;
    void mouseDoubleClickEvent(QMouseEvent *inEvent) override;

private:
    static constexpr double kZoomStep = 1.25;

    void setPixels(const PhotoPixels::Ptr &inPixels);
    void adjustmentsChanged();
    QSize resultSize() const;
    QRect devicePhotoRect() const;
    void zoomAround(double inZoom, const QPointF &inAnchor);
    void place();
    void scaleVisiblePart();
    void applyLook();
    void paintNotice(QPainter &ioPainter);

    QPointer<Photo> mPhoto;
    PhotoPixels::Ptr mPixels;
    bool mLoading = false;
    QThreadPool mLoader;
    int mShownTurns = 0; // what the photo was last placed with
    QRectF mShownCrop;

    double mZoom = 1.0;
    bool mFits = true;
    QPointF mCentre; // in pixels of the turned and cropped photo: what the widget's middle shows
    QPointF mDragFrom;
    bool mDragsDivider = false;

    QRect mVisible;  // of the photo, in device pixels
    QImage mScaled;  // that part without the look; null when it is to be made anew
    QImage mApplied; // and with it; null likewise
    bool mBeforeAfter = false;
    double mDivider = 0.5; // between before and after, in parts of the width
    bool mClippingShown = false;
    CropFrame *mCropFrame;
};
