#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QTest>

namespace {
struct Result
{
    int exitCode;
    QStringList out;
    QString err;

    // What is wrong, without the notes.
    QStringList faults() const { return out.filter(QRegularExpression(QStringLiteral("^(?!\\S+ note: )"))); }
    QStringList notes() const { return out.filter(QStringLiteral(": note: ")); }
};

const char kBaseFile[] = "theme.json";
const char kAccentFile[] = "accent.json";

QByteArray stock(const QString &inName)
{
    QFile file(QStringLiteral(THEMES_FOLDER "/%1.json").arg(inName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &inPath, const QByteArray &inText)
{
    QFile file(inPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(inText), inText.size());
}
} // namespace

class tst_ThemeChecker : public QObject
{
    Q_OBJECT

    // Runs the program that was built beside this test, in the folder of the documents. A platform that
    // doesn't exist ends it as soon as it wants a window system.
    Result run(const QStringList &inArguments, const char *inPlatform = "none-such") const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QLatin1String(inPlatform));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(mFolder.path());
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/vtwidgets-theme"),
                      inArguments);
        if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, {}, process.errorString()};
        return {process.exitCode(),
                QString::fromLocal8Bit(process.readAllStandardOutput())
                    .split(QLatin1Char('\n'), Qt::SkipEmptyParts),
                QString::fromLocal8Bit(process.readAllStandardError())};
    }

    // Checks both documents, with one piece of one of them exchanged.
    Result check(bool inAccent, const QByteArray &inPiece, const QByteArray &inReplacement) const
    {
        QByteArray base = stock(QStringLiteral("base"));
        QByteArray accent = stock(QStringLiteral("blue"));
        QByteArray &edited = inAccent ? accent : base;
        if (edited.count(inPiece) != 1)
            return {-1,
                    {},
                    QStringLiteral("the piece stands in the document %1 times").arg(edited.count(inPiece))};
        edited.replace(inPiece, inReplacement);
        write(mFolder.filePath(QLatin1String(kBaseFile)), base);
        write(mFolder.filePath(QLatin1String(kAccentFile)), accent);
        return run({QStringLiteral("check"), QLatin1String(kBaseFile), QLatin1String(kAccentFile)});
    }

private slots:
    void initTestCase() { QVERIFY(mFolder.isValid()); }

    void findsAPlantedFaultInItsPlace_data()
    {
        QTest::addColumn<bool>("inAccent");
        QTest::addColumn<QByteArray>("piece");
        // A broken bar stands where a finding is expected, in front of the sign that it points at.
        QTest::addColumn<QByteArray>("replacement");
        QTest::addColumn<QStringList>("messages");
        const auto base = [](const char *inName, const char *inPiece, const char *inReplacement,
                             const QStringList &inMessages) {
            QTest::newRow(inName) << false << QByteArray(inPiece) << QByteArray(inReplacement) << inMessages;
        };
        const auto accent = [](const char *inName, const char *inPiece, const char *inReplacement,
                               const QStringList &inMessages) {
            QTest::newRow(inName) << true << QByteArray(inPiece) << QByteArray(inReplacement) << inMessages;
        };

        // Words.
        base("role", R"("role": "MenuLine", "group": "Normal")", R"("role": ¦"MenuLime", "group": "Normal")",
             {"unknown palette role \"MenuLime\"; did you mean \"MenuLine\"?",
              "MenuLine has no colour in group Normal and would be painted red"});
        base("role of a font", R"("MenuItemText", "group": "Normal", "size")",
             R"(¦"Carpet", "group": "Normal", "size")", {"unknown palette role \"Carpet\""});
        base("role without a colour", R"("Accent", "group": "Normal", "color": "AccentColor" })",
             R"("Accent", "group": "Normal", "color": "AccentColor" },
                { "role": ¦"DefaultRole", "group": "Normal", "color": "AccentColor" })",
             {"unknown palette role \"DefaultRole\""});
        base("group", R"("Normal", "color": "PaneHeaderText" },
        { "role": "ListPaneHeaderText")",
             R"(¦"normal", "color": "PaneHeaderText" },
        { "role": "ListPaneHeaderText")",
             {"unknown palette group \"normal\"; did you mean \"Normal\"?",
              "ListPaneHeaderText has no colour in group Normal and would be painted red"});
        base("alias", R"("Accent", "group": "Normal", "color": "AccentColor")",
             R"("Accent", "group": "Normal", "color": ¦"AcentColor")",
             {"unknown alias \"AcentColor\"; did you mean \"AccentColor\"?"});
        base("alias in an unlike spelling", R"("Accent", "group": "Normal", "color": "AccentColor")",
             R"("Accent", "group": "Normal", "color": ¦"#0a7aff")",
             {"unknown alias \"#0a7aff\"; a literal colour is written as [ red, green, blue ]"});
        base("weight", R"("MenuItemText", "group": "Highlighted", "size": 12, "weight": "Black")",
             R"("MenuItemText", "group": "Highlighted", "size": 12, "weight": ¦"black")",
             {"unknown font weight \"black\"; did you mean \"Black\"?"});
        base("key of the document", R"("font_palette")", R"(¦"font_pallete")",
             {"unknown key \"font_pallete\"; did you mean \"font_palette\"?"});
        base("key of an entry", R"("SplitterHandle", "group": "Normal", "color")",
             R"("SplitterHandle", "group": "Normal", ¦"colour")",
             {"unknown key \"colour\"; did you mean \"color\"?"});

        // Shape.
        base("no group", R"({ "role": "SplitterHandle", "group": "Normal", "color": "TextColor" })",
             R"(¦{ "role": "SplitterHandle", "color": "TextColor" })",
             {"entry 176 has no \"group\"",
              "SplitterHandle has no colour in group Normal and would be painted red"});
        base("no components", "[ 28, 28, 28 ]", "¦[]",
             {"a colour has 3 or 4 components, this one has 0; the colour is left out"});
        base("one component", "[ 28, 28, 28 ]", "¦[ 28 ]",
             {"a colour has 3 or 4 components, this one has 1; it is read as a grey"});
        base("two components", "[ 28, 28, 28 ]", "¦[ 28, 28 ]",
             {"a colour has 3 or 4 components, this one has 2; the colour is left out"});
        base("five components in an entry",
             R"("SliderHandle", "group": "Disabled", "color": [ 115, 115, 115 ])",
             R"("SliderHandle", "group": "Disabled", "color": ¦[ 115, 115, 115, 255, 0 ])",
             {"a colour has 3 or 4 components, this one has 5; what follows the fourth is ignored"});
        base("component too large", "[ 28, 28, 28 ]", "[ 28, ¦256, 28 ]",
             {"component 2 is 256, but must be a whole number from 0 to 255; the colour is left out"});
        accent("component below 0", "[ 4, 122, 255 ]", "[ ¦-4, 122, 255 ]",
               {"component 1 is -4, but must be a whole number from 0 to 255; the colour is left out"});
        base("component with a fraction", "[ 28, 28, 28 ]", "[ 28, 28, ¦28.5 ]",
             {"component 3 is 28.5, but must be a whole number from 0 to 255"});
        base("component as a text", "[ 28, 28, 28 ]", R"([ 28, ¦"28", 28 ])",
             {"component 2 is the text \"28\", but must be a whole number from 0 to 255"});
        base("alias of an alias", "[ 28, 28, 28 ]", R"(¦"BackgroundColor")",
             {"\"SunkenBackgroundColor\" is the text \"BackgroundColor\", but must be an array of "
              "components: red, "
              "green, blue and, if translucent, alpha"});
        base("size as a text", R"("MenuItemText", "group": "Normal", "size": 12)",
             R"("MenuItemText", "group": "Normal", "size": ¦"12")",
             {"\"size\" is the text \"12\", but must be a whole number of points"});
        base("colour that is null", R"("SplitterHandle", "group": "Normal", "color": "TextColor")",
             R"("SplitterHandle", "group": "Normal", "color": ¦null)",
             {"\"color\" is null, but must be the name of an alias or an array of components"});
        accent("aliases as an array", R"("color_aliases": {)", R"("color_palette": ¦{}, "color_aliases": {)",
               {"\"color_palette\" is an object, but must be an array of colour entries"});

        // What is overridden, or never read.
        base("entry overridden", R"({ "role": "SplitterHandle", "group": "Normal", "color": "TextColor" })",
             R"(¦{ "role": "SplitterHandle", "group": "Normal", "color": "TextHighlightedColor" },
                { "role": "SplitterHandle", "group": "Normal", "color": "TextColor" })",
             {"the entry of SplitterHandle in group Normal is overridden by a later one in line 195"});
        base("font overridden",
             R"({ "role": "MenuItemText", "group": "Normal", "size": 12, "weight": "Normal" })",
             R"(¦{ "role": "MenuItemText", "group": "Normal", "size": 13, "weight": "Black" },
                { "role": "MenuItemText", "group": "Normal", "size": 12, "weight": "Normal" })",
             {"the entry of MenuItemText in group Normal is overridden by a later one in line 227"});
        base("alias shadowed by the accent", R"("ScrollBarColor": [ 81, 81, 81 ])",
             R"("ScrollBarColor": [ 81, 81, 81 ], ¦"AccentColor": [ 1, 2, 3 ])",
             {"the alias \"AccentColor\" is replaced by that in line 3 of accent.json"});
        base("key twice", R"("ScrollBarColor": [ 81, 81, 81 ])",
             R"("ScrollBarColor": [ 81, 81, 82 ], ¦"ScrollBarColor": [ 81, 81, 81 ])",
             {"the key \"ScrollBarColor\" stands here again; its value in line 8 is lost"});
        accent("fonts in the accent", R"("color_aliases")", R"(¦"font_palette": [], "color_aliases")",
               {"the \"font_palette\" of an accent document is never read"});
        base("font entry without effect",
             R"("MenuItemText", "group": "Normal", "size": 12, "weight": "Normal" })",
             R"("MenuItemText", "group": "Normal", "size": 12, "weight": "Normal" },
                ¦{ "role": "SliderValue", "group": "Normal", "size": 0 })",
             {"the entry sets neither a size nor a weight, and so nothing"});

        // Holes and contrast.
        base("hole",
             R"({ "role": "CategoryViewItemBackground", "group": "Normal", "color": "BackgroundColor" },
        )",
             "¦", {"CategoryViewItemBackground has no colour in group Normal and would be painted red"});
        base("dim text", R"("ViewItemText", "group": "Normal", "color": "TextColor")",
             R"("ViewItemText", "group": "Normal", "color": ¦[ 110, 110, 110 ])",
             {"ViewItemText on CategoryViewItemBackground in group Normal has a contrast of 3.04, below 4.5; "
              "the ground stands in line 76"});
        accent("dim text of the accent", R"("color_aliases")",
               R"("color_palette": [ { "role": "ButtonText", "group": "Normal", "color": ¦[ 60, 60, 60 ] } ],
                "color_aliases")",
               {"ButtonText on ButtonBackground in group Normal has a contrast of 1.54, below 4.5; the "
                "ground stands in line 25 of theme.json"});

        // Syntax, which is all that is told of a document that has it wrong.
        accent("comma missing", "[ 4, 122, 255 ],\n        \"", "[ 4, 122, 255 ]\n        ¦\"",
               {"a comma or \"}\" is expected here"});
        accent("comma too many", "[ 122, 127, 131 ]\n    }", "[ 122, 127, 131 ],\n    ¦}",
               {"a comma stands before this \"}\", but nothing follows it"});
        accent("comment", "[ 4, 122, 255 ],", "[ 4, 122, 255 ], ¦// blue",
               {"JSON has no comments; a key in double quotes is expected here"});
        base("behind tabs, letters of two bytes and lines of another system", R"("TransparentColor": [)",
             "\t\"ÄÖ\": [ 1, 2, 3 ], \"A\\u0042\": ¦[ 1 ],\r\n\"TransparentColor\": [",
             {"a colour has 3 or 4 components, this one has 1; it is read as a grey"});
    }

    void findsAPlantedFaultInItsPlace()
    {
        QFETCH(bool, inAccent);
        QFETCH(QByteArray, piece);
        QFETCH(QByteArray, replacement);
        QFETCH(QStringList, messages);
        const Result result = check(inAccent, piece, QByteArray(replacement).replace("¦", ""));
        QVERIFY2(result.err.isEmpty(), qPrintable(result.err));
        QCOMPARE(result.exitCode, 1);
        const QStringList faults = result.faults();
        QVERIFY2(faults.size() == messages.size(), qPrintable(faults.join(QLatin1Char('\n'))));
        for (const QString &message : std::as_const(messages))
            QVERIFY2(faults.filter(QStringLiteral(": ") + message).size() == 1,
                     qPrintable(faults.join(QLatin1Char('\n'))));

        const qsizetype mark = replacement.indexOf("¦");
        QVERIFY(mark >= 0);
        const QByteArray text = stock(inAccent ? QStringLiteral("blue") : QStringLiteral("base"));
        const QString before = QString::fromUtf8(text.left(text.indexOf(piece)) + replacement.left(mark));
        const QString place = QStringLiteral("%1:%2:%3: ")
                                  .arg(QLatin1String(inAccent ? kAccentFile : kBaseFile))
                                  .arg(before.count(QLatin1Char('\n')) + 1)
                                  .arg(before.size() - before.lastIndexOf(QLatin1Char('\n')));
        QVERIFY2(faults.contains(place + messages.constFirst()),
                 qPrintable(place + QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
    }

    void findsNothingInTheStockThemes()
    {
        write(mFolder.filePath(QLatin1String(kBaseFile)), stock(QStringLiteral("base")));
        const Result alone = run({QStringLiteral("check"), QLatin1String(kBaseFile)});
        QCOMPARE(alone.exitCode, 0);
        QCOMPARE(alone.faults(), QStringList());
        QCOMPARE(alone.notes().filter(QStringLiteral("is left to an accent document")).size(), 5);
        QCOMPARE(alone.notes().filter(QStringLiteral("has no colour in group")).size(), 14);
        for (const char *accent : {"purple", "red", "green", "blue", "orange"}) {
            write(mFolder.filePath(QLatin1String(kAccentFile)), stock(QLatin1String(accent)));
            const Result single = run({QStringLiteral("check"), QLatin1String(kAccentFile)});
            QCOMPARE(single.exitCode, 0);
            QCOMPARE(single.out, QStringList());
            const Result both =
                run({QStringLiteral("check"), QLatin1String(kBaseFile), QLatin1String(kAccentFile)});
            QCOMPARE(both.exitCode, 0);
            QCOMPARE(both.faults(), QStringList());
            QCOMPARE(both.notes().filter(QStringLiteral("has no colour in group")).size(), 14);
            QCOMPARE(both.notes().size(), both.notes().filter(QStringLiteral(", as is meant: ")).size());
        }
    }

    void missesAnAliasOfAnAccentAlone()
    {
        write(mFolder.filePath(QLatin1String(kAccentFile)),
              stock(QStringLiteral("red")).replace("AccentPaneLineColor", "AccentPaneColor"));
        const Result result = run({QStringLiteral("check"), QLatin1String(kAccentFile)});
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.out,
                 QStringList{QStringLiteral("accent.json:2:22: the accent lacks the alias "
                                            "\"AccentPaneLineColor\", which the base theme names")});
    }

    void anAccentMayRestateAnEntry()
    {
        const Result result = check(true, "\"color_aliases\"",
                                    R"("color_palette": [ { "role": "ButtonText", "group": "Normal",
                                       "color": [ 255, 255, 255 ] } ], "color_aliases")");
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.notes()
                     .filter(QStringLiteral("overridden by a later one in line 2 of accent.json"))
                     .size(),
                 1);
    }

    void listsTheWords()
    {
        const Result result = run({QStringLiteral("list")});
        QCOMPARE(result.exitCode, 0);
        for (const char *word : {"Highlighted", "SliderGrove", "DemiBold", "orange", "AccentPaneLineColor"})
            QVERIFY2(result.out.contains(QStringLiteral("  ") + QLatin1String(word)), word);
    }

    // Editors complete from the schema what the program lists.
    void theSchemaKnowsAllWords()
    {
        QFile file(QStringLiteral(THEMES_FOLDER "/theme.schema.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString schema = QString::fromUtf8(file.readAll());
        const QStringList lines = run({QStringLiteral("list")}).out;
        QString section;
        for (const QString &line : lines) {
            if (!line.startsWith(QLatin1Char(' ')))
                section = line;
            else if (section == QLatin1String("groups:") || section == QLatin1String("roles:") ||
                     section == QLatin1String("weights:"))
                QVERIFY2(schema.contains(QStringLiteral("\"%1\"").arg(line.trimmed())), qPrintable(line));
        }
    }

    void refusesInOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("culprit");
        const auto row =
            [](const char *inName, const char *inArguments, const char *inCulprit) {
                QTest::newRow(inName)
                    << QString::fromLatin1(inArguments).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                    << QString::fromLatin1(inCulprit);
            };
        row("nothing", "", "check, list or preview");
        row("command", "chekc theme.json", "\"chekc\"");
        row("option", "check --strict theme.json", "\"--strict\"");
        row("check without a file", "check", "check takes");
        row("check of three", "check a b c", "check takes");
        row("list of something", "list roles", "\"roles\"");
        row("no such file", "check theme.json none.json", "none.json");
        row("folder", "check .", "folder");
        row("preview without a picture", "preview theme.json", "preview takes");
        row("picture that would be the accent", "preview theme.json accent.json", "\"accent.json\"");
        row("picture in no folder", "preview theme.json no/such/folder.png", "no/such/folder.png");
        row("preview of no file", "preview none.json out.png", "none.json");
        row("preview of damage", "preview damaged.json out.png", "damaged.json:1:13: ");
    }

    void refusesInOneLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, culprit);
        write(mFolder.filePath(QLatin1String(kBaseFile)), stock(QStringLiteral("base")));
        write(mFolder.filePath(QLatin1String(kAccentFile)), stock(QStringLiteral("blue")));
        write(mFolder.filePath(QStringLiteral("damaged.json")), "{ \"a\": [ 1, }");
        const Result result = run(arguments);
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.out, QStringList());
        QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
        QVERIFY2(result.err.contains(culprit), qPrintable(result.err));
        QVERIFY(!QFile::exists(mFolder.filePath(QStringLiteral("out.png"))));
        QVERIFY(QDir(mFolder.path()).entryList(QDir::Files).filter(QStringLiteral(".png")).isEmpty());
    }

    void previewsADocument_data()
    {
        QTest::addColumn<QStringList>("documents");
        QTest::addColumn<QColor>("accent");
        QTest::newRow("theme and accent") << QStringList{"theme.json", "accent.json"} << QColor(1, 200, 150);
        QTest::newRow("theme alone") << QStringList{"theme.json"} << QColor(4, 122, 255);
        QTest::newRow("accent alone") << QStringList{"accent.json"} << QColor(1, 200, 150);
    }

    void previewsADocument()
    {
        QFETCH(QStringList, documents);
        QFETCH(QColor, accent);
        write(mFolder.filePath(QLatin1String(kBaseFile)), stock(QStringLiteral("base")));
        write(mFolder.filePath(QLatin1String(kAccentFile)),
              stock(QStringLiteral("blue")).replace("[ 4, 122, 255 ]", "[ 1, 200, 150 ]"));
        const QString name = mFolder.filePath(QStringLiteral("preview.PNG"));
        const Result result =
            run(QStringList{QStringLiteral("preview")} + documents + QStringList{name}, "offscreen");
        QVERIFY2(result.exitCode == 0, qPrintable(result.err));
        const QImage image(name);
        QVERIFY(QFile::remove(name));
        QVERIFY(image.height() > 1000);
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QVERIFY(image.pixel(x, y) != qRgb(255, 0, 0)); // a hole in the theme
                found += image.pixelColor(x, y) == accent ? 1 : 0;
            }
        }
        QVERIFY(found > 500);
    }

private:
    QTemporaryDir mFolder;
};

QTEST_GUILESS_MAIN(tst_ThemeChecker)
#include "tst_ThemeChecker.moc"
