#include "VTDpiUtils.h"

#include <QtCore/QtMath>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QScreen>

int VTDpiUtils::scaleFontPointSize(int inPointSize)
{
    return inPointSize;
}

bool VTDpiUtils::canUseHighDpiImages()
{
    return devicePixelRatioF() > 1.0F;
}

int VTDpiUtils::devicePixelRatio()
{
    return qCeil(devicePixelRatioF());
}

float VTDpiUtils::devicePixelRatioF()
{
    qreal ratio = 1.0;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        ratio = qMax(ratio, screen->devicePixelRatio());
    }
    return static_cast<float>(ratio);
}

void VTDpiUtils::configureQPainterForDpi(QPainter *ioPainter)
{
    if (ioPainter != nullptr) {
        ioPainter->setRenderHint(QPainter::SmoothPixmapTransform);
    }
}
