#pragma once

// A path of the file system as a value of its own, so that it isn't taken for any other text.
//
//     const VTQtPath log = VTQtPath(folder) / QStringLiteral("progress.log");
//     QFile file(log.toString());
//
// Paths are kept with "/" between their parts and without "." and ".." where they can be resolved by the text
// alone; the file system is never asked. Any thread, like every value.

#include "VTQtCoreLiteExport.h"

#include <QtCore/QString>

class VTQTCORELITE_EXPORT VTQtPath
{
public:
    // The empty path.
    VTQtPath() = default;
    explicit VTQtPath(const QString &inPath);

    bool isEmpty() const { return mPath.isEmpty(); }
    const QString &toString() const { return mPath; }

    // As the system's own programs write it: with "\" on Windows.
    QString toNativeString() const;

    // The last part, empty for the empty path; and all that stands before it.
    QString fileName() const;
    VTQtPath parent() const;

    // The path below this one. An absolute one stands for itself, as does any one below the empty path.
    VTQtPath operator/(const QString &inRelative) const;

    bool operator==(const VTQtPath &inOther) const { return mPath == inOther.mPath; }
    bool operator!=(const VTQtPath &inOther) const { return mPath != inOther.mPath; }

private:
    QString mPath;
};
