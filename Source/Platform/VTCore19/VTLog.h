#pragma once

// The product's log for tolerated conditions: printf-style, no level. A line begins with the class and
// function that writes it.
//
//     VTLog(CFSTR("VantraMainWindow::registerShortcut %d left\n"), count);

#include "VTCFString.h"
#include "VTCore19Export.h"

#include <cstdarg>

// Receives each finished line, without its line feed, on the thread that logged it.
using VTLogSink = void (*)(const char *inLine);

// Writes one line. The format and its arguments follow printf; one line feed at the end is dropped. Any
// thread.
VTCORE19_EXPORT void VTLog(CFStringRef inFormat, ...);

// Sends lines to the given function instead of the standard error stream; null restores the stream. Any
// thread.
VTCORE19_EXPORT void VTLogSetSink(VTLogSink inSink);
