#include "BenchSupport.h"

#include "Progress/VantraProgressMgr.h"
#include "Window/VantraMainWindow.h"

namespace Bench {

namespace {

VantraProgressMgr *manager()
{
    // Needed to the end of the process, as the manager goes with its window.
    static auto *sWindow = new VantraMainWindow;
    VantraMainWindow::setActiveWindow(sWindow);
    return VantraProgressMgr::sharedInstance();
}

// What a work loop pays for one call: mostly one that the throttle keeps back, or each one shown.
void call(benchmark::State &state, VantraProgressType inType)
{
    manager()->beginProgress(VantraMainWindow::activeWindow(), inType);
    __VTProgress *progress = manager()->progress();
    VTProgressDoProgressBeginStage(progress, 1, nullptr, 1000000);
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(VTProgressDoProgressUpdateStage(progress, ++step));
    }
    manager()->endProgress();
}

// The same without a manager behind the object.
void bareCall(benchmark::State &state)
{
    __VTProgress *progress = VTProgressCreate();
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(VTProgressDoProgressUpdateStage(progress, ++step));
    }
    VTProgressRelease(progress);
}

} // namespace

void registerProgress()
{
    benchmark::RegisterBenchmark("progressCall/throttled", call, VantraProgressTypeDefault);
    benchmark::RegisterBenchmark("progressCall/bare", bareCall);
    benchmark::RegisterBenchmark("progressCall/shown", call, VantraProgressTypeUnthrottled);
}

} // namespace Bench
