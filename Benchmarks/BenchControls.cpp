// What a user waits for at a single control. Each has a limit in milliseconds instead of a reference.

#include "BenchSupport.h"

#include "Controls/VantraComboBox.h"
#include "Controls/VantraFramePane.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <vector>

namespace Bench {

namespace {

constexpr int kItems = 10000;
constexpr int kPanes = 200;
constexpr int kOpenings = 15;

double millisecondsOf(const Work &inWork)
{
    const auto start = std::chrono::steady_clock::now();
    inWork();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return time.count();
}

// Counters: "median_ms", "worst_ms", "limit_ms", and "met", 1 or 0, of the median.
void report(benchmark::State &state, std::vector<double> &ioTimes, double inLimit)
{
    std::sort(ioTimes.begin(), ioTimes.end());
    const double median = ioTimes[ioTimes.size() / 2];
    state.counters["median_ms"] = median;
    state.counters["worst_ms"] = ioTimes.back();
    state.counters["limit_ms"] = inLimit;
    state.counters["met"] = median <= inLimit ? 1 : 0;
}

// From the call to the painted popup, each time of a new combo box.
void longPopup(benchmark::State &state)
{
    constexpr double kLimit = 100.0;
    QStringList texts;
    for (int i = 0; i < kItems; ++i) {
        texts.append(QStringLiteral("Preset %1 of a long list of presets").arg(i));
    }
    std::vector<double> times;
    for ([[maybe_unused]] auto _ : state) {
        VantraComboBox comboBox;
        comboBox.addItems(texts);
        comboBox.setCurrentIndex(kItems / 2);
        comboBox.show();
        QApplication::processEvents();
        times.push_back(millisecondsOf([&comboBox] {
            comboBox.showPopup();
            QApplication::processEvents();
        }));
        state.SetIterationTime(times.back() * 1e-3);
        comboBox.hidePopup();
    }
    report(state, times, kLimit);
}

void paneColumn(benchmark::State &state, bool inToggle)
{
    constexpr double kLimit = 1.0;
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    QList<VantraFramePane *> panes;
    for (int i = 0; i < kPanes; ++i) {
        panes.append(new VantraFramePane);
        panes.last()->setPaneExpanded(i % 3 == 0);
        layout->addWidget(panes.last());
    }
    window.show();
    VantraFramePane::updatePaneStates(layout);
    QApplication::processEvents();
    VantraFramePane *middle = panes.at(kPanes / 2);
    std::vector<double> times;
    for ([[maybe_unused]] auto _ : state) {
        if (inToggle) {
            middle->setPaneExpanded(!middle->paneExpanded());
        }
        times.push_back(millisecondsOf([layout] { VantraFramePane::updatePaneStates(layout); }));
        state.SetIterationTime(times.back() * 1e-3);
    }
    report(state, times, kLimit);
}

} // namespace

void registerControls()
{
    benchmark::RegisterBenchmark("popup/10000 items", longPopup)
        ->UseManualTime()
        ->Iterations(kOpenings)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("panes/200 unchanged", paneColumn, false)
        ->UseManualTime()
        ->Iterations(kRounds)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("panes/200 one toggled", paneColumn, true)
        ->UseManualTime()
        ->Iterations(kRounds)
        ->Unit(benchmark::kMillisecond);
}

} // namespace Bench
