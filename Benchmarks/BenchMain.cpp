// Benchmarks of theme, style and window. Most figures are paired with a reference in the same run: Fusion
// painting the same element, or the bare call.
// Benchmarks of the theme, the style and the progress calls. Every figure of the style is paired with a
// reference in the same run: Fusion painting the same element, or the bare call.
//
//     ./run bench                                  all of them
//     ./run bench --benchmark_filter=PushButton    some

#include "BenchSupport.h"

#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

// The benchmark of memory starts this program anew for each style. Takes the argument out and gives its
// value.
QString takeMemoryArgument(int &ioCount, char **ioArguments)
{
    const QByteArray name("--peak-memory=");
    if (ioCount != 2 || !QByteArray(ioArguments[1]).startsWith(name)) {
        return QString();
    }
    ioCount = 1;
    return QString::fromLatin1(ioArguments[1] + name.size());
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const QString memoryOf = takeMemoryArgument(argc, argv);
    if (memoryOf == QLatin1String("fusion")) {
        QApplication::setStyle(QStringLiteral("Fusion"));
        Bench::printPeakMemory();
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    if (!VantraFont::loadApplicationFonts() ||
        !VantraStyleTheme::loadGlobalConfig(QStringLiteral("base"), QStringLiteral("blue"))) {
        std::fputs("vtwidgets-bench: the library's resources could not be loaded\n", stderr);
        return 1;
    }
    QApplication::setStyle(new VantraStyle);
    QApplication::setFont(VantraFont::mainFont());
    if (!memoryOf.isEmpty()) {
        Bench::printPeakMemory();
        return 0;
    }

    Bench::registerTheme();
    Bench::registerStyle();
    Bench::registerStart();
    Bench::registerWhole();
    Bench::registerControls();
    Bench::registerWindow();
    Bench::registerProgress();
    Bench::registerPhotoDesk();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
