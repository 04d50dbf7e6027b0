#include "Style/VantraStyleHelperSlider.h"

#include "StyleOptions/VantraStyleOptionSlider.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPainterPath>
#include <QtWidgets/QWidget>

namespace {

// Where the value span starts: at zero when zero is inside the range, otherwise at the range's low end.
int anchorOf(const QStyleOptionSlider &inOption)
{
    const int low = inOption.upsideDown ? inOption.maximum : inOption.minimum;
    const int high = inOption.upsideDown ? inOption.minimum : inOption.maximum;
    return low >= 1 || high < 0 ? low : 0;
}

} // namespace

void VantraStyleHelperSlider::drawComplex(const VantraStyleOptionSlider &option, QPainter *painter,
                                          const QWidget *widget) const
{
    drawGroove(option, painter, widget);
    drawHandle(option, painter);
}

void VantraStyleHelperSlider::drawGroove(const VantraStyleOptionSlider &sliderOption, QPainter *painter,
                                         const QWidget *widget) const
{
    const VantraStyleOptionSlider *option = &sliderOption;
    const QRectF grooveRect(option->rect);
    Q_ASSERT((option != nullptr) && grooveRect.isValid());
    if (!option->subControls.testFlag(QStyle::SC_SliderGroove) || grooveRect.isEmpty()) {
        return;
    }
    const VantraPainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(mTheme->sliderGrooveBrush(option, grooveRect));
    painter->setPen(Qt::NoPen);

    // The widget's height, not the option's, sets the inset; without a widget the option's stands in.
    const double height = widget != nullptr ? widget->rect().height() : grooveRect.height();
    const double inset = height * 0.5 - mTheme->grooveThickness() * 0.5;
    const QRectF adjRect = grooveRect.adjusted(0.5, inset, -0.5, -inset);
    Q_ASSERT(adjRect.isValid() && !adjRect.isNull());

    QPainterPath path;
    path.addRoundedRect(adjRect, mTheme->grooveRadius(), mTheme->grooveRadius(), Qt::AbsoluteSize);
    painter->setClipPath(path, Qt::ReplaceClip);
    painter->drawRect(adjRect);
    if (option->gradientStops.isEmpty()) {
        drawValueSpan(*option, adjRect, painter);
    }
}

void VantraStyleHelperSlider::drawValueSpan(const VantraStyleOptionSlider &option, const QRectF &groove,
                                            QPainter *painter) const
{
    const auto positionOf = [&option](int value) {
        return QStyle::sliderPositionFromValue(option.minimum, option.maximum, value, option.rect.width(),
                                               option.upsideDown);
    };
    const int anchor = positionOf(anchorOf(option));
    painter->setBrush(mTheme->sliderValueBrush(&option));
    painter->drawRect(QRectF(anchor, groove.y(), positionOf(option.sliderValue) - anchor, groove.height()));
}

void VantraStyleHelperSlider::drawHandle(const VantraStyleOptionSlider &option, QPainter *painter) const
{
    const QRectF handle(handleRect(option));
    Q_ASSERT(handle.isValid());
    if (!option.subControls.testFlag(QStyle::SC_SliderHandle) || !handle.isValid()) {
        return;
    }
    const QBrush brush = painter->brush();
    const QPen pen = painter->pen();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(mTheme->sliderHandleBrush(&option));
    const QRectF adjRect = handle.adjusted(0.5, 0.5, -0.5, -0.5);
    Q_ASSERT(adjRect.isValid() && !adjRect.isNull());
    const int radius = mTheme->handleRadius(enlarged(option));
    painter->drawRoundedRect(adjRect, radius, radius, Qt::AbsoluteSize);
    painter->setBrush(brush);
    painter->setPen(pen);
}

bool VantraStyleHelperSlider::enlarged(const VantraStyleOptionSlider &option) const
{
    return option.enlargeHandle && option.state.testFlag(QStyle::State_Enabled) &&
           (option.state & (QStyle::State_On | QStyle::State_MouseOver));
}

QRect VantraStyleHelperSlider::handleRect(const VantraStyleOptionSlider &option) const
{
    const int size = mTheme->handleThickness(enlarged(option));
    const int x = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderValue,
                                                  option.rect.width() - size, option.upsideDown);
    return QRect(x, option.rect.height() / 2 - size / 2, size, size);
}

QRect VantraStyleHelperSlider::subControlRect(const VantraStyleOptionSlider &option,
                                              QStyle::SubControl subControl, const QWidget *) const
{
    return subControl == QStyle::SC_SliderHandle ? handleRect(option) : option.rect;
}
