#pragma once

// The words of theme documents, and which of their gaps and weak contrasts are meant.

#include "Theme/VantraPalette.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Vocabulary {
QStringList groups();
// Without DefaultRole, which has no entry.
QStringList roles();
QStringList weights();
QStringList accents();
// What an accent document defines, and no other.
QStringList accentAliases();

// All of it, for reading.
QString list();

// The word of the list that inWord was probably meant to be, or nothing.
QString closest(const QString &inWord, const QStringList &inWords);

// A pair that a theme needs not define, and why. Every other pair of a group and a role can be asked for, if
// only by a button whose background role names it, and is painted red while nothing defines it.
struct MeantHole
{
    VantraPalette::PaletteRole role;
    VantraPalette::PaletteGroup group;
    const char *reason;
};
const QList<MeantHole> &meantHoles();

// A text whose contrast with its ground is low in the library's own themes on purpose. Only those themes'
// very colours are excused by it.
struct MeantContrast
{
    VantraPalette::PaletteRole text;
    VantraPalette::PaletteRole ground;
    const char *reason;
};
const QList<MeantContrast> &meantContrasts();
} // namespace Vocabulary
