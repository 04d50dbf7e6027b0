#pragma once

// Keeps a widget from repainting for a scope, so that several changes show as one.
//
//     const VTQtUpdatesBlocker blocker(this, VTQtUpdatesBlocker::BlockUpdates);
//     showNormal();
//     showMaximized();
//
// At the end the widget's earlier state comes back, and with it one repaint. A widget whose updates are
// already disabled, itself or through its parent, is left unchanged. Blockers of one widget, or of a widget
// and its parent, may nest: the one constructed last must be destroyed first. The widget may be null, and may
// end before the blocker. GUI thread only.

#include "VTQtCoreLiteExport.h"

#include <QtCore/QPointer>

class VTQTCORELITE_EXPORT VTQtUpdatesBlocker
{
public:
    enum BlockingMode {
        BlockUpdates = 0, // nothing of the widget and its children is painted
    };

    // Any QWidget; taken as a QObject, as this library knows nothing of widgets.
    VTQtUpdatesBlocker(QObject *inWidget, BlockingMode inMode);
    ~VTQtUpdatesBlocker();

private:
    Q_DISABLE_COPY_MOVE(VTQtUpdatesBlocker)

    QPointer<QObject> mWidget;
    bool mDisabledUpdates = false;
};
