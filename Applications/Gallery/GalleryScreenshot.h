#pragma once

// Writes pages as PNG files, each with sidebar and strip and at its full height. Files appear whole or not at
// all. Each function returns what went wrong in one line, or nothing.

#include <QtCore/QString>

class GalleryLook;
struct GalleryOptions;

namespace GalleryScreenshot {
// Tells whether a file can be written, without leaving a trace. Needs no window system.
QString check(const QString &inFile);

// Writes the page of the options at the scale that the process runs at.
QString write(GalleryLook *inLook, const GalleryOptions &inOptions);

// Writes a page alone, without sidebar and strip, at the scale that the process runs at.
QString writePage(int inPage, const QString &inFile);

// Writes NAME.png and NAME@2x.png of every page into the folder of the options, which is made when it isn't
// there, and prints each file's path. Every picture is taken by a process of its own, since the scale of a
// process is fixed at its start; this one needs no window system.
QString writeAll(const GalleryOptions &inOptions);
} // namespace GalleryScreenshot
