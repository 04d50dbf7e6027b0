#include "Controls/VantraFramePane.h"

#include "StyleOptions/VantraStyleOptionFramePane.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QLayout>

namespace {

// A slot on a pane's signals may delete other panes.
using Pane = QPointer<VantraFramePane>;

QList<Pane> visiblePanes(const QLayout &inLayout)
{
    QList<Pane> panes;
    for (int i = 0; i < inLayout.count(); ++i) {
        QLayoutItem *item = inLayout.itemAt(i);
        auto *pane = item != nullptr ? qobject_cast<VantraFramePane *>(item->widget()) : nullptr;
        if (pane != nullptr && pane->isVisible()) {
            panes.append(pane);
        }
    }
    return panes;
}

} // namespace

VantraFramePane::VantraFramePane(QWidget *inParent, Qt::WindowFlags inFlags) : VantraFrame(inParent, inFlags)
{
}

VantraFramePane::~VantraFramePane() = default;

void VantraFramePane::setPanePart(PanePart inPart)
{
    if (mPanePart == inPart) {
        return;
    }
    mPanePart = inPart;
    emit panePartChanged(inPart);
    update();
}

void VantraFramePane::setPaneStyle(PaneStyle inStyle)
{
    if (mPaneStyle == inStyle) {
        return;
    }
    mPaneStyle = inStyle;
    emit paneStyleChanged(inStyle);
    if (mPaneStyle == PaneStyleStandard) {
        setCornerShapes(CornerShapeRoundFull);
    }
    update();
}

void VantraFramePane::setPaneBorderStyle(PaneBorderStyle inStyle)
{
    if (mPaneBorderStyle == inStyle) {
        return;
    }
    mPaneBorderStyle = inStyle;
    emit paneBorderStyleChanged(inStyle);
    update();
}

void VantraFramePane::setPaneState(PaneStates inState)
{
    const PaneStates old = mPaneState;
    if (old == inState) {
        return;
    }
    mPaneState = inState;
    emitStateChanges(old, inState);
    // A slot may have changed the state again: this signal tells how it stands now.
    emit paneStateChanged(mPaneState);
    update();
}

void VantraFramePane::emitStateChanges(PaneStates inOld, PaneStates inNew)
{
    const PaneStates changed = inOld ^ inNew;
    if (changed & PaneStateSelectionMask) {
        emit paneSelectionStateChanged(inNew & PaneStateSelectionMask);
    }
    if (changed & PaneStateSelected) {
        emit paneSelectedChanged(inNew.testFlag(PaneStateSelected));
    }
    if (changed & PaneStateTargeted) {
        emit paneTargetedChanged(inNew.testFlag(PaneStateTargeted));
    }
    if (changed & PaneStateHovered) {
        emit paneHoveredChanged(inNew.testFlag(PaneStateHovered));
    }
    if (changed & PaneStateExpandedMask) {
        emit paneExpandedStateChanged(inNew & PaneStateExpandedMask);
    }
    if (changed & PaneStateExpanded) {
        emit paneExpandedChanged(inNew.testFlag(PaneStateExpanded));
    }
    if (changed & PaneStateSequenceMask) {
        emit paneSequenceStateChanged(inNew & PaneStateSequenceMask);
    }
    if (changed & PaneStateFirstPane) {
        emit paneIsFirstChanged(inNew.testFlag(PaneStateFirstPane));
    }
    if (changed & PaneStateLastPane) {
        emit paneIsLastChanged(inNew.testFlag(PaneStateLastPane));
    }
}

void VantraFramePane::setPaneSelectionState(PaneStates inState)
{
    setPaneState((mPaneState & ~PaneStates(PaneStateSelectionMask)) | inState);
}

void VantraFramePane::setPaneExpandedState(PaneStates inState)
{
    setPaneState((mPaneState & ~PaneStates(PaneStateExpandedMask)) | inState);
}

void VantraFramePane::setPaneSequenceState(PaneStates inState)
{
    setPaneState((mPaneState & ~PaneStates(PaneStateSequenceMask)) | inState);
}

void VantraFramePane::setPaneSelected(bool inState)
{
    setPaneState(PaneStates(mPaneState).setFlag(PaneStateSelected, inState));
}

void VantraFramePane::setPaneTargeted(bool inState)
{
    setPaneState(PaneStates(mPaneState).setFlag(PaneStateTargeted, inState));
}

void VantraFramePane::setPaneHovered(bool inState)
{
    setPaneState(PaneStates(mPaneState).setFlag(PaneStateHovered, inState));
}

void VantraFramePane::setPaneExpanded(bool inState)
{
    setPaneState(PaneStates(mPaneState).setFlag(PaneStateExpanded, inState));
}

void VantraFramePane::setPaneIsFirst(bool inState)
{
    setPaneState(PaneStates(mPaneState).setFlag(PaneStateFirstPane, inState));
}

void VantraFramePane::setPaneIsLast(bool inState)
{
    setPaneState(PaneStates(mPaneState).setFlag(PaneStateLastPane, inState));
}

void VantraFramePane::updatePaneStates(QLayout *inLayout)
{
    const QList<Pane> panes = visiblePanes(*inLayout);
    const auto isExpanded = [](const Pane &pane) { return !pane.isNull() && pane->paneExpanded(); };
    for (qsizetype i = 0; i < panes.size(); ++i) {
        if (panes.at(i).isNull()) {
            continue;
        }
        PaneStates state = panes.at(i)->paneState() & ~PaneStates(PaneStateComputedMask);
        if (i == 0) {
            state |= PaneStateFirstPane;
        } else if (isExpanded(panes.at(i - 1))) {
            state |= PaneStateExpandedBefore;
        }
        if (i == panes.size() - 1) {
            state |= PaneStateLastPane;
        } else if (isExpanded(panes.at(i + 1))) {
            state |= PaneStateExpandedAfter;
        }
        panes.at(i)->setPaneState(state);
    }
}

void VantraFramePane::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    VantraStyleOptionFramePane option;
    initStyleOption(&option);
    style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, this);
}

void VantraFramePane::initStyleOption(QStyleOptionFrame *option) const
{
    VantraFrame::initStyleOption(option);
    if (option != nullptr && option->version >= VantraStyleOptionFramePane::Version &&
        option->type == VantraStyleOptionFramePane::Type) {
        auto *record = static_cast<VantraStyleOptionFramePane *>(option);
        record->paneStyle = mPaneStyle;
        record->panePart = mPanePart;
        record->paneBorderStyle = mPaneBorderStyle;
        record->paneState = mPaneState;
    }
}
