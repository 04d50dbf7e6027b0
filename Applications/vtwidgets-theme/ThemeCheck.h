#pragma once

// Everything that can be wrong with a theme document, alone or together with an accent document.

#include "Shared/ThemeFile.h"

#include <QtCore/QList>
#include <QtCore/QString>

struct Finding
{
    // Meant: worth knowing, but nothing to put right.
    enum class Kind { Fault, Meant };

    Kind kind = Kind::Fault;
    // Of the documents checked, 0 or 1.
    int file = 0;
    TextPosition position;
    QString message;
};

// One or two documents, the second being the accent. They have been read, but may be damaged. Findings come
// in the order of the text.
//
// A first document without a "color_palette" that has aliases is taken for an accent on its own. What only an
// accent can define is not missed in a base that is checked without one. Disabled texts may have any
// contrast, as they can't be used.
QList<Finding> checkThemes(const QList<ThemeFile> &inFiles);
