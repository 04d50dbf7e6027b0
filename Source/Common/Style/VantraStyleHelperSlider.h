#pragma once

// Horizontal sliders: groove, value span and handle.

#include "Style/VantraStyleHelper.h"

class VantraStyleOptionSlider;

class VantraStyleHelperSlider : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawComplex(const VantraStyleOptionSlider &option, QPainter *painter, const QWidget *widget) const;
    QRect subControlRect(const VantraStyleOptionSlider &option, QStyle::SubControl subControl,
                         const QWidget *widget) const;

private:
    void drawGroove(const VantraStyleOptionSlider &option, QPainter *painter, const QWidget *widget) const;
    void drawValueSpan(const VantraStyleOptionSlider &option, const QRectF &groove, QPainter *painter) const;
    void drawHandle(const VantraStyleOptionSlider &option, QPainter *painter) const;
    QRect handleRect(const VantraStyleOptionSlider &option) const;
    bool enlarged(const VantraStyleOptionSlider &option) const;
};
