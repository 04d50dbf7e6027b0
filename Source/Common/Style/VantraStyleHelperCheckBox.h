#pragma once

// The ring with a dot that check boxes and radio buttons share, and the tick inside menus.

#include "Style/VantraStyleHelper.h"

class QStyleOption;

class VantraStyleHelperCheckBox : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawIndicator(const QStyleOption &option, QPainter *painter, const QWidget *widget) const;
};
