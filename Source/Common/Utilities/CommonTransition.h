#pragma once

// The window fades and the drop shadow that pop-up windows share.
//
//     popup->show();
//     CommonTransition::fadeIn(popup, 150);
//     CommonTransition::addDropShadow(popup);
//
// Nothing keeps a handle to a running fade: it can't be cancelled, and two fades of one window run side by
// side. A fade ends with its window. GUI thread only.

#include "VTWidgetsLiteExport.h"

class QWidget;

class VTWIDGETSLITE_EXPORT CommonTransition
{
public:
    CommonTransition() = delete;

    // Takes the opacity of a top-level widget from 0 to 1, and from 1 to 0, within milliseconds. With 0 it is
    // there at once. A window that has faded out is still on the screen until its owner hides it.
    static void fadeIn(QWidget *inWidget, int inDuration);
    static void fadeOut(QWidget *inWidget, int inDuration);

    // The widget owns the shadow, which replaces any graphics effect that it has.
    static void addDropShadow(QWidget *inWidget);
};
