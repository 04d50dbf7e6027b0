#pragma once

// The window of a rich tool tip: shows a content beside a tool button, within the button's window.
//
//     auto *tip = new VantraToolTip;
//     tip->showAndPosition(":/Tips/brush.gif", tr("Brush"), tr("Paints the mask."), url, QCursor::pos(),
//     button);
//
// VantraToolTipFilter opens and closes the tips of all tool buttons; an application rarely needs this class.
// GUI thread only.

#include "ToolTips/VantraToolTipContentFrame.h"

class VantraToolButton;
class VantraToolTipContent;

class VTWIDGETSLITE_EXPORT VantraToolTip : public VantraToolTipContentFrame
{
    Q_OBJECT

public:
    explicit VantraToolTip(QWidget *inParent = nullptr);
    ~VantraToolTip() override;

    // Fills the tip as VantraToolTipContent::setToolTip does, fades it in within 150 ms and moves it to the
    // button's side that its toolTipDirection() names; ToolTipDirectionAuto takes the place whose top left
    // corner is nearest to the position. The tip stays within the frame of the button's window: when it fits
    // nowhere there, it stands at 0, 0 of the desktop.
    void showAndPosition(const QString &inImage, const QString &inTitle, const QString &inDetailed,
                         const QString &inUrl, QPoint inGlobalPos, VantraToolButton *inButton);

private:
    VantraToolTipContent *const mContent; // a child of body()
};
