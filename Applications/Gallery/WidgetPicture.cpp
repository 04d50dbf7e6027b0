#include "WidgetPicture.h"

#include <QtWidgets/QWidget>

QImage widgetPicture(QWidget *ioWidget, const QSize &inSize, double inRatio)
{
    ioWidget->resize(inSize);
    QImage image((QSizeF(inSize) * inRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(inRatio);
    image.fill(Qt::transparent);
    ioWidget->render(&image, QPoint(), QRegion(),
                     ioWidget->testAttribute(Qt::WA_TranslucentBackground)
                         ? QWidget::DrawChildren
                         : QWidget::DrawChildren | QWidget::DrawWindowBackground);
    return image;
}
