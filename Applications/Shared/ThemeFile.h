#pragma once

// A theme document on the disk, or in the resources of the library, read and taken apart.

#include "Shared/JsonText.h"

struct ThemeFile
{
    QString path;
    // Why the file couldn't be read, in one line; empty when it could.
    QString refusal;
    JsonText text;

    static ThemeFile read(const QString &inPath);

    // Of the library's own themes: "base", or an accent.
    static QString stockPath(const QString &inName);

    // "FILE:LINE:COLUMN: ", for messages that editors understand.
    QString prefix(TextPosition inPosition) const;

    // The first reason why nothing can be loaded from the file, with its place; empty when something can.
    QString trouble() const;
};
