#include "CommandLine.h"

#include "PhotoAdjustments.h"
#include "PhotoFile.h"
#include "PresetStore.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <cstdio>
#include <utility>

namespace {
constexpr int kSomeFailed = 1;
constexpr int kRefused = 2;

void say(const QString &inText)
{
    std::fprintf(stderr, "PhotoDesk: %s\n", qPrintable(inText));
}
} // namespace

CommandLine::Options CommandLine::parse(const QStringList &inArguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A small photo editor."));
    const QCommandLineOption folder(QStringLiteral("export"),
                                    QStringLiteral("Export the files into this folder, without a window."),
                                    QStringLiteral("folder"));
    const QCommandLineOption preset(
        QStringLiteral("preset"), QStringLiteral("The look of the exported photos."), QStringLiteral("name"));
    const QCommandLineOption format(QStringLiteral("format"),
                                    QStringLiteral("jpg, which is the default, or png."),
                                    QStringLiteral("suffix"), QStringLiteral("jpg"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this text."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version."));
    parser.addOptions({folder, preset, format, help, version});
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("Photos, or folders of photos."),
                                 QStringLiteral("[files...]"));
    Options options;
    if (!parser.parse(inArguments)) {
        options.refusal = parser.errorText();
        return options;
    }
    options.exportFolder = parser.value(folder);
    options.preset = parser.value(preset);
    options.suffix = parser.value(format).toLower();
    options.files = parser.positionalArguments();
    if (parser.isSet(help))
        options.answer = parser.helpText();
    else if (parser.isSet(version))
        options.answer = QStringLiteral("PhotoDesk %1\n").arg(QCoreApplication::applicationVersion());
    else if (!parser.isSet(folder) && (parser.isSet(preset) || parser.isSet(format)))
        options.refusal = QStringLiteral("--preset and --format go with --export.");
    else if (parser.isSet(folder) && !QFileInfo(options.exportFolder).isDir())
        options.refusal = QStringLiteral("there is no folder \"%1\".").arg(options.exportFolder);
    else if (parser.isSet(folder) && options.files.isEmpty())
        options.refusal = QStringLiteral("--export needs the files to export.");
    else if (options.suffix != QLatin1String("jpg") && options.suffix != QLatin1String("png"))
        options.refusal = QStringLiteral("the format is jpg or png, not \"%1\".").arg(options.suffix);
    return options;
}

int CommandLine::exportPhotos(const Options &inOptions, const PresetStore &inPresets)
{
    PhotoAdjustments adjustments;
    if (!inOptions.preset.isEmpty()) {
        if (!inPresets.contains(inOptions.preset)) {
            say(QStringLiteral("there is no preset \"%1\"; there are %2.")
                    .arg(inOptions.preset,
                         (inPresets.builtInNames() + inPresets.ownNames()).join(QLatin1String(", "))));
            return kRefused;
        }
        adjustments.setLook(inPresets.look(inOptions.preset));
    }
    QStringList taken;
    QStringList failures;
    const QStringList photos = PhotoFile::photosIn(inOptions.files);
    for (const QString &photo : photos) {
        const QString target = PhotoFile::targetPath(photo, inOptions.exportFolder, inOptions.suffix, taken);
        const PhotoFile::ExportResult result = PhotoFile::exportPhoto(photo, adjustments, target);
        if (result.outcome == PhotoFile::Outcome::Done) {
            taken << target;
            std::printf("%s\n", qPrintable(target));
        } else {
            failures << QStringLiteral("%1: %2").arg(photo, result.reason);
        }
    }
    if (failures.isEmpty())
        return 0;
    say(QStringLiteral("%1 of %2 photos could not be exported:").arg(failures.size()).arg(photos.size()));
    for (const QString &failure : std::as_const(failures))
        std::fprintf(stderr, "  %s\n", qPrintable(failure));
    return kSomeFailed;
}
