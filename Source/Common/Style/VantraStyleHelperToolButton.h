#pragma once

// Tool buttons: panel, label and the placeholder of an empty one.

#include "Style/VantraStyleHelper.h"

class VantraStyleOptionToolButton;

class VantraStyleHelperToolButton : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawComplex(VantraStyleOptionToolButton &option, QPainter *painter, const QWidget *widget) const;
    void drawPanel(const VantraStyleOptionToolButton &option, QPainter *painter, const QWidget *widget) const;
    void drawLabel(const VantraStyleOptionToolButton &option, QPainter *painter, const QWidget *widget) const;
    QSize size(VantraStyleOptionToolButton &option, const QWidget *widget) const;

private:
    void drawPlaceholder(const VantraStyleOptionToolButton &option, const QRect &rect,
                         QPainter *painter) const;
};
