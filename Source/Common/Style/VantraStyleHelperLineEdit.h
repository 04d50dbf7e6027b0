#pragma once

// The panel of line and text edits.

#include "Style/VantraStyleHelper.h"

class VantraStyleOptionLineEdit;

class VantraStyleHelperLineEdit : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawPanel(const VantraStyleOptionLineEdit &option, QPainter *painter, const QWidget *widget) const;
};
