#include "Window/VTUserEmailEvent.h"

const int VTUserEmailEvent::kEventType = QEvent::registerEventType(-1);

VTUserEmailEvent::VTUserEmailEvent(const QString &inUserUUID, const QString &inUserEmail)
    : VTUserEmailEvent(static_cast<QEvent::Type>(kEventType), inUserUUID, inUserEmail)
{
}

VTUserEmailEvent::VTUserEmailEvent(QEvent::Type inType, const QString &inUserUUID, const QString &inUserEmail)
    : QEvent(inType), mUserUUID(inUserUUID), mUserEmail(inUserEmail)
{
}

VTUserEmailEvent::VTUserEmailEvent(const VTUserEmailEvent &inOther) = default;

VTUserEmailEvent &VTUserEmailEvent::operator=(const VTUserEmailEvent &inOther) = default;

VTUserEmailEvent::~VTUserEmailEvent() = default;
