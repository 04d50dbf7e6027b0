#include "DrawnIcons.h"
#include "GalleryLanguage.h"
#include "GalleryLook.h"
#include "GalleryOptions.h"
#include "GalleryScreenshot.h"
#include "GalleryTheme.h"
#include "GalleryWindow.h"
#include "Shared/ContrastTable.h"

#include <QtCore/QLocale>
#include <QtCore/QTemporaryFile>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <optional>

namespace {
// The exit code of everything that the user has to put right.
constexpr int kRefused = 2;

int refuse(const QString &inReason)
{
    std::fprintf(stderr, "vtwidgets-gallery: %s\n", qPrintable(inReason));
    return kRefused;
}

// What can be done without a window system: reading the command line, its answers, and checks that should
// come before any work. Yields an exit code, or nothing when there is a window or a picture to be made.
std::optional<int> runWithoutWindows(int inCount, char **inValues, GalleryOptions &outOptions)
{
    QCoreApplication application(inCount, inValues);
    outOptions = GalleryOptions::fromArguments(QCoreApplication::arguments());
    const bool isRefused = outOptions.task == GalleryOptions::Task::Refuse;
    QString refusal = isRefused
                          ? outOptions.text
                          : GalleryTheme(outOptions.themeFile, outOptions.accentFile).load(outOptions.accent);
    if (!refusal.isEmpty())
        return refuse(refusal);
    switch (outOptions.task) {
    case GalleryOptions::Task::Print: std::fputs(qPrintable(outOptions.text), stdout); return 0;
    case GalleryOptions::Task::Contrast: std::fputs(qPrintable(Contrast::table()), stdout); return 0;
    case GalleryOptions::Task::AllScreenshots:
        refusal = GalleryScreenshot::writeAll(outOptions);
        return refusal.isEmpty() ? 0 : refuse(refusal);
    case GalleryOptions::Task::Screenshot: refusal = GalleryScreenshot::check(outOptions.target); break;
    case GalleryOptions::Task::Refuse:
    case GalleryOptions::Task::ShowWindow: break;
    }
    if (!refusal.isEmpty())
        return refuse(refusal);
    return std::nullopt;
}

// For pictures without a window system. Its own screen is 800 pixels wide, too little for dialogs at a scale
// of 2. The file describes the screen and is read when the application starts.
void takeLargeScreen(QTemporaryFile &ioFile)
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && platform != "offscreen")
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A colon ends the path for Qt.
    if (ioFile.open() && !ioFile.fileName().contains(QLatin1Char(':'))) {
        ioFile.write(R"({"screens": [{"name": "Large", "x": 0, "y": 0, "width": 3840, "height": 2400,)"
                     R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        ioFile.close();
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(ioFile.fileName()));
    }
}
} // namespace

int main(int argc, char **argv)
{
    GalleryOptions options;
    if (const std::optional<int> exitCode = runWithoutWindows(argc, argv, options))
        return *exitCode;

    const bool wantsWindow = options.task == GalleryOptions::Task::ShowWindow;
    QTemporaryFile screen;
    if (!wantsWindow)
        takeLargeScreen(screen);
    if (options.scale != 1.0)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));

    // Qt has no say in the arguments: it would take --style for its own.
    int guiArgumentCount = 1;
    QApplication application(guiArgumentCount, argv);
    QApplication::setApplicationName(QStringLiteral("vtwidgets-gallery"));
    QApplication::setApplicationVersion(QStringLiteral(VTWIDGETS_VERSION));
    // Without a locale, as on build machines, nothing would be sorted as a person expects.
    if (QLocale().language() == QLocale::C)
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication::setWindowIcon(DrawnIcons::application());

    GalleryLanguage::install(options.language);
    GalleryLook look;
    look.setThemeFiles(options.themeFile, options.accentFile);
    const QString trouble = look.start(options.accent, options.textSize, options.style);
    if (!trouble.isEmpty())
        return refuse(trouble);
    if (!wantsWindow) {
        const QString refusal = GalleryScreenshot::write(&look, options);
        return refusal.isEmpty() ? 0 : refuse(refusal);
    }

    QObject::connect(&look, &GalleryLook::themeTroubled, [](const QString &inReason) {
        if (!inReason.isEmpty())
            std::fprintf(stderr, "vtwidgets-gallery: %s\n", qPrintable(inReason));
    });
    look.followThemeFiles();

    GalleryWindow window(&look);
    window.setPagesEnabled(options.enabled);
    window.showPage(options.page);
    window.show();
    return QApplication::exec();
}
