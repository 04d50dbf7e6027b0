#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraFontPalette.h"
#include "VTDpiUtilsPretence.h"

#include <QtCore/QJsonObject>
#include <QtWidgets/QWidget>

namespace {

using P = VantraPalette;

constexpr int kSize = 20; // points, of the font at hand before it is adjusted
constexpr int kWeight = QFont::Light;

// Entries are given without their role, which is ButtonText, and without quotes of their own.
QJsonObject config(const QByteArray &inEntries)
{
    QByteArray text = "{'font_palette': [" + inEntries + "]}";
    text.replace("{'group'", "{'role': 'ButtonText', 'group'");
    return ThemeFixture::json(text);
}

QFont startFont()
{
    QFont font("Roboto", kSize);
    font.setWeight(static_cast<QFont::Weight>(kWeight));
    return font;
}

struct EntryRow
{
    const char *name;
    const char *entry;
    bool stored;
    int size;
    int weight;
};

const EntryRow kEntryRows[] = {
    {"both", "'size': 12, 'weight': 'Black'", true, 12, 900},
    {"neither", "'size': 0", false, kSize, kWeight},
    {"weight alone", "'size': 0, 'weight': 'Black'", true, kSize, 900},
    {"size alone", "'size': 12", true, 12, 1},
    {"unknown weight", "'size': 12, 'weight': 'Heavy'", true, 12, 1},
    {"unknown weight alone", "'weight': 'black'", false, kSize, kWeight},
    {"size as text", "'size': '12'", false, kSize, kWeight},
};

} // namespace

class tst_VantraFontPalette : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { VantraFont::setUserSelectedFontPointSizeModifier(0); }

    void appliesAnEntry_data() { DataRows::add(kEntryRows); }
    void appliesAnEntry()
    {
        const EntryRow row = DataRows::current(kEntryRows);
        VantraFontPalette palette;
        QVERIFY(palette.loadConfig(config("{'group': 'Normal', " + QByteArray(row.entry) + "}")));
        QFont font = startFont();
        QCOMPARE(palette.adjustFont(P::Normal, P::ButtonText, nullptr, font, false), row.stored);
        QCOMPARE(font.pointSize(), row.size);
        QCOMPARE(int(font.weight()), row.weight);
        QVERIFY(!palette.adjustFont(P::Disabled, P::ButtonText, nullptr, font, false));
    }

    void reportsAMalformedPalette()
    {
        const auto sizeAfter = [](const QJsonObject &inObject, bool inResult) {
            VantraFontPalette palette;
            palette.loadConfig(config("{'group': 'Normal', 'size': 9}"));
            const bool result = palette.loadConfig(inObject);
            QFont font = startFont();
            palette.adjustFont(P::Normal, P::ButtonText, nullptr, font, false);
            return result == inResult ? font.pointSize() : -1;
        };
        QCOMPARE(sizeAfter({}, true), 9);
        QCOMPARE(sizeAfter({{"font_palette", QJsonValue()}}, false), 9);
        QCOMPARE(
            sizeAfter(config("{'group': 'Normal', 'size': 12}, 5, {'group': 'Normal', 'size': 13}"), false),
            12);
    }

    void sizeTakesTheUsersModifier()
    {
        VantraFontPalette palette;
        QVERIFY(palette.loadConfig(config("{'group': 'Normal', 'size': 12, 'weight': 'Black'}")));
        VantraFont::setUserSelectedFontPointSizeModifier(4);
        QFont font = startFont();
        QVERIFY(palette.adjustFont(P::Normal, P::ButtonText, nullptr, font, false));
        QCOMPARE(font.pointSize(), 16);
        palette.applyFont(P::Normal, P::ButtonText, font);
        QCOMPARE(font.pointSize(), 16);
        // The sum stays a size, however large the file's number is.
        QVERIFY(palette.loadConfig(config("{'group': 'Normal', 'size': 2147483647}")));
        QVERIFY(palette.adjustFont(P::Normal, P::ButtonText, nullptr, font, false));
        QVERIFY2(font.pointSize() > 16, qPrintable(QString::number(font.pointSize())));
    }

    void whatWasSetOnPurposeSurvives()
    {
        VantraFontPalette palette;
        QVERIFY(palette.loadConfig(config("{'group': 'Normal', 'size': 12, 'weight': 'Black'}")));
        QWidget widget;
        widget.setFont(startFont());
        const auto adjusted = [&](int inSize, int inWeight, bool inLargest) {
            QFont font = startFont();
            font.setPointSize(inSize);
            font.setWeight(static_cast<QFont::Weight>(inWeight));
            const bool changed = palette.adjustFont(P::Normal, P::ButtonText, &widget, font, inLargest);
            return QString("%1 %2 %3")
                .arg(changed ? "changed" : "same")
                .arg(font.pointSize())
                .arg(font.weight());
        };
        for (const bool largest : {false, true}) {
            QCOMPARE(adjusted(kSize, kWeight, largest), QString("changed 12 900"));
            QCOMPARE(adjusted(21, kWeight, largest), QString("changed 21 900"));
            QCOMPARE(adjusted(kSize, QFont::Bold, largest), QString("changed 12 700"));
            QCOMPARE(adjusted(21, QFont::Bold, largest), QString("same 21 700"));
        }
    }

    void everyChangeIsSeenAtOnce()
    {
        // The same question with the same font, again and again.
        VantraFontPalette palette;
        const QFont start = startFont();
        QWidget widget;
        widget.setFont(start);
        const auto adjusted = [&](const QWidget *inWidget) {
            QFont font = start;
            palette.adjustFont(P::Normal, P::ButtonText, inWidget, font, true);
            return font.pointSize();
        };
        QVERIFY(palette.loadConfig(config("{'group': 'Normal', 'size': 12}")));
        QCOMPARE(adjusted(&widget), 12);
        VantraFont::setUserSelectedFontPointSizeModifier(2);
        QCOMPARE(adjusted(&widget), 14);
        {
            const VTDpiUtilsPretence doubled(2.0);
            QCOMPARE(adjusted(&widget), 28);
        }
        QCOMPARE(adjusted(&widget), 14);
        QVERIFY(palette.loadConfig(config("{'group': 'Disabled', 'size': 30}")));
        QCOMPARE(adjusted(&widget), 32);
        widget.setFont(QFont("Roboto", 7));
        QCOMPARE(adjusted(&widget), kSize);
        QCOMPARE(adjusted(nullptr), 32);
        const VantraFontPalette moved(std::move(palette));
        QCOMPARE(adjusted(nullptr), kSize);
        palette = moved;
        QCOMPARE(adjusted(nullptr), 32);
        palette = VantraFontPalette();
        QCOMPARE(adjusted(nullptr), kSize);
    }

    // A group that no theme file can name still isn't the group of another role.
    void pairsAreKeptApart()
    {
        VantraFontPalette palette;
        QVERIFY(palette.loadConfig(config("{'group': 'Highlighted', 'size': 12}")));
        const QFont start = startFont();
        const auto sizeOf = [&](P::PaletteGroup inGroup, int inRole) {
            QFont font = start;
            palette.adjustFont(inGroup, static_cast<P::PaletteRole>(inRole), nullptr, font, true);
            return font.pointSize();
        };
        QCOMPARE(sizeOf(P::Highlighted, P::ButtonText), 12);
        QCOMPARE(sizeOf(static_cast<P::PaletteGroup>(-1), P::ButtonText + 1), kSize);
    }

    void measuresWithTheLargest()
    {
        VantraFontPalette palette;
        QVERIFY(palette.loadConfig(config("{'group': 'Normal', 'size': 11, 'weight': 'Normal'},"
                                          "{'group': 'Highlighted', 'size': 11, 'weight': 'Black'},"
                                          "{'group': 'Disabled', 'size': 14, 'weight': 'Normal'}")));
        QFont font = startFont();
        QVERIFY(palette.adjustFont(P::Normal, P::ButtonText, nullptr, font, true));
        QCOMPARE(font.pointSize(), 14);
        QCOMPARE(font.weight(), QFont::Black);
        font = startFont();
        QVERIFY(palette.adjustFont(P::Normal, P::FrameLine, nullptr, font, true));
        QCOMPARE(font.pointSize(), kSize);
        QCOMPARE(int(font.weight()), 1); // a role without entries ends on the lightest weight
    }
};

FATAL_TEST_MAIN(tst_VantraFontPalette)
#include "tst_VantraFontPalette.moc"
