#pragma once

// Splitter handles, which show only while hovered or dragged.

#include "Style/VantraStyleHelper.h"

class QStyleOption;

class VantraStyleHelperSplitter : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawSplitter(const QStyleOption &option, QPainter *painter, const QWidget *widget) const;
};
