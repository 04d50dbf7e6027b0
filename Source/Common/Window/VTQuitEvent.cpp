#include "Window/VTQuitEvent.h"

const int VTQuitEvent::kEventType = QEvent::registerEventType(-1);

VTQuitEvent::VTQuitEvent() : QEvent(static_cast<QEvent::Type>(kEventType))
{
}

VTQuitEvent::VTQuitEvent(const VTQuitEvent &inOther) = default;

VTQuitEvent &VTQuitEvent::operator=(const VTQuitEvent &inOther) = default;

VTQuitEvent::~VTQuitEvent() = default;
