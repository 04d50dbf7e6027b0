#pragma once

// The pages of the gallery: one table that serves the sidebar, --list-pages, --page and the screenshots.

#include <QtCore/QString>

class GalleryPage;
class QWidget;

struct GalleryPageEntry
{
    // Lower case with dashes: the word of the command line and of file names.
    const char *name;
    const char *title; // English
    GalleryPage *(*make)(QWidget *inParent);
};

namespace GalleryPages {
int count();
const GalleryPageEntry &at(int inIndex);

// In the language of the window.
QString title(int inIndex);

// Position of the page of that name, whatever its letter case; -1 when there is none.
int indexOf(const QString &inName);

// All names, separated by inSeparator.
QString names(const QString &inSeparator);
} // namespace GalleryPages
