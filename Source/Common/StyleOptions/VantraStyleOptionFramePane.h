#pragma once

// What a pane tells the style beyond a frame: its part, its family, its border and its states.

#include "Controls/VantraFramePane.h"
#include "StyleOptions/VantraStyleOptionFrame.h"

class VTWIDGETSLITE_EXPORT VantraStyleOptionFramePane : public VantraStyleOptionFrame
{
public:
    enum StyleOptionType { Type = SO_Frame };
    enum StyleOptionVersion { Version = 3 };

    VantraFramePane::PaneStyle paneStyle = VantraFramePane::PaneStyleStandard; // which painter applies
    VantraFramePane::PanePart panePart = VantraFramePane::PanePartContainer;   // role within the pane
    VantraFramePane::PaneBorderStyle paneBorderStyle = VantraFramePane::PaneBorderStyleNone;
    VantraFramePane::PaneStates paneState = VantraFramePane::PaneStateNone;

    VantraStyleOptionFramePane() : VantraStyleOptionFramePane(Version) {}
    VantraStyleOptionFramePane(const VantraStyleOptionFramePane &inOther) : VantraStyleOptionFramePane()
    {
        *this = inOther;
    }
    VantraStyleOptionFramePane &operator=(const VantraStyleOptionFramePane &) = default;

protected:
    explicit VantraStyleOptionFramePane(int inVersion) : VantraStyleOptionFrame(inVersion) {}
};
