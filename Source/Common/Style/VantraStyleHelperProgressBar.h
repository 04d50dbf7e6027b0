#pragma once

// Progress bars: groove and contents, the latter moving when the end is unknown. No label.

#include "Style/VantraStyleHelper.h"

#include <chrono>
#include <functional>

class QStyleOptionProgressBar;

class VantraStyleHelperProgressBar : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    // Time since the widget's animation began, in ms; registers the widget for repaints.
    using Clock = std::function<std::chrono::milliseconds(const QWidget *)>;

    VantraStyleHelperProgressBar(QStyle *inStyle, const VantraStyleTheme *inTheme, Clock inClock);

    void drawBar(QStyleOptionProgressBar &part, QPainter *painter, const QWidget *widget) const;
    void drawGroove(const QStyleOptionProgressBar &option, QPainter *painter, const QWidget *widget) const;
    void drawContents(const QStyleOptionProgressBar &option, QPainter *painter, const QWidget *widget) const;
    QRect subElementRect(const QStyleOptionProgressBar &option, QStyle::SubElement element,
                         const QWidget *widget) const;

private:
    static void drawBarPart(const QRect &rect, const QBrush &brush, QPainter *painter);
    QRect contentsRect(const QStyleOptionProgressBar &option, const QRect &groove,
                       const QWidget *widget) const;

    const Clock mClock;
};
