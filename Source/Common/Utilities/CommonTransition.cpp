#include "Utilities/CommonTransition.h"

#include <QtCore/QPropertyAnimation>
#include <QtWidgets/QGraphicsDropShadowEffect>
#include <QtWidgets/QWidget>

namespace {

const QColor kShadowColor(25, 25, 25);
constexpr double kShadowBlurRadius = 16.0;
constexpr double kShadowOffset = 1.0;

void fade(QWidget *inWidget, int inDuration, double inFrom, double inTo)
{
    auto *animation = new QPropertyAnimation(inWidget, "windowOpacity");
    animation->setDuration(inDuration);
    animation->setStartValue(inFrom);
    animation->setEndValue(inTo);
    animation->setEasingCurve(QEasingCurve::Linear);
    // A window may go with the application, when nothing would end the animation any more.
    QObject::connect(inWidget, &QObject::destroyed, animation, [animation] { delete animation; });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace

void CommonTransition::fadeIn(QWidget *inWidget, int inDuration)
{
    fade(inWidget, inDuration, 0.0, 1.0);
}

void CommonTransition::fadeOut(QWidget *inWidget, int inDuration)
{
    fade(inWidget, inDuration, 1.0, 0.0);
}

void CommonTransition::addDropShadow(QWidget *inWidget)
{
    auto *shadow = new QGraphicsDropShadowEffect;
    shadow->setColor(kShadowColor);
    shadow->setBlurRadius(kShadowBlurRadius);
    shadow->setOffset(0.0, kShadowOffset);
    inWidget->setGraphicsEffect(shadow);
}
