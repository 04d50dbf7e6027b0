// Whole windows: what a user waits for. Each is measured against the same window under Fusion.

#include "BenchSupport.h"

#include "Style/VantraStyle.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStringListModel>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

#include <cstdio>

namespace Bench {

namespace {

constexpr int kControls = 120;
constexpr int kColumns = 8;
constexpr int kRows = 10000;
constexpr int kButtons = 1000;

QWidget *control(int inIndex, QWidget *inParent)
{
    const QString text = QStringLiteral("Control %1").arg(inIndex);
    switch (inIndex % 10) {
    case 0: return new QPushButton(text, inParent);
    case 1: return new QCheckBox(text, inParent);
    case 2: {
        auto *comboBox = new QComboBox(inParent);
        comboBox->addItems({text, QStringLiteral("Other")});
        return comboBox;
    }
    case 3: return new QLineEdit(text, inParent);
    case 4: return new QSpinBox(inParent);
    case 5: {
        auto *slider = new QSlider(Qt::Horizontal, inParent);
        slider->setValue(40);
        return slider;
    }
    case 6: {
        auto *progressBar = new QProgressBar(inParent);
        progressBar->setValue(40);
        return progressBar;
    }
    case 7: return new QLabel(text, inParent);
    case 8: {
        auto *toolButton = new QToolButton(inParent);
        toolButton->setText(text);
        return toolButton;
    }
    default: {
        auto *tabBar = new QTabBar(inParent);
        tabBar->addTab(QStringLiteral("One"));
        tabBar->addTab(QStringLiteral("Two"));
        return tabBar;
    }
    }
}

// Gives a window and all in it a style and its palette, as if the application had that style.
void dress(QWidget *ioWindow, QStyle *inStyle)
{
    QPalette palette = inStyle->standardPalette();
    inStyle->polish(palette);
    QList<QWidget *> widgets = ioWindow->findChildren<QWidget *>();
    widgets.prepend(ioWindow);
    for (QWidget *widget : std::as_const(widgets)) {
        widget->setStyle(inStyle);
        widget->setPalette(palette);
    }
}

std::unique_ptr<QWidget> controlsWindow(QStyle *inStyle)
{
    auto window = std::make_unique<QWidget>();
    auto *layout = new QGridLayout(window.get());
    for (int i = 0; i < kControls; ++i) {
        layout->addWidget(control(i, window.get()), i / kColumns, i % kColumns);
    }
    dress(window.get(), inStyle);
    window->resize(1200, 700);
    window->show();
    QApplication::processEvents();
    return window;
}

void renderTo(QImage &ioImage, QWidget &inWidget)
{
    inWidget.render(&ioImage);
}

void mixedControls(benchmark::State &state)
{
    constexpr double kTarget = 0.7;
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    const std::unique_ptr<QWidget> ours = controlsWindow(QApplication::style());
    const std::unique_ptr<QWidget> reference = controlsWindow(fusion.get());
    QImage image(1200, 700, QImage::Format_ARGB32_Premultiplied);
    paired(
        state, [&] { renderTo(image, *ours); }, [&] { renderTo(image, *reference); }, 2, kTarget);
}

std::unique_ptr<QListView> rowsView(QStyle *inStyle, QAbstractItemModel *inModel)
{
    auto view = std::make_unique<QListView>();
    view->setUniformItemSizes(true);
    view->setModel(inModel);
    dress(view.get(), inStyle);
    view->resize(400, 600);
    view->show();
    QApplication::processEvents();
    return view;
}

// The time is that of a page, the ratio therefore also that of a row: both styles are given the same number
// of rows, as one row of either is as high as the other's within a pixel or so.
void scrolledList(benchmark::State &state)
{
    constexpr double kTarget = 0.65;
    QStringList texts;
    for (int i = 0; i < kRows; ++i) {
        texts.append(QStringLiteral("Row %1 of a long list of pictures").arg(i));
    }
    QStringListModel model(texts);
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    const std::unique_ptr<QListView> ours = rowsView(QApplication::style(), &model);
    const std::unique_ptr<QListView> reference = rowsView(fusion.get(), &model);
    QImage image(400, 600, QImage::Format_ARGB32_Premultiplied);
    const auto rowsOfPage = [](const QListView &view) {
        return view.viewport()->height() / view.sizeHintForRow(0);
    };
    const auto page = [&image](QListView &view) {
        QScrollBar *bar = view.verticalScrollBar();
        bar->setValue(bar->value() + bar->pageStep() < bar->maximum() ? bar->value() + bar->pageStep() : 0);
        renderTo(image, *view.viewport());
    };
    paired(
        state, [&] { page(*ours); }, [&] { page(*reference); }, 2);
    const double rowRatio = state.counters["ratio"] * rowsOfPage(*reference) / rowsOfPage(*ours);
    state.counters["ratio"] = rowRatio;
    state.counters["target"] = kTarget;
    state.counters["met"] = rowRatio <= kTarget ? 1 : 0;
}

void thousandButtons(benchmark::State &state)
{
    constexpr double kTarget = 1.1;
    const auto make = [] {
        QWidget window;
        window.resize(1200, 900);
        for (int i = 0; i < kButtons; ++i) {
            auto *button = new QPushButton(QStringLiteral("Button"), &window);
            button->move((i % 20) * 60, (i / 20) * 18);
        }
        window.show();
        QApplication::processEvents();
    };
    pairedApplicationStyles(state, make, kTarget);
}

void peakMemory(benchmark::State &state)
{
    constexpr double kTarget = 1.15;
    const auto measure = [](const QString &style) {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--peak-memory=") + style});
        child.waitForFinished(-1);
        return child.readAllStandardOutput().trimmed().toDouble();
    };
    double ours = 0.0;
    double reference = 0.0;
    for ([[maybe_unused]] auto _ : state) {
        ours = measure(QStringLiteral("house"));
        reference = measure(QStringLiteral("fusion"));
    }
    if (ours <= 0.0 || reference <= 0.0) {
        state.SkipWithError("no figure from the measured program");
        return;
    }
    state.counters["ours_kib"] = ours;
    state.counters["reference_kib"] = reference;
    state.counters["ratio"] = ours / reference;
    state.counters["target"] = kTarget;
    state.counters["met"] = ours / reference <= kTarget ? 1 : 0;
}

} // namespace

void printPeakMemory()
{
    QStringList texts;
    for (int i = 0; i < kRows; ++i) {
        texts.append(QStringLiteral("Row %1").arg(i));
    }
    QStringListModel model(texts);
    QStyle *style = QApplication::style();
    const std::unique_ptr<QWidget> window = controlsWindow(style);
    const std::unique_ptr<QListView> view = rowsView(style, &model);
    QImage image(1200, 700, QImage::Format_ARGB32_Premultiplied);
    renderTo(image, *window);
    renderTo(image, *view);
    // The peak of this program alone; what rusage tells can be that of the process that started it.
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("VmHWM:")) {
                std::printf("%s\n", line.simplified().split(' ').value(1).constData());
            }
        }
    }
}

void registerWhole()
{
    benchmark::RegisterBenchmark("window/120 controls", mixedControls)
        ->UseManualTime()
        ->Iterations(kRounds)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("list/row of 10000", scrolledList)
        ->UseManualTime()
        ->Iterations(kRounds)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("buttons/1000 shown", thousandButtons)
        ->UseManualTime()
        ->Iterations(25)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("memory/peak", peakMemory)->Iterations(1)->Unit(benchmark::kMillisecond);
}

} // namespace Bench
