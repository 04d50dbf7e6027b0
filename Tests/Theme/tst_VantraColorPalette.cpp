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

std::atomic<int> sAllocations = 0;

struct ColorRow
{
    const char *name;
    const char *value;
    QColor expected; // invalid: the entry is skipped and an earlier one stays
};

const ColorRow kColorRows[] = {
    {"no component", "[]", QColor()},
    {"grey", "[10]", QColor(10, 10, 10)},
    {"two components", "[10, 20]", QColor()},
    {"opaque", "[1, 2, 3]", QColor(1, 2, 3)},
    {"with alpha", "[1, 2, 3, 4]", QColor(1, 2, 3, 4)},
    {"more than four", "[1, 2, 3, 4, 5]", QColor(1, 2, 3, 4)},
    {"too large", "[300, 0, 0]", QColor()},
    {"negative alpha", "[0, 0, 0, -1]", QColor()},
    {"texts and fractions count as 0", "['7', 1.5, 3]", QColor(0, 0, 3)},
    {"alias", "'Known'", QColor(7, 8, 9)},
    {"missing alias", "'Unknown'", QColor()},
    {"alias of an alias", "'Chained'", QColor()},
    {"number", "5", QColor()},
    {"object", "{'a': [1, 2, 3]}", QColor()},
};

const QColor kGroupColors[] = {QColor(1, 1, 1), QColor(2, 2, 2), QColor(), QColor(3, 3, 3)};
const QColor kN = kGroupColors[VantraPalette::Normal];
const QColor kD = kGroupColors[VantraPalette::Disabled];
const QColor kH = kGroupColors[VantraPalette::Highlighted];
const QColor kAsItWas(Qt::magenta);

struct AdjustRow
{
    const char *name;
    VantraPalette::PaletteGroup group;
    const char *present; // first letters of the groups that have an entry
    QColor active;
    QColor disabled;
};

const AdjustRow kAdjustRows[] = {
    {"normal", VantraPalette::Normal, "NDH", kN, kD},
    {"highlighted", VantraPalette::Highlighted, "NDH", kH, kD},
    {"disabled", VantraPalette::Disabled, "NDH", kN, kD},
    {"no highlighted entry", VantraPalette::Highlighted, "ND", kN, kD},
    {"only highlighted, wanted", VantraPalette::Highlighted, "H", kH, kAsItWas},
    {"only highlighted, not wanted", VantraPalette::Normal, "H", kAsItWas, kAsItWas},
    {"only disabled", VantraPalette::Normal, "D", kAsItWas, kD},
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
    void missingPairIsRed();
    void readsAColour_data() { DataRows::add(kColorRows); }
    void readsAColour();
    void laterEntryWins();
    void unknownWordIsOutOfReach();
    void reportsAMalformedPalette();
    void colourSetOnPurposeWins();
    void adjustsAllColourGroups_data() { DataRows::add(kAdjustRows); }
    void adjustsAllColourGroups();
    void leavesAPaletteThatWasChanged();
    void savedColoursComeBackOpaque();
    void movedFromIsEmpty();
    void lookupsDoNotAllocate();
};

void tst_VantraColorPalette::missingPairIsRed()
{
    VantraColorPalette palette;
    QCOMPARE(palette.brush(VantraPalette::Normal, VantraPalette::DefaultRole), QBrush(Qt::red));
    palette.setColor(VantraPalette::Normal, VantraPalette::Accent, Qt::blue);
    QCOMPARE(palette.color(VantraPalette::Normal, VantraPalette::Accent), QColor(Qt::blue));
    QCOMPARE(palette.color(VantraPalette::Highlighted, VantraPalette::Accent), QColor(Qt::red));
    QVERIFY(!palette.contains(VantraPalette::Disabled, VantraPalette::Accent));
}

void tst_VantraColorPalette::readsAColour()
{
    const ColorRow row = DataRows::current(kColorRows);
    const QColor earlier(99, 98, 97);
    VantraColorPalette palette;
    palette.setColor(VantraPalette::Disabled, VantraPalette::FrameLine, earlier);
    QVERIFY(palette.loadConfig(
        ThemeFixture::json("{'color_aliases': {'Known': [7, 8, 9], 'Chained': 'Known'},"
                           " 'color_palette': [{'role': 'FrameLine', 'group': 'Disabled', 'color': " +
                           QByteArray(row.value) + "}]}")));
    QCOMPARE(palette.brush(VantraPalette::Disabled, VantraPalette::FrameLine),
             QBrush(row.expected.isValid() ? row.expected : earlier, Qt::SolidPattern));
}

void tst_VantraColorPalette::laterEntryWins()
{
    VantraColorPalette palette;
    QVERIFY(
        palette.loadConfig(ThemeFixture::json("{'color_palette': ["
                                              "{'role': 'Accent', 'group': 'Normal', 'color': [1, 1, 1]},"
                                              "{'role': 'Accent', 'group': 'Normal', 'color': [2, 2, 2]},"
                                              "{'role': 'WindowText', 'group': 'Normal', 'color': [3]}]}")));
    QCOMPARE(palette.color(VantraPalette::Normal, VantraPalette::Accent), QColor(2, 2, 2));
    QVERIFY(palette.loadConfig(
        ThemeFixture::json("{'color_palette': [{'role': 'Accent', 'group': 'Normal', 'color': [4]}]}")));
    QCOMPARE(palette.color(VantraPalette::Normal, VantraPalette::Accent), QColor(4, 4, 4));
    QCOMPARE(palette.color(VantraPalette::Normal, VantraPalette::WindowText), QColor(3, 3, 3));
}

void tst_VantraColorPalette::unknownWordIsOutOfReach()
{
    VantraColorPalette palette;
    QVERIFY(palette.loadConfig(
        ThemeFixture::json("{'color_palette': ["
                           "{'role': 'Accent', 'group': 'normal', 'color': [1, 2, 3]}]}")));
    for (const auto group : {VantraPalette::Normal, VantraPalette::Disabled, VantraPalette::Highlighted}) {
        QVERIFY(!palette.contains(group, VantraPalette::Accent));
    }
    QJsonObject saved;
    QVERIFY(palette.saveConfig(saved));
    const QJsonObject entry = saved.value("color_palette").toArray().at(0).toObject();
    QCOMPARE(entry.value("role").toString(), QString("Accent"));
    QCOMPARE(entry.value("group"), QJsonValue(QString("")));
}

void tst_VantraColorPalette::reportsAMalformedPalette()
{
    VantraColorPalette palette;
    for (const char *text : {"{}", "{'color_palette': {}}", "{'color_palette': null}"}) {
        QVERIFY2(!palette.loadConfig(ThemeFixture::json(text)), text);
    }
    QVERIFY(!palette.loadConfig(
        ThemeFixture::json("{'color_palette': [{'role': 'Accent', 'group': 'Normal', 'color': [1]}, 5,"
                           "{'role': 'WindowText', 'group': 'Normal', 'color': [2]}]}")));
    QVERIFY(palette.contains(VantraPalette::Normal, VantraPalette::Accent));
    QVERIFY(!palette.contains(VantraPalette::Normal, VantraPalette::WindowText));
}

void tst_VantraColorPalette::colourSetOnPurposeWins()
{
    VantraColorPalette theme;
    theme.setColor(VantraPalette::Normal, VantraPalette::ButtonText, Qt::blue);
    theme.setColor(VantraPalette::Disabled, VantraPalette::ButtonText, Qt::gray);
    QPalette palette = QGuiApplication::palette();
    const auto color = [&](VantraPalette::PaletteGroup inGroup) {
        return theme.color(inGroup, VantraPalette::ButtonText, QPalette::ButtonText, palette);
    };
    QCOMPARE(color(VantraPalette::Normal), QColor(Qt::blue));
    QCOMPARE(color(VantraPalette::Highlighted), QColor(Qt::red));

    palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::green);
    palette.setColor(QPalette::Inactive, QPalette::ButtonText, Qt::yellow);
    QCOMPARE(color(VantraPalette::Normal), QColor(Qt::green));
    QCOMPARE(color(VantraPalette::Highlighted), QColor(Qt::green));
    QCOMPARE(color(VantraPalette::Disabled), QColor(Qt::gray));
}

void tst_VantraColorPalette::adjustsAllColourGroups()
{
    const AdjustRow row = DataRows::current(kAdjustRows);
    VantraColorPalette theme;
    for (const auto group : {VantraPalette::Normal, VantraPalette::Disabled, VantraPalette::Highlighted}) {
        if (QByteArray(row.present).contains("ND?H"[group])) {
            theme.setColor(group, VantraPalette::TabBarText, kGroupColors[group]);
        }
    }
    QWidget widget;
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Text, kAsItWas);
    widget.setPalette(palette);
    palette = widget.palette();
    theme.adjustPalette(row.group, VantraPalette::TabBarText, QPalette::Text, &widget, palette);
    QCOMPARE(palette.color(QPalette::Active, QPalette::Text), row.active);
    QCOMPARE(palette.color(QPalette::Inactive, QPalette::Text), row.active);
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::Text), row.disabled);
    palette.setBrush(QPalette::All, QPalette::Text, widget.palette().brush(QPalette::Text));
    QCOMPARE(palette, widget.palette()); // no other role was touched
}

void tst_VantraColorPalette::leavesAPaletteThatWasChanged()
{
    VantraColorPalette theme;
    theme.setColor(VantraPalette::Normal, VantraPalette::ButtonText, Qt::blue);
    const QWidget widget;
    QPalette changed = widget.palette();
    changed.setColor(QPalette::Active, QPalette::Text, Qt::green);

    QPalette palette = changed;
    theme.adjustPalette(VantraPalette::Highlighted, VantraPalette::ButtonText, QPalette::Text, &widget,
                        palette);
    QCOMPARE(palette, changed);
    theme.adjustPalette(VantraPalette::Disabled, VantraPalette::ButtonText, QPalette::Text, &widget, palette);
    QCOMPARE(palette.color(QPalette::Active, QPalette::Text), QColor(Qt::blue)); // disabled still agreed
    palette = changed;
    theme.adjustPalette(VantraPalette::Normal, VantraPalette::ButtonText, QPalette::Text, nullptr, palette);
    QCOMPARE(palette.color(QPalette::Active, QPalette::Text), QColor(Qt::blue));
}

void tst_VantraColorPalette::savedColoursComeBackOpaque()
{
    VantraColorPalette palette;
    palette.setColor(VantraPalette::Disabled, VantraPalette::ButtonBackground, QColor(1, 2, 3));
    palette.setBrush(VantraPalette::Normal, VantraPalette::MenuLine,
                     QBrush(QColor(0, 0, 0, 0), Qt::Dense4Pattern));
    QJsonObject saved =
        ThemeFixture::json("{'color_palette': [5], 'color_aliases': {'Old': [1]}, 'other': 1}");
    QVERIFY(palette.saveConfig(saved));
    QCOMPARE(saved.value("color_palette").toArray().size(), 3); // appended to what was there
    const QJsonObject aliases = saved.value("color_aliases").toObject();
    QCOMPARE(aliases.keys(), QStringList({"ButtonBackgroundDisabledColor", "MenuLineNormalColor", "Old"}));
    QCOMPARE(aliases.value("ButtonBackgroundDisabledColor").toArray(), QJsonArray({1, 2, 3}));

    saved = QJsonObject();
    palette.saveConfig(saved);
    VantraColorPalette loaded;
    QVERIFY(loaded.loadConfig(saved));
    QCOMPARE(loaded.brush(VantraPalette::Disabled, VantraPalette::ButtonBackground), QBrush(QColor(1, 2, 3)));
    QCOMPARE(loaded.brush(VantraPalette::Normal, VantraPalette::MenuLine), QBrush(QColor(0, 0, 0)));
}

void tst_VantraColorPalette::movedFromIsEmpty()
{
    VantraColorPalette first;
    first.setColor(VantraPalette::Normal, VantraPalette::Accent, Qt::blue);
    VantraColorPalette second(std::move(first));
    QVERIFY(!first.contains(VantraPalette::Normal, VantraPalette::Accent));
    first.setColor(VantraPalette::Normal, VantraPalette::WindowText, Qt::green);
    second = std::move(first);
    QVERIFY(!second.contains(VantraPalette::Normal, VantraPalette::Accent));
    QVERIFY(second.contains(VantraPalette::Normal, VantraPalette::WindowText));
    QVERIFY(!first.contains(VantraPalette::Normal, VantraPalette::WindowText));
}

void tst_VantraColorPalette::lookupsDoNotAllocate()
{
    VantraColorPalette palette;
    palette.setColor(VantraPalette::Normal, VantraPalette::Accent, Qt::blue);
    palette.color(VantraPalette::Normal, VantraPalette::WindowText); // makes the red, once
    int seen = 0;
    const int before = sAllocations;
    for (int role = 0; role <= VantraPalette::SplitterHandle; ++role) {
        const auto wanted = static_cast<VantraPalette::PaletteRole>(role);
        seen += palette.color(VantraPalette::Normal, wanted) == QColor(Qt::blue) ? 1 : 0;
        seen += palette.brush(VantraPalette::Normal, wanted).color() == QColor(Qt::blue) ? 1 : 0;
    }
    const int during = sAllocations - before;
    QCOMPARE(seen, 2);
    QCOMPARE(during, 0);
    palette.setBrush(VantraPalette::Normal, VantraPalette::Accent, QBrush(Qt::green, Qt::Dense3Pattern));
    QVERIFY2(sAllocations > before, "allocations aren't counted here, so their absence means nothing");
}

FATAL_TEST_MAIN(tst_VantraColorPalette)
#include "tst_VantraColorPalette.moc"
