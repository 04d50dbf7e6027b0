#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VTTheme.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QMetaEnum>
#include <QtGui/QFontMetrics>

namespace {

constexpr auto kNormal = VantraPalette::Normal;

// What earlier loads have left, and what the well-formed base of these tests gives.
const QColor kEarlier(1, 1, 1);
const QColor kBase(2, 2, 2);
const QColor kAccent(3, 3, 3);

const QByteArray kEarlierFile = "{'color_palette': [{'role': 'Accent', 'group': 'Normal', 'color': [1]},"
                                "{'role': 'WindowText', 'group': 'Normal', 'color': [1]}],"
                                "'font_palette': [{'role': 'ButtonText', 'group': 'Normal', 'size': 31}]}";
const QByteArray kPalette = "'color_palette': [{'role': 'Accent', 'group': 'Normal', 'color': 'A'},"
                            "{'role': 'WindowText', 'group': 'Normal', 'color': [2]}]";
const QByteArray kFonts = "'font_palette': [{'role': 'ButtonText', 'group': 'Normal', 'size': 32}]";
const QByteArray kAccentFile = "{'color_aliases': {'A': [3]}}";

QByteArray quoted(QByteArray inText)
{
    return inText.replace('\'', '"');
}

int fontSize(const VantraStyleTheme &inTheme)
{
    QFont font("Roboto", 5);
    inTheme.fontPalette().adjustFont(kNormal, VantraPalette::ButtonText, nullptr, font, false);
    return font.pointSize();
}

QByteArray stockFile(const QString &inName)
{
    QFile file(QString(":/VTWidgets/Themes/%1.json").arg(inName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

VantraPalette::PaletteRole roleNamed(const QString &inName)
{
    return static_cast<VantraPalette::PaletteRole>(
        QMetaEnum::fromType<VantraPalette::PaletteRole>().keyToValue(inName.toLatin1().constData()));
}

// Normal, highlighted and disabled entries of a role.
struct StockRow
{
    const char *name;
    const char *expected;
};

const StockRow kStockColors[] = {
    {"DefaultRole", "none none none"},
    {"Accent", "4,122,255 none 53,56,61"},
    {"ButtonBackground", "28,28,28 28,28,28 35,35,35"},
    {"ButtonText", "170,170,170 238,238,238 115,115,115"},
    {"AccentButtonText", "248,248,248 255,255,255 200,200,200"},
    {"TobButtonBackground", "168,168,168 168,168,168 128,128,128"},
    {"RedAccentButtonBackground", "234,71,68 234,71,68 61,53,53"},
    {"OverlayMenuLine", "60,60,60,200 60,60,60,200 60,60,60,200"},
    {"ComboBoxText", "238,238,238 252,252,252 115,115,115"},
    {"ModuleToolButtonText", "170,170,170 4,122,255 115,115,115"},
    {"Checkbox", "4,122,255 170,170,170 141,141,141"},
    {"SliderGrove", "123,123,123 none 123,123,123"},
    {"LineEditBackgroundNone", "0,0,0,0 28,28,28 0,0,0,0"},
    {"ViewItemBackground", "none 53,56,61 53,56,61"},
    {"PaneLine", "60,60,60 46,48,51 60,60,60"},
    {"SubPaneHeaderText", "130,130,130 122,127,131 115,115,115"},
};

const StockRow kStockFonts[] = {
    {"PaneHeaderText", "14 900, 14 900, 14 900"},    {"ListPaneHeaderText", "11 400, 11 900, 14 400"},
    {"TabButtonText", "12 400, 14 900, 12 400"},     {"ComboBoxText", "11 500, 11 900, 11 500"},
    {"ModuleToolButtonText", "9 400, 9 900, 9 400"}, {"LineEditText", "none, none, none"},
};

} // namespace

class tst_VantraStyleTheme : public QObject
{
    Q_OBJECT

private slots:
    void stockFilesAreComplete();
    void stockColours_data() { DataRows::add(kStockColors); }
    void stockColours();
    void stockFonts_data() { DataRows::add(kStockFonts); }
    void stockFonts();
    void anotherAccentLeavesNoTrace();
    void missingStockThemeChangesNothing();
    void loads_data();
    void loads();
    void anyTruncationCountsAsEmpty();
    void breaksLines_data();
    void breaksLines();
};

void tst_VantraStyleTheme::stockFilesAreComplete()
{
    const QJsonObject base = QJsonDocument::fromJson(stockFile("base")).object();
    QCOMPARE(base.value("color_aliases").toObject().size(), 14);
    QCOMPARE(base.value("color_palette").toArray().size(), 178);
    QCOMPARE(base.value("font_palette").toArray().size(), 45);
    for (const char *accent : {"purple", "red", "green", "blue", "orange"}) {
        const QJsonObject file = QJsonDocument::fromJson(stockFile(accent)).object();
        QCOMPARE(file.keys(), QStringList("color_aliases"));
        QCOMPARE(file.value("color_aliases").toObject().size(), 5);
    }

    QVERIFY(ThemeFixture::load("green"));
    QJsonObject saved;
    const VantraColorPalette &colors = VantraStyleTheme::instance().colorPalette();
    QVERIFY(colors.saveConfig(saved));
    QCOMPARE(saved.value("color_palette").toArray().size(), 178);  // so every entry found its colour
    QCOMPARE(saved.value("color_aliases").toObject().size(), 178); // and no pair or word is doubled
    int roles = 0;
    for (int role = 0; role <= VantraPalette::SplitterHandle; ++role) {
        roles +=
            colors.contains(VantraPalette::Disabled, static_cast<VantraPalette::PaletteRole>(role)) ? 1 : 0;
    }
    QCOMPARE(roles, 64);
}

void tst_VantraStyleTheme::stockColours()
{
    const StockRow row = DataRows::current(kStockColors);
    QVERIFY(ThemeFixture::load("blue"));
    const VantraColorPalette &colors = VantraStyleTheme::instance().colorPalette();
    QStringList found;
    for (const auto group : {VantraPalette::Normal, VantraPalette::Highlighted, VantraPalette::Disabled}) {
        const auto role = roleNamed(row.name);
        found << (colors.contains(group, role) ? VTTheme::toString(colors.color(group, role))
                                               : QString("none"));
    }
    QCOMPARE(found.join(' ').remove("rgba").remove(",255)").remove('(').remove(')'), QString(row.expected));
}

void tst_VantraStyleTheme::stockFonts()
{
    const StockRow row = DataRows::current(kStockFonts);
    QVERIFY(ThemeFixture::load());
    const auto role = roleNamed(row.name);
    QStringList fonts;
    for (const auto group : {VantraPalette::Normal, VantraPalette::Highlighted, VantraPalette::Disabled}) {
        QFont font("Roboto", 5);
        const bool changed =
            VantraStyleTheme::instance().fontPalette().adjustFont(group, role, nullptr, font, false);
        fonts << (changed ? QString("%1 %2").arg(font.pointSize()).arg(font.weight()) : QString("none"));
    }
    QCOMPARE(fonts.join(", "), QString(row.expected));
}

void tst_VantraStyleTheme::anotherAccentLeavesNoTrace()
{
    VantraStyleTheme fresh;
    QVERIFY(fresh.loadConfig(":/VTWidgets/Themes/base.json", ":/VTWidgets/Themes/red.json"));
    QVERIFY(ThemeFixture::load("blue"));
    QVERIFY(ThemeFixture::load("red"));
    const VantraColorPalette &changed = VantraStyleTheme::instance().colorPalette();
    QCOMPARE(changed.color(kNormal, VantraPalette::ProgressBarContents), QColor(234, 71, 68));
    for (int role = 0; role <= VantraPalette::SplitterHandle; ++role) {
        for (const auto group :
             {VantraPalette::Normal, VantraPalette::Disabled, VantraPalette::Highlighted}) {
            const auto wanted = static_cast<VantraPalette::PaletteRole>(role);
            QCOMPARE(changed.color(group, wanted), fresh.colorPalette().color(group, wanted));
        }
    }
}

void tst_VantraStyleTheme::missingStockThemeChangesNothing()
{
    QVERIFY(ThemeFixture::load("orange"));
    QVERIFY(!VantraStyleTheme::loadGlobalConfig("base", "mauve"));
    QVERIFY(!VantraStyleTheme::loadGlobalConfig("bass", "blue"));
    QCOMPARE(VantraStyleTheme::instance().accentColor(QPalette::Active), QColor(254, 129, 43));
    QVERIFY(
        VantraStyleTheme::loadGlobalConfig("blue", "base")); // the base's palette wins, its fonts are left
    QCOMPARE(VantraStyleTheme::instance().accentColor(QPalette::Active), QColor(4, 122, 255));
}

void tst_VantraStyleTheme::loads_data()
{
    QTest::addColumn<QByteArray>("first"); // null: no such file
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QColor>("accent"); // an alias of the second file
    QTest::addColumn<QColor>("text");   // a literal of the first
    QTest::addColumn<int>("fontSize");  // 31 before, 32 in the first file

    const QByteArray base = "{" + kPalette + "," + kFonts + "}";
    const QByteArray deep = "{'color_palette': " + QByteArray(5000000, '[') + QByteArray(5000000, ']') + "}";
    const QColor four(4, 4, 4);
    const auto row = [](const char *inName, const QByteArray &inFirst, const QByteArray &inSecond,
                        bool inResult, const QColor &inAccent, const QColor &inText, int inFontSize) {
        QTest::newRow(inName) << quoted(inFirst) << quoted(inSecond) << inResult << inAccent << inText
                              << inFontSize;
    };
    const QByteArray none, empty("");
    row("both well formed", base, kAccentFile, true, kAccent, kBase, 32);
    row("no first file", none, kAccentFile, false, kEarlier, kEarlier, 31);
    row("no second file", base, none, false, kEarlier, kEarlier, 31);
    row("both empty", empty, empty, true, kEarlier, kEarlier, 31);
    row("zeros", QByteArray(64, '\0'), QByteArray(64, '\xff'), true, kEarlier, kEarlier, 31);
    row("first is an array", "[" + base + "]", kAccentFile, true, kEarlier, kEarlier, 31);
    row("first without its end", base.chopped(1), kAccentFile, true, kEarlier, kEarlier, 31);
    row("first invalid, second has colours", "{",
        "{'color_palette': [{'role': 'Accent', 'group': 'Normal', 'color': [4]}]}", true, four, kEarlier, 31);
    row("first invalid, second malformed", "{", "{'color_palette': [5]}", false, kEarlier, kEarlier, 31);
    row("second invalid", base, "{'color_aliases': {'A': [3}}", true, kEarlier, kBase, 32);
    row("nested without end", deep, deep, true, kEarlier, kEarlier, 31);
    row("no colours", "{" + kFonts + "}", kAccentFile, true, kEarlier, kEarlier, 32);
    row("colours are an object", "{'color_palette': {}," + kFonts + "}", kAccentFile, true, kEarlier,
        kEarlier, 32);
    row("aliases are an array", "{'color_aliases': [[3]]," + kPalette + "," + kFonts + "}",
        "{'color_aliases': 3}", true, kEarlier, kBase, 32);
    row("an alias is an object", base, "{'color_aliases': {'A': {}}}", true, kEarlier, kBase, 32);
    row("colour element in the second file", base,
        "{'color_aliases': {'A': [3]}, 'color_palette': ['x', {'role': 'WindowText', 'group': 'Normal',"
        "'color': [4]}]}",
        false, kAccent, kBase, 31);
    row("unknown words",
        "{'color_palette': [{'role': 7, 'group': [], 'color': [9]}, {}], 'font_palette': [{}]}", kAccentFile,
        true, kEarlier, kEarlier, 31);
    row("no fonts", "{" + kPalette + "}", kAccentFile, true, kAccent, kBase, 31);
    row("fonts are a text", "{" + kPalette + ", 'font_palette': 'x'}", kAccentFile, false, kAccent, kBase,
        31);
    row("font element", "{" + kPalette + "," + kFonts.chopped(1) + ", null]}", kAccentFile, false, kAccent,
        kBase, 32);
    row("fonts of the second file", "{" + kPalette + "}", "{'color_aliases': {'A': [3]}," + kFonts + "}",
        true, kAccent, kBase, 31);
    row("alias and entry of the second file win", "{'color_aliases': {'A': [9]}," + kPalette + "}",
        "{'color_aliases': {'A': [3]},'color_palette': [{'role': 'WindowText', 'group': 'Normal',"
        "'color': [4]}]}",
        true, kAccent, four, 31);
}

void tst_VantraStyleTheme::loads()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    const ThemeFixture::Files files;
    const auto path = [&](const QString &inName, const QByteArray &inBytes) {
        return inBytes.isNull() ? files.missing() : files.write(inName, inBytes);
    };
    VantraStyleTheme theme;
    const QString earlier = files.write("earlier.json", quoted(kEarlierFile));
    QVERIFY(theme.loadConfig(earlier, earlier));
    QTEST(theme.loadConfig(path("first.json", first), path("second.json", second)), "result");
    QTEST(theme.colorPalette().color(kNormal, VantraPalette::Accent), "accent");
    QTEST(theme.colorPalette().color(kNormal, VantraPalette::WindowText), "text");
    QTEST(fontSize(theme), "fontSize");
}

void tst_VantraStyleTheme::anyTruncationCountsAsEmpty()
{
    const QByteArray whole = stockFile("base").trimmed();
    QVERIFY(!whole.isEmpty());
    const ThemeFixture::Files files;
    VantraStyleTheme theme;
    for (qsizetype length = 0; length < whole.size(); length += 61) {
        const QString path = files.write("base.json", whole.left(length));
        QVERIFY(theme.loadConfig(path, ":/VTWidgets/Themes/blue.json"));
        QVERIFY(!theme.colorPalette().contains(kNormal, VantraPalette::HighlightedText));
        QCOMPARE(fontSize(theme), 5);
    }
}

void tst_VantraStyleTheme::breaksLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("widest"); // the text that just fits; null: nothing does
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty") << ""
                           << "aa"
                           << "";
    QTest::newRow("without white space") << "aaaaaaaaaa"
                                         << "aa"
                                         << "aaaaaaaaaa";
    QTest::newRow("fits") << "aa bb"
                          << "aa bb cc"
                          << "aa bb";
    QTest::newRow("last word stays") << "aa bb cc"
                                     << "aa bb"
                                     << "aa bb cc";
    QTest::newRow("cut at the last space that fits") << "aa bb cc "
                                                     << "aa bb"
                                                     << "aa bb\ncc ";
    QTest::newRow("any white space") << "aa\tbb\u2003cc\u00a0"
                                     << "aa\tbb"
                                     << "aa\tbb\ncc\u00a0";
    QTest::newRow("first word too wide") << "aaaa bb" << QString() << "\naaa bb";
    QTest::newRow("scan goes on behind a cut") << "aa bb cc dd ee ff "
                                               << "aa bb"
                                               << "aa bb\n\nc dd ee ff ";
}

void tst_VantraStyleTheme::breaksLines()
{
    QVERIFY(ThemeFixture::load());
    QFETCH(QString, text);
    QFETCH(QString, widest);
    const QFontMetrics metrics(VantraFont::mainFont());
    QTEST(VantraStyleTheme::insertNewlines(metrics, metrics.horizontalAdvance(widest), text), "expected");
}

FATAL_TEST_MAIN(tst_VantraStyleTheme)
#include "tst_VantraStyleTheme.moc"
