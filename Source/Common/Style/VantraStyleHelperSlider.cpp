#include "Style/VantraStyleHelperSlider.h"

#include "Style/VantraStamp.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "Theme/VantraStyleTheme.h"

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

    // The widget's height, not the option's, sets the inset; without a widget the option's does.
    const double height = widget != nullptr ? widget->rect().height() : grooveRect.height();
    const double inset = height * 0.5 - mTheme->grooveThickness() * 0.5;
    const QRectF adjRect = grooveRect.adjusted(0.5, inset, -0.5, -inset);
    Q_ASSERT(adjRect.isValid() && !adjRect.isNull());

    // The groove's round ends also bound the value span. Both are painted as the rounded shape, the span
    // within a clip rectangle, since a clip of the shape costs far more. Only antialiased edge pixels differ
    // from such a clip: a few in the corners, and the long edges where these don't lie on device pixels, at
    // odd heights and fractional device pixel ratios.
    painter->setClipping(false);
    const int radius = mTheme->grooveRadius();
    painter->drawRoundedRect(adjRect, radius, radius, Qt::AbsoluteSize);
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
    const int value = positionOf(option.sliderValue);
    const int radius = mTheme->grooveRadius();
    // The shape bounds the span above and below, where a groove may end within a pixel.
    painter->setClipRect(QRectF(anchor, groove.y(), value - anchor, groove.height())
                             .normalized()
                             .adjusted(0.0, -1.0, 0.0, 1.0),
                         Qt::ReplaceClip);
    painter->setBrush(mTheme->sliderValueBrush(&option));
    painter->drawRoundedRect(groove, radius, radius, Qt::AbsoluteSize);
}

void VantraStyleHelperSlider::drawHandle(const VantraStyleOptionSlider &option, QPainter *painter) const
{
    const QRectF handle(handleRect(option));
    Q_ASSERT(handle.isValid());
    if (!option.subControls.testFlag(QStyle::SC_SliderHandle) || !handle.isValid()) {
        return;
    }
    const QRectF adjRect = handle.adjusted(0.5, 0.5, -0.5, -0.5);
    Q_ASSERT(adjRect.isValid() && !adjRect.isNull());
    const QBrush fill = mTheme->sliderHandleBrush(&option);
    const int radius = mTheme->handleRadius(enlarged(option));
    const auto paint = [&fill, radius](QPainter *target, const QRectF &rect) {
        target->setRenderHint(QPainter::Antialiasing);
        target->setPen(Qt::NoPen);
        target->setBrush(fill);
        target->drawRoundedRect(rect, radius, radius, Qt::AbsoluteSize);
    };
    if (VantraStamp::applies(painter)) {
        const int size = qRound(handle.width());
        const VantraStamp::Key key{VantraStamp::Shape::Handle, static_cast<quint8>(radius),
                                   static_cast<quint16>(size), fill.color().rgba()};
        painter->drawImage(handle.topLeft(), VantraStamp::picture(key, [&](QPainter *stamp) {
                               paint(stamp, QRectF(0.5, 0.5, size - 1.0, size - 1.0));
                           }));
        return;
    }
    const QBrush brush = painter->brush();
    const QPen pen = painter->pen();
    paint(painter, adjRect);
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
