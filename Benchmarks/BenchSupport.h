#pragma once

// Paired measuring: what is measured and its reference take turns in one run, so that a drifting machine
// drifts for both, and the ratio of their medians is what is printed.

#include <benchmark/benchmark.h>

#include <QtCore/QSize>

#include <functional>
#include <memory>

class QPainter;
class QStyle;
class QWidget;

namespace Bench {

using Work = std::function<void()>;

// How often a paired benchmark takes turns.
constexpr int kRounds = 150;

// Runs both in turns, inBatch calls at a time. Counters: "ratio", of the medians; "reference_ns", the
// reference's median; "target", if above 0, and "met", 1 or 0.
void paired(benchmark::State &state, const Work &inOurs, const Work &inReference, int inBatch,
            double inTarget = 0.0);

// The same for work that depends on the application's style: it runs under a new style of ours and under
// Fusion, one call in turn. Ends with ours.
void pairedApplicationStyles(benchmark::State &state, const Work &inWork, double inTarget);

// A widget with what paints it: made once for our style and once for Fusion.
struct Sample
{
    std::shared_ptr<QWidget> widget;
    std::function<void(QPainter *)> paint;
};
using MakeSample = std::function<Sample(QStyle *)>;

// Paints the sample with our style and with Fusion into a premultiplied ARGB32 image of its size, the format
// of a translucent window. (The plain ARGB32 format takes slow paths of Qt that no window takes.)
void pairedPaint(benchmark::State &state, const MakeSample &inMake, const QSize &inSize, double inTarget);

void registerTheme();
void registerStyle();
void registerStart();
void registerWhole();
void registerControls();
void registerWindow();
void registerProgress();
void registerPhotoDesk();

// Shows a window of controls and a long list under the application's style, and prints the most memory that
// the process has held, in KiB; nothing where the system can't tell.
void printPeakMemory();

} // namespace Bench
