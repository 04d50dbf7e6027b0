#pragma once

// The languages of the gallery and of the library's controls. The samples on the pages stay English.

#include <QtCore/QStringList>

namespace GalleryLanguage {

// The codes of all languages that are there, such as "de". The first, "en", is that of the sources.
QStringList codes();

// Translates the texts of all windows that are made from now on; Qt's own too, if its translations are
// installed. Once, with an application object.
void install(const QString &inCode);

} // namespace GalleryLanguage
