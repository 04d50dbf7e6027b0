#include "CommandLine.h"
#include "Icons.h"
#include "Look.h"
#include "PhotoWindow.h"
#include "PresetStore.h"

#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <optional>

namespace {
constexpr int kRefused = 2;

void nameProgram()
{
    QCoreApplication::setOrganizationName(QStringLiteral("VTWidgetsLite"));
    QCoreApplication::setApplicationName(QStringLiteral("PhotoDesk"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PHOTODESK_VERSION));
}

// All that needs no window, and so no window system either. An exit code, or nothing for the window's turn.
std::optional<int> runWithoutWindow(int inCount, char **inValues, CommandLine::Options &outOptions)
{
    QCoreApplication application(inCount, inValues);
    nameProgram();
    outOptions = CommandLine::parse(QCoreApplication::arguments());
    if (!outOptions.refusal.isEmpty()) {
        std::fprintf(stderr, "PhotoDesk: %s\n", qPrintable(outOptions.refusal));
        return kRefused;
    }
    if (!outOptions.answer.isEmpty()) {
        std::fputs(qPrintable(outOptions.answer), stdout);
        return 0;
    }
    if (!outOptions.exportFolder.isEmpty())
        return CommandLine::exportPhotos(outOptions, PresetStore());
    return std::nullopt;
}

// The photos that come with the program: installed, or in the source tree.
QString samplesFolder()
{
    const QString installed = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/PhotoDesk");
    return QDir(installed).exists() ? installed : QStringLiteral(PHOTODESK_SAMPLES);
}
} // namespace

int main(int argc, char **argv)
{
    CommandLine::Options options;
    if (const std::optional<int> exitCode = runWithoutWindow(argc, argv, options))
        return *exitCode;

    int guiArgumentCount = 1; // the others are files, not Qt's
    QApplication application(guiArgumentCount, argv);
    nameProgram();
    QApplication::setWindowIcon(Icons::program());
    // Names are sorted as people do, which a system without a language doesn't know how to.
    if (QLocale().language() == QLocale::C)
        QLocale::setDefault(QLocale(QLocale::English));
    Look::start();
    PhotoWindow window;
    window.show();
    window.open(options.files.isEmpty() ? QStringList{samplesFolder()} : options.files);
    return QApplication::exec();
}
