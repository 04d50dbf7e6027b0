#pragma once

// Photos in files: reading what Qt's image plug-ins read, and writing without ever leaving half a file
// behind. Every function may run on any thread.

#include "PhotoRenderer.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

struct PhotoAdjustments;

namespace PhotoFile {

// Upright by the camera's mark, 32 bits per pixel. A null image with a reason in plain words if that can't
// be.
QImage load(const QString &inPath, QString &outReason);

// A picture of at most that many pixels a side, read at once in that size where the format allows it.
QImage loadThumbnail(const QString &inPath, int inSide, QString &outReason);

// The size that load() would give, from the file's head alone; empty with a reason for no photo.
QSize sizeOf(const QString &inPath, QString &outReason);

// The files that can be photos by their names, from a mix of files and folders; folders are not searched
// deeper.
QStringList photosIn(const QStringList &inPaths);

enum class Outcome { Done, Canceled, Failed };

struct ExportResult
{
    Outcome outcome = Outcome::Done;
    QString reason; // of a failure, in plain words
};

// Where a photo's export goes: into the folder, under the photo's own name with that suffix, "jpg" or "png".
// The name gets a number if it would be the original itself or one of the paths that are taken by the same
// batch.
QString targetPath(const QString &inSource, const QString &inFolder, const QString &inSuffix,
                   const QStringList &inTaken = {});

// Reads a photo, applies the adjustments and writes the result in the format of the target's suffix. A file
// that is there is replaced when the new one is complete, and stays as it was in all other cases.
ExportResult exportPhoto(const QString &inSource, const PhotoAdjustments &inAdjustments,
                         const QString &inTarget, const PhotoRenderer::Report &inReport = {});

} // namespace PhotoFile
