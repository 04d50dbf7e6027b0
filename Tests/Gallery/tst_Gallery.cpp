#include "../../Applications/Shared/ContrastTable.h"
#include "Theme/VantraFont.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QTest>

namespace {
struct Result
{
    int exitCode;
    QString out;
    QString err;
};

// Runs the gallery that was built beside this test. A platform that doesn't exist ends the program as soon as
// it wants a window system.
Result gallery(const QStringList &inArguments, bool inWithoutWindowSystem = false)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       inWithoutWindowSystem ? QStringLiteral("none-such") : QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/vtwidgets-gallery"), inArguments);
    if (!process.waitForFinished(240000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, QString(), process.errorString()};
    const auto text = [](const QByteArray &inBytes) { return QString::fromLocal8Bit(inBytes).remove('\r'); };
    return {process.exitCode(), text(process.readAllStandardOutput()), text(process.readAllStandardError())};
}

QStringList pages()
{
    return gallery({QStringLiteral("--list-pages")}, true).out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

int redPixels(const QImage &inImage)
{
    int count = 0;
    for (int y = 0; y < inImage.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(inImage.constScanLine(y));
        count += int(std::count_if(line, line + inImage.width(),
                                   [](QRgb inPixel) { return (inPixel & 0xffffff) == 0xff0000; }));
    }
    return count;
}

// How much ink a text takes: the sum of its pixels' alpha.
qint64 ink(const QFont &inFont)
{
    QImage image(600, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(inFont);
    painter.drawText(image.rect(), Qt::AlignCenter, QStringLiteral("Hamburgefonts"));
    painter.end();
    qint64 sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y));
    }
    return sum;
}
} // namespace

class tst_Gallery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(mFolder.isValid());
        mPages = pages();
    }

    void listsItsPages()
    {
        QVERIFY(mPages.size() >= 6);
        QVERIFY(mPages.contains(QStringLiteral("standard-widgets")));
        for (const QString &page : std::as_const(mPages))
            QVERIFY2(QRegularExpression(QStringLiteral("^[a-z]+(-[a-z]+)*$")).match(page).hasMatch(),
                     qPrintable(page));
    }

    void helpAndVersionNeedNoWindowSystem()
    {
        for (const char *option : {"--help", "--version"}) {
            const Result result = gallery({QLatin1String(option)}, true);
            QCOMPARE(result.exitCode, 0);
            QVERIFY(!result.out.isEmpty());
            QVERIFY2(result.err.isEmpty(), qPrintable(result.err));
        }
    }

    void listsContrastOfTextsOnTheirGrounds()
    {
        QCOMPARE(Contrast::ratio(Qt::white, Qt::black), 21.0);
        QCOMPARE(QString::number(Contrast::ratio(0x777777, Qt::white), 'f', 2), QStringLiteral("4.48"));
        QCOMPARE(Contrast::ratio(Contrast::over(QColor(9, 9, 9, 0), Qt::white), Qt::white), 1.0);
        const QStringList lines =
            gallery({QStringLiteral("--contrast")}, true).out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QVERIFY(lines.size() > 60);
        const QRegularExpression pattern(QStringLiteral("^\\w+ on \\w+ +\\w+ +([\\d.]+)(  below 4.5)?$"));
        for (const QString &line : lines) {
            const QRegularExpressionMatch match = pattern.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            QVERIFY2((match.captured(1).toDouble() < 4.5) == !match.captured(2).isEmpty(), qPrintable(line));
        }
    }

    void refusesInOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("culprit");
        const auto row = [](const char *inName, const QStringList &inArguments) {
            QTest::newRow(inName) << inArguments << inArguments.constLast();
        };
        const QString nowhere = mFolder.filePath(QStringLiteral("no/such/folder/picture.png"));
        const QString file = mFolder.filePath(QStringLiteral("file"));
        QVERIFY(QFile(file).open(QIODevice::WriteOnly));
        row("option", {QStringLiteral("--colour")});
        row("argument", {QStringLiteral("palette")});
        row("page", {QStringLiteral("--page"), QStringLiteral("carpets")});
        row("accent", {QStringLiteral("--accent"), QStringLiteral("mauve")});
        row("text size that is no step", {QStringLiteral("--text-size"), QStringLiteral("3")});
        row("text size that is no number", {QStringLiteral("--text-size"), QStringLiteral("large")});
        row("theme that isn't there", {QStringLiteral("--theme"), nowhere});
        row("accent that is no JSON", {QStringLiteral("--accent-file"), file});
        row("scale 0", {QStringLiteral("--scale"), QStringLiteral("0")});
        row("scale nan", {QStringLiteral("--scale"), QStringLiteral("nan")});
        row("language", {QStringLiteral("--language"), QStringLiteral("tlh")});
        row("style", {QStringLiteral("--style"), QStringLiteral("rococo")});
        row("section without a picture", {QStringLiteral("--section"), QStringLiteral("Weights")});
        row("file in no folder", {QStringLiteral("--screenshot"), nowhere});
        row("folder that is a file", {QStringLiteral("--all-screenshots"), file});
        row("option without its value", {QStringLiteral("--page")});
    }

    void refusesInOneLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, culprit);
        const Result result = gallery(arguments, true);
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.out.isEmpty(), qPrintable(result.out));
        QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
        QVERIFY2(result.err.contains(culprit.remove(QStringLiteral("--"))), qPrintable(result.err));
    }

    void findsAPageInAnyLetterCase()
    {
        const QString file = mFolder.filePath(QStringLiteral("one.png"));
        const Result result =
            gallery({QStringLiteral("--page"), QStringLiteral("TYPE"), QStringLiteral("--screenshot"), file});
        QCOMPARE(result.exitCode, 0);
        QVERIFY(!QImage(file).isNull());
    }

    void picturesOneSectionTheSameEachTime()
    {
        const auto picture = [this](const QString &inSection) {
            const QString file = mFolder.filePath(QStringLiteral("section.png"));
            QFile::remove(file);
            const Result result =
                gallery({QStringLiteral("--page"), QStringLiteral("progress"), QStringLiteral("--section"),
                         inSection, QStringLiteral("--screenshot"), file});
            return result.exitCode == 0 ? QImage(file) : QImage();
        };
        const QImage dialogs = picture(QStringLiteral("dialog"));
        QVERIFY(!dialogs.isNull());
        QVERIFY(dialogs.width() < 900);
        QCOMPARE(picture(QStringLiteral("Dialog")), dialogs);
        QVERIFY(picture(QStringLiteral("Carpets")).isNull());
    }

    void languageReachesTheWindow()
    {
        if (!gallery({QStringLiteral("--help")}, true).out.contains(QStringLiteral("en, de"))) {
            QSKIP("built without translations");
        }
        QImage pictures[2];
        for (const bool german : {false, true}) {
            const QString file = mFolder.filePath(QStringLiteral("language.png"));
            const QString code = german ? QStringLiteral("de") : QStringLiteral("en");
            const Result result =
                gallery({QStringLiteral("--page"), QStringLiteral("type"), QStringLiteral("--language"), code,
                         QStringLiteral("--screenshot"), file});
            QCOMPARE(result.exitCode, 0);
            QVERIFY(pictures[german].load(file));
        }
        QCOMPARE(pictures[0].size(), pictures[1].size());
        // The row of this page in the sidebar, the first but one.
        const QRect row(0, 40, 200, 40);
        QVERIFY(pictures[0].copy(row) != pictures[1].copy(row));
    }

    void picturesEveryPageWithoutRed()
    {
        const QDir folder(mFolder.filePath(QStringLiteral("made/on/demand")));
        const Result result = gallery({QStringLiteral("--all-screenshots"), folder.path()}, false);
        QVERIFY2(result.exitCode == 0, qPrintable(result.err));
        for (const QString &page : std::as_const(mPages)) {
            const QImage single =
                QImage(folder.filePath(page + QStringLiteral(".png"))).convertToFormat(QImage::Format_RGB32);
            const QImage twice = QImage(folder.filePath(page + QStringLiteral("@2x.png")))
                                     .convertToFormat(QImage::Format_RGB32);
            QVERIFY2(!single.isNull() && !twice.isNull(), qPrintable(page));
            QVERIFY2(twice.width() == 2 * single.width(), qPrintable(page));
            // Red is a hole in the theme, and holes are what that one page is there to show.
            const bool mayBeRed = page == QLatin1String("palette");
            QVERIFY2((redPixels(single) > 0) == mayBeRed, qPrintable(page));
            QVERIFY2((redPixels(twice) > 0) == mayBeRed, qPrintable(page));
        }
        QCOMPARE(folder.entryList(QDir::Files).size(), 2 * mPages.size());
    }

    void weightsDiffer_data()
    {
        QTest::addColumn<bool>("italic");
        QTest::newRow("roman") << false;
        QTest::newRow("italic") << true;
    }

    void weightsDiffer()
    {
        QFETCH(bool, italic);
        QVERIFY(VantraFont::ensureApplicationFonts());
        qint64 lighter = 0;
        for (const QFont::Weight weight :
             {QFont::Thin, QFont::Light, QFont::Normal, QFont::Medium, QFont::Bold, QFont::Black}) {
            QFont font = VantraFont::extraLargeFont();
            font.setWeight(weight);
            font.setItalic(italic);
            const qint64 amount = ink(font);
            // A weight that falls back to its neighbour's file has the same ink to the pixel.
            QVERIFY2(amount > lighter + lighter / 50, qPrintable(QString::number(weight)));
            lighter = amount;
        }
    }

private:
    QTemporaryDir mFolder;
    QStringList mPages;
};

QTEST_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
