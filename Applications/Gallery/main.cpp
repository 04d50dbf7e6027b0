#include "GalleryLanguage.h"
#include "GalleryLook.h"
#include "GalleryOptions.h"
#include "GalleryScreenshot.h"
#include "GalleryTheme.h"
#include "GalleryWindow.h"
#include "Shared/ContrastTable.h"

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
} // namespace

int main(int argc, char **argv)
{
    GalleryOptions options;
    if (const std::optional<int> exitCode = runWithoutWindows(argc, argv, options))
        return *exitCode;

    const bool wantsWindow = options.task == GalleryOptions::Task::ShowWindow;
    if (!wantsWindow && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (options.scale != 1.0)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));

    // Qt has no say in the arguments: it would take --style for its own.
    int guiArgumentCount = 1;
    QApplication application(guiArgumentCount, argv);
    QApplication::setApplicationName(QStringLiteral("vtwidgets-gallery"));
    QApplication::setApplicationVersion(QStringLiteral(VTWIDGETS_VERSION));

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
