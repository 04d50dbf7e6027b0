#include "Controls/VantraFrame.h"

#include "StyleOptions/VantraStyleOptionFrame.h"

#include <QtGui/QPainter>

VantraFrame::VantraFrame(QWidget *inParent, Qt::WindowFlags inFlags) : QFrame(inParent, inFlags)
{
}

VantraFrame::~VantraFrame() = default;

void VantraFrame::setCornerShapes(CornerShapes inShapes)
{
    if (mCornerShapes == inShapes) {
        return;
    }
    mCornerShapes = inShapes;
    emit cornerShapesChanged(inShapes);
    update();
}

void VantraFrame::setCornerRadius(int inRadius)
{
    if (mCornerRadius == inRadius) {
        return;
    }
    mCornerRadius = inRadius;
    emit cornerRadiusChanged(inRadius);
    update();
}

void VantraFrame::setHudOverlay(bool inState)
{
    if (mHudOverlay == inState) {
        return;
    }
    mHudOverlay = inState;
    emit hudOverlayChanged(inState);
    update();
}

void VantraFrame::enterEvent(QEnterEvent *)
{
    emit showHelp();
}

void VantraFrame::leaveEvent(QEvent *)
{
    emit hideHelp();
}

void VantraFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    VantraStyleOptionFrame option;
    initStyleOption(&option);
    style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, this);
}

void VantraFrame::initStyleOption(QStyleOptionFrame *option) const
{
    QFrame::initStyleOption(option);
    if (option != nullptr && option->version >= VantraStyleOptionFrame::Version &&
        option->type == VantraStyleOptionFrame::Type) {
        auto *record = static_cast<VantraStyleOptionFrame *>(option);
        record->cornerShapes = mCornerShapes;
        record->cornerRadius = mCornerRadius;
        record->hudOverlay = mHudOverlay;
    }
}
