// PhotoDesk's canvas: from a move of a slider to the photo on the screen, with a photo of 24 megapixels.

#include "BenchSupport.h"

#include "Photo.h"
#include "PhotoCanvas.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

namespace Bench {

namespace {

constexpr QSize kPhotoSize(6000, 4000);
constexpr QSize kCanvasSize(1920, 1200);
constexpr double kDragTarget = 50e6; // ns

QImage makePhoto()
{
    QImage image(kPhotoSize, QImage::Format_RGB32);
    QLinearGradient sky(0, 0, kPhotoSize.width(), kPhotoSize.height());
    sky.setColorAt(0.0, Qt::darkBlue);
    sky.setColorAt(0.6, QColor(240, 200, 150));
    sky.setColorAt(1.0, Qt::black);
    QPainter(&image).fillRect(image.rect(), sky);
    return image;
}

// inZoom of 0 is the whole photo.
void sliderDrag(benchmark::State &state, double inZoom, bool inPlaces)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.jpg"));
    if (!makePhoto().save(path)) {
        state.SkipWithError("the photo could not be written");
        return;
    }
    Photo photo(path, kPhotoSize, nullptr);
    PhotoCanvas canvas;
    canvas.resize(kCanvasSize);
    canvas.show();
    canvas.setPhoto(&photo);
    while (canvas.isLoading())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (inZoom > 0.0)
        canvas.setZoom(inZoom);
    QApplication::processEvents();
    PhotoAdjustments adjustments;
    for ([[maybe_unused]] auto _ : state) {
        adjustments.exposure = adjustments.exposure > 1.0 ? -1.0 : adjustments.exposure + 0.01;
        adjustments.saturation = 20.0;
        photo.change(QStringLiteral("Exposure"), adjustments);
        if (inPlaces)
            canvas.setZoom(canvas.zoom() == inZoom ? 1.01 * inZoom : inZoom);
        // The update that the change has asked for.
        QApplication::processEvents();
    }
    state.counters["target_ns"] = kDragTarget;
}

} // namespace

void registerPhotoDesk()
{
    benchmark::RegisterBenchmark("photodesk/slider_24mp_fit", sliderDrag, 0.0, false)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("photodesk/slider_24mp_actual_pixels", sliderDrag, 1.0, false)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("photodesk/zoom_24mp", sliderDrag, 0.6, true)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

} // namespace Bench
