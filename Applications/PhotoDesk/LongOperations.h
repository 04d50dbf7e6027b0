#pragma once

// What takes its time, on a thread of its own under the library's progress dialog, with cancel. Each call
// returns when the work is done or canceled. GUI thread only.

#include "PhotoAdjustments.h"
#include "PhotoFile.h"

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QVector>

class QWidget;

namespace LongOperations {

struct FoundPhoto
{
    QString path;
    QSize size;     // empty for a file that can't be read
    QString reason; // why it can't
};

// The photos among files and in folders; those that were found before a cancel.
QVector<FoundPhoto> findPhotos(const QStringList &inPaths, QWidget *inParent);

struct ExportJob
{
    QString source;
    PhotoAdjustments adjustments;
    QString target;
    PhotoFile::ExportResult result{PhotoFile::Outcome::Canceled, {}}; // filled by the export
};

// Jobs behind a cancel stay canceled.
void exportPhotos(QVector<ExportJob> &ioJobs, QWidget *inParent);

} // namespace LongOperations
