#include "Style/VantraStyleHelperScrollBar.h"

#include "Style/VantraStamp.h"
#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QStyleOption>

void VantraStyleHelperScrollBar::drawComplex(QStyleOptionSlider &slider, QPainter *painter,
                                             const QWidget *widget) const
{
    if (!slider.subControls.testFlag(QStyle::SC_ScrollBarSlider)) {
        return;
    }
    slider.rect = style()->subControlRect(QStyle::CC_ScrollBar, &slider, QStyle::SC_ScrollBarSlider, widget);
    if (!slider.rect.isEmpty()) {
        style()->drawControl(QStyle::CE_ScrollBarSlider, &slider, painter, widget);
    }
}

void VantraStyleHelperScrollBar::drawSlider(const QStyleOptionSlider &option, QPainter *painter,
                                            const QWidget *) const
{
    // The thumb hugs the far edge of the area that takes the pointer.
    const int visual = mTheme->scrollBarVisualSize(&option);
    QRect thumb = option.rect;
    if (option.orientation == Qt::Horizontal) {
        thumb.setTop(thumb.top() + thumb.height() - visual);
    } else {
        thumb.setLeft(thumb.left() + thumb.width() - visual);
    }
    VantraStamp::fillRounded(painter, thumb, pillRadius(thumb.size()), mTheme->scrollBarBrush(&option));
}

QRect VantraStyleHelperScrollBar::subControlRect(const QStyleOptionSlider &option,
                                                 QStyle::SubControl subControl, const QWidget *widget) const
{
    const bool horizontal = option.orientation == Qt::Horizontal;
    const int length = horizontal ? option.rect.width() : option.rect.height();
    const int thickness = horizontal ? option.rect.height() : option.rect.width();
    const int minLength = style()->pixelMetric(QStyle::PM_ScrollBarSliderMin, &option, widget);

    int slider = length;
    if (option.maximum != option.minimum) {
        const qint64 range = static_cast<qint64>(option.maximum) - option.minimum + option.pageStep;
        const qint64 share = range == 0 ? length : static_cast<qint64>(length) * option.pageStep / range;
        slider = static_cast<int>(qMin<qint64>(qMax<qint64>(share, minLength), length));
    }
    const int position = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, length - slider, option.upsideDown);

    const auto along = [&](int from, int extent) {
        return horizontal ? QRect(from, 0, extent, thickness) : QRect(0, from, thickness, extent);
    };
    switch (subControl) {
    case QStyle::SC_ScrollBarSlider: return along(position, slider);
    case QStyle::SC_ScrollBarAddPage: return along(position + slider, length - position - slider);
    case QStyle::SC_ScrollBarSubPage: return along(0, position);
    case QStyle::SC_ScrollBarGroove: return along(0, length);
    default: return QRect();
    }
}
