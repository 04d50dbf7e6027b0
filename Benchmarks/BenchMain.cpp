// Benchmarks of the theme and the style. Every figure is paired with a reference in the same run: Fusion
// painting the same element, or the bare call.
//
//     ./run bench                                  all of them
//     ./run bench --benchmark_filter=PushButton    some

#include "BenchSupport.h"

#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
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

    Bench::registerTheme();
    Bench::registerStyle();
    Bench::registerStart();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
