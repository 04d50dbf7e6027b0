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
    void mistakesStopTheProcess();
    void wholeTextIsRead();
    void appIconIsAsLargeAsAskedFor();
    void screenIsDescribed();
    void styleStateIsNamed();
    void ancestorsAreAtAnyDistance();
    void centreIsThatOfTheParent();
    void inactiveApplicationStaysInactive();
    void frameFollowsTheThemeInEveryWindow();
    void updatesComeBackAsTheyWere();
    void updatesOfAChildComeBackWithItsParent();
};

void tst_VTWidgetUtils::mistakesStopTheProcess()
{
    QCOMPARE(FatalTest::assertionOf("missingString"),
             "VTWidgetsGetString: Missing string resource: :/no/such.txt");
    QCOMPARE(FatalTest::assertionOf("activateNothing"), "inActivateWindow != nullptr");
#if !defined(Q_OS_MACOS)
    QCOMPARE(FatalTest::assertionOf("macOnly"),
             "false && \"This call should be wrapped with VTQtSysInfo::isMacPlatform()\"");
#endif
    QVERIFY(FatalTest::run("crash").aborted);
}

void tst_VTWidgetUtils::wholeTextIsRead()
{
    const ThemeFixture::Files files;
    const QString content = QStringLiteral("Größe\n\nend\n");
    QCOMPARE(VTWidgetsGetString(files.write(QStringLiteral("text.txt"), content.toUtf8())), content);
}

void tst_VTWidgetUtils::appIconIsAsLargeAsAskedFor()
{
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    QSKIP("The icon is the program's resource here");
#endif
    QVERIFY(VTWidgetsGetAppIconAsImage(48, -1).isNull());
    QPixmap pixmap(128, 128);
    pixmap.fill(Qt::blue);
    QApplication::setWindowIcon(pixmap);
    const QImage image = VTWidgetsGetAppIconAsImage(48, -1);
    const QImage doubled = VTWidgetsGetAppIconAsImage(48, 2);
    QApplication::setWindowIcon(QIcon());
    QCOMPARE(image.size(), QSize(48, 48));
    QCOMPARE(doubled.size(), QSize(96, 96));
    QCOMPARE(doubled.deviceIndependentSize(), QSizeF(48, 48));
    QCOMPARE(doubled.pixelColor(48, 48), QColor(Qt::blue));
}

void tst_VTWidgetUtils::screenIsDescribed()
{
    QCOMPARE(VTWidgetsScreenInfo(static_cast<QScreen *>(nullptr)), QStringLiteral("Undefined"));
    QWidget widget;
    const QSize size = QGuiApplication::primaryScreen()->size();
    const QString end = QStringLiteral("-%1x%2@1x").arg(size.width()).arg(size.height());
    QVERIFY(VTWidgetsScreenInfo(&widget).endsWith(end));
    widget.show();
    QVERIFY(VTWidgetsScreenInfo(&widget).endsWith(end));
}

void tst_VTWidgetUtils::styleStateIsNamed()
{
    QCOMPARE(VTWidgetsDumpStyleState(QStyle::State_None), "State_None");
    QCOMPARE(VTWidgetsDumpStyleState(QStyle::State_On | QStyle::State_Enabled), "State_Enabled,State_On");
}

void tst_VTWidgetUtils::ancestorsAreAtAnyDistance()
{
    QWidget top;
    QWidget middle(&top);
    QWidget low(&middle);
    QVERIFY(VTWidgetUtils::isAncestorWidget(&low, &top));
    QVERIFY(!VTWidgetUtils::isAncestorWidget(&low, &low));
    QVERIFY(!VTWidgetUtils::isAncestorWidget(&top, &low));
}

void tst_VTWidgetUtils::centreIsThatOfTheParent()
{
    QWidget window;
    window.setGeometry(200, 150, 400, 300);
    QWidget parent(&window);
    parent.setGeometry(20, 30, 300, 200);
    window.show();
    QWidget dialog;
    dialog.resize(500, 60);
    VTWidgetsCenterOnParent(&dialog, &parent);
    const QRect area(parent.mapToGlobal(QPoint()), parent.size());
    QCOMPARE(QRect(dialog.pos(), dialog.size()).center(), area.center());
}

void tst_VTWidgetUtils::frameFollowsTheThemeInEveryWindow()
{
    QVERIFY(ThemeFixture::load());
    QVERIFY(VTWidgetsIsThemeDark());
    QWidget window;
    VTWidgetsMatchFrameToTheme(&window);
    QCOMPARE(window.internalWinId(), WId(0)); // not made for it
    window.show();
    window.setWindowFlag(Qt::WindowStaysOnTopHint); // makes another native window on some systems
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

void tst_VTWidgetUtils::inactiveApplicationStaysInactive()
{
    QWidget first;
    if (QGuiApplication::applicationState() != Qt::ApplicationActive) {
        VTWidgetsActivateWindow(&first);
        QVERIFY(QApplication::activeWindow() == nullptr);
    }
    first.show();
    first.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&first));
    QWidget second;
    second.show();
    VTWidgetsActivateWindow(&second);
    QCOMPARE(QApplication::activeWindow(), &second);
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

void tst_VTWidgetUtils::updatesOfAChildComeBackWithItsParent()
{
    QWidget parent;
    QWidget child(&parent);
    for (const auto &[outer, inner] : {std::pair(&parent, &child), std::pair(&child, &parent)}) {
        {
            const VTQtUpdatesBlocker outerBlocker(outer, VTQtUpdatesBlocker::BlockUpdates);
            {
                const VTQtUpdatesBlocker innerBlocker(inner, VTQtUpdatesBlocker::BlockUpdates);
            }
            QVERIFY(!child.updatesEnabled());
        }
        QVERIFY(parent.updatesEnabled() && child.updatesEnabled());
    }
}

FATAL_TEST_MAIN(tst_VTWidgetUtils)
#include "tst_VTWidgetUtils.moc"
