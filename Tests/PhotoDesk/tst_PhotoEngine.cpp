#include "CommandLine.h"
#include "PhotoAdjustments.h"
#include "PhotoFile.h"
#include "PhotoRenderer.h"
#include "PresetStore.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

// What PhotoDesk does to photos and files, without its window.
class tst_PhotoEngine : public QObject
{
    Q_OBJECT

private slots:
    void defaultsLeaveEveryLevel();
    void adjustmentsMoveLightTheirWay_data();
    void adjustmentsMoveLightTheirWay();
    void curveGoesThroughItsPointsWithoutOvershoot();
    void turningComesBeforeCropping();
    void exportKeepsTheOldFileUnlessComplete_data();
    void exportKeepsTheOldFileUnlessComplete();
    void exportNeverTakesTheOriginalsName();
    void damagedPresetsAreBounded();
    void presetsSurviveInTheirFile();
    void commandLineExportsWhatItCan();
    void commandLineRefusesNonsense_data();
    void commandLineRefusesNonsense();

private:
    static QImage ramp()
    {
        QImage image(256, 2, QImage::Format_RGB32);
        for (int x = 0; x < 256; ++x) {
            image.setPixel(x, 0, qRgb(x, x, x));
            image.setPixel(x, 1, qRgb(x, 128, 255 - x));
        }
        return image;
    }
    QString photo(const QString &inName, const QSize &inSize = {60, 40})
    {
        QImage image(inSize, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QString path = mFolder.filePath(inName);
        return image.save(path) ? path : QString();
    }
    QTemporaryDir mFolder;
};

void tst_PhotoEngine::defaultsLeaveEveryLevel()
{
    QCOMPARE(PhotoRenderer::render({}, ramp()), ramp());
}

void tst_PhotoEngine::adjustmentsMoveLightTheirWay_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("redChange"); // sign
    QTest::addColumn<int>("blueChange");
    QTest::newRow("exposure up") << "exposure" << 1.0 << 100 << 1 << 1;
    QTest::newRow("exposure down") << "exposure" << -1.0 << 100 << -1 << -1;
    QTest::newRow("contrast below the middle") << "contrast" << 60.0 << 60 << -1 << -1;
    QTest::newRow("contrast above the middle") << "contrast" << 60.0 << 190 << 1 << 1;
    QTest::newRow("highlights leave the dark") << "highlights" << -80.0 << 10 << 0 << 0;
    QTest::newRow("highlights") << "highlights" << -80.0 << 200 << -1 << -1;
    QTest::newRow("shadows leave the bright") << "shadows" << 80.0 << 250 << 0 << 0;
    QTest::newRow("shadows") << "shadows" << 80.0 << 60 << 1 << 1;
    QTest::newRow("warmer") << "temperature" << 50.0 << 128 << 1 << -1;
    QTest::newRow("magenta") << "tint" << 50.0 << 128 << 1 << 1;
}

void tst_PhotoEngine::adjustmentsMoveLightTheirWay()
{
    QFETCH(const QString, name);
    QFETCH(const double, value);
    QFETCH(const int, level);
    PhotoAdjustments adjustments;
    adjustments.setLook({{name, value}});
    const QRgb after = PhotoRenderer::render(adjustments, ramp()).pixel(level, 0);
    const auto sign = [level](int inLevel) { return inLevel > level + 1 ? 1 : inLevel < level - 1 ? -1 : 0; };
    QTEST(sign(qRed(after)), "redChange");
    QTEST(sign(qBlue(after)), "blueChange");
}

void tst_PhotoEngine::curveGoesThroughItsPointsWithoutOvershoot()
{
    const auto table = PhotoRenderer::curveTable({{0.0, 0.1}, {0.4, 0.1}, {0.6, 0.9}, {1.0, 0.9}});
    QVERIFY(qAbs(table[0] - 0.1) < 0.001);
    QVERIFY(qAbs(table[153] - 0.9) < 0.001);
    for (int level = 1; level < 256; ++level)
        QVERIFY2(table[level] >= table[level - 1] - 1e-9, qPrintable(QString::number(level)));
}

void tst_PhotoEngine::turningComesBeforeCropping()
{
    QImage source(40, 20, QImage::Format_RGB32);
    source.fill(Qt::black);
    source.setPixel(0, 19, qRgb(255, 0, 0)); // bottom left; top left after a quarter turn clockwise
    PhotoAdjustments adjustments;
    adjustments.quarterTurns = 1;
    adjustments.crop = QRectF(0.0, 0.0, 0.5, 0.25);
    const QImage result = PhotoRenderer::render(adjustments, source);
    QCOMPARE(result.size(), QSize(10, 10));
    QCOMPARE(PhotoRenderer::resultSize(adjustments, source.size()), result.size());
    QCOMPARE(result.pixel(0, 0), qRgb(255, 0, 0));
}

void tst_PhotoEngine::exportKeepsTheOldFileUnlessComplete_data()
{
    QTest::addColumn<bool>("readable");
    QTest::addColumn<int>("cancelAtReport"); // counted from 1; 0 never
    QTest::addColumn<PhotoFile::Outcome>("outcome");
    QTest::newRow("unreadable photo") << false << 0 << PhotoFile::Outcome::Failed;
    QTest::newRow("canceled while rendering") << true << 1 << PhotoFile::Outcome::Canceled;
    QTest::newRow("canceled when written") << true << 2 << PhotoFile::Outcome::Canceled;
    QTest::newRow("done") << true << 0 << PhotoFile::Outcome::Done;
}

void tst_PhotoEngine::exportKeepsTheOldFileUnlessComplete()
{
    QFETCH(const bool, readable);
    QFETCH(const int, cancelAtReport);
    QFETCH(const PhotoFile::Outcome, outcome);
    const QString source = photo(QStringLiteral("source.png"));
    if (!readable) {
        QFile file(source);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no photo");
    }
    const QString target = mFolder.filePath(QStringLiteral("target.jpg"));
    QFile old(target);
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    int reports = 0;
    const PhotoFile::ExportResult result =
        PhotoFile::exportPhoto(source, {}, target, [&](int, int) { return ++reports != cancelAtReport; });
    QCOMPARE(result.outcome, outcome);
    QCOMPARE(result.reason.isEmpty(), outcome != PhotoFile::Outcome::Failed);
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll() == "old", outcome != PhotoFile::Outcome::Done);
    QCOMPARE(QDir(mFolder.path()).entryList({QStringLiteral("target*")}, QDir::Files).size(), 1);
}

void tst_PhotoEngine::exportNeverTakesTheOriginalsName()
{
    const QString source = photo(QStringLiteral("same.png"));
    const QString target = PhotoFile::targetPath(source, mFolder.path(), QStringLiteral("png"));
    QCOMPARE(QFileInfo(target).fileName(), QStringLiteral("same-2.png"));
    const QString next = PhotoFile::targetPath(source, mFolder.path(), QStringLiteral("png"), {target});
    QCOMPARE(QFileInfo(next).fileName(), QStringLiteral("same-3.png"));
}

void tst_PhotoEngine::damagedPresetsAreBounded()
{
    PhotoAdjustments adjustments;
    const QJsonArray points{QJsonArray{0.5, 7}, QJsonArray{0.2, 0.1}, QStringLiteral("x")};
    adjustments.setLook({{QStringLiteral("exposure"), 1e9}, {QStringLiteral("curve"), points}});
    QCOMPARE(adjustments.exposure, 3.0);
    QCOMPARE(adjustments.curve, PhotoAdjustments().curve);
}

void tst_PhotoEngine::presetsSurviveInTheirFile()
{
    const QString path = mFolder.filePath(QStringLiteral("sub/presets.json"));
    PhotoAdjustments adjustments;
    adjustments.tint = 12.0;
    adjustments.curve = {{0.0, 0.0}, {0.5, 0.7}, {1.0, 1.0}};
    PresetStore store(path);
    const QString neutral = store.builtInNames().first();
    QVERIFY(!store.save(neutral, adjustments.look()).isEmpty());
    QCOMPARE(store.save(QStringLiteral("Mine"), adjustments.look()), QString());
    QCOMPARE(store.rename(QStringLiteral("Mine"), QStringLiteral("Ours")), QString());
    PresetStore again(path);
    QCOMPARE(again.ownNames(), QStringList{QStringLiteral("Ours")});
    PhotoAdjustments read;
    read.setLook(again.look(QStringLiteral("Ours")));
    QCOMPARE(read, adjustments);
    QCOMPARE(again.remove(QStringLiteral("Ours")), QString());
    QVERIFY(PresetStore(path).ownNames().isEmpty());
}

void tst_PhotoEngine::commandLineExportsWhatItCan()
{
    const QString good = photo(QStringLiteral("good.png"));
    const QString bad = mFolder.filePath(QStringLiteral("missing.png"));
    QVERIFY(QDir(mFolder.path()).mkpath(QStringLiteral("out")));
    const PresetStore presets(mFolder.filePath(QStringLiteral("none.json")));
    CommandLine::Options options = CommandLine::parse(
        {QStringLiteral("PhotoDesk"), QStringLiteral("--export"), mFolder.filePath(QStringLiteral("out")),
         QStringLiteral("--preset"), QStringLiteral("Silver"), good, bad});
    QCOMPARE(options.refusal, QString());
    QCOMPARE(CommandLine::exportPhotos(options, presets), 1);
    const QImage written(mFolder.filePath(QStringLiteral("out/good.jpg")));
    QCOMPARE(written.size(), QSize(60, 40));
    QVERIFY(qAbs(qRed(written.pixel(20, 20)) - qBlue(written.pixel(20, 20))) < 4);
    options.files = QStringList{good};
    QCOMPARE(CommandLine::exportPhotos(options, presets), 0);
    options.preset = QStringLiteral("Gold");
    QCOMPARE(CommandLine::exportPhotos(options, presets), 2);
}

void tst_PhotoEngine::commandLineRefusesNonsense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList{"--exprot", "/tmp"};
    QTest::newRow("no files") << QStringList{"--export", QDir::tempPath()};
    QTest::newRow("no folder") << QStringList{"--export", "/no/such/folder", "a.jpg"};
    QTest::newRow("no value") << QStringList{"--export"};
    QTest::newRow("preset alone") << QStringList{"--preset", "Silver", "a.jpg"};
    QTest::newRow("format") << QStringList{"--export", QDir::tempPath(), "--format", "gif", "a.jpg"};
}

void tst_PhotoEngine::commandLineRefusesNonsense()
{
    QFETCH(QStringList, arguments);
    arguments.prepend(QStringLiteral("PhotoDesk"));
    QVERIFY(!CommandLine::parse(arguments).refusal.isEmpty());
}

QTEST_GUILESS_MAIN(tst_PhotoEngine)
#include "tst_PhotoEngine.moc"
