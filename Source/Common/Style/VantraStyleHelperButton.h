#pragma once

// Push buttons: caps, tab groups and labels.

#include "Style/VantraStyleHelper.h"

class VantraStyleOptionButton;

class VantraStyleHelperButton : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawButton(VantraStyleOptionButton &option, QPainter *painter, const QWidget *widget) const;
    void drawBevel(const VantraStyleOptionButton &option, QPainter *painter, const QWidget *widget) const;
    void drawLabel(const VantraStyleOptionButton &option, QPainter *painter, const QWidget *widget) const;
    QSize size(VantraStyleOptionButton &option, const QWidget *widget) const;

private:
    void drawCheckedTab(const VantraStyleOptionButton &option, QPainter *painter) const;
};
