// Draws a picture of the resources: vtwidgets-picture IN.svg OUT.png writes OUT.png in the size that the
// drawing names, and OUT@2x.png in exactly twice that size. Runs on the build machine, without a display.
//
// Exits with 2 and one line on the error stream, and leaves both files as they were, when the drawing is
// missing, damaged, or has something in it that would be left out or drawn with the machine's own fonts.

#include <QtCore/QFile>
#include <QtCore/QSaveFile>
#include <QtCore/QStringList>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <cstdio>
#include <memory>

namespace {

constexpr int kUsageOrInputFault = 2;
constexpr int kLargestSide = 4096;

// What Qt Svg says while it reads and draws; anything at all is a fault of the drawing.
QStringList sMessages;

void collectMessage(QtMsgType, const QMessageLogContext &, const QString &inMessage)
{
    sMessages << inMessage.simplified();
}

int fail(const QString &inPath, const QString &inReason)
{
    std::fprintf(stderr, "vtwidgets-picture: %s: %s\n", qPrintable(inPath), qPrintable(inReason));
    return kUsageOrInputFault;
}

// The first thing in the document that isn't well-formed or can't be drawn faithfully; empty if there is
// none.
QString faultOf(const QByteArray &inDocument)
{
    static const QStringList refused{
        QStringLiteral("text"),  QStringLiteral("image"),    QStringLiteral("filter"), QStringLiteral("mask"),
        QStringLiteral("style"), QStringLiteral("clipPath"), QStringLiteral("pattern")};
    QXmlStreamReader reader(inDocument);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && refused.contains(reader.name())) {
            return QStringLiteral("line %1: <%2> is not drawn").arg(reader.lineNumber()).arg(reader.name());
        }
    }
    return reader.hasError()
               ? QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString())
               : QString();
}

QImage draw(QSvgRenderer &ioRenderer, int inScale)
{
    QImage image(ioRenderer.defaultSize() * inScale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    ioRenderer.render(&painter, QRectF(image.rect()));
    return image;
}

QString doubleResolutionPath(const QString &inPath)
{
    return inPath.chopped(4) + QLatin1String("@2x.png");
}

// Draws into a file that takes its place only by commit().
std::unique_ptr<QSaveFile> prepare(const QString &inPath, const QImage &inImage)
{
    auto file = std::make_unique<QSaveFile>(inPath);
    if (!file->open(QIODevice::WriteOnly) || !inImage.save(file.get(), "PNG")) {
        return nullptr;
    }
    return file;
}

int convert(const QString &inDrawing, const QString &inPicture)
{
    QFile file(inDrawing);
    if (!file.open(QIODevice::ReadOnly)) {
        return fail(inDrawing, file.errorString());
    }
    const QByteArray document = file.readAll();
    const QString fault = faultOf(document);
    if (!fault.isEmpty()) {
        return fail(inDrawing, fault);
    }
    QSvgRenderer renderer;
    if (!renderer.load(document)) {
        return fail(inDrawing,
                    sMessages.isEmpty() ? QStringLiteral("not an SVG drawing") : sMessages.first());
    }
    const QSize size = renderer.defaultSize();
    if (size.isEmpty() || qMax(size.width(), size.height()) > kLargestSide) {
        return fail(inDrawing, QStringLiteral("width and height must lie from 1 to %1").arg(kLargestSide));
    }
    const QImage single = draw(renderer, 1);
    const QImage twofold = draw(renderer, 2);
    if (!sMessages.isEmpty()) {
        return fail(inDrawing, sMessages.first());
    }
    const auto singleFile = prepare(inPicture, single);
    const auto twofoldFile = prepare(doubleResolutionPath(inPicture), twofold);
    if (!singleFile || !twofoldFile || !twofoldFile->commit() || !singleFile->commit()) {
        return fail(inPicture, QStringLiteral("can't be written"));
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QString picture = argc == 3 ? QFile::decodeName(argv[2]) : QString();
    if (!picture.endsWith(QLatin1String(".png"))) {
        std::fprintf(stderr, "usage: vtwidgets-picture IN.svg OUT.png\n");
        return kUsageOrInputFault;
    }
    qInstallMessageHandler(&collectMessage);
    return convert(QFile::decodeName(argv[1]), picture);
}
