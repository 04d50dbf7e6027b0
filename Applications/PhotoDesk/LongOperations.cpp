#include "LongOperations.h"

#include "Progress/VTThreadedProgressCmd.h"
#include "VTQtStringUtils.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

namespace {
constexpr int kStepsPerPhoto = 100;

QString tr(const char *inText)
{
    return QCoreApplication::translate("LongOperations", inText);
}

// Runs the function for each file in turn. It is given the path's number and what to report progress within
// one file to; anything but 0 ends the work.
template <typename Function>
void forEachFile(__VTProgress *ioProgress, const QStringList &inPaths, Function inFunction)
{
    VTProgressDoProgressBeginStage(ioProgress, 1, nullptr, static_cast<int>(inPaths.size()) * kStepsPerPhoto);
    int result = 0;
    for (int index = 0; result == 0 && index < inPaths.size(); ++index) {
        const CFStringRef name =
            VTQtStringUtils::createCFStringRefFromQString(QFileInfo(inPaths[index]).fileName());
        VTProgressSetStageName(ioProgress, name);
        CFRelease(name);
        const auto report = [&](int inDone, int inAll) {
            result = VTProgressDoProgressUpdateStage(ioProgress, index * kStepsPerPhoto +
                                                                     inDone * (kStepsPerPhoto - 1) / inAll);
            return result == 0;
        };
        if (report(0, 1))
            inFunction(index, report);
    }
    VTProgressDoProgressEndStage(ioProgress);
}
} // namespace

QVector<LongOperations::FoundPhoto> LongOperations::findPhotos(const QStringList &inPaths, QWidget *inParent)
{
    QVector<FoundPhoto> found;
    VTThreadedProgressCmd command;
    command.setAllowCancel(true);
    command.execute(
        tr("Opening photos"), false,
        [&](__VTProgress *ioProgress) {
            const QStringList paths = PhotoFile::photosIn(inPaths);
            forEachFile(ioProgress, paths, [&](int inIndex, const PhotoRenderer::Report &) {
                FoundPhoto photo;
                photo.path = QFileInfo(paths[inIndex]).absoluteFilePath();
                photo.size = PhotoFile::sizeOf(photo.path, photo.reason);
                found << photo;
            });
            return 0;
        },
        inParent);
    return found;
}

void LongOperations::exportPhotos(QVector<ExportJob> &ioJobs, QWidget *inParent)
{
    QStringList paths;
    for (const ExportJob &job : std::as_const(ioJobs))
        paths << job.source;
    VTThreadedProgressCmd command;
    command.setAllowCancel(true);
    command.execute(
        tr("Exporting photos"), false,
        [&](__VTProgress *ioProgress) {
            forEachFile(ioProgress, paths, [&](int inIndex, const PhotoRenderer::Report &inReport) {
                ExportJob &job = ioJobs[inIndex];
                job.result = PhotoFile::exportPhoto(job.source, job.adjustments, job.target, inReport);
            });
            return 0;
        },
        inParent);
}
