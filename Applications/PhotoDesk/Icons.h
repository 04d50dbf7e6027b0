#pragma once

// The pictures that the library doesn't have. One-coloured, to be tinted.

#include <QtGui/QIcon>
#include <QtGui/QImage>

namespace Icons {

// For tool buttons.
QImage turnLeft();
QImage turnRight();
QImage crop();
QImage zoomOut();
QImage zoomIn();

// For the list of photos.
QIcon edited();
QIcon exported();

// The program's own icon, in colour.
QIcon program();

} // namespace Icons
