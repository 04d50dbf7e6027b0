#include "BenchSupport.h"

#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

namespace Bench {

namespace {

void themeLoad(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        VantraStyleTheme theme;
        benchmark::DoNotOptimize(theme.loadConfig(QStringLiteral(":/VTWidgets/Themes/base.json"),
                                                  QStringLiteral(":/VTWidgets/Themes/blue.json")));
    }
}

void styleMade(benchmark::State &state)
{
    paired(
        state, [] { VantraStyle style; }, [] { delete QStyleFactory::create(QStringLiteral("Fusion")); }, 16);
}

// All that a program does before its first window: fonts, theme and style.
void startUp(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        VantraFont::unloadApplicationFonts();
        state.ResumeTiming();
        VantraFont::loadApplicationFonts();
        VantraStyleTheme theme;
        benchmark::DoNotOptimize(theme.loadConfig(QStringLiteral(":/VTWidgets/Themes/base.json"),
                                                  QStringLiteral(":/VTWidgets/Themes/blue.json")));
        VantraStyle style;
        benchmark::DoNotOptimize(style);
    }
}

} // namespace

void registerStart()
{
    benchmark::RegisterBenchmark("start/theme", themeLoad)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("start/style", styleMade)
        ->UseManualTime()
        ->Iterations(kRounds)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("start/fonts+theme+style", startUp)->Unit(benchmark::kMicrosecond);
}

} // namespace Bench
