#pragma once

// Tab bars: every tab is a round plate of its own.

#include "Style/VantraStyleHelper.h"

class VantraStyleOptionTab;

class VantraStyleHelperTabBar : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawTab(VantraStyleOptionTab &option, QPainter *painter, const QWidget *widget) const;
    void drawShape(const VantraStyleOptionTab &option, QPainter *painter, const QWidget *widget) const;
    void drawLabel(const VantraStyleOptionTab &option, QPainter *painter, const QWidget *widget) const;
    QSize size(VantraStyleOptionTab &option, const QWidget *widget) const;
};
