#include "Utilities/VTWidgetsImageUtils.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QtTest>

namespace {

constexpr const char *kToolButtonPictures[] = {
    "ToolButtons/DualMode",
    "Print/Swap",
    "ToolButtons/Print",
    "Print/PrintModePrint",
    "Print/PrintModePDF",
    "Print/PrintPortrait",
    "Print/PrintLandscape",
    "Print/Print4x5",
    "Print/Print5x7",
    "Print/Print8x10",
    "Print/PrintContact",
    "Print/PrintCustom",
    "Print/PrintFill",
    "Print/PrintFit",
    "Print/PrintMore",
    "Print/PrintModeSingle",
    "Print/PrintModeContact",
    "Print/PrintSinglePage",
    "Print/PrintFacingPages",
    "Print/PrintAllPages",
    "ToolButtons/LayerColorFill",
    "ToolButtons/LayerAddText",
    "ToolButtons/MaskInspectInvert",
    "ToolButtons/MaskInspectLumen",
    "ToolButtons/MaskInspectDepth",
    "ToolButtons/MaskInspectReset",
    "ToolButtons/MaskInspectCopy",
    "ToolButtons/MaskInspectPaste",
    "ToolButtons/MaskInspectView",
    "ToolButtons/BoldFont",
    "ToolButtons/ItalicsFont",
    "ToolButtons/UnderlineFont",
    "ToolButtons/AlignLeft",
    "ToolButtons/AlignCenter",
    "ToolButtons/AlignRight",
    "ToolButtons/Capitalize",
    "Buttons/Overflow",
    "Buttons/Add",
    "Buttons/Delete",
    "ToolButtons/Settings",
    "ToolButtons/Reset",
    "ToolButtons/ModuleSaveApply",
};

constexpr const char *kLabelPictures[] = {
    "GettingStarted/GS_Browse",
    "GettingStarted/GS_Catalog",
    "GettingStarted/GS_Single",
    "GettingStarted/HDR_GS_Batch",
    "GettingStarted/HDR_GS_Open",
    "GettingStarted/Portrait_GS_Batch",
    "GettingStarted/Portrait_GS_Open",
    "GettingStarted/Hushtone_GS_Open",
    "GettingStarted/GS_Orbit_Catalog",
    "GettingStarted/GS_Orbit_Album",
    "QRCode/ios",
    "QRCode/android",
    "SyncPhone",
    "LearnMore/LearnMoreOrbitBackground",
    "Warning",
};

// The forms of one picture, the normal one as the controls load it, then the one of double resolution; null
// images where there are none.
QList<QImage> forms(const QString &inName)
{
    const QString path = QStringLiteral(":/VTWidgets/%1.png").arg(inName);
    return {QFile::exists(path) ? VTWidgetsLoadImage(path) : QImage(),
            QImage(QStringLiteral(":/VTWidgets/%1@2x.png").arg(inName))};
}

// Whether all that is visible is white, and nothing lies on the outermost pixels.
bool isMaskWithMargin(const QImage &inImage)
{
    const QRect inner = inImage.rect().adjusted(1, 1, -1, -1);
    bool isVisible = false;
    for (int y = 0; y < inImage.height(); ++y) {
        for (int x = 0; x < inImage.width(); ++x) {
            const QRgb pixel = inImage.pixel(x, y);
            if (qAlpha(pixel) == 0) {
                continue;
            }
            isVisible = true;
            if ((pixel & 0xffffff) != 0xffffff || !inner.contains(x, y)) {
                return false;
            }
        }
    }
    return isVisible;
}

} // namespace

class tst_Pictures : public QObject
{
    Q_OBJECT

private slots:
    void bothFormsAreThere_data();
    void bothFormsAreThere();
    void toolButtonPicturesAreWhiteMasks_data();
    void toolButtonPicturesAreWhiteMasks();
    void unusableDrawingLeavesNothing_data();
    void unusableDrawingLeavesNothing();
};

void tst_Pictures::bothFormsAreThere_data()
{
    toolButtonPicturesAreWhiteMasks_data();
    for (const char *name : kLabelPictures) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_Pictures::bothFormsAreThere()
{
    QFETCH(QString, name);
    const QList<QImage> images = forms(name);
    QVERIFY(!images[0].isNull());
    QCOMPARE(images[1].size(), images[0].size() * 2);
}

void tst_Pictures::toolButtonPicturesAreWhiteMasks_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : kToolButtonPictures) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_Pictures::toolButtonPicturesAreWhiteMasks()
{
    QFETCH(QString, name);
    const QList<QImage> images = forms(name);
    QCOMPARE(images[0].size(), QSize(24, 24));
    QVERIFY(isMaskWithMargin(images[0]));
    QVERIFY(isMaskWithMargin(images[1]));
}

void tst_Pictures::unusableDrawingLeavesNothing_data()
{
    QTest::addColumn<QByteArray>("drawing");
    const QByteArray head = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>";
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("no drawing") << QByteArray("<page/>");
    QTest::newRow("cut off") << head + "<path d='M1 1H8'/>";
    QTest::newRow("without a size") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>");
    QTest::newRow("what is not drawn") << head + "<filter/></svg>";
    QTest::newRow("unknown paint") << head + "<path fill='url(#none)' d='M1 1H8V8z'/></svg>";
}

void tst_Pictures::unusableDrawingLeavesNothing()
{
    QFETCH(QByteArray, drawing);
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("vtwidgets-picture"),
                                                        {QCoreApplication::applicationDirPath()});
    if (tool.isEmpty()) {
        QSKIP("The pictures were drawn by a program that was built elsewhere");
    }
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("In.svg")));
    if (!drawing.isEmpty()) {
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(drawing) == drawing.size());
        file.close();
    }
    QProcess process;
    process.start(tool, {file.fileName(), folder.filePath(QStringLiteral("Out.png"))});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 2);
    QCOMPARE(process.readAllStandardError().count('\n'), 1);
    QVERIFY(QDir(folder.path()).entryList({QStringLiteral("Out*")}).isEmpty());
}

QTEST_GUILESS_MAIN(tst_Pictures)
#include "tst_Pictures.moc"
