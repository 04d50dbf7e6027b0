#pragma once

// The two nested plates of a group box.

#include "Style/VantraStyleHelper.h"

class VantraStyleHelperFrame;
class VantraStyleOptionFrame;

class VantraStyleHelperGroupBox : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    // inFrame paints the ground beneath the plates.
    void drawFrame(const VantraStyleOptionFrame &option, const VantraStyleHelperFrame &frame,
                   QPainter *painter, const QWidget *widget) const;
};
