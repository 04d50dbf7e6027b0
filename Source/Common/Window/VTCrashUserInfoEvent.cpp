#include "Window/VTCrashUserInfoEvent.h"

#include <utility>

const int VTCrashUserInfoEvent::kEventType = QEvent::registerEventType(-1);

VTCrashUserInfoEvent::VTCrashUserInfoEvent(const QString &inUserUUID, const QString &inUserName,
                                           const QString &inUserEmail)
    : VTUserEmailEvent(static_cast<QEvent::Type>(kEventType), inUserUUID, inUserEmail), mUserName(inUserName)
{
}

VTCrashUserInfoEvent::VTCrashUserInfoEvent(const VTCrashUserInfoEvent &inOther) = default;

VTCrashUserInfoEvent &VTCrashUserInfoEvent::operator=(const VTCrashUserInfoEvent &inOther) = default;

VTCrashUserInfoEvent::VTCrashUserInfoEvent(VTCrashUserInfoEvent &&ioOther)
    : VTUserEmailEvent(ioOther), mUserName(std::move(ioOther.mUserName))
{
}

VTCrashUserInfoEvent &VTCrashUserInfoEvent::operator=(VTCrashUserInfoEvent &&ioOther)
{
    VTUserEmailEvent::operator=(ioOther);
    mUserName = std::move(ioOther.mUserName);
    return *this;
}

VTCrashUserInfoEvent::~VTCrashUserInfoEvent() = default;
