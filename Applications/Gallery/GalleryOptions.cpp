#include "GalleryOptions.h"

#include "GalleryLanguage.h"
#include "GalleryPages.h"

#include <QtCore/QCommandLineParser>

#include <algorithm>

namespace {
const QString kPage = QStringLiteral("page");
const QString kListPages = QStringLiteral("list-pages");
const QString kAccent = QStringLiteral("accent");
const QString kTheme = QStringLiteral("theme");
const QString kAccentFile = QStringLiteral("accent-file");
const QString kTextSize = QStringLiteral("text-size");
const QString kScale = QStringLiteral("scale");
const QString kStyle = QStringLiteral("style");
const QString kLanguage = QStringLiteral("language");
const QString kContrast = QStringLiteral("contrast");
const QString kDisabled = QStringLiteral("disabled");
const QString kSection = QStringLiteral("section");
const QString kScreenshot = QStringLiteral("screenshot");
const QString kAllScreenshots = QStringLiteral("all-screenshots");

QString accentNames()
{
    QStringList names;
    for (const GalleryLook::Accent &accent : GalleryLook::kAccents)
        names << QLatin1String(accent.name);
    return names.join(QStringLiteral(", "));
}

void addOptions(QCommandLineParser &ioParser)
{
    ioParser.setApplicationDescription(
        QStringLiteral("Shows every widget of the house design, in a window or as pictures."));
    ioParser.addHelpOption();
    ioParser.addVersionOption();
    ioParser.addOptions({
        {kPage, QStringLiteral("Begin with this page."), QStringLiteral("name")},
        {kListPages, QStringLiteral("Print the names of the pages, one a line.")},
        {kContrast, QStringLiteral("Print the contrast ratios of texts on their grounds for the accent.")},
        {kAccent, QStringLiteral("Accent: %1.").arg(accentNames()), QStringLiteral("name"),
         QStringLiteral("blue")},
        {kTheme, QStringLiteral("Show this theme document and its changes on the disk."),
         QStringLiteral("file")},
        {kAccentFile, QStringLiteral("Take the accent from this document; with or without --theme."),
         QStringLiteral("file")},
        {kTextSize, QStringLiteral("Points added to every text: 0, 2 or 4."), QStringLiteral("points"),
         QStringLiteral("0")},
        {kScale,
         QStringLiteral("Scale of the window or the picture, %1 to %2.")
             .arg(GalleryOptions::kMinimumScale)
             .arg(GalleryOptions::kMaximumScale),
         QStringLiteral("factor"), QStringLiteral("1")},
        {kStyle, QStringLiteral("Style: house or fusion."), QStringLiteral("name"), QStringLiteral("house")},
        {kLanguage,
         QStringLiteral("Language of the window and the controls: %1.")
             .arg(GalleryLanguage::codes().join(QStringLiteral(", "))),
         QStringLiteral("code"), QStringLiteral("en")},
        {kDisabled, QStringLiteral("Show the pages disabled.")},
        {kScreenshot, QStringLiteral("Write the whole page as a PNG and end. Needs no display."),
         QStringLiteral("file")},
        {kSection, QStringLiteral("With --screenshot: only this section of the page, by its heading."),
         QStringLiteral("title")},
        {kAllScreenshots,
         QStringLiteral("Write every page as NAME.png and, at scale 2, NAME@2x.png into a "
                        "folder and end. Needs no display."),
         QStringLiteral("folder")},
    });
}

// The first thing wrong with the values, or an empty text when all are well and stand in ioOptions.
QString readValues(const QCommandLineParser &inParser, GalleryOptions &ioOptions)
{
    if (!inParser.positionalArguments().isEmpty())
        return QStringLiteral("unexpected argument \"%1\"").arg(inParser.positionalArguments().constFirst());

    if (inParser.isSet(kPage)) {
        ioOptions.page = GalleryPages::indexOf(inParser.value(kPage));
        if (ioOptions.page < 0)
            return QStringLiteral("no page is called \"%1\"; the pages are %2")
                .arg(inParser.value(kPage), GalleryPages::names(QStringLiteral(", ")));
    }

    ioOptions.accent = inParser.value(kAccent).toLower();
    if (std::none_of(GalleryLook::kAccents.begin(), GalleryLook::kAccents.end(),
                     [&](const auto &inAccent) { return ioOptions.accent == QLatin1String(inAccent.name); }))
        return QStringLiteral("no accent is called \"%1\"; the accents are %2")
            .arg(inParser.value(kAccent), accentNames());

    if (inParser.isSet(kAccent) && inParser.isSet(kAccentFile))
        return QStringLiteral("--accent and --accent-file can't be had together");
    ioOptions.themeFile = inParser.value(kTheme);
    ioOptions.accentFile = inParser.value(kAccentFile);
    if ((inParser.isSet(kTheme) && ioOptions.themeFile.isEmpty()) ||
        (inParser.isSet(kAccentFile) && ioOptions.accentFile.isEmpty()))
        return QStringLiteral("an empty name is no theme document");

    bool isNumber = false;
    ioOptions.textSize = inParser.value(kTextSize).toInt(&isNumber);
    const auto &sizes = GalleryLook::kTextSizes;
    if (!isNumber || std::find(sizes.begin(), sizes.end(), ioOptions.textSize) == sizes.end())
        return QStringLiteral("text size \"%1\" is none of 0, 2 and 4").arg(inParser.value(kTextSize));

    ioOptions.scale = inParser.value(kScale).toDouble(&isNumber);
    if (!isNumber || !(ioOptions.scale >= GalleryOptions::kMinimumScale) ||
        !(ioOptions.scale <= GalleryOptions::kMaximumScale))
        return QStringLiteral("scale \"%1\" is no number from %2 to %3")
            .arg(inParser.value(kScale))
            .arg(GalleryOptions::kMinimumScale)
            .arg(GalleryOptions::kMaximumScale);

    ioOptions.language = inParser.value(kLanguage).toLower();
    if (!GalleryLanguage::codes().contains(ioOptions.language))
        return QStringLiteral("no language is called \"%1\"; the languages are %2")
            .arg(inParser.value(kLanguage), GalleryLanguage::codes().join(QStringLiteral(", ")));

    const QString style = inParser.value(kStyle).toLower();
    if (style != QLatin1String("house") && style != QLatin1String("fusion"))
        return QStringLiteral("no style is called \"%1\"; the styles are house, fusion")
            .arg(inParser.value(kStyle));
    if (style == QLatin1String("fusion"))
        ioOptions.style = GalleryLook::Style::Fusion;
    ioOptions.enabled = !inParser.isSet(kDisabled);
    return QString();
}

// As readValues, for what the program is to do.
QString readTask(const QCommandLineParser &inParser, GalleryOptions &ioOptions)
{
    const bool one = inParser.isSet(kScreenshot);
    const bool all = inParser.isSet(kAllScreenshots);
    if (inParser.isSet(kContrast)) {
        if (one || all)
            return QStringLiteral("--contrast prints and takes no screenshots");
        ioOptions.task = GalleryOptions::Task::Contrast;
    }
    if (inParser.isSet(kSection) && !(one && inParser.isSet(kPage)))
        return QStringLiteral("the section \"%1\" goes with --screenshot and --page")
            .arg(inParser.value(kSection));
    ioOptions.section = inParser.value(kSection);
    if (one && all)
        return QStringLiteral("--screenshot and --all-screenshots can't be had together");
    if (all && (inParser.isSet(kPage) || inParser.isSet(kScale)))
        return QStringLiteral(
            "--all-screenshots takes every page at scales 1 and 2; leave out --page and --scale");
    if (one || all) {
        ioOptions.task = one ? GalleryOptions::Task::Screenshot : GalleryOptions::Task::AllScreenshots;
        ioOptions.target = inParser.value(one ? kScreenshot : kAllScreenshots);
        if (ioOptions.target.isEmpty())
            return QStringLiteral("an empty name is no place for screenshots");
    }
    return QString();
}
} // namespace

GalleryOptions GalleryOptions::fromArguments(const QStringList &inArguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    GalleryOptions options;
    const auto finish = [&options](Task inTask, const QString &inText) {
        options.task = inTask;
        options.text = inText;
        return options;
    };

    if (!parser.parse(inArguments))
        return finish(Task::Refuse, parser.errorText());
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all")))
        return finish(Task::Print, parser.helpText());
    if (parser.isSet(QStringLiteral("version")))
        return finish(Task::Print,
                      QStringLiteral("vtwidgets-gallery %1\n").arg(QLatin1String(VTWIDGETS_VERSION)));
    if (parser.isSet(kListPages))
        return finish(Task::Print, GalleryPages::names(QStringLiteral("\n")) + QLatin1Char('\n'));

    QString error = readValues(parser, options);
    if (error.isEmpty())
        error = readTask(parser, options);
    return error.isEmpty() ? options : finish(Task::Refuse, error);
}
