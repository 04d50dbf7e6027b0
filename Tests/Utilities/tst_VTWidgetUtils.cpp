#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Utilities/VTWidgetUtils.h"
#include "VTQtUpdatesBlocker.h"

#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QWidget>

FATAL_CASE(missingString)
{
    VTWidgetsGetString(QStringLiteral(":/no/such.txt"));
}

FATAL_CASE(activateNothing)
{
    VTWidgetsActivateWindow(nullptr);
}

FATAL_CASE(borderOfNothing)
{
    VTWidgetsSetHasBorderInFullScreen(nullptr, false);
}

FATAL_CASE(centreNothing)
{
    VTWidgetsCenterOnParent(nullptr, nullptr);
}

FATAL_CASE(macOnly)
{
    VTWidgetUtils::objcSetLevel(0, 1);
}

FATAL_CASE(crash)
{
    VTWidgetUtils::testCrashReport();
}

class tst_VTWidgetUtils : public QObject
{
    Q_OBJECT

private slots:
    void mistakesStopTheProcess_data();
    void mistakesStopTheProcess();
    void crashTestCrashes() { QVERIFY(FatalTest::run("crash").aborted); }
    void wholeTextIsRead();
    void appIconIsAsLargeAsAskedFor_data();
    void appIconIsAsLargeAsAskedFor();
    void screenIsDescribed();
    void styleStateIsNamed_data();
    void styleStateIsNamed();
    void ancestorsAreAtAnyDistance();
    void centreIsThatOfTheParent_data();
    void centreIsThatOfTheParent();
    void inactiveApplicationStaysInactive();
    void brushSizesRise();
    void updatesComeBackAsTheyWere();
};

void tst_VTWidgetUtils::mistakesStopTheProcess_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("missingString") << "VTWidgetsGetString: Missing string resource: :/no/such.txt";
    QTest::newRow("activateNothing") << "inActivateWindow != nullptr";
    QTest::newRow("borderOfNothing") << "inWidget != nullptr";
    QTest::newRow("centreNothing") << "inWidgetToCenter != nullptr";
#if !defined(Q_OS_MACOS)
    QTest::newRow("macOnly") << "false && \"This call should be wrapped with VTQtSysInfo::isMacPlatform()\"";
#endif
}

void tst_VTWidgetUtils::mistakesStopTheProcess()
{
    QFETCH(const QString, message);
    QCOMPARE(FatalTest::assertionOf(QTest::currentDataTag()), message);
}

void tst_VTWidgetUtils::wholeTextIsRead()
{
    const ThemeFixture::Files files;
    const QString content = QStringLiteral("Größe\n\nend\n");
    QCOMPARE(VTWidgetsGetString(files.write(QStringLiteral("text.txt"), content.toUtf8())), content);
}

void tst_VTWidgetUtils::appIconIsAsLargeAsAskedFor_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("system") << -1 << QSize(48, 48);
    QTest::newRow("double") << 2 << QSize(96, 96);
}

void tst_VTWidgetUtils::appIconIsAsLargeAsAskedFor()
{
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    QSKIP("The icon is the program's resource here");
#endif
    QFETCH(const int, ratio);
    QFETCH(const QSize, pixels);
    QVERIFY(VTWidgetsGetAppIconAsImage(48, ratio).isNull());
    QPixmap pixmap(128, 128);
    pixmap.fill(Qt::blue);
    QApplication::setWindowIcon(pixmap);
    const QImage image = VTWidgetsGetAppIconAsImage(48, ratio);
    QApplication::setWindowIcon(QIcon());
    QCOMPARE(image.size(), pixels);
    QCOMPARE(image.deviceIndependentSize(), QSizeF(48, 48));
    QCOMPARE(image.pixelColor(20, 20), QColor(Qt::blue));
}

void tst_VTWidgetUtils::screenIsDescribed()
{
    QCOMPARE(VTWidgetsScreenInfo(static_cast<QScreen *>(nullptr)), QStringLiteral("Undefined"));
    QWidget widget;
    QScreen *screen = QGuiApplication::primaryScreen();
    const QString size = QStringLiteral("-%1x%2@").arg(screen->size().width()).arg(screen->size().height());
    for (int shown = 0; shown < 2; ++shown) {
        const QString info = VTWidgetsScreenInfo(&widget);
        QVERIFY2(info.contains(size) && info.endsWith(QLatin1Char('x')), qPrintable(info));
        QVERIFY(!info.contains(QRegularExpression(QStringLiteral("[ /.]"))));
        widget.show();
    }
}

void tst_VTWidgetUtils::styleStateIsNamed_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("names");
    QTest::newRow("none") << QStyle::State(QStyle::State_None) << "State_None";
    QTest::newRow("one") << QStyle::State(QStyle::State_Raised) << "State_Raised";
    QTest::newRow("two") << (QStyle::State_On | QStyle::State_Enabled) << "State_Enabled,State_On";
}

void tst_VTWidgetUtils::styleStateIsNamed()
{
    QFETCH(const QStyle::State, state);
    QTEST(VTWidgetsDumpStyleState(state), "names");
}

void tst_VTWidgetUtils::ancestorsAreAtAnyDistance()
{
    QWidget top;
    QWidget middle(&top);
    QWidget low(&middle);
    QVERIFY(VTWidgetUtils::isAncestorWidget(&low, &middle));
    QVERIFY(VTWidgetUtils::isAncestorWidget(&low, &top));
    QVERIFY(!VTWidgetUtils::isAncestorWidget(&low, &low));
    QVERIFY(!VTWidgetUtils::isAncestorWidget(&top, &low));
}

void tst_VTWidgetUtils::centreIsThatOfTheParent_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("smaller") << QSize(100, 60);
    QTest::newRow("larger") << QSize(500, 400);
}

void tst_VTWidgetUtils::centreIsThatOfTheParent()
{
    QFETCH(const QSize, size);
    QWidget window;
    window.setGeometry(200, 150, 400, 300);
    QWidget parent(&window);
    parent.setGeometry(20, 30, 300, 200);
    window.show();
    QWidget dialog;
    dialog.resize(size);
    VTWidgetsCenterOnParent(&dialog, &parent);
    const QRect area(parent.mapToGlobal(QPoint()), parent.size());
    QCOMPARE(QRect(dialog.pos(), dialog.size()).center(), area.center());
}

void tst_VTWidgetUtils::inactiveApplicationStaysInactive()
{
    QVERIFY(QGuiApplication::applicationState() != Qt::ApplicationActive);
    QWidget first;
    VTWidgetsActivateWindow(&first);
    QVERIFY(QApplication::activeWindow() == nullptr);
    first.show();
    first.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&first));
    QWidget second;
    second.show();
    VTWidgetsActivateWindow(&second);
    QCOMPARE(QApplication::activeWindow(), &second);
}

void tst_VTWidgetUtils::brushSizesRise()
{
    const QList<int> &sizes = VTWidgetUtils::kStandardBrushSizeValues;
    QCOMPARE(sizes.count(), 52);
    QVERIFY(std::is_sorted(sizes.begin(), sizes.end()));
    QCOMPARE(sizes.first(), 1);
    QCOMPARE(sizes.last(), 2500);
    QCOMPARE(kThumbViewStylesStyleGroup, QStringLiteral("thumb.view.styles"));
}

void tst_VTWidgetUtils::updatesComeBackAsTheyWere()
{
    QWidget widget;
    for (const bool enabled : {true, false}) {
        widget.setUpdatesEnabled(enabled);
        {
            const VTQtUpdatesBlocker outer(&widget, VTQtUpdatesBlocker::BlockUpdates);
            const VTQtUpdatesBlocker inner(&widget, VTQtUpdatesBlocker::BlockUpdates);
            QVERIFY(!widget.updatesEnabled());
        }
        QCOMPARE(widget.updatesEnabled(), enabled);
    }
}

FATAL_TEST_MAIN(tst_VTWidgetUtils)
#include "tst_VTWidgetUtils.moc"
