#include "Gallery/GalleryLook.h"
#include "Gallery/GalleryWindow.h"
#include "Shared/ThemeFile.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSaveFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>

#include <algorithm>
#include <memory>

class tst_GalleryTheme : public QObject
{
    Q_OBJECT

    static QByteArray stock(const QString &inName)
    {
        QFile file(ThemeFile::stockPath(inName));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void write(const QString &inPath, const QByteArray &inText)
    {
        QFile file(inPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(inText), inText.size());
    }

    static QByteArray baseWithText(const char *inColor)
    {
        return stock(QStringLiteral("base"))
            .replace("\"TextColor\": [ 170, 170, 170 ]", QByteArray("\"TextColor\": ") + inColor);
    }

    static QColor text()
    {
        return VantraStyleTheme::instance().colorPalette().color(VantraPalette::Normal,
                                                                 VantraPalette::ButtonText);
    }

    static QColor accent()
    {
        return VantraStyleTheme::instance().colorPalette().color(VantraPalette::Normal,
                                                                 VantraPalette::Accent);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(mFolder.isValid());
        mTheme = mFolder.filePath(QStringLiteral("theme.json"));
        mAccent = mFolder.filePath(QStringLiteral("accent.json"));
        write(mTheme, baseWithText("[ 1, 2, 3 ]"));
        write(mAccent, stock(QStringLiteral("red")));
        mLook.setThemeFiles(mTheme, mAccent);
        QCOMPARE(mLook.start(QStringLiteral("blue"), 0, GalleryLook::Style::House), QString());
        mLook.followThemeFiles();
        mWindow = std::make_unique<GalleryWindow>(&mLook);
        mWindow->show();
        QCOMPARE(text(), QColor(1, 2, 3));
        QCOMPARE(accent(), QColor(234, 71, 68));
    }

    void followsAFileThatIsWrittenAnew()
    {
        QSignalSpy changed(&mLook, &GalleryLook::changed);
        write(mTheme, baseWithText("[ 4, 5, 6 ]"));
        QTRY_COMPARE(text(), QColor(4, 5, 6));
        QCOMPARE(changed.size(), 1);
        write(mAccent, stock(QStringLiteral("green")));
        QTRY_COMPARE(accent(), QColor(31, 202, 116));
    }

    // Twice, since the watch on the first file ends with it.
    void followsAFileThatIsReplaced()
    {
        for (const int level : {50, 60}) {
            QSaveFile file(mTheme);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(baseWithText(qPrintable(QStringLiteral("[ %1, 0, 0 ]").arg(level))));
            QVERIFY(file.commit());
            QTRY_COMPARE(text(), QColor(level, 0, 0));
        }
    }

    void followsAFileThatIsAwayForAWhile()
    {
        QSignalSpy troubled(&mLook, &GalleryLook::themeTroubled);
        QVERIFY(QFile::remove(mTheme));
        QTRY_COMPARE(troubled.size(), 1);
        QVERIFY(troubled.at(0).at(0).toString().contains(mTheme));
        write(mTheme, baseWithText("[ 70, 0, 0 ]"));
        QTRY_COMPARE(text(), QColor(70, 0, 0));
    }

    void keepsTheLastGoodThemeAndSaysSo_data()
    {
        QTest::addColumn<QByteArray>("damaged");
        QTest::addColumn<QString>("place");
        QTest::newRow("empty") << QByteArray() << "theme.json:1:1: ";
        QTest::newRow("half") << baseWithText("[ 9, 9, 9 ]").left(400) << "theme.json:11:";
        QTest::newRow("no object") << QByteArray("[]") << "theme.json:1:1: ";
        QTest::newRow("no palette") << QByteArray("{}") << "theme.json:1:1: ";
        QTest::newRow("palette of numbers")
            << QByteArray("{ \"color_palette\": [ 1 ] }") << "theme.json:1:1: ";
        QTest::newRow("noise") << QByteArray("\0\xff\x01{[", 5) << "theme.json:1:1: ";
    }

    void keepsTheLastGoodThemeAndSaysSo()
    {
        QFETCH(QByteArray, damaged);
        QFETCH(QString, place);
        write(mTheme, baseWithText("[ 7, 7, 7 ]"));
        QTRY_COMPARE(text(), QColor(7, 7, 7));
        QSignalSpy troubled(&mLook, &GalleryLook::themeTroubled);
        write(mTheme, damaged);
        QTRY_COMPARE(troubled.size(), 1);
        QVERIFY2(troubled.at(0).at(0).toString().contains(place),
                 qPrintable(troubled.at(0).at(0).toString()));
        QCOMPARE(text(), QColor(7, 7, 7));
        const auto labels = mWindow->findChildren<QLabel *>();
        const auto told = std::count_if(labels.begin(), labels.end(), [&](const QLabel *inLabel) {
            return inLabel->isVisible() && inLabel->text().contains(place);
        });
        QCOMPARE(told, 1);
        write(mTheme, baseWithText("[ 8, 8, 8 ]"));
        QTRY_COMPARE(text(), QColor(8, 8, 8));
        QVERIFY(troubled.constLast().at(0).toString().isEmpty());
    }

    // An ordinary load would leave the old colour where the new theme has none.
    void showsTheHolesOfANewTheme()
    {
        write(mTheme, baseWithText("[ 8 ]").replace("\"role\": \"ButtonText\", \"group\": \"Normal\"",
                                                    "\"role\": \"ButtonText\", \"group\": \"None\""));
        QTRY_COMPARE(text(), QColor(Qt::red));
    }

private:
    QTemporaryDir mFolder;
    QString mTheme;
    QString mAccent;
    GalleryLook mLook;
    std::unique_ptr<GalleryWindow> mWindow;
};

QTEST_MAIN(tst_GalleryTheme)
#include "tst_GalleryTheme.moc"
