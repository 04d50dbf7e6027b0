#include "Window/VTAppDidFinishLaunchingEvent.h"

const int VTAppDidFinishLaunchingEvent::kEventType = QEvent::registerEventType(-1);

VTAppDidFinishLaunchingEvent::VTAppDidFinishLaunchingEvent(QMainWindow *inMainWindow)
    : QEvent(static_cast<QEvent::Type>(kEventType)), mMainWindow(inMainWindow)
{
}

VTAppDidFinishLaunchingEvent::VTAppDidFinishLaunchingEvent(const VTAppDidFinishLaunchingEvent &inOther) =
    default;

VTAppDidFinishLaunchingEvent &
VTAppDidFinishLaunchingEvent::operator=(const VTAppDidFinishLaunchingEvent &inOther) = default;

VTAppDidFinishLaunchingEvent::~VTAppDidFinishLaunchingEvent() = default;
