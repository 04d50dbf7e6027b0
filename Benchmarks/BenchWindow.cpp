#include "BenchSupport.h"

#include "Utilities/VantraSortFilterProxyModel.h"
#include "Window/VantraMainWindow.h"

#include <QtCore/QCollator>
#include <QtCore/QStringListModel>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QMenu>

#include <algorithm>
#include <random>
#include <vector>

namespace Bench {

namespace {

constexpr int kSequenceCount = 2000;
constexpr double kLookupTarget = 1000.0; // ns
constexpr int kTextCount = 100000;
constexpr int kSortRounds = 5;

class KeyWindow : public VantraMainWindow
{
public:
    using VantraMainWindow::shortcutOverrideEvent;

    KeyWindow() : mMenu(new QMenu(this))
    {
        for (int i = 0; i < kSequenceCount; ++i) {
            // Letters of distant scripts, so that no sequence is there twice.
            mMenu->addAction(QString::number(i))->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(0x4e00 + i)));
        }
        registerAboutToTriggerShortcut(mMenu);
    }

private:
    QMenu *mMenu;
};

void shortcutLookup(benchmark::State &state, int inKey)
{
    KeyWindow window;
    QKeyEvent event(QEvent::ShortcutOverride, inKey, Qt::ControlModifier);
    for ([[maybe_unused]] auto _ : state) {
        window.shortcutOverrideEvent(&event);
    }
    state.counters["target_ns"] = kLookupTarget;
}

QStringList mixedTexts()
{
    static const char *const sNames[] = {"IMG_", "img_", "Portrait ", "portrait ", "DSC", "Zürich ", "scan"};
    std::minstd_rand random(1);
    QStringList texts;
    texts.reserve(kTextCount);
    for (int i = 0; i < kTextCount; ++i) {
        texts << QString::fromUtf8(sNames[random() % std::size(sNames)]) +
                     QString::number(random() % 1000000) +
                     (random() % 2 == 0 ? QStringLiteral(".CR3") : QStringLiteral(".cr3"));
    }
    return texts;
}

void sortByKeys(const QStringList &inTexts)
{
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(static_cast<std::size_t>(inTexts.size()));
    for (const QString &text : inTexts) {
        keys.push_back(collator.sortKey(text));
    }
    std::stable_sort(keys.begin(), keys.end());
    benchmark::DoNotOptimize(keys.data());
}

void sortedModel(benchmark::State &state)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QStringList texts = mixedTexts();
    QStringListModel model(texts);
    paired(
        state,
        [&] {
            VantraSortFilterProxyModel proxy;
            proxy.setSourceModel(&model);
            proxy.sort(0);
        },
        [&] { sortByKeys(texts); }, 1);
}

} // namespace

void registerWindow()
{
    benchmark::RegisterBenchmark("window/shortcut/unknown", shortcutLookup, static_cast<int>(Qt::Key_A));
    benchmark::RegisterBenchmark("window/shortcut/notified", shortcutLookup, 0x4e00 + kSequenceCount / 3);
    benchmark::RegisterBenchmark("models/sort of 100000", sortedModel)
        ->UseManualTime()
        ->Iterations(kSortRounds)
        ->Unit(benchmark::kMillisecond);
}

} // namespace Bench
