#include "Controls/VantraMouseHoldInfo.h"

#include "Controls/VantraLabel.h"

#include <QtCore/QTimer>

VantraMouseHoldInfo::VantraMouseHoldInfo() : mHeldMousePressTimer(new QTimer)
{
    mHeldMousePressTimer->setObjectName(QStringLiteral("Mouse Hold Timer"));
    mHeldMousePressTimer->setSingleShot(true);
}

VantraMouseHoldInfo::~VantraMouseHoldInfo()
{
    delete mHeldMousePressTimer;
}

void VantraMouseHoldInfo::stopHeldMousePressTimer(VantraLabel *inLabel)
{
    if (mHeldMousePressTimer == nullptr || inLabel == nullptr) {
        return;
    }
    mHeldMousePressTimer->stop();
    disconnect(mHeldMousePressTimer, &QTimer::timeout, inLabel, &VantraLabel::heldMousePressTimeoutSlot);
}
