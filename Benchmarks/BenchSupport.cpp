#include "BenchSupport.h"

#include "Style/VantraStyle.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <chrono>
#include <vector>

namespace Bench {

namespace {

constexpr int kPaintBatch = 64;

double nanosecondsOf(const Work &inWork, int inBatch)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < inBatch; ++i) {
        inWork();
    }
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
    return time.count() / inBatch;
}

double median(std::vector<double> &ioValues)
{
    const auto middle = ioValues.begin() + static_cast<std::ptrdiff_t>(ioValues.size() / 2);
    std::nth_element(ioValues.begin(), middle, ioValues.end());
    return *middle;
}

void report(benchmark::State &state, std::vector<double> &ioOurs, std::vector<double> &ioReference,
            double inTarget)
{
    const double referenceTime = median(ioReference);
    const double ratio = median(ioOurs) / referenceTime;
    state.counters["ratio"] = ratio;
    state.counters["reference_ns"] = referenceTime;
    if (inTarget > 0.0) {
        state.counters["target"] = inTarget;
        state.counters["met"] = ratio <= inTarget ? 1 : 0;
    }
}

} // namespace

void paired(benchmark::State &state, const Work &inOurs, const Work &inReference, int inBatch,
            double inTarget)
{
    // Both fill their caches before they are measured.
    nanosecondsOf(inOurs, inBatch);
    nanosecondsOf(inReference, inBatch);
    std::vector<double> ours;
    std::vector<double> reference;
    for ([[maybe_unused]] auto _ : state) {
        ours.push_back(nanosecondsOf(inOurs, inBatch));
        reference.push_back(nanosecondsOf(inReference, inBatch));
        state.SetIterationTime(ours.back() * 1e-9);
    }
    report(state, ours, reference, inTarget);
}

void pairedApplicationStyles(benchmark::State &state, const Work &inWork, double inTarget)
{
    std::vector<double> ours;
    std::vector<double> reference;
    for ([[maybe_unused]] auto _ : state) {
        QApplication::setStyle(QStringLiteral("Fusion"));
        reference.push_back(nanosecondsOf(inWork, 1));
        QApplication::setStyle(new VantraStyle);
        ours.push_back(nanosecondsOf(inWork, 1));
        state.SetIterationTime(ours.back() * 1e-9);
    }
    report(state, ours, reference, inTarget);
}

void pairedPaint(benchmark::State &state, const MakeSample &inMake, const QSize &inSize, double inTarget)
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    const Sample ours = inMake(QApplication::style());
    const Sample reference = inMake(fusion.get());
    QImage image(inSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paired(
        state, [&] { ours.paint(&painter); }, [&] { reference.paint(&painter); }, kPaintBatch, inTarget);
}

} // namespace Bench
