#include "CanvasHud.h"

#include "Controls/VantraButton.h"
#include "Controls/VantraMenu.h"
#include "Controls/VantraToolButton.h"
#include "Icons.h"
#include "PhotoCanvas.h"
#include "Utilities/VTWidgetsImageUtils.h"

#include <QtWidgets/QHBoxLayout>

namespace {
constexpr int kRadius = 8;
constexpr int kZoomWidth = 68;
constexpr double kZooms[] = {0.25, 0.5, 1.0, 2.0, 4.0};

VantraToolButton *makeButton(const QImage &inImage, const QString &inName, QWidget *inParent)
{
    auto *button = new VantraToolButton(inImage, inParent);
    button->setCheckable(false);
    button->setFixedSize(QSize(28, 28));
    button->setToolTip(inName);
    button->setAccessibleName(inName);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}
} // namespace

CanvasHud::CanvasHud(PhotoCanvas *inCanvas)
    : VantraFrame(inCanvas), mCanvas(inCanvas), mMenu(new VantraMenu(tr("Zoom"), this)),
      mZoom(new VantraButton(this))
{
    setFrameShape(QFrame::Panel);
    setHudOverlay(true);
    setCornerShapes(CornerShapeRoundFull);
    setCornerRadius(kRadius);
    setCursor(Qt::ArrowCursor);

    mMenu->setHudOverlay(true);
    mMenu->addAction(tr("Fit"), mCanvas, &PhotoCanvas::fit);
    mMenu->addSeparator();
    for (const double zoom : kZooms)
        mMenu->addAction(tr("%1 %").arg(100.0 * zoom), mCanvas, [this, zoom] { mCanvas->setZoom(zoom); });
    VTWidgetsInitStyledMenu(*mMenu);

    mZoom->setObjectName(QStringLiteral("zoom"));
    mZoom->setButtonStyle(VantraButton::TextOnlyStyle);
    mZoom->setToolTip(tr("Zoom"));
    mZoom->setFixedWidth(kZoomWidth);
    mZoom->setFocusPolicy(Qt::NoFocus);
    connect(mZoom, &VantraButton::clicked, this,
            [this] { mMenu->popup(mZoom->mapToGlobal(QPoint(0, -mMenu->sizeHint().height() - 8))); });
    VantraToolButton *out = makeButton(Icons::zoomOut(), tr("Zoom out"), this);
    VantraToolButton *in = makeButton(Icons::zoomIn(), tr("Zoom in"), this);
    connect(out, &VantraToolButton::clicked, mCanvas, &PhotoCanvas::zoomOut);
    connect(in, &VantraToolButton::clicked, mCanvas, &PhotoCanvas::zoomIn);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->setSpacing(2);
    layout->addWidget(out);
    layout->addWidget(mZoom);
    layout->addWidget(in);

    auto *place = new QVBoxLayout(mCanvas);
    place->setContentsMargins(16, 16, 16, 16);
    place->addStretch();
    place->addWidget(this, 0, Qt::AlignHCenter);
    connect(mCanvas, &PhotoCanvas::zoomChanged, this, &CanvasHud::showZoom);
    connect(mCanvas, &PhotoCanvas::croppingChanged, this, &QWidget::setHidden);
    showZoom();
}

void CanvasHud::showZoom()
{
    const double percent = 100.0 * mCanvas->zoom();
    mZoom->setText(tr("%1 %").arg(percent, 0, 'f', percent < 10.0 ? 1 : 0));
}
