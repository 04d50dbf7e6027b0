#include "Support/FatalTest.h"
#include "Support/ProgressOperations.h"
#include "Support/ThemeFixture.h"
#include "Support/Watchdog.h"
#include "Window/VantraMainWindow.h"

#include <QtCore/QProcess>

#include <atomic>
#include <cstdio>
#include <optional>

using namespace ProgressOperations;

// Another program, which the user has turned to; it ends when it is told anything.
FATAL_CASE(otherProgram)
{
    QWidget window;
    window.resize(200, 200);
    window.show();
    window.activateWindow();
    std::fputs(QTest::qWaitForWindowActive(&window, 20000) ? "active" : "never active", stderr);
    std::getchar();
}

FATAL_CASE(endAfterTheApplication)
{
    new VantraMainWindow;
    VantraProgressMgr *manager = VantraProgressMgr::sharedInstance();
    static_cast<QApplication *>(QCoreApplication::instance())->~QApplication();
    std::thread([manager] { manager->endProgress(); }).join();
}

// How operations end: the window that comes to the front, and what ends early.
class tst_VantraProgressMgrEnds : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { delete mWindow; }
    void init() { mWatchdog.emplace(60); }
    void cleanup();
    void focusComesBackTo_data();
    void focusComesBackTo();
    void focusIsNotTakenFromAnotherProgram();
    void parentDeletedInTheRun();
    void mainWindowClosedInTheRun();
    void applicationQuitsInTheRun_data();
    void applicationQuitsInTheRun();
    void managerGoesInTheRun_data();
    void managerGoesInTheRun();
    void slotOnTheEndDeletes_data();
    void slotOnTheEndDeletes();
    void nextOperationBegunAsTheRunEnds();
    void workerEndsAfterTheApplication();

private:
    std::optional<Watchdog> mWatchdog;
    VantraMainWindow *mWindow = nullptr;
    VantraProgressMgr *mManager = nullptr;
};

void tst_VantraProgressMgrEnds::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    mWindow = new VantraMainWindow;
    mWindow->show();
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow));
    mManager = VantraProgressMgr::sharedInstance();
}

void tst_VantraProgressMgrEnds::cleanup()
{
    mWatchdog.reset();
    QVERIFY(!mManager->progressRunning());
    QVERIFY(mManager->progress() == nullptr);
    QTRY_VERIFY(mWindow->findChildren<VantraProgress *>().isEmpty());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void tst_VantraProgressMgrEnds::focusComesBackTo_data()
{
    QTest::addColumn<bool>("ownParent");
    QTest::addColumn<bool>("onGuiThread");
    QTest::newRow("main window") << false << false;
    QTest::newRow("main window, GUI thread") << false << true;
    QTest::newRow("another window") << true << false;
    QTest::newRow("another window, GUI thread") << true << true;
}

void tst_VantraProgressMgrEnds::focusComesBackTo()
{
    QFETCH(const bool, ownParent);
    QFETCH(const bool, onGuiThread);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QWidget *parent = ownParent ? &other : mWindow;
    if (onGuiThread) {
        mManager->setDelayBeforeShowDialog(20);
        mManager->beginProgress(parent, VantraProgressTypeUnthrottled);
        pause(30);
        mManager->updateStage(0);
        QVERIFY(QTest::qWaitForWindowActive(dialogOf(parent)));
        mManager->endProgress();
    } else {
        runOnThread(mManager, parent, [](__VTProgress *) { pause(200); });
    }
    QVERIFY(QTest::qWaitForWindowActive(parent));
    QTest::qWait(50);
    QCOMPARE(QApplication::activeWindow(), parent);
}

void tst_VantraProgressMgrEnds::focusIsNotTakenFromAnotherProgram()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        QSKIP("programs share no screen here");
    }
    QProcess other;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VTWIDGETS_FATAL_CASE"), QStringLiteral("otherProgram"));
    other.setProcessEnvironment(environment);
    std::atomic<bool> active{false};
    connect(&other, &QProcess::readyReadStandardError, mWindow,
            [&] { active = active || other.readAllStandardError().contains("active"); });
    QTimer::singleShot(50, mWindow, [&] { other.start(QCoreApplication::applicationFilePath(), {}); });
    runOnThread(mManager, mWindow, [&](__VTProgress *) {
        while (!active) {
            pause(10);
        }
        pause(200);
    });
    QTest::qWait(300);
    QCOMPARE(QGuiApplication::applicationState(), Qt::ApplicationInactive);
    QVERIFY(QApplication::activeWindow() == nullptr);
    other.closeWriteChannel();
    QVERIFY(other.waitForFinished());
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow));
}

void tst_VantraProgressMgrEnds::parentDeletedInTheRun()
{
    QPointer<QWidget> parent(new QWidget);
    parent->show();
    QTimer::singleShot(50, mWindow, [&] { delete parent; });
    std::atomic<bool> goOn{true};
    int token = 0;
    mManager->beginProgress(parent, token, VantraProgressTypeDefault);
    __VTProgress *progress = mManager->progress();
    std::thread worker([&] {
        while (goOn) {
            VTProgressDoProgressUpdateStage(progress, 1);
        }
        mManager->endProgress(token);
    });
    QCOMPARE(mManager->runProgress(token), int(QDialog::Rejected));
    QVERIFY(parent.isNull());
    QVERIFY(mManager->progressRunning());
    QCOMPARE(mManager->runProgress(token), 0); // nothing to run in
    goOn = false;
    worker.join();
    QTRY_VERIFY(!mManager->progressRunning());
    QVERIFY(QTest::qWaitForWindowActive(mWindow));
}

void tst_VantraProgressMgrEnds::mainWindowClosedInTheRun()
{
    VantraMainWindow other; // keeps the application from quitting
    VantraMainWindow::setActiveWindow(mWindow);
    other.show();
    bool stays = false;
    QTimer::singleShot(50, mWindow, [&] { mWindow->close(); });
    QTimer::singleShot(150, mWindow,
                       [&] { stays = !mWindow->isVisible() && dialogOf(mWindow)->isVisible(); });
    QCOMPARE(runOnThread(mManager, mWindow, [](__VTProgress *) { pause(300); }), int(QDialog::Accepted));
    QVERIFY(stays);
    mWindow->show();
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow));
}

void tst_VantraProgressMgrEnds::applicationQuitsInTheRun_data()
{
    QTest::addColumn<bool>("byForce");
    QTest::newRow("quit asks for a cancel") << false;
    QTest::newRow("exit ends the run") << true;
}

void tst_VantraProgressMgrEnds::applicationQuitsInTheRun()
{
    QFETCH(const bool, byForce);
    int code = -1;
    int answer = -1;
    bool stillRunning = false;
    QTimer::singleShot(50, mWindow, [&] { byForce ? QCoreApplication::exit() : QCoreApplication::quit(); });
    QTimer::singleShot(0, mWindow, [&] {
        code = runOnThread(mManager, mWindow, [&](__VTProgress *ioProgress) {
            pause(300);
            answer = VTProgressDoProgressUpdateStage(ioProgress, 0);
        });
        stillRunning = mManager->progressRunning();
        QCoreApplication::exit();
    });
    QApplication::exec();
    QCOMPARE(code, int(byForce ? QDialog::Rejected : QDialog::Accepted));
    QCOMPARE(answer, byForce ? 0 : 1007);
    // After the end by force, the worker's own is still on its way.
    QCOMPARE(stillRunning, byForce);
    QTRY_VERIFY(!mManager->progressRunning());
    mWindow->show(); // closed by the attempt to quit
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow));
}

void tst_VantraProgressMgrEnds::managerGoesInTheRun_data()
{
    QTest::addColumn<bool>("onGuiThread");
    QTest::newRow("worker") << false;
    QTest::newRow("GUI thread") << true;
}

// The window that owns the manager is deleted under an operation.
void tst_VantraProgressMgrEnds::managerGoesInTheRun()
{
    QFETCH(const bool, onGuiThread);
    VantraProgressMgr *former = OpenManager::exchangeInstance(nullptr);
    auto *window = new VantraMainWindow;
    window->show();
    QPointer<VantraProgressMgr> manager(VantraProgressMgr::sharedInstance());
    QTimer::singleShot(50, mWindow, [&] { delete window; });
    manager->beginProgress(window, onGuiThread ? VantraProgressTypeUnthrottled : VantraProgressTypeDefault);
    __VTProgress *progress = VTProgressRetain(manager->progress());
    std::atomic<int> result{0};
    if (onGuiThread) {
        result = workUntilCanceled(progress);
    } else {
        std::thread worker([&] { result = workUntilCanceled(progress); });
        QCOMPARE(manager->runProgress(), 0);
        worker.join();
    }
    QCOMPARE(result.load(), 1007);
    QVERIFY(manager.isNull());
    VTProgressRelease(progress);
    OpenManager::exchangeInstance(former);
    VantraMainWindow::setActiveWindow(mWindow);
}

void tst_VantraProgressMgrEnds::slotOnTheEndDeletes_data()
{
    QTest::addColumn<bool>("deletesWindow");
    QTest::addColumn<bool>("ownParent");
    QTest::addColumn<bool>("onGuiThread");
    for (const bool onGuiThread : {false, true}) {
        const char *thread = onGuiThread ? "GUI thread" : "worker";
        QTest::addRow("window, %s", thread) << true << false << onGuiThread;
        QTest::addRow("window, dialog stays, %s", thread) << true << true << onGuiThread;
        QTest::addRow("parent of the dialog, %s", thread) << false << true << onGuiThread;
    }
}

// The window takes the manager with it.
void tst_VantraProgressMgrEnds::slotOnTheEndDeletes()
{
    QFETCH(const bool, deletesWindow);
    QFETCH(const bool, ownParent);
    QFETCH(const bool, onGuiThread);
    QTest::failOnWarning(QRegularExpression(QStringLiteral("mutex|null receiver")));
    VantraProgressMgr *former = OpenManager::exchangeInstance(nullptr);
    auto *window = new VantraMainWindow;
    VantraMainWindow::setActiveWindow(window);
    const QPointer<VantraProgressMgr> manager(VantraProgressMgr::sharedInstance());
    auto *parent = new QWidget;
    manager->beginProgress(ownParent ? parent : window, VantraProgressTypeDefault);
    const QPointer<VantraProgress> dialog(dialogOf(ownParent ? parent : window));
    int ends = 0;
    connect(dialog, &QDialog::finished, mWindow, [&] {
        ++ends;
        delete (deletesWindow ? window : parent);
    });
    if (onGuiThread) {
        manager->endProgress();
    } else {
        emit manager->endProgressSignal(0);
        manager->runProgress();
    }
    QCOMPARE(ends, 1);
    QCOMPARE(manager.isNull(), deletesWindow);
    QTRY_VERIFY(dialog.isNull());
    delete (deletesWindow ? parent : window);
    OpenManager::exchangeInstance(former);
    VantraMainWindow::setActiveWindow(mWindow);
}

void tst_VantraProgressMgrEnds::nextOperationBegunAsTheRunEnds()
{
    mManager->beginProgress(mWindow, VantraProgressTypeDefault);
    // Both are in the queue before the run, so the slot comes before the run returns.
    emit mManager->endProgressSignal(0);
    QMetaObject::invokeMethod(
        mWindow, [this] { mManager->beginProgress(mWindow, VantraProgressTypeDefault); },
        Qt::QueuedConnection);
    mManager->runProgress();
    QVERIFY(mManager->progressRunning());
    dialogOf(mWindow)->setCanceled(true);
    QCOMPARE(mManager->updateStage(0), 1007);
    mManager->endProgress();
}

void tst_VantraProgressMgrEnds::workerEndsAfterTheApplication()
{
    const FatalTest::Outcome outcome = FatalTest::run("endAfterTheApplication");
    QVERIFY2(!outcome.aborted, qPrintable(outcome.output));
}

FATAL_TEST_MAIN(tst_VantraProgressMgrEnds)
#include "tst_VantraProgressMgrEnds.moc"
