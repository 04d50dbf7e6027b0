#pragma once

// A panel that stands with others in a column of panes. The application tells which panes are selected,
// targeted, hovered and expanded; updatePaneStates works out for a whole column what follows from the
// neighbours, so that the style can paint each pane by what stands next to it.
//
//     auto *column = new QVBoxLayout;
//     column->addWidget(new VantraFramePane);
//     ...
//     pane->setPaneExpanded(false);
//     VantraFramePane::updatePaneStates(column);   // after showing, and after each change of the column
//
// A new pane is expanded. GUI thread only.

#include "Controls/VantraFrame.h"

class QLayout;

class VTWIDGETSLITE_EXPORT VantraFramePane : public VantraFrame
{
    Q_OBJECT
    Q_PROPERTY(PanePart panePart READ panePart WRITE setPanePart NOTIFY panePartChanged)
    Q_PROPERTY(PaneStyle paneStyle READ paneStyle WRITE setPaneStyle NOTIFY paneStyleChanged)
    Q_PROPERTY(PaneBorderStyle paneBorderStyle READ paneBorderStyle WRITE setPaneBorderStyle NOTIFY
                   paneBorderStyleChanged)
    Q_PROPERTY(PaneStates paneState READ paneState WRITE setPaneState NOTIFY paneStateChanged)
    Q_PROPERTY(PaneStates paneSelectionState READ paneSelectionState WRITE setPaneSelectionState NOTIFY
                   paneSelectionStateChanged)
    Q_PROPERTY(bool paneSelected READ paneSelected WRITE setPaneSelected NOTIFY paneSelectedChanged)
    Q_PROPERTY(bool paneTargeted READ paneTargeted WRITE setPaneTargeted NOTIFY paneTargetedChanged)
    Q_PROPERTY(bool paneHovered READ paneHovered WRITE setPaneHovered NOTIFY paneHoveredChanged)
    Q_PROPERTY(PaneStates paneExpandedState READ paneExpandedState WRITE setPaneExpandedState NOTIFY
                   paneExpandedStateChanged)
    Q_PROPERTY(bool paneExpanded READ paneExpanded WRITE setPaneExpanded NOTIFY paneExpandedChanged)
    Q_PROPERTY(PaneStates paneSequenceState READ paneSequenceState WRITE setPaneSequenceState NOTIFY
                   paneSequenceStateChanged)
    Q_PROPERTY(bool paneIsFirst READ paneIsFirst WRITE setPaneIsFirst NOTIFY paneIsFirstChanged)
    Q_PROPERTY(bool paneIsLast READ paneIsLast WRITE setPaneIsLast NOTIFY paneIsLastChanged)

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

    // Margins for the application's layouts, in logical pixels.
    static constexpr int kSubPaneMarginLeft = 10;
    static constexpr int kSubPaneMarginTop = 10;
    static constexpr int kSubPaneMarginRight = 10;
    static constexpr int kSubPaneMarginBottom = 10;
    static constexpr int kIndentedSubPaneMarginLeft = 32;

    explicit VantraFramePane(QWidget *inParent = nullptr, Qt::WindowFlags inFlags = {});
    ~VantraFramePane() override;

    // PanePartContainer by default.
    PanePart panePart() const { return mPanePart; }
    void setPanePart(PanePart inPart);

    // PaneStyleStandard by default. A change to it also makes all corners round; a change to another style
    // leaves the corners as they are.
    PaneStyle paneStyle() const { return mPaneStyle; }
    void setPaneStyle(PaneStyle inStyle);

    // PaneBorderStyleNone by default.
    PaneBorderStyle paneBorderStyle() const { return mPaneBorderStyle; }
    void setPaneBorderStyle(PaneBorderStyle inStyle);

    // The whole word. Every other state setter ends here: each signal whose part has changed is emitted once,
    // in the order of the declarations below, then paneStateChanged with the word as it then stands, then the
    // pane repaints. Nothing happens for the word at hand.
    PaneStates paneState() const { return mPaneState; }
    void setPaneState(PaneStates inState);

    // The parts of the word by group. A setter replaces its group's bits by the argument as it is: bits
    // outside the group get through.
    PaneStates paneSelectionState() const { return mPaneState & PaneStateSelectionMask; }
    void setPaneSelectionState(PaneStates inState);
    PaneStates paneExpandedState() const { return mPaneState & PaneStateExpandedMask; }
    void setPaneExpandedState(PaneStates inState);
    PaneStates paneSequenceState() const { return mPaneState & PaneStateSequenceMask; }
    void setPaneSequenceState(PaneStates inState);

    // Single bits of the word.
    bool paneSelected() const { return mPaneState.testFlag(PaneStateSelected); }
    void setPaneSelected(bool inState);
    bool paneTargeted() const { return mPaneState.testFlag(PaneStateTargeted); }
    void setPaneTargeted(bool inState);
    bool paneHovered() const { return mPaneState.testFlag(PaneStateHovered); }
    void setPaneHovered(bool inState);
    bool paneExpanded() const { return mPaneState.testFlag(PaneStateExpanded); }
    void setPaneExpanded(bool inState);
    bool paneIsFirst() const { return mPaneState.testFlag(PaneStateFirstPane); }
    void setPaneIsFirst(bool inState);
    bool paneIsLast() const { return mPaneState.testFlag(PaneStateLastPane); }
    void setPaneIsLast(bool inState);

    // Gives every visible pane among the layout's own items its computed states. Spacers, nested layouts,
    // hidden panes and other widgets are passed over. Call it once the window shows, and after each change of
    // expansion or visibility. The layout must not be null.
    static void updatePaneStates(QLayout *inLayout);

signals:
    void panePartChanged(VantraFramePane::PanePart inPart);
    void paneStyleChanged(VantraFramePane::PaneStyle inStyle);
    void paneBorderStyleChanged(VantraFramePane::PaneBorderStyle inStyle);
    void paneSelectionStateChanged(VantraFramePane::PaneStates inState);
    void paneSelectedChanged(bool inState);
    void paneTargetedChanged(bool inState);
    void paneHoveredChanged(bool inState);
    void paneExpandedStateChanged(VantraFramePane::PaneStates inState);
    void paneExpandedChanged(bool inState);
    void paneSequenceStateChanged(VantraFramePane::PaneStates inState);
    void paneIsFirstChanged(bool inState);
    void paneIsLastChanged(bool inState);
    void paneStateChanged(VantraFramePane::PaneStates inState);

protected:
    void paintEvent(QPaintEvent *event) override;
    void initStyleOption(QStyleOptionFrame *option) const override;

private:
    void emitStateChanges(PaneStates inOld, PaneStates inNew);

    PanePart mPanePart = PanePartContainer;
    PaneStyle mPaneStyle = PaneStyleStandard;
    PaneBorderStyle mPaneBorderStyle = PaneBorderStyleNone;
    PaneStates mPaneState = PaneStateExpanded;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VantraFramePane::PaneStates)
