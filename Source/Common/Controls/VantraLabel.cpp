#include "Controls/VantraLabel.h"

#include "Controls/VantraAccessible_p.h"
#include "Controls/VantraMouseHoldInfo.h"
#include "Theme/VantraFont.h"
#include "Utilities/VTWidgetsImageUtils.h"

#include <QtCore/QMap>
#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtCore/QtMath>
#include <QtGui/QEnterEvent>
#include <QtGui/QFontMetrics>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QToolTip>

namespace {

constexpr int kNotificationFontPixels = 10;
constexpr QFont::Weight kHeaderFontWeight = QFont::Bold;

} // namespace

VantraLabel::VantraLabel(QWidget *inParent) : QLabel(inParent), mMouseHoldInfo(new VantraMouseHoldInfo)
{
    setFont(VantraFont::mainFont());
    setIndent(0);
    VantraAccessible::install();
}

VantraLabel::~VantraLabel()
{
    mMouseHoldInfo->stopHeldMousePressTimer(this);
    mMouseHoldInfo->Release();
}

void VantraLabel::setLabelStyle(LabelStyle inStyle)
{
    if (mLabelStyle == inStyle) {
        return;
    }
    mLabelStyle = inStyle;
    switch (inStyle) {
    case StandardStyle: break;
    case NotificationStyle: {
        clearText();
        QFont smallFont = font();
        smallFont.setPixelSize(kNotificationFontPixels);
        setFont(smallFont);
        setAlignment(Qt::AlignCenter);
        break;
    }
    case LabelImageStyle:
        clearText();
        mElideMode = Qt::ElideNone;
        updateGeometry();
        setAlignment(Qt::AlignCenter);
        break;
    case HeaderStyle: {
        QFont headerFont = VantraFont::fontPlus();
        headerFont.setWeight(kHeaderFontWeight);
        setFont(headerFont);
        break;
    }
    }
    if (!pixmap().isNull() && inStyle != LabelImageStyle) {
        setLabelImage(NoImage);
    }
    update();
}

void VantraLabel::setLabelImage(LabelImage inImage)
{
    static const QMap<LabelImage, QString> sImages = {
        {BrowseImage, QStringLiteral(":/VTWidgets/GettingStarted/GS_Browse.png")},
        {CatalogImage, QStringLiteral(":/VTWidgets/GettingStarted/GS_Catalog.png")},
        {SingleImage, QStringLiteral(":/VTWidgets/GettingStarted/GS_Single.png")},
        {HDRBatchImage, QStringLiteral(":/VTWidgets/GettingStarted/HDR_GS_Batch.png")},
        {HDROpenImage, QStringLiteral(":/VTWidgets/GettingStarted/HDR_GS_Open.png")},
        {PortraitBatchImage, QStringLiteral(":/VTWidgets/GettingStarted/Portrait_GS_Batch.png")},
        {PortraitOpenImage, QStringLiteral(":/VTWidgets/GettingStarted/Portrait_GS_Open.png")},
        {HushtoneOpenImage, QStringLiteral(":/VTWidgets/GettingStarted/Hushtone_GS_Open.png")},
        {CatalogOrbitImage, QStringLiteral(":/VTWidgets/GettingStarted/GS_Orbit_Catalog.png")},
        {AlbumOrbitImage, QStringLiteral(":/VTWidgets/GettingStarted/GS_Orbit_Album.png")},
        {QRCodeIOSImage, QStringLiteral(":/VTWidgets/QRCode/ios.png")},
        {QRCodeAndroidImage, QStringLiteral(":/VTWidgets/QRCode/android.png")},
        {PhoneImage, QStringLiteral(":/VTWidgets/SyncPhone.png")},
        {LearnMoreOrbitBackgroundImage, QStringLiteral(":/VTWidgets/LearnMore/LearnMoreOrbitBackground.png")},
        {WarningImage, QStringLiteral(":/VTWidgets/Warning.png")},
    };
    mLabelImage = inImage;
    if (inImage == NoImage) {
        setPixmap(QPixmap());
        return;
    }
    if (mLabelStyle != LabelImageStyle) {
        setLabelStyle(LabelImageStyle);
    }
    const QPixmap picture = VTWidgetsLoadPixmap(sImages.value(inImage));
    if (picture.isNull()) {
        return;
    }
    setPixmap(picture);
    const qreal ratio = picture.devicePixelRatioF();
    const QSize size(qRound(picture.width() / ratio), qRound(picture.height() / ratio));
    setMinimumSize(size);
    setMaximumSize(size);
}

void VantraLabel::setElideMode(Qt::TextElideMode inMode)
{
    mElideMode = inMode;
    updateGeometry();
}

void VantraLabel::setText(const QString &inText)
{
    QLabel::setText(inText);
    setElidedText(inText, width());
}

void VantraLabel::clearText()
{
    setText(QString());
}

void VantraLabel::setElidedText(const QString &inText, int inWidth)
{
    const int available = adjustWidthForIndentAndFrameWidth(this, inWidth);
    mElidedText = QFontMetrics(font()).elidedText(inText, mElideMode, available, 0);
}

void VantraLabel::setElidedText(QLabel *label, const QString &inText, Qt::TextElideMode inMode)
{
    Q_ASSERT(label != NULL);
    const int available = adjustWidthForIndentAndFrameWidth(label, label->width());
    label->setText(QFontMetrics(label->font()).elidedText(inText, inMode, available, 0));
    label->setToolTip(inText);
}

int VantraLabel::adjustWidthForIndentAndFrameWidth(const QLabel *label, int inWidth)
{
    Q_ASSERT(label != nullptr);
    if (label->indent() < 0 && label->frameWidth() > 0) {
        return inWidth - QFontMetrics(label->font()).horizontalAdvance(QLatin1Char('x')) / 2;
    }
    return inWidth;
}

QSize VantraLabel::minimumSizeHint() const
{
    QSize size = QLabel::minimumSizeHint();
    if (mLabelImage != NoImage && !pixmap().isNull()) {
        return size.expandedTo(minimumSize());
    }
    const int textHeight = QFontMetrics(font()).height();
    size.setHeight(qMax(size.height(), textHeight + qCeil(textHeight / 3.0)));
    return size;
}

void VantraLabel::setToolTip(const QString &inToolTip)
{
    mToolTip = inToolTip;
}

void VantraLabel::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    if (!mToolTip.isEmpty()) {
        QToolTip::showText(event->globalPosition().toPoint(), mToolTip, this, QRect(), -1);
    }
}

bool VantraLabel::timesHeldPress() const
{
    return mHoldMousePressEnabled && mMouseHoldInfo != nullptr;
}

void VantraLabel::heldMousePressTimeoutSlot()
{
    emit holdLabelPressed();
}

void VantraLabel::mousePressEvent(QMouseEvent *event)
{
    QTimer *timer = timesHeldPress() ? mMouseHoldInfo->heldMousePressTimer() : nullptr;
    if (event->button() == Qt::LeftButton && timer != nullptr) {
        // A press may come without the release of the one before; the timer still has one connection.
        mMouseHoldInfo->stopHeldMousePressTimer(this);
        const bool didConnect = static_cast<bool>(
            connect(timer, &QTimer::timeout, this, &VantraLabel::heldMousePressTimeoutSlot));
        Q_ASSERT(didConnect && "connect mHeldMousePressTimer");
        Q_UNUSED(didConnect);
        timer->start(mMouseHoldInfo->heldMousePressTimeout());
    }
    QWidget::mousePressEvent(event);
}

void VantraLabel::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    const QPointer<VantraLabel> self(this);
    const bool clicks = isVisible() && isEnabled();
    if (clicks) {
        emit clicked();
    }
    if (self.isNull()) {
        // An ignored event would make Qt go on to the parent of what is no longer there.
        event->accept();
        return;
    }
    if (timesHeldPress()) {
        mMouseHoldInfo->stopHeldMousePressTimer(this);
        if (clicks) {
            emit holdLabelReleased();
        }
    }
}

void VantraLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (timesHeldPress()) {
        mMouseHoldInfo->stopHeldMousePressTimer(this);
    }
    QWidget::mouseDoubleClickEvent(event);
    if (isVisible() && isEnabled()) {
        emit doubleClicked();
    }
}

void VantraLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
}

void VantraLabel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    setElidedText(text(), event->size().width());
}

void VantraLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
    }
}

bool VantraLabel::isClickConnected() const
{
    static const QMetaMethod sClicked = QMetaMethod::fromSignal(&VantraLabel::clicked);
    return isSignalConnected(sClicked);
}
