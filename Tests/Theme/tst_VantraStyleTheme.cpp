#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QMetaEnum>
#include <QtGui/QFontMetrics>

namespace {

using P = VantraPalette;

constexpr auto kNormal = P::Normal;

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
    inTheme.fontPalette().adjustFont(kNormal, P::ButtonText, nullptr, font, false);
    return font.pointSize();
}

QByteArray stockFile(const QString &inName)
{
    QFile file(QString(":/VTWidgets/Themes/%1.json").arg(inName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

P::PaletteRole roleNamed(const QString &inName)
{
    return static_cast<P::PaletteRole>(
        QMetaEnum::fromType<P::PaletteRole>().keyToValue(inName.toLatin1().constData()));
}

// Normal, highlighted and disabled entries of a role.
struct StockRow
{
    const char *name;
    const char *colors;
    const char *fonts;
};

const char *const kNone = "none, none, none";

const StockRow kStockRows[] = {
    {"Accent", "#ff047aff none #ff35383d", kNone},
    {"ButtonBackground", "#ff1c1c1c #ff1c1c1c #ff232323", kNone},
    {"AccentButtonText", "#fff8f8f8 #ffffffff #ffc8c8c8", "11 400, 11 900, 11 400"},
    {"OverlayMenuLine", "#c83c3c3c #c83c3c3c #c83c3c3c", kNone},
    {"ComboBoxText", "#ffeeeeee #fffcfcfc #ff737373", "11 500, 11 900, 11 500"},
    {"ModuleToolButtonText", "#ffaaaaaa #ff047aff #ff737373", "9 400, 9 900, 9 400"},
    {"TabButtonText", "#ffaaaaaa #ffeeeeee #ff737373", "12 400, 14 900, 12 400"},
    {"ViewItemBackground", "none #ff35383d #ff35383d", kNone},
};

} // namespace

class tst_VantraStyleTheme : public QObject
{
    Q_OBJECT

private slots:
    void stockFilesAreComplete()
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
        for (int role = 0; role <= P::SplitterHandle; ++role) {
            roles += colors.contains(P::Disabled, static_cast<P::PaletteRole>(role)) ? 1 : 0;
        }
        QCOMPARE(roles, 64);
    }

    void stockEntries_data() { DataRows::add(kStockRows); }
    void stockEntries()
    {
        const StockRow row = DataRows::current(kStockRows);
        QVERIFY(ThemeFixture::load("blue"));
        const VantraStyleTheme &theme = VantraStyleTheme::instance();
        const auto role = roleNamed(row.name);
        QStringList colors, fonts;
        for (const auto group : {kNormal, P::Highlighted, P::Disabled}) {
            QFont font("Roboto", 5);
            const QColor color = theme.colorPalette().color(group, role);
            const bool changed = theme.fontPalette().adjustFont(group, role, nullptr, font, false);
            colors << (theme.colorPalette().contains(group, role) ? color.name(QColor::HexArgb) : "none");
            fonts << (changed ? QString("%1 %2").arg(font.pointSize()).arg(font.weight()) : "none");
        }
        QCOMPARE(colors.join(' '), QString(row.colors));
        QCOMPARE(fonts.join(", "), QString(row.fonts));
    }

    void anotherAccentLeavesNoTrace()
    {
        VantraStyleTheme fresh;
        QVERIFY(fresh.loadConfig(":/VTWidgets/Themes/base.json", ":/VTWidgets/Themes/red.json"));
        QVERIFY(ThemeFixture::load("blue"));
        QVERIFY(ThemeFixture::load("red"));
        const VantraColorPalette &changed = VantraStyleTheme::instance().colorPalette();
        QCOMPARE(changed.color(kNormal, P::ProgressBarContents), QColor(234, 71, 68));
        for (int role = 0; role <= P::SplitterHandle; ++role) {
            for (const auto group : {P::Normal, P::Disabled, P::Highlighted}) {
                const auto wanted = static_cast<P::PaletteRole>(role);
                QCOMPARE(changed.color(group, wanted), fresh.colorPalette().color(group, wanted));
            }
        }
    }

    void missingStockThemeChangesNothing()
    {
        QVERIFY(ThemeFixture::load("orange"));
        QVERIFY(!VantraStyleTheme::loadGlobalConfig("base", "mauve"));
        QVERIFY(!VantraStyleTheme::loadGlobalConfig("bass", "blue"));
        QCOMPARE(VantraStyleTheme::instance().accentColor(QPalette::Active), QColor(254, 129, 43));
        QVERIFY(VantraStyleTheme::loadGlobalConfig("blue", "base")); // the base's palette wins
        QCOMPARE(VantraStyleTheme::instance().accentColor(QPalette::Active), QColor(4, 122, 255));
    }

    void loads_data()
    {
        QTest::addColumn<QByteArray>("first"); // null: no such file
        QTest::addColumn<QByteArray>("second");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QColor>("accent"); // an alias of the second file
        QTest::addColumn<QColor>("text");   // a literal of the first
        QTest::addColumn<int>("fontSize");  // 31 before, 32 in the first file

        const QByteArray base = "{" + kPalette + "," + kFonts + "}";
        const QByteArray deep =
            "{'color_palette': " + QByteArray(5000000, '[') + QByteArray(5000000, ']') + "}";
        const QColor four(4, 4, 4);
        const auto row = [](const char *inName, const QByteArray &inFirst, const QByteArray &inSecond,
                            bool inResult, const QColor &inAccent, const QColor &inText, int inFontSize) {
            QTest::newRow(inName) << quoted(inFirst) << quoted(inSecond) << inResult << inAccent << inText
                                  << inFontSize;
        };
        const QByteArray none, empty("");
        row("both well formed", base, kAccentFile, true, kAccent, kBase, 32);
        row("no second file", base, none, false, kEarlier, kEarlier, 31);
        row("zeros", QByteArray(64, '\0'), QByteArray(64, '\xff'), true, kEarlier, kEarlier, 31);
        row("first without its end", base.chopped(1), kAccentFile, true, kEarlier, kEarlier, 31);
        row("first invalid, second malformed", "{", "{'color_palette': [5]}", false, kEarlier, kEarlier, 31);
        row("second invalid", base, "{'color_aliases': {'A': [3}}", true, kEarlier, kBase, 32);
        row("nested without end", deep, deep, true, kEarlier, kEarlier, 31);
        row("colours are an object", "{'color_palette': {}," + kFonts + "}", kAccentFile, true, kEarlier,
            kEarlier, 32);
        row("colour element in the second file", base,
            "{'color_aliases': {'A': [3]}, 'color_palette': ['x', {'role': 'WindowText', 'group': 'Normal',"
            "'color': [4]}]}",
            false, kAccent, kBase, 31);
        row("fonts are a text", "{" + kPalette + ", 'font_palette': 'x'}", kAccentFile, false, kAccent, kBase,
            31);
        row("font element", "{" + kPalette + "," + kFonts.chopped(1) + ", null]}", kAccentFile, false,
            kAccent, kBase, 32);
        row("alias and entry of the second file win", "{'color_aliases': {'A': [9]}," + kPalette + "}",
            "{'color_aliases': {'A': [3]},'color_palette': [{'role': 'WindowText', 'group': 'Normal',"
            "'color': [4]}]}",
            true, kAccent, four, 31);
    }

    void loads()
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
        QTEST(theme.colorPalette().color(kNormal, P::Accent), "accent");
        QTEST(theme.colorPalette().color(kNormal, P::WindowText), "text");
        QTEST(fontSize(theme), "fontSize");
    }

    void anyTruncationCountsAsEmpty()
    {
        const QByteArray whole = stockFile("base").trimmed();
        QVERIFY(!whole.isEmpty());
        const ThemeFixture::Files files;
        VantraStyleTheme theme;
        for (qsizetype length = 0; length < whole.size(); length += 61) {
            const QString path = files.write("base.json", whole.left(length));
            QVERIFY(theme.loadConfig(path, ":/VTWidgets/Themes/blue.json"));
            QVERIFY(!theme.colorPalette().contains(kNormal, P::HighlightedText));
            QCOMPARE(fontSize(theme), 5);
        }
    }

    void breaksLines()
    {
        QVERIFY(ThemeFixture::load());
        const QFontMetrics metrics(VantraFont::mainFont());
        // The second text is the widest that fits; where it is empty, nothing does.
        const auto broken = [&](const QString &inText, const QString &inWidest) {
            return VantraStyleTheme::insertNewlines(metrics, metrics.horizontalAdvance(inWidest), inText);
        };
        QCOMPARE(broken("", "aa"), QString());
        QCOMPARE(broken("aaaaaaaaaa", "aa"), QString("aaaaaaaaaa"));
        QCOMPARE(broken("aa bb", "aa bb cc"), QString("aa bb"));
        QCOMPARE(broken("aa bb cc", "aa bb"), QString("aa bb cc")); // the last word stays
        QCOMPARE(broken("aa bb cc ", "aa bb"), QString("aa bb\ncc "));
        QCOMPARE(broken("aa\tbb\u2003cc\u00a0", "aa\tbb"), QString("aa\tbb\ncc\u00a0")); // any white space
        QCOMPARE(broken("aaaa bb", ""), QString("\naaa bb"));
        QCOMPARE(broken("aa bb cc dd ee ff ", "aa bb"),
                 QString("aa bb\n\nc dd ee ff ")); // scans on behind a cut
    }
};

FATAL_TEST_MAIN(tst_VantraStyleTheme)
#include "tst_VantraStyleTheme.moc"
