#pragma once

#include <QtCore/QString>

namespace ThemePreview {
// What is wrong with the documents or the place for the picture, in one line, or nothing. The accent may be
// left empty: the library's own base or blue accent then stands in for what the one document lacks. Leaves no
// trace and needs no window system.
QString check(const QString &inTheme, const QString &inAccent, const QString &inPicture);

// Writes the gallery's page of stock widgets in the theme as a PNG file, whole or not at all. Returns what
// went wrong in one line, or nothing. Needs an application object that no other theme was shown in.
QString write(const QString &inTheme, const QString &inAccent, const QString &inPicture);
} // namespace ThemePreview
