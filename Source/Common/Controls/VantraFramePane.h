#pragma once

// A panel that stands with others in a column of panes.

#include "Controls/VantraFrame.h"

class VTWIDGETSLITE_EXPORT VantraFramePane : public VantraFrame
{
    Q_OBJECT

public:
    // The role of the widget within a pane.
    enum PanePart {
        PanePartContainer = 0,
        PanePartHeader = 1,
        PanePartBody = 2,
        PanePartNone = 3,
    };
    Q_ENUM(PanePart)

    // The family of pane looks.
    enum PaneStyle {
        PaneStyleStandard = 0,
        PaneStyleList = 1,
        PaneStyleSubPane = 2,
    };
    Q_ENUM(PaneStyle)

    enum PaneBorderStyle {
        PaneBorderStyleNone = 0,
        PaneBorderStyleStandard = 1,
    };
    Q_ENUM(PaneBorderStyle)

    // All states in one word. Selected, targeted, hovered and expanded are the application's; the states of
    // PaneStateComputedMask follow from the neighbours in the column.
    enum PaneState {
        PaneStateNone = 0x00,
        PaneStateSelected = 0x01,
        PaneStateTargeted = 0x02,
        PaneStateHovered = 0x04,
        PaneStateExpandedBefore = 0x08,
        PaneStateExpanded = 0x10,
        PaneStateExpandedAfter = 0x20,
        PaneStateFirstPane = 0x40,
        PaneStateLastPane = 0x80,
        PaneStateSelectionMask = 0x03,
        PaneStateExpandedMask = 0x38,
        PaneStateSequenceMask = 0xC0,
        PaneStateComputedMask = 0xE8,
    };
    Q_DECLARE_FLAGS(PaneStates, PaneState)
    Q_FLAG(PaneStates)

    using VantraFrame::VantraFrame;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VantraFramePane::PaneStates)
