#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "VTQtSysInfoPretence.h"
#include "Window/VantraMainWindow.h"

#include <QtGui/QAction>
#include <QtGui/QShortcut>
#include <QtTest/QtTest>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include <vector>

namespace {

QKeySequence keys(const char *inText)
{
    return QKeySequence(QString::fromLatin1(inText), QKeySequence::PortableText);
}

// A window with a menu bar, menus in menus, a menu beside the bar and a shortcut, all registered. Everything
// that a key sets off is written down in its order.
class Editor : public VantraMainWindow
{
public:
    Editor()
    {
        connect(this, &VantraMainWindow::aboutToTriggerShortcut, this,
                [this](const QKeySequence &inKeys) { log << inKeys.toString(); });
        file = addMenuTo(menuBar(), "File");
        addActionTo(file, "Open", "Ctrl+O");
        QMenu *exporting = addMenuTo(file, "Export");
        addActionTo(exporting, "Print", "Ctrl+E");
        addActionTo(addMenuTo(exporting, "Web"), "Upload", "Ctrl+Shift+E");
        tools = new QMenu(QStringLiteral("Tools"), this);
        follow(tools);
        addAction(addActionTo(tools, "Heal", "Meta+K"));
        addAction(addActionTo(tools, "Clone", "Meta+J"));
        zoom = new QShortcut(keys("Ctrl+1"), this);
        connect(zoom, &QShortcut::activated, this, [this] { log << QStringLiteral("zoom"); });
        addActionTo(addMenuTo(menuBar(), "Unregistered"), "Quit", "Ctrl+Q");
        registerAboutToTriggerShortcut(file);
        registerAboutToTriggerShortcut(tools);
        registerAboutToTriggerShortcut(zoom);
    }

    void showActive()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
        log.clear();
    }

    void unregisterAll()
    {
        unregisterAboutToTriggerShortcut(file);
        unregisterAboutToTriggerShortcut(tools);
        unregisterAboutToTriggerShortcut(zoom);
    }

    QStringList log;
    QMenu *file;
    QMenu *tools;
    QShortcut *zoom;

private:
    template <typename Parent>
    QMenu *addMenuTo(Parent *ioParent, const char *inTitle)
    {
        QMenu *menu = ioParent->addMenu(QString::fromLatin1(inTitle));
        follow(menu);
        return menu;
    }

    void follow(QMenu *inMenu)
    {
        connect(inMenu, &QMenu::aboutToShow, this,
                [this, inMenu] { log << inMenu->title() + QStringLiteral(" shows"); });
    }

    QAction *addActionTo(QMenu *ioMenu, const char *inText, const char *inKeys)
    {
        QAction *action = ioMenu->addAction(QString::fromLatin1(inText));
        action->setShortcut(keys(inKeys));
        connect(action, &QAction::triggered, this, [this, action] { log << action->text(); });
        return action;
    }
};

struct PressRow
{
    const char *name;
    int key;
    Qt::KeyboardModifiers modifiers;
    bool repeat;
    VTQtSysInfoPretence::System system;
    const char *log;
};

constexpr auto kHere = VTQtSysInfoPretence::TheRealOne;
constexpr auto kMac = VTQtSysInfoPretence::Mac;

const std::vector<PressRow> &pressRows()
{
    using namespace Qt;
    static const std::vector<PressRow> sRows = {
        {"action", Key_O, ControlModifier, false, kHere, "Ctrl+O, File shows, Open"},
        {"action below", Key_E, ControlModifier, false, kHere, "Ctrl+E, File shows, Print"},
        {"two below", Key_E, ControlModifier | ShiftModifier, false, kHere,
         "Ctrl+Shift+E, Export shows, Upload"},
        {"shortcut", Key_1, ControlModifier, false, kHere, "Ctrl+1, zoom"},
        {"keypad", Key_1, ControlModifier | KeypadModifier, false, kHere, "Ctrl+1, zoom"},
        {"other group", Key_O, ControlModifier | GroupSwitchModifier, false, kHere, "Ctrl+O, File shows"},
        {"repeat", Key_O, ControlModifier, true, kHere, "Open"},
        {"no owner", Key_Q, ControlModifier, false, kHere, "Quit"},
        {"no shortcut", Key_O, NoModifier, false, kHere, ""},
        {"Meta with a key", Key_K, MetaModifier, false, kHere, "Meta+K, Tools shows, Heal"},
        {"Ctrl alone", Key_Control, ControlModifier, false, kMac, ""},
        {"Meta alone", Key_Meta, MetaModifier, false, kHere, ""},
        // The menu hears of its lowest sequence, once.
        {"Meta alone on macOS", Key_Meta, MetaModifier, false, kMac, "Meta+J, Tools shows"},
        {"held Meta on macOS", Key_Meta, MetaModifier, true, kMac, ""},
    };
    return sRows;
}

// Tells at each change of the window's state whether it is known as being maximized.
class StateWatch : public QObject
{
public:
    explicit StateWatch(VantraMainWindow *inWindow) : mWindow(inWindow)
    {
        inWindow->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *inEvent) override
    {
        if (inEvent->type() == QEvent::WindowStateChange) {
            maximizing << mWindow->isMaximizingWindow();
        }
        return false;
    }

    QList<bool> maximizing;

private:
    VantraMainWindow *mWindow;
};

} // namespace

FATAL_CASE(menuTwice)
{
    Editor editor;
    editor.registerAboutToTriggerShortcut(editor.file);
}

FATAL_CASE(shortcutOfAnAction)
{
    Editor editor;
    QShortcut shortcut(keys("Ctrl+O"), &editor);
    editor.registerAboutToTriggerShortcut(&shortcut);
}

FATAL_CASE(unknownMenu)
{
    Editor editor;
    editor.unregisterAboutToTriggerShortcut(editor.menuBar()->actions().last()->menu());
}

FATAL_CASE(keyOfAnotherMenu)
{
    Editor editor;
    editor.tools->actions().first()->setShortcut(keys("Ctrl+O"));
    editor.unregisterAboutToTriggerShortcut(editor.tools);
}

FATAL_CASE(menuKeyAsShortcut)
{
    Editor editor;
    editor.zoom->setKey(keys("Ctrl+O"));
    editor.unregisterAboutToTriggerShortcut(editor.zoom);
}

FATAL_CASE(leftOver)
{
    Editor().verifyUnregisteredAboutToTriggerShortcuts();
}

class tst_VantraMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void lastWindowIsTheActiveOne();
    void keyPressReachesTheMenuBeforeTheAction_data() { DataRows::add(pressRows()); }
    void keyPressReachesTheMenuBeforeTheAction();
    void menuMayGoWhileMetaIsReported();
    void remappedKeysAreFollowed();
    void triggeringByProgram();
    void mistakesStopTheProcess();
    void fullScreenGivesTheEarlierStateBack_data();
    void fullScreenGivesTheEarlierStateBack();
    void systemsOwnFullScreenIsLeftAlone();
    void doubleClickOnTheTitleMaximizes();
    void bringingToFrontKeepsTheState();
};

void tst_VantraMainWindow::lastWindowIsTheActiveOne()
{
    const VantraMainWindow first;
    QCOMPARE(VantraMainWindow::activeWindow(), &first);
    const VantraMainWindow second;
    QCOMPARE(VantraMainWindow::activeWindow(), &second);
    QCOMPARE(first.size(), QSize(561, 430));
    QCOMPARE(first.windowTitle(), QStringLiteral("MainWindow"));
    QVERIFY(first.findChild<QWidget *>(QStringLiteral("centralwidget")) == first.centralWidget());
    VantraMainWindow::setActiveWindow(nullptr);
    QVERIFY(VantraMainWindow::activeWindow() == nullptr);
}

void tst_VantraMainWindow::keyPressReachesTheMenuBeforeTheAction()
{
    const PressRow row = DataRows::current(pressRows());
    Editor editor;
    const VTQtSysInfoPretence pretence(row.system);
    editor.keySequenceChanged({}, {}); // so that the maps are those of the system
    editor.showActive();
    QTest::simulateEvent(editor.windowHandle(), true, row.key, row.modifiers, QString(), row.repeat);
    QTRY_COMPARE(editor.log.join(QStringLiteral(", ")), QString::fromLatin1(row.log));
    editor.unregisterAll();
    editor.verifyUnregisteredAboutToTriggerShortcuts();
}

void tst_VantraMainWindow::menuMayGoWhileMetaIsReported()
{
    Editor editor;
    const VTQtSysInfoPretence pretence(kMac);
    editor.keySequenceChanged({}, {});
    auto *recent = new QMenu(&editor);
    recent->addAction(QStringLiteral("Last"))->setShortcut(keys("Meta+Z"));
    editor.registerAboutToTriggerShortcut(recent);
    connect(editor.tools, &QMenu::aboutToShow, &editor, [&] {
        editor.unregisterAboutToTriggerShortcut(recent);
        delete recent;
    });
    editor.showActive();
    QTest::keyClick(editor.windowHandle(), Qt::Key_Meta);
    QTRY_COMPARE(editor.log.join(QStringLiteral(", ")), QStringLiteral("Meta+J, Tools shows"));
}

void tst_VantraMainWindow::remappedKeysAreFollowed()
{
    Editor editor;
    editor.file->actions().first()->setShortcuts({keys("Ctrl+P"), keys("Ctrl+Shift+P")});
    editor.zoom->setKey(keys("Ctrl+2"));
    editor.keySequenceChanged(keys("Ctrl+O"), keys("Ctrl+P"));
    editor.showActive();
    QTest::keyClick(editor.windowHandle(), Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(editor.windowHandle(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(editor.windowHandle(), Qt::Key_2, Qt::ControlModifier);
    QTRY_COMPARE(editor.log.join(QStringLiteral(", ")),
                 QStringLiteral("Ctrl+Shift+P, File shows, Open, Ctrl+2, zoom"));
    editor.unregisterAll();
    editor.verifyUnregisteredAboutToTriggerShortcuts();
}

void tst_VantraMainWindow::triggeringByProgram()
{
    Editor editor;
    editor.triggerActionOrShortcut(keys("Ctrl+E"));
    editor.triggerActionOrShortcut(keys("Ctrl+1"));
    editor.triggerActionOrShortcut(keys("Ctrl+9"));
    editor.emitAboutToTriggerShortcut(keys("Ctrl+1"));
    editor.emitAboutToTriggerShortcut(keys("Ctrl+O"));
    QCOMPARE(editor.log.join(QStringLiteral(", ")),
             QStringLiteral("Ctrl+E, File shows, Print, zoom, Ctrl+O, File shows"));
}

void tst_VantraMainWindow::mistakesStopTheProcess()
{
    const QString insert = QStringLiteral("VantraMainWindow::insertIntoKeySequenceToMenuMap: "
                                          "There should only be one shortcut 'Ctrl+O' mapped to a menu ");
    QCOMPARE(FatalTest::assertionOf("menuTwice"), insert + "'File'");
    QCOMPARE(FatalTest::assertionOf("shortcutOfAnAction"), insert + "'<NULL>'");
    QCOMPARE(FatalTest::assertionOf("unknownMenu"),
             "VantraMainWindow::takeFromKeySequenceToMenuMap: The shortcut 'Ctrl+Q' should exist in the map");
    QCOMPARE(FatalTest::assertionOf("keyOfAnotherMenu"),
             "testMenu == menu && \"Menu mismatch for key sequence\"");
    QCOMPARE(FatalTest::assertionOf("menuKeyAsShortcut"),
             "testMenu == NULL && \"Menu mismatch for shortcut, menu should be NULL\"");
    QCOMPARE(FatalTest::assertionOf("leftOver"),
             "mKeySequenceToMenuMap.isEmpty() && \"mKeySequenceToMenuMap should be empy\"");
}

void tst_VantraMainWindow::fullScreenGivesTheEarlierStateBack_data()
{
    QTest::addColumn<bool>("maximized");
    QTest::addColumn<QList<bool>>("maximizing");
    QTest::newRow("normal") << false << QList<bool>{true, false};
    // By way of the normal state.
    QTest::newRow("maximized") << true << QList<bool>{true, false, true};
}

void tst_VantraMainWindow::fullScreenGivesTheEarlierStateBack()
{
    QFETCH(const bool, maximized);
    QFETCH(const QList<bool>, maximizing);
    VantraMainWindow window;
    maximized ? window.showMaximized() : window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(window.isMaximized(), maximized);
    StateWatch watch(&window);
    window.toggleFullScreen();
    QTRY_VERIFY(window.isFullScreen());
    QVERIFY(window.updatesEnabled());
    window.toggleFullScreen();
    QTRY_COMPARE(window.isMaximized(), maximized);
    QVERIFY(!window.isFullScreen());
    QTRY_VERIFY(!window.isMaximizingWindow());
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) { // others send more changes
        QCOMPARE(watch.maximizing, maximizing);
    }
}

void tst_VantraMainWindow::systemsOwnFullScreenIsLeftAlone()
{
    VantraMainWindow window;
    window.show();
    const VTQtSysInfoPretence onMac(kMac);
    window.toggleFullScreen();
    QVERIFY(window.isMaximizingWindow());
    QVERIFY(!window.windowState().testFlag(Qt::WindowFullScreen));
    window.showFullScreen();
    QVERIFY(!window.isFullScreen());
}

void tst_VantraMainWindow::doubleClickOnTheTitleMaximizes()
{
    VantraMainWindow window;
    QMouseEvent event(QEvent::NonClientAreaMouseButtonDblClick, QPointF(), QPointF(), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
    QVERIFY(window.isMaximizingWindow());
    window.setWindowState(Qt::WindowMaximized);
    QVERIFY(!window.isMaximizingWindow());
    QCoreApplication::sendEvent(&window, &event);
    QVERIFY(!window.isMaximizingWindow());
}

void tst_VantraMainWindow::bringingToFrontKeepsTheState()
{
    for (const Qt::WindowState state : {Qt::WindowNoState, Qt::WindowMaximized, Qt::WindowFullScreen}) {
        VantraMainWindow window;
        window.setWindowState(state);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        VantraMainWindow other;
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        window.bringToFront();
        QTRY_VERIFY(window.isActiveWindow());
        QCOMPARE(window.windowState() & ~Qt::WindowActive, Qt::WindowStates(state));
    }
}

FATAL_TEST_MAIN(tst_VantraMainWindow)
#include "tst_VantraMainWindow.moc"
