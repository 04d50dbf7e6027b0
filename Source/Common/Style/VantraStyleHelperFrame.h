#pragma once

// Frames with corner shapes, their lines, and the three families of panes.

#include "Style/VantraStyleHelper.h"

class VantraStyleOptionFrame;
class VantraStyleOptionFramePane;

class VantraStyleHelperFrame : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    // Fills the frame's ground. Leaves its brush and pen behind.
    void drawBackground(const VantraStyleOptionFrame &option, QPainter *painter, const QWidget *widget) const;

    // A frame by its shape, or a pane when the record is one.
    void drawShaped(const VantraStyleOptionFrame &option, QPainter *painter, const QWidget *widget) const;

private:
    void drawPane(const VantraStyleOptionFramePane &option, QPainter *painter) const;
    void drawStandardPane(const VantraStyleOptionFramePane &option, QPainter *painter) const;
    void drawListPane(const VantraStyleOptionFramePane &option, QPainter *painter) const;
    void drawPaneLine(const VantraStyleOptionFramePane &option, QPainter *painter) const;
};
