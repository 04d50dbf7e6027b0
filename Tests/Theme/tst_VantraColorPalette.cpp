#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraColorPalette.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtWidgets/QWidget>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

using P = VantraPalette;

std::atomic<int> sAllocations = 0;

QJsonObject config(const QByteArray &inEntries)
{
    return ThemeFixture::json(
        "{'color_aliases': {'Known': [7, 8, 9], 'Chained': 'Known'}, 'color_palette': [" + inEntries + "]}");
}

struct ColorRow
{
    const char *name;
    const char *value;
    QColor expected; // invalid: the entry is skipped and an earlier one stays
};

const ColorRow kColorRows[] = {
    {"no component", "[]", QColor()},
    {"grey", "[10]", QColor(10, 10, 10)},
    {"opaque", "[1, 2, 3]", QColor(1, 2, 3)},
    {"with alpha", "[1, 2, 3, 4]", QColor(1, 2, 3, 4)},
    {"too large", "[300, 0, 0]", QColor()},
    {"negative alpha", "[0, 0, 0, -1]", QColor()},
    {"texts and fractions count as 0", "['7', 1.5, 3]", QColor(0, 0, 3)},
    {"alias", "'Known'", QColor(7, 8, 9)},
    {"missing alias", "'Unknown'", QColor()},
    {"alias of an alias", "'Chained'", QColor()},
};

const QColor kGroupColors[] = {QColor(1, 1, 1), QColor(2, 2, 2), QColor(), QColor(3, 3, 3)};
const QColor kN = kGroupColors[P::Normal];
const QColor kD = kGroupColors[P::Disabled];
const QColor kH = kGroupColors[P::Highlighted];
const QColor kAsItWas(Qt::magenta);

struct AdjustRow
{
    const char *name;
    P::PaletteGroup group;
    const char *present; // first letters of the groups that have an entry
    QColor active;
    QColor disabled;
};

const AdjustRow kAdjustRows[] = {
    {"normal", P::Normal, "NDH", kN, kD},
    {"highlighted", P::Highlighted, "NDH", kH, kD},
    {"disabled", P::Disabled, "NDH", kN, kD},
    {"no highlighted entry", P::Highlighted, "ND", kN, kD},
    {"only highlighted, wanted", P::Highlighted, "H", kH, kAsItWas},
    {"only disabled", P::Normal, "D", kAsItWas, kD},
};

} // namespace

// Counted in this program alone, to see that reading a colour takes none.
void *operator new(std::size_t inSize)
{
    ++sAllocations;
    void *memory = std::malloc(inSize);
    return memory != nullptr ? memory : throw std::bad_alloc();
}

void *operator new(std::size_t inSize, const std::nothrow_t &) noexcept
{
    ++sAllocations;
    return std::malloc(inSize);
}

void operator delete(void *ioMemory) noexcept
{
    std::free(ioMemory);
}

void operator delete(void *ioMemory, std::size_t) noexcept
{
    std::free(ioMemory);
}

class tst_VantraColorPalette : public QObject
{
    Q_OBJECT

private slots:
    void readsAColour_data() { DataRows::add(kColorRows); }
    void readsAColour()
    {
        const ColorRow row = DataRows::current(kColorRows);
        const QColor earlier(99, 98, 97);
        VantraColorPalette palette;
        palette.setColor(P::Disabled, P::FrameLine, earlier);
        QVERIFY(palette.loadConfig(
            config("{'role': 'FrameLine', 'group': 'Disabled', 'color': " + QByteArray(row.value) + "}")));
        QCOMPARE(palette.brush(P::Disabled, P::FrameLine),
                 QBrush(row.expected.isValid() ? row.expected : earlier, Qt::SolidPattern));
    }

    void laterEntryWins()
    {
        VantraColorPalette palette;
        QVERIFY(palette.loadConfig(config("{'role': 'Accent', 'group': 'Normal', 'color': [1]},"
                                          "{'role': 'Accent', 'group': 'Normal', 'color': [2]},"
                                          "{'role': 'WindowText', 'group': 'Normal', 'color': [3]}")));
        QCOMPARE(palette.color(P::Normal, P::Accent), QColor(2, 2, 2));
        QVERIFY(palette.loadConfig(config("{'role': 'Accent', 'group': 'Normal', 'color': [4]}")));
        QCOMPARE(palette.color(P::Normal, P::Accent), QColor(4, 4, 4));
        QCOMPARE(palette.color(P::Normal, P::WindowText), QColor(3, 3, 3));
    }

    void unknownWordIsOutOfReach()
    {
        VantraColorPalette palette;
        QVERIFY(palette.loadConfig(config("{'role': 'Accent', 'group': 'normal', 'color': [1, 2, 3]}")));
        QVERIFY(!palette.contains(P::Normal, P::Accent));
        QJsonObject saved;
        QVERIFY(palette.saveConfig(saved));
        QCOMPARE(saved.value("color_palette").toArray().at(0).toObject().value("group").toString("?"),
                 QString());
    }

    void reportsAMalformedPalette()
    {
        VantraColorPalette palette;
        for (const char *text : {"{}", "{'color_palette': {}}", "{'color_palette': null}"}) {
            QVERIFY2(!palette.loadConfig(ThemeFixture::json(text)), text);
        }
        QVERIFY(!palette.loadConfig(config("{'role': 'Accent', 'group': 'Normal', 'color': [1]}, 5,"
                                           "{'role': 'WindowText', 'group': 'Normal', 'color': [2]}")));
        QVERIFY(palette.contains(P::Normal, P::Accent) && !palette.contains(P::Normal, P::WindowText));
    }

    void colourSetOnPurposeWins()
    {
        VantraColorPalette theme;
        theme.setColor(P::Normal, P::ButtonText, Qt::blue);
        theme.setColor(P::Disabled, P::ButtonText, Qt::gray);
        QPalette palette = QGuiApplication::palette();
        const auto color = [&](P::PaletteGroup inGroup) {
            return theme.color(inGroup, P::ButtonText, QPalette::ButtonText, palette);
        };
        QCOMPARE(color(P::Normal), QColor(Qt::blue));
        QCOMPARE(color(P::Highlighted), QColor(Qt::red));

        palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::green);
        palette.setColor(QPalette::Inactive, QPalette::ButtonText, Qt::yellow);
        QCOMPARE(color(P::Normal), QColor(Qt::green));
        QCOMPARE(color(P::Highlighted), QColor(Qt::green));
        QCOMPARE(color(P::Disabled), QColor(Qt::gray));
    }

    void adjustsAllColourGroups_data() { DataRows::add(kAdjustRows); }
    void adjustsAllColourGroups()
    {
        const AdjustRow row = DataRows::current(kAdjustRows);
        VantraColorPalette theme;
        for (const auto group : {P::Normal, P::Disabled, P::Highlighted}) {
            if (QByteArray(row.present).contains("ND?H"[group])) {
                theme.setColor(group, P::TabBarText, kGroupColors[group]);
            }
        }
        QWidget widget;
        QPalette palette = widget.palette();
        palette.setColor(QPalette::Text, kAsItWas);
        widget.setPalette(palette);
        palette = widget.palette();
        theme.adjustPalette(row.group, P::TabBarText, QPalette::Text, &widget, palette);
        QCOMPARE(palette.color(QPalette::Active, QPalette::Text), row.active);
        QCOMPARE(palette.color(QPalette::Inactive, QPalette::Text), row.active);
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::Text), row.disabled);
        palette.setBrush(QPalette::All, QPalette::Text, widget.palette().brush(QPalette::Text));
        QCOMPARE(palette, widget.palette()); // no other role was touched
    }

    void everyChangeIsSeenAtOnce()
    {
        // The same question with the same palette, again and again.
        VantraColorPalette theme;
        const QWidget widget;
        const auto adjusted = [&] {
            QPalette palette = widget.palette();
            theme.adjustPalette(P::Normal, P::Accent, QPalette::Text, &widget, palette);
            return palette.color(QPalette::Active, QPalette::Text);
        };
        theme.setColor(P::Normal, P::Accent, Qt::blue);
        QCOMPARE(adjusted(), QColor(Qt::blue));
        theme.setColor(P::Normal, P::Accent, Qt::green);
        QCOMPARE(adjusted(), QColor(Qt::green));
        QVERIFY(theme.loadConfig(config("{'role': 'Accent', 'group': 'Normal', 'color': [4]}")));
        QCOMPARE(adjusted(), QColor(4, 4, 4));
    }

    // A group that no theme file can name still isn't the group of another role.
    void pairsAreKeptApart()
    {
        VantraColorPalette theme;
        theme.setColor(P::Highlighted, P::Accent, Qt::blue);
        const QPalette start(Qt::magenta);
        const auto adjusted = [&](P::PaletteGroup inGroup, int inRole) {
            QPalette palette = start;
            theme.adjustPalette(inGroup, static_cast<P::PaletteRole>(inRole), QPalette::Text, nullptr,
                                palette);
            return palette.color(QPalette::Active, QPalette::Text);
        };
        QCOMPARE(adjusted(P::Highlighted, P::Accent), QColor(Qt::blue));
        QCOMPARE(adjusted(static_cast<P::PaletteGroup>(-1), P::Accent + 1),
                 start.color(QPalette::Active, QPalette::Text));
    }

    void texturesEndWithTheirPalette()
    {
        VantraColorPalette theme;
        theme.setColor(P::Normal, P::Accent, Qt::blue);
        QPixmap texture(8, 8);
        texture.fill(Qt::green);
        {
            QPalette palette;
            palette.setBrush(QPalette::Window, QBrush(texture));
            const QPalette start = palette;
            theme.adjustPalette(P::Normal, P::Accent, QPalette::Text, nullptr, palette);
            QCOMPARE(palette.color(QPalette::Active, QPalette::Text), QColor(Qt::blue));
            QCOMPARE(palette.brush(QPalette::Window), start.brush(QPalette::Window));
            QVERIFY(!texture.isDetached());
        }
        QVERIFY(texture.isDetached());
    }

    void leavesAPaletteThatWasChanged()
    {
        VantraColorPalette theme;
        theme.setColor(P::Normal, P::ButtonText, Qt::blue);
        const QWidget widget;
        QPalette changed = widget.palette();
        changed.setColor(QPalette::Active, QPalette::Text, Qt::green);

        QPalette palette = changed;
        theme.adjustPalette(P::Highlighted, P::ButtonText, QPalette::Text, &widget, palette);
        QCOMPARE(palette, changed);
        theme.adjustPalette(P::Disabled, P::ButtonText, QPalette::Text, &widget, palette);
        QCOMPARE(palette.color(QPalette::Active, QPalette::Text), QColor(Qt::blue)); // disabled still agreed
        palette = changed;
        theme.adjustPalette(P::Normal, P::ButtonText, QPalette::Text, nullptr, palette);
        QCOMPARE(palette.color(QPalette::Active, QPalette::Text), QColor(Qt::blue));
    }

    void savedColoursComeBackOpaque()
    {
        VantraColorPalette palette;
        palette.setColor(P::Disabled, P::ButtonBackground, QColor(1, 2, 3));
        palette.setBrush(P::Normal, P::MenuLine, QBrush(QColor(0, 0, 0, 0), Qt::Dense4Pattern));
        QJsonObject saved = config("{'role': 'Accent', 'group': 'Normal', 'color': [4]}");
        QVERIFY(palette.saveConfig(saved)); // appends to what was there
        QCOMPARE(saved.value("color_aliases").toObject().keys(),
                 QStringList({"ButtonBackgroundDisabledColor", "Chained", "Known", "MenuLineNormalColor"}));
        VantraColorPalette loaded;
        QVERIFY(loaded.loadConfig(saved));
        QCOMPARE(loaded.color(P::Normal, P::Accent), QColor(4, 4, 4));
        QCOMPARE(loaded.brush(P::Disabled, P::ButtonBackground), QBrush(QColor(1, 2, 3)));
        QCOMPARE(loaded.brush(P::Normal, P::MenuLine), QBrush(QColor(0, 0, 0)));
    }

    void lookupsDoNotAllocate()
    {
#if defined(Q_OS_WIN)
        QSKIP("an operator new of this program doesn't reach another library here");
#endif
        VantraColorPalette palette;
        palette.setColor(P::Normal, P::Accent, Qt::blue);
        palette.color(P::Normal, P::WindowText); // makes the red, once
        int seen = 0;
        const int before = sAllocations;
        for (int role = 0; role <= P::SplitterHandle; ++role) {
            const auto wanted = static_cast<P::PaletteRole>(role);
            seen += palette.color(P::Normal, wanted) == QColor(Qt::blue) ? 1 : 0;
            seen += palette.brush(P::Normal, wanted).color() == QColor(Qt::blue) ? 1 : 0;
        }
        const int during = sAllocations - before;
        QCOMPARE(seen, 2);
        QCOMPARE(during, 0);
        palette.setBrush(P::Normal, P::Accent, QBrush(Qt::green, Qt::Dense3Pattern));
        QVERIFY2(sAllocations > before, "allocations aren't counted here, so their absence means nothing");
    }
};

FATAL_TEST_MAIN(tst_VantraColorPalette)
#include "tst_VantraColorPalette.moc"
