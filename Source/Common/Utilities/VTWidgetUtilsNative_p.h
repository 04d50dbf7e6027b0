#pragma once

// What the helpers around windows ask of the system; one source for each.

#include <QtGui/QImage>
#include <QtGui/qwindowdefs.h>

namespace VTWidgetUtilsNative {

// The program's icon, inPixels wide and high, without a device pixel ratio; null when there is none.
QImage appIcon(int inPixels);

// Adds a border to the native window where full screen needs one.
void addBorder(WId inWindow);

// Makes the frame and title bar of the native window dark or light, where the system lets a window choose.
void setFrameDark(WId inWindow, bool inDark);

} // namespace VTWidgetUtilsNative
