#pragma once

// Spin boxes: a pill and the text in it, without buttons.

#include "Style/VantraStyleHelper.h"

class VantraStyleOptionSpinBox;

class VantraStyleHelperSpinBox : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawComplex(const VantraStyleOptionSpinBox &option, QPainter *painter, const QWidget *widget) const;
    QSize size(const VantraStyleOptionSpinBox &option, const QWidget *widget) const;

private:
    void drawText(const VantraStyleOptionSpinBox &option, QPainter *painter) const;
};
