#include "VTDpiUtils.h"

#include "VTDpiUtilsPretence.h"

#include <QtCore/QtMath>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QScreen>

namespace {

double sFontScale = 1.0; // Qt 6 scales by itself

} // namespace

VTDpiUtilsPretence::VTDpiUtilsPretence(double inFontScale) : mEarlier(sFontScale)
{
    sFontScale = inFontScale;
}

VTDpiUtilsPretence::~VTDpiUtilsPretence()
{
    sFontScale = mEarlier;
}

int VTDpiUtils::scaleFontPointSize(int inPointSize)
{
    return qRound(inPointSize * sFontScale);
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
