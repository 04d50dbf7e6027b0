#include "BenchSupport.h"

#include "StyleOptions/VantraStyleOptionButton.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionTab.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabBar>

namespace Bench {

namespace {

const VantraStyleTheme &theme()
{
    return VantraStyleTheme::instance();
}

void colorLookup(benchmark::State &state)
{
    const VantraColorPalette &palette = theme().colorPalette();
    int role = VantraPalette::WindowBackground;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(
            palette.color(VantraPalette::Normal, static_cast<VantraPalette::PaletteRole>(role)));
        role = role == VantraPalette::SplitterHandle ? VantraPalette::WindowBackground : role + 1;
    }
}

void missingColorLookup(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(
            theme().colorPalette().brush(VantraPalette::Highlighted, VantraPalette::Accent));
    }
}

// A record as a control fills it, adjusted for painting in the given state. The copy belongs to each call, as
// in a paint.
template <typename Record, typename Widget>
void adjust(benchmark::State &state, QStyle::State inState)
{
    Widget widget;
    Record filled;
    filled.initFrom(&widget);
    filled.state = inState;
    for ([[maybe_unused]] auto _ : state) {
        Record record = filled;
        if constexpr (std::is_same_v<Record, VantraStyleOptionTab>) {
            theme().adjustFontAndColor(&record, nullptr, &widget, false);
        } else {
            theme().adjustFontAndColor(&record, &widget, false);
        }
        benchmark::DoNotOptimize(record.palette);
    }
}

template <typename Record, typename Widget>
void registerAdjust(const char *inName)
{
    const std::string name = std::string("adjustFontAndColor/") + inName;
    benchmark::RegisterBenchmark((name + "/normal").c_str(), adjust<Record, Widget>,
                                 QStyle::State(QStyle::State_Enabled | QStyle::State_Active));
    benchmark::RegisterBenchmark(
        (name + "/hovered").c_str(), adjust<Record, Widget>,
        QStyle::State(QStyle::State_Enabled | QStyle::State_Active | QStyle::State_MouseOver));
}

QIcon drawnIcon()
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawEllipse(3, 3, 18, 18);
    painter.end();
    return QIcon(pixmap);
}

QPixmap tint(const QIcon &inIcon, const QColor &inColor)
{
    return theme().tintedPixmap(inIcon, QSize(24, 24), 1.0, QIcon::Normal, QIcon::Off,
                                VantraIconPalette::IconTintingForeground, inColor, Qt::blue);
}

// What a paint of an icon costs when its pixmap is in the cache, against a plain hit with the same key; with
// the blit, which is what a paint makes of it, and without.
void tintedIconHit(benchmark::State &state, bool inWithBlit)
{
    constexpr double kTarget = 1.3;
    const QIcon icon = drawnIcon();
    const QColor color(170, 170, 170);
    const QString key = QStringLiteral("%1-24-24-1-0-1-170-170-170").arg(icon.cacheKey());
    tint(icon, color);
    QPixmap found;
    if (!QPixmapCache::find(key, &found)) {
        state.SkipWithError("the key of a tinted icon is not what the plain hit expects");
        return;
    }
    QImage image(24, 24, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const auto use = [&](const QPixmap &pixmap) {
        if (inWithBlit) {
            painter.drawPixmap(0, 0, pixmap);
        }
        benchmark::DoNotOptimize(pixmap);
    };
    paired(
        state, [&] { use(tint(icon, color)); },
        [&] {
            QPixmap pixmap;
            QPixmapCache::find(key, &pixmap);
            use(pixmap);
        },
        256, inWithBlit ? kTarget : 0.0);
}

void tintedIconMiss(benchmark::State &state)
{
    const QIcon icon = drawnIcon();
    int red = 0;
    for ([[maybe_unused]] auto _ : state) {
        red = (red + 1) % 256;
        if (red == 0) {
            QPixmapCache::clear();
        }
        benchmark::DoNotOptimize(tint(icon, QColor(red, 1, 2)));
    }
}

} // namespace

void registerTheme()
{
    benchmark::RegisterBenchmark("colorLookup", colorLookup);
    benchmark::RegisterBenchmark("colorLookup/missing", missingColorLookup);
    registerAdjust<VantraStyleOptionButton, QPushButton>("Button");
    registerAdjust<VantraStyleOptionComboBox, QPushButton>("ComboBox");
    registerAdjust<VantraStyleOptionViewItem, QLabel>("ViewItem");
    registerAdjust<VantraStyleOptionToolButton, QPushButton>("ToolButton");
    registerAdjust<VantraStyleOptionTab, QTabBar>("Tab");
    registerAdjust<QStyleOptionMenuItem, QMenu>("MenuItem");
    benchmark::RegisterBenchmark("tintedIcon/hit", tintedIconHit, false)
        ->UseManualTime()
        ->Iterations(kRounds);
    benchmark::RegisterBenchmark("tintedIcon/hit+blit", tintedIconHit, true)
        ->UseManualTime()
        ->Iterations(kRounds);
    benchmark::RegisterBenchmark("tintedIcon/miss", tintedIconMiss);
}

} // namespace Bench
