#pragma once

// Scroll bars: a thumb alone, without groove and arrows.

#include "Style/VantraStyleHelper.h"

class QStyleOptionSlider;

class VantraStyleHelperScrollBar : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawComplex(QStyleOptionSlider &slider, QPainter *painter, const QWidget *widget) const;
    void drawSlider(const QStyleOptionSlider &option, QPainter *painter, const QWidget *widget) const;

    // Relative to the bar's own origin; null for the arrow buttons, which the design doesn't have.
    QRect subControlRect(const QStyleOptionSlider &option, QStyle::SubControl subControl,
                         const QWidget *widget) const;
};
