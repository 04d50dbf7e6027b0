#pragma once

// Times how long a label has been pressed. Each label makes one and shares it by reference count.
//
//     auto *info = new VantraMouseHoldInfo;
//     info->heldMousePressTimer()->start(info->heldMousePressTimeout());
//     info->stopHeldMousePressTimer(label);
//     info->Release();
//
// GUI thread only.

#include "CBaseCore.h"
#include "VTWidgetsLiteExport.h"

#include <QtCore/QObject>

class QTimer;
class VantraLabel;

class VTWIDGETSLITE_EXPORT VantraMouseHoldInfo : public QObject, public CBaseCore
{
    Q_OBJECT

public:
    VantraMouseHoldInfo();

    // How long a press lasts until it counts as held: 500 ms.
    qint32 heldMousePressTimeout() const { return mHeldMousePressTimeout; }

    // A single-shot timer, named "Mouse Hold Timer"; it ends with this object.
    QTimer *heldMousePressTimer() const { return mHeldMousePressTimer; }

    // Stops the timer and takes all its connections with the label's slot away. Does nothing for null.
    void stopHeldMousePressTimer(VantraLabel *inLabel);

protected:
    ~VantraMouseHoldInfo() override;

private:
    qint32 mHeldMousePressTimeout = 500;
    QTimer *mHeldMousePressTimer;
};
