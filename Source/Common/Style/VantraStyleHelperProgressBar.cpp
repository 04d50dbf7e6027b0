#include "Style/VantraStyleHelperProgressBar.h"

#include "Style/VantraStamp.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QtMath>
#include <QtWidgets/QStyleOption>

VantraStyleHelperProgressBar::VantraStyleHelperProgressBar(QStyle *inStyle, const VantraStyleTheme *inTheme,
                                                           Clock inClock)
    : VantraStyleHelper(inStyle, inTheme), mClock(std::move(inClock))
{
}

void VantraStyleHelperProgressBar::drawBar(QStyleOptionProgressBar &part, QPainter *painter,
                                           const QWidget *widget) const
{
    const VantraPainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    const QRect contents = style()->subElementRect(QStyle::SE_ProgressBarContents, &part, widget);
    part.rect = style()->subElementRect(QStyle::SE_ProgressBarGroove, &part, widget);
    style()->drawControl(QStyle::CE_ProgressBarGroove, &part, painter, widget);
    part.rect = contents;
    style()->drawControl(QStyle::CE_ProgressBarContents, &part, painter, widget);
}

void VantraStyleHelperProgressBar::drawGroove(const QStyleOptionProgressBar &option, QPainter *painter,
                                              const QWidget *) const
{
    drawBarPart(option.rect, mTheme->progressBarGrooveBrush(&option), painter);
}

void VantraStyleHelperProgressBar::drawContents(const QStyleOptionProgressBar &option, QPainter *painter,
                                                const QWidget *) const
{
    if (!option.rect.isEmpty()) {
        drawBarPart(option.rect, mTheme->progressBarContentsBrush(&option), painter);
    }
}

void VantraStyleHelperProgressBar::drawBarPart(const QRect &rect, const QBrush &brush, QPainter *painter)
{
    if (qMin(rect.width(), rect.height()) % 2 == 0) {
        VantraStamp::fillRounded(painter, rect, pillRadius(rect.size()), brush);
        return;
    }
    const double radius = qMin(rect.width(), rect.height()) * 0.5;
    painter->setBrush(brush);
    painter->setPen(Qt::NoPen);
    painter->drawRoundedRect(rect, radius, radius, Qt::AbsoluteSize);
}

QRect VantraStyleHelperProgressBar::subElementRect(const QStyleOptionProgressBar &option,
                                                   QStyle::SubElement element, const QWidget *widget) const
{
    const int thickness = qMin(option.rect.height(), mTheme->progressBarSize(&option));
    const QRect groove(option.rect.left(), option.rect.top() + (option.rect.height() - thickness) / 2,
                       option.rect.width(), thickness);
    switch (element) {
    case QStyle::SE_ProgressBarGroove: return groove;
    case QStyle::SE_ProgressBarContents: return contentsRect(option, groove, widget);
    default: return QRect();
    }
}

QRect VantraStyleHelperProgressBar::contentsRect(const QStyleOptionProgressBar &option, const QRect &groove,
                                                 const QWidget *widget) const
{
    QRect contents = groove;
    const int width = option.rect.width();
    if (option.maximum != option.minimum) {
        if (option.progress < option.minimum) {
            return QRect();
        }
        const qint64 rest = static_cast<qint64>(option.maximum) - option.progress;
        const qint64 range = static_cast<qint64>(option.maximum) - option.minimum;
        contents.setRight(contents.right() - static_cast<int>(rest * width / range));
        return contents;
    }

    // In the first half of a cycle the bar grows from the left, in the second it shrinks to the right, on
    // half a cosine. The edge counts from 0: the bar's rectangle is meant to start there.
    const qint64 cycle = mTheme->progressBarAnimationDuration(&option).count();
    const qint64 half = cycle / 2;
    const qint64 time = mClock(widget).count() % cycle;
    const bool growing = time < half;
    const float fraction = qBound(0.0F, static_cast<float>(growing ? time : time - half) / half, 1.0F);
    const int edge = static_cast<int>((qCos(fraction * M_PI - M_PI) + 1.0) * 0.5 * width);
    if (growing) {
        contents.setRight(edge);
    } else {
        contents.setLeft(edge);
    }
    return contents;
}
