// What a user waits for at a single control. Each has a limit in milliseconds instead of a reference.

#include "BenchSupport.h"

#include "Controls/VantraComboBox.h"
#include "Controls/VantraFramePane.h"
#include "Style/VantraStyle.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <memory>
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

double median(std::vector<double> &ioTimes)
{
    std::sort(ioTimes.begin(), ioTimes.end());
    return ioTimes[ioTimes.size() / 2];
}

// Counters: "median_ms", "worst_ms", "limit_ms", and "met", 1 or 0, of the median.
void report(benchmark::State &state, std::vector<double> &ioTimes, double inLimit)
{
    const double time = median(ioTimes);
    state.counters["median_ms"] = time;
    state.counters["worst_ms"] = ioTimes.back();
    state.counters["limit_ms"] = inLimit;
    state.counters["met"] = time <= inLimit ? 1 : 0;
}

// From the call to the painted popup.
double openingTime(QComboBox *ioComboBox)
{
    const double time = millisecondsOf([ioComboBox] {
        ioComboBox->showPopup();
        QApplication::processEvents();
    });
    ioComboBox->hidePopup();
    QApplication::processEvents();
    return time;
}

template <typename Box>
std::unique_ptr<QComboBox> longComboBox(int inRound)
{
    QStringList texts; // new ones each time, as after the start of a program
    for (int i = 0; i < kItems; ++i) {
        texts.append(QStringLiteral("Preset %1.%2").arg(inRound).arg(i));
    }
    auto comboBox = std::make_unique<Box>();
    comboBox->addItems(texts);
    comboBox->setCurrentIndex(kItems / 2);
    comboBox->show();
    QApplication::processEvents();
    return comboBox;
}

// The first opening, with those of a stock combo box under Fusion as "fusion_ms" and the second opening as
// "again_ms".
void longPopup(benchmark::State &state)
{
    constexpr double kLimit = 100.0;
    std::vector<double> times;
    std::vector<double> againTimes;
    std::vector<double> fusionTimes;
    int round = 0;
    for ([[maybe_unused]] auto _ : state) {
        QApplication::setStyle(QStringLiteral("Fusion"));
        fusionTimes.push_back(openingTime(longComboBox<QComboBox>(round++).get()));
        QApplication::setStyle(new VantraStyle);
        const std::unique_ptr<QComboBox> comboBox = longComboBox<VantraComboBox>(round++);
        times.push_back(openingTime(comboBox.get()));
        againTimes.push_back(openingTime(comboBox.get()));
        state.SetIterationTime(times.back() * 1e-3);
    }
    report(state, times, kLimit);
    state.counters["again_ms"] = median(againTimes);
    state.counters["fusion_ms"] = median(fusionTimes);
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
