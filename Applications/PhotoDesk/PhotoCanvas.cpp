#include "PhotoCanvas.h"

#include "CropFrame.h"
#include "Photo.h"
#include "PhotoRenderer.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtConcurrent/QtConcurrentMap>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr double kLargestZoom = 16.0;
constexpr int kFitMargin = 28;       // logical pixels
constexpr int kBandHeight = 64;      // rows for one thread at a time
constexpr double kSmoothBelow = 3.0; // from this zoom on, pixels are shown as such

// From the whole photo as it came to the turned one.
QTransform turning(int inQuarterTurns, const QSize &inSize)
{
    const QTransform turned = QTransform().rotate(90.0 * inQuarterTurns);
    const QRectF place = turned.mapRect(QRectF({}, inSize));
    return turned * QTransform::fromTranslate(-place.left(), -place.top());
}
} // namespace

PhotoCanvas::PhotoCanvas(QWidget *inParent) : QWidget(inParent), mCropFrame(new CropFrame(this))
{
    mLoader.setMaxThreadCount(1);
    setMinimumSize(240, 180);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setAccessibleName(tr("Photo"));
    mCropFrame->hide();
    connect(mCropFrame, &CropFrame::finished, this, &PhotoCanvas::endCrop);
}

PhotoCanvas::~PhotoCanvas()
{
    mLoader.clear();
    mLoader.waitForDone();
}

void PhotoCanvas::setPhoto(Photo *inPhoto)
{
    if (mPhoto == inPhoto)
        return;
    endCrop(false);
    if (mPhoto != nullptr)
        mPhoto->disconnect(this);
    mPhoto = inPhoto;
    mPixels.reset();
    mFits = true;
    mLoader.clear();
    mLoading = inPhoto != nullptr;
    if (inPhoto != nullptr) {
        connect(inPhoto, &Photo::adjustmentsChanged, this, &PhotoCanvas::adjustmentsChanged);
        const auto standIn = [this] {
            if (mLoading && !mPhoto->thumbnail().isNull())
                setPixels(PhotoPixels::fromImage(mPhoto->thumbnail(), mPhoto->size(), QWIDGETSIZE_MAX));
        };
        connect(inPhoto, &Photo::changed, this, [this, standIn] {
            if (mPixels == nullptr)
                standIn();
        });
        standIn();
        mLoader.start([this, path = inPhoto->path(), photo = mPhoto] {
            const PhotoPixels::Ptr pixels = PhotoPixels::load(path);
            QMetaObject::invokeMethod(
                this,
                [this, photo, pixels] {
                    if (photo == nullptr || photo != mPhoto)
                        return;
                    mLoading = false;
                    setPixels(pixels);
                },
                Qt::QueuedConnection);
        });
    }
    place();
}

void PhotoCanvas::setPixels(const PhotoPixels::Ptr &inPixels)
{
    mPixels = inPixels;
    place();
}

void PhotoCanvas::adjustmentsChanged()
{
    const PhotoAdjustments &adjustments = mPhoto->adjustments();
    if (adjustments.quarterTurns != mShownTurns || adjustments.crop != mShownCrop) {
        mFits = true;
        place();
    }
    mApplied = QImage();
    update();
}

QSize PhotoCanvas::resultSize() const
{
    if (mPhoto == nullptr || mPixels == nullptr)
        return {};
    PhotoAdjustments adjustments = mPhoto->adjustments();
    if (isCropping())
        adjustments.crop = PhotoAdjustments().crop;
    return PhotoRenderer::resultSize(adjustments, mPixels->size);
}

QRect PhotoCanvas::devicePhotoRect() const
{
    const QPointF middle = QRectF({}, QSizeF(size()) * devicePixelRatioF()).center();
    return {(middle - mCentre * mZoom).toPoint(), (QSizeF(resultSize()) * mZoom).toSize()};
}

QRectF PhotoCanvas::photoRect() const
{
    const double ratio = devicePixelRatioF();
    const QRectF rect = devicePhotoRect();
    return {rect.topLeft() / ratio, rect.size() / ratio};
}

void PhotoCanvas::fit()
{
    mFits = true;
    place();
}

void PhotoCanvas::zoomAround(double inZoom, const QPointF &inAnchor)
{
    if (resultSize().isEmpty() || isCropping())
        return;
    const QPointF offset = (inAnchor - QRectF(rect()).center()) * devicePixelRatioF();
    const double smallest = std::min(1.0, 64.0 / std::max(resultSize().width(), resultSize().height()));
    const double zoom = std::clamp(inZoom, smallest, kLargestZoom);
    // What lies under the anchor stays there.
    mCentre += offset / mZoom - offset / zoom;
    mZoom = zoom;
    mFits = false;
    place();
}

void PhotoCanvas::place()
{
    const QSizeF result = resultSize();
    const QSizeF room = QSizeF(size()) * devicePixelRatioF();
    if (!result.isEmpty()) {
        mShownTurns = mPhoto->adjustments().quarterTurns;
        mShownCrop = mPhoto->adjustments().crop;
        if (mFits || isCropping()) {
            const QSizeF space =
                (QSizeF(size()) - QSizeF(2 * kFitMargin, 2 * kFitMargin)) * devicePixelRatioF();
            mZoom = std::clamp(std::min(space.width() / result.width(), space.height() / result.height()),
                               1e-3, kLargestZoom);
        }
        // A photo smaller than the widget stays in its middle, a larger one covers it.
        const auto bounded = [this](double inCentre, double inLength, double inRoom) {
            const double half = inRoom / mZoom / 2.0;
            return 2.0 * half >= inLength ? inLength / 2.0 : std::clamp(inCentre, half, inLength - half);
        };
        mCentre = {bounded(mCentre.x(), result.width(), room.width()),
                   bounded(mCentre.y(), result.height(), room.height())};
    }
    mScaled = QImage();
    mApplied = QImage();
    mCropFrame->setGeometry(rect());
    mCropFrame->setPhotoRect(photoRect());
    emit zoomChanged();
    update();
}

void PhotoCanvas::scaleVisiblePart()
{
    const QRect whole = devicePhotoRect();
    mVisible = whole & QRectF({}, QSizeF(size()) * devicePixelRatioF()).toAlignedRect();
    mScaled = QImage(mVisible.size(), QImage::Format_RGB32);
    if (mScaled.isNull())
        return;
    mScaled.fill(Qt::gray);
    const QImage &level = mPixels->levelFor(mZoom);
    const PhotoAdjustments &adjustments = mPhoto->adjustments();
    const QTransform turn = turning(mShownTurns, mPixels->size);
    QPointF cropped;
    if (!isCropping())
        cropped =
            PhotoRenderer::cropRect(adjustments, turn.mapRect(QRect({}, mPixels->size)).size()).topLeft();
    const QSizeF step(static_cast<double>(mPixels->size.width()) / level.width(),
                      static_cast<double>(mPixels->size.height()) / level.height());
    const QTransform toScreen = QTransform::fromScale(step.width(), step.height()) * turn *
                                QTransform::fromTranslate(-cropped.x(), -cropped.y()) *
                                QTransform::fromScale(mZoom, mZoom) *
                                QTransform::fromTranslate(whole.x() - mVisible.x(), whole.y() - mVisible.y());
    // Only what is seen: the coordinates of a whole photo at a large zoom are too much for the painter.
    const QRectF source = toScreen.inverted().mapRect(QRectF({}, mVisible.size())).adjusted(-2, -2, 2, 2) &
                          QRectF(level.rect());
    QPainter painter(&mScaled);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, mZoom < kSmoothBelow);
    painter.setTransform(toScreen);
    const QRect pixels = source.toAlignedRect() & level.rect();
    painter.drawImage(QRectF(pixels), level, QRectF(pixels));
}

void PhotoCanvas::applyLook()
{
    mApplied = mScaled.copy();
    const int firstColumn = mBeforeAfter ? qRound(mDivider * mApplied.width()) : 0;
    const int width = mApplied.width() - firstColumn;
    if (width <= 0)
        return;
    const PhotoLook look(mPhoto->adjustments());
    // Each thread works on an image of its own that borrows some rows.
    QVector<QImage> bands;
    for (int row = 0; row < mApplied.height(); row += kBandHeight) {
        bands << QImage(mApplied.scanLine(row) + 4 * firstColumn, width,
                        std::min(kBandHeight, mApplied.height() - row), mApplied.bytesPerLine(),
                        mApplied.format());
    }
    QtConcurrent::blockingMap(bands, [&look, marks = mClippingShown](QImage &ioBand) {
        look.apply(ioBand, 0, ioBand.height());
        if (marks)
            PhotoRenderer::markClipped(ioBand);
    });
}

void PhotoCanvas::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const VantraStyleTheme &theme = VantraStyleTheme::instance();
    painter.fillRect(rect(),
                     theme.colorPalette().color(VantraPalette::Normal, VantraPalette::FrameSunkenBackground));
    if (mPixels == nullptr || mPixels->levels.isEmpty()) {
        paintNotice(painter);
        return;
    }
    if (mScaled.isNull())
        scaleVisiblePart();
    if (mScaled.isNull())
        return;
    if (mApplied.isNull())
        applyLook();
    const double ratio = devicePixelRatioF();
    const QRectF place(QPointF(mVisible.topLeft()) / ratio, QSizeF(mVisible.size()) / ratio);
    painter.drawImage(place, mApplied);
    if (mBeforeAfter) {
        const double x = std::round(place.left() + mDivider * place.width());
        painter.fillRect(QRectF(x - 1.0, place.top(), 2.0, place.height()),
                         theme.accentColor(QPalette::Active));
        painter.setFont(VantraFont::smallFont());
        painter.setPen(Qt::white);
        const QRectF line(place.left() + 12, place.top() + 8, place.width() - 24, 24);
        const QRectF before(line.left(), line.top(), x - line.left() - 8, line.height());
        const QRectF after(x + 8, line.top(), line.right() - x - 8, line.height());
        painter.drawText(before, Qt::AlignLeft | Qt::AlignTop, tr("Before"));
        painter.drawText(after, Qt::AlignRight | Qt::AlignTop, tr("After"));
    }
}

void PhotoCanvas::paintNotice(QPainter &ioPainter)
{
    ioPainter.setFont(VantraFont::largeFont());
    ioPainter.setPen(VantraStyleTheme::instance().windowTextColor(QPalette::Active));
    QString text = tr("Drop photos here, or open them with Ctrl+O.");
    if (mPhoto != nullptr && mLoading)
        text = tr("Loading…");
    else if (mPhoto != nullptr && mPixels != nullptr)
        text = tr("%1 can't be read: %2").arg(mPhoto->name(), mPixels->reason);
    ioPainter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, text);
}

void PhotoCanvas::resizeEvent(QResizeEvent *)
{
    place();
}

void PhotoCanvas::setBeforeAfter(bool inOn)
{
    mBeforeAfter = inOn;
    mDivider = 0.5;
    mApplied = QImage();
    update();
}

void PhotoCanvas::setClippingShown(bool inOn)
{
    mClippingShown = inOn;
    mApplied = QImage();
    update();
}

bool PhotoCanvas::isCropping() const
{
    return !mCropFrame->isHidden();
}

void PhotoCanvas::beginCrop()
{
    if (isCropping() || resultSize().isEmpty())
        return;
    mCropFrame->setCrop(mPhoto->adjustments().crop);
    mCropFrame->show();
    mCropFrame->setFocus();
    place();
    emit croppingChanged(true);
}

void PhotoCanvas::endCrop(bool inTakeCrop)
{
    if (!isCropping())
        return;
    mCropFrame->hide();
    mFits = true;
    if (inTakeCrop && mPhoto != nullptr) {
        PhotoAdjustments adjustments = mPhoto->adjustments();
        adjustments.crop = mCropFrame->crop();
        mPhoto->change(tr("Crop"), adjustments);
        mPhoto->endStep();
    }
    place();
    emit croppingChanged(false);
}
