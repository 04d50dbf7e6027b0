#pragma once

// What the main window asks of the system; one source for each.

#include <QtGui/qwindowdefs.h>

namespace VantraMainWindowNative {

// Whether a native message is the user's wish to maximize the window. Null is none.
bool isMaximizeCommand(const void *inMessage);

// Puts a window above all others, or back among the ordinary ones but above them. Returns 0 or the system's
// error. Systems that raise a window by Qt's own means have nothing to do here.
unsigned long setTopmost(WId inWindow, bool inTopmost);

} // namespace VantraMainWindowNative
