#include "PhotoFile.h"

#include "PhotoAdjustments.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QStorageInfo>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>

namespace {
constexpr int kJpegQuality = 92;
constexpr qint64 kFullDisk = 65536; // bytes that are left at most
constexpr int kLargestImage = 2048; // MB of memory

QString tr(const char *inText)
{
    return QCoreApplication::translate("PhotoFile", inText);
}

QImage read(QImageReader &ioReader, QString &outReason)
{
    ioReader.setAutoTransform(true);
    QImage image = ioReader.read();
    if (image.isNull()) {
        outReason = ioReader.error() == QImageReader::FileNotFoundError ? tr("the file does not exist")
                                                                        : ioReader.errorString();
        return image;
    }
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    return image;
}

// Of a full disk, the writers for pictures say only that they know no reason.
QString writingTrouble(const QSaveFile &inFile, const QImageWriter &inWriter)
{
    if (QStorageInfo(QFileInfo(inFile.fileName()).path()).bytesAvailable() < kFullDisk)
        return tr("the disk is full");
    return inFile.error() != QFileDevice::NoError ? inFile.errorString() : inWriter.errorString();
}
} // namespace

QImage PhotoFile::load(const QString &inPath, QString &outReason)
{
    QImageReader::setAllocationLimit(kLargestImage);
    QImageReader reader(inPath);
    return read(reader, outReason);
}

QImage PhotoFile::loadThumbnail(const QString &inPath, int inSide, QString &outReason)
{
    QImageReader::setAllocationLimit(kLargestImage);
    QImageReader reader(inPath);
    const QSize size = reader.size();
    if (size.width() > inSide || size.height() > inSide)
        reader.setScaledSize(size.scaled(inSide, inSide, Qt::KeepAspectRatio));
    return read(reader, outReason);
}

QSize PhotoFile::sizeOf(const QString &inPath, QString &outReason)
{
    QImageReader reader(inPath);
    const QSize size = reader.size();
    if (size.isEmpty()) {
        // Formats that don't tell their size are read whole.
        return load(inPath, outReason).size();
    }
    return reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed() : size;
}

QStringList PhotoFile::photosIn(const QStringList &inPaths)
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats)
        patterns << QStringLiteral("*.") + QString::fromLatin1(format);
    QStringList photos;
    for (const QString &path : inPaths) {
        if (!QFileInfo(path).isDir()) {
            photos << path;
            continue;
        }
        const QFileInfoList files =
            QDir(path).entryInfoList(patterns, QDir::Files | QDir::Readable, QDir::Name);
        for (const QFileInfo &file : files)
            photos << file.filePath();
    }
    return photos;
}

QString PhotoFile::targetPath(const QString &inSource, const QString &inFolder, const QString &inSuffix,
                              const QStringList &inTaken)
{
    const QFileInfo source(inSource);
    const QDir folder(inFolder);
    QString path = folder.filePath(source.completeBaseName() + QLatin1Char('.') + inSuffix);
    // Files that don't exist are all equal to Qt.
    const auto isOriginal = [&source](const QFileInfo &inFile) {
        return inFile.exists() && inFile == source;
    };
    for (int number = 2; isOriginal(QFileInfo(path)) || inTaken.contains(path); ++number)
        path = folder.filePath(
            QStringLiteral("%1-%2.%3").arg(source.completeBaseName()).arg(number).arg(inSuffix));
    return path;
}

PhotoFile::ExportResult PhotoFile::exportPhoto(const QString &inSource, const PhotoAdjustments &inAdjustments,
                                               const QString &inTarget, const PhotoRenderer::Report &inReport)
{
    QString reason;
    const QImage source = load(inSource, reason);
    if (source.isNull())
        return {Outcome::Failed, reason};
    const QImage photo = PhotoRenderer::render(inAdjustments, source, inReport);
    if (photo.isNull())
        return {Outcome::Canceled, {}};

    QSaveFile file(inTarget);
    if (!file.open(QIODevice::WriteOnly))
        return {Outcome::Failed, file.errorString()};
    const QByteArray format = QFileInfo(inTarget).suffix().toLatin1();
    QImageWriter writer(&file, format);
    if (format == "jpg")
        writer.setQuality(kJpegQuality);
    if (!writer.write(photo))
        return {Outcome::Failed, writingTrouble(file, writer)};
    // A last chance to cancel, before the old file is replaced.
    if (inReport && !inReport(photo.height(), photo.height()))
        return {Outcome::Canceled, {}};
    if (!file.commit())
        return {Outcome::Failed, file.errorString()};
    return {};
}
