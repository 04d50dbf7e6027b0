#include "Controls/VantraPictureWidget.h"

#include "Utilities/VTWidgetsImageUtils.h"
#include "VTDpiUtils.h"

#include <QtWidgets/QStylePainter>

VantraPictureWidget::VantraPictureWidget(QWidget *inParent) : QWidget(inParent)
{
}

VantraPictureWidget::~VantraPictureWidget() = default;

void VantraPictureWidget::setPixmap(const QString &inResource)
{
    mPixmap = VTWidgetsLoadPixmap(inResource);
}

void VantraPictureWidget::setPixmap(const QPixmap &inPixmap)
{
    mPixmap = inPixmap;
}

void VantraPictureWidget::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect target = rect();
    VTDpiUtils::configureQPainterForDpi(&painter);
    painter.drawPixmap(target, mPixmap, QRect(0, 0, mPixmap.width(), mPixmap.height()));
}
