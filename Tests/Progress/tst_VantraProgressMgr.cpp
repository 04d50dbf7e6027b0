#include "Support/FatalTest.h"
#include "Support/ProgressOperations.h"
#include "Support/ThemeFixture.h"
#include "Support/Watchdog.h"
#include "Window/VantraMainWindow.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

#include <atomic>
#include <optional>

using namespace ProgressOperations;

namespace {

VantraProgressMgr *managerOfAWindow(QWidget **outWindow = nullptr)
{
    auto *window = new VantraMainWindow;
    if (outWindow != nullptr) {
        *outWindow = window;
    }
    return VantraProgressMgr::sharedInstance();
}

// What became of the opacity of a dialog on the screen, looked at before every event that it gets.
class OpacityWatch : public QObject
{
public:
    OpacityWatch() { qApp->installEventFilter(this); }

    double highest = -1.0; // -1 when there was no dialog
    qint64 visibleAfter = -1;

    bool eventFilter(QObject *inWatched, QEvent *) override
    {
        const auto *dialog = qobject_cast<VantraProgress *>(inWatched);
        if (dialog != nullptr && dialog->isVisible()) {
            highest = qMax(highest, dialog->windowOpacity());
            if (visibleAfter < 0 && dialog->windowOpacity() > 0.0) {
                visibleAfter = mClock.elapsed();
            }
        }
        return false;
    }

private:
    const QElapsedTimer mClock = [] {
        QElapsedTimer clock;
        clock.start();
        return clock;
    }();
};

} // namespace

FATAL_CASE(managerWithoutAWindow)
{
    VantraProgressMgr::sharedInstance();
}

FATAL_CASE(runWithoutBegin)
{
    managerOfAWindow()->runProgress();
}

FATAL_CASE(beginWithoutAParent)
{
    managerOfAWindow()->beginProgress(nullptr, VantraProgressTypeDefault);
}

FATAL_CASE(cancelVisibleWithoutADialog)
{
    managerOfAWindow()->setCancelVisible(true);
}

FATAL_CASE(runWithNeitherDialogNorDelay)
{
    VantraProgressMgr *manager = managerOfAWindow();
    auto *parent = new QWidget;
    manager->beginProgress(parent, VantraProgressTypeDefault);
    delete parent;
    manager->setDelayBeforeShowDialog(0);
    manager->runProgress();
}

FATAL_CASE(beginWithinAnEnd)
{
    QWidget *window = nullptr;
    VantraProgressMgr *manager = managerOfAWindow(&window);
    manager->beginProgress(window, VantraProgressTypeDefault);
    QObject::connect(dialogOf(window), &QDialog::finished, window,
                     [=] { manager->beginProgress(window, VantraProgressTypeDefault); });
    manager->endProgressSlot(0);
}

FATAL_CASE(hangs)
{
    const Watchdog watchdog(1);
    VantraMainWindow window;
    VantraProgressMgr *manager = VantraProgressMgr::sharedInstance();
    manager->beginProgress(&window, VantraProgressTypeDefault);
    manager->runProgress();
}

class tst_VantraProgressMgr : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { delete mWindow; }
    void init() { mWatchdog.emplace(60); }
    void cleanup();
    void programmingErrorsStopTheProcess_data();
    void programmingErrorsStopTheProcess();
    void aHangIsShownWithItsStack();
    void nestedPairsShareTheDialog();
    void onePairTooManyDoesNoHarm();
    void operationLine_data();
    void operationLine();
    void titleChangesWhileAThreadReports();
    void stageSetsTheBar();
    void throttle_data();
    void throttle();
    void shortOperationIsNeverSeenAndBlocks();
    void turnsVisibleAfterTheDelay_data();
    void turnsVisibleAfterTheDelay();
    void updatesComeTwiceASecondAtMost();
    void busyBar();
    void cancelReachesTheWorker_data();
    void cancelReachesTheWorker();
    void cancelButtonIsHiddenInTheRun();
    void workOnTheGuiThread_data();
    void workOnTheGuiThread();
    void fakeModalSwallowsInput();
    void logPrefixAndFilter();

private:
    std::optional<Watchdog> mWatchdog;
    VantraMainWindow *mWindow = nullptr;
    QPushButton *mButton = nullptr;
    VantraProgressMgr *mManager = nullptr;
};

void tst_VantraProgressMgr::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    mWindow = new VantraMainWindow;
    mButton = new QPushButton(QStringLiteral("Under the dialog"), mWindow);
    mWindow->show();
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow));
    mManager = VantraProgressMgr::sharedInstance();
    QCOMPARE(mManager->parent(), mWindow);
    QCOMPARE(VantraProgressMgr::sharedInstance(), mManager);
}

// Nothing stays behind, whatever the test was.
void tst_VantraProgressMgr::cleanup()
{
    mWatchdog.reset();
    mManager->setCancelKeys({});
    QVERIFY(!mManager->progressRunning());
    QVERIFY(!mManager->canceled());
    QVERIFY(mManager->progress() == nullptr);
    QCOMPARE(mManager->delayBeforeShowDialog(), 2000);
    QTRY_VERIFY(mWindow->findChildren<VantraProgress *>().isEmpty());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void tst_VantraProgressMgr::programmingErrorsStopTheProcess_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("managerWithoutAWindow") << QStringLiteral("parent != nullptr");
    QTest::newRow("runWithoutBegin") << QStringLiteral("mProgressCount > 0");
    QTest::newRow("beginWithoutAParent")
        << QStringLiteral("parent != NULL && \"parent should not be NULL, see bug #13294\"");
    QTest::newRow("cancelVisibleWithoutADialog")
        << QStringLiteral("false && \"setCancelVisible() called on a dialog that may not have a cancel "
                          "button.\"");
    QTest::newRow("runWithNeitherDialogNorDelay") << QStringLiteral("!m_isLocked");
    QTest::newRow("beginWithinAnEnd")
        << QStringLiteral("!takenAbove && \"An operation may not begin, run or end while another one is "
                          "ending.\"");
}

void tst_VantraProgressMgr::programmingErrorsStopTheProcess()
{
    QFETCH(const QString, text);
    QCOMPARE(FatalTest::assertionOf(QTest::currentDataTag()), text);
}

void tst_VantraProgressMgr::aHangIsShownWithItsStack()
{
    const FatalTest::Outcome outcome = FatalTest::run("hangs");
    QVERIFY(outcome.aborted);
    QVERIFY2(outcome.output.contains(QLatin1String("hangs for 1 seconds")), qPrintable(outcome.output));
#if defined(Q_OS_LINUX)
    QVERIFY2(outcome.output.contains(QLatin1String("QDialog4exec")), qPrintable(outcome.output));
#endif
}

void tst_VantraProgressMgr::nestedPairsShareTheDialog()
{
    int outer = 0;
    int inner = -1;
    mManager->setTitle(QStringLiteral("Outer"));
    QCOMPARE(mManager->beginProgress(mWindow, outer, VantraProgressTypeUnthrottled), 0);
    QVERIFY(outer > 0);
    const __VTProgress *progress = mManager->progress();
    QVERIFY(progress != nullptr);
    mManager->beginProgress(nullptr, inner, VantraProgressTypeDefault);
    QCOMPARE(inner, 0);
    QCOMPARE(mManager->runProgress(inner), 0);
    QCOMPARE(mManager->progress(), progress);
    QCOMPARE(mWindow->findChildren<VantraProgress *>().size(), 1);
    mManager->endProgress(inner);
    QVERIFY(mManager->progressRunning());
    QCOMPARE(mManager->updateStage(1), 0);
    mManager->endProgress(outer);
    QVERIFY(!mManager->progressRunning());
    int next = 0;
    mManager->beginProgress(mWindow, next, VantraProgressTypeDefault);
    QCOMPARE(next, outer + 1);
    QCOMPARE(dialogOf(mWindow)->findChild<QLabel *>(QStringLiteral("labelOperation"))->text(),
             QStringLiteral("Loading..."));
    mManager->endProgress();
}

void tst_VantraProgressMgr::onePairTooManyDoesNoHarm()
{
    mManager->endProgress();
    emit mManager->endProgressSignal(7);
    QCoreApplication::processEvents();
    QVERIFY(!mManager->progressRunning());
    QCOMPARE(mManager->updateStageAndName(1, QStringLiteral("nobody listens")), 0);
    QCOMPARE(mManager->beginStage(1, QStringLiteral("nobody listens"), 1), 0);
    QCOMPARE(mManager->runProgressIndeterminate(QStringLiteral("no dialog")), 0);
    mManager->setCancelEnabled(false);
    QCOMPARE(runOnThread(mManager, mWindow, [](__VTProgress *) {}), int(QDialog::Accepted));
}

void tst_VantraProgressMgr::operationLine_data()
{
    QTest::addColumn<int>("stages");
    QTest::addColumn<bool>("ownTitle");
    QTest::addColumn<QString>("line");
    QTest::newRow("unnumbered") << 0 << false << QStringLiteral("Copy 100%1");
    QTest::newRow("numbered") << 3 << false << QStringLiteral("Copy 100%1 (2 of 3)");
    QTest::newRow("title of the object") << 0 << true << QStringLiteral("Own");
    QTest::newRow("both") << 2 << true << QStringLiteral("Own (2 of 2)");
}

void tst_VantraProgressMgr::operationLine()
{
    QFETCH(const int, stages);
    QFETCH(const bool, ownTitle);
    QFETCH(const QString, line);
    mManager->setTitle(QStringLiteral("Copy 100%1"));
    mManager->beginProgress(mWindow, VantraProgressTypeUnthrottled);
    VTProgressSetStages(mManager->progress(), stages);
    if (ownTitle) {
        VTProgressSetTitle(mManager->progress(), CFSTR("Own"));
    }
    mManager->beginStage(2, QStringLiteral("Stage"), 3);
    const auto *operation = dialogOf(mWindow)->findChild<QLabel *>(QStringLiteral("labelOperation"));
    QCOMPARE(operation->text(), line);
    mManager->updateStageAndName(1, QStringLiteral("Größer"));
    QCOMPARE(operation->text(), line);
    QCOMPARE(dialogOf(mWindow)->findChild<QLabel *>(QStringLiteral("labelStage"))->text(),
             QStringLiteral("Größer"));
    mManager->endProgress();
}

// The GUI thread sets a title for each message while the worker goes on to read them.
void tst_VantraProgressMgr::titleChangesWhileAThreadReports()
{
    int title = 1;
    mManager->setTitle(QString::number(title));
    QObject context;
    std::atomic<int> latest{0};
    bool sorted = true;
    connect(
        mManager, &VantraProgressMgr::progressUpdate, &context,
        [&](const VantraProgressMsg &inMsg) {
            const int next = inMsg.title().toInt();
            sorted = sorted && next >= qMax(1, latest.load());
            latest = next;
        },
        Qt::DirectConnection);
    connect(mManager, &VantraProgressMgr::progressUpdate, &context,
            [&] { mManager->setTitle(QString::number(++title)); });
    runOnThread(mManager, mWindow, [&](__VTProgress *ioProgress) {
        for (int i = 0; latest < 300 && sorted; ++i) {
            VTProgressDoProgressBeginStage(ioProgress, i, nullptr, 1);
        }
    });
    mManager->setTitle(QString());
    QVERIFY(sorted);
}

void tst_VantraProgressMgr::stageSetsTheBar()
{
    mManager->beginProgress(mWindow, VantraProgressTypeUnthrottled);
    const auto *bar = dialogOf(mWindow)->findChild<QProgressBar *>();
    mManager->beginStage(1, QStringLiteral("Stage"), 5);
    QCOMPARE(bar->maximum(), 4);
    QCOMPARE(bar->value(), 0);
    mManager->updateStage(3);
    QCOMPARE(bar->value(), 3);
    mManager->endStage();
    QCOMPARE(bar->value(), 3);
    mManager->beginStage(2, QString(), 0);
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 0);
    mManager->endProgress();
}

void tst_VantraProgressMgr::throttle_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("0") << 0 << 0 << 0;
    QTest::newRow("1") << 1 << 1 << 30;
    QTest::newRow("2") << 2 << 200 << 200;
    QTest::newRow("above 2") << 9 << 200 << 200;
}

// 200 updates in some 300 ms.
void tst_VantraProgressMgr::throttle()
{
    QFETCH(const int, type);
    QFETCH(const int, least);
    QFETCH(const int, most);
    mManager->beginProgress(mWindow, VantraProgressType(type));
    QSignalSpy spy(mManager, &VantraProgressMgr::progressUpdate);
    mManager->beginStage(1, QString(), 1);
    mManager->endStage();
    QCOMPARE(spy.count(), 2);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 200; ++i) {
        mManager->updateStage(i);
        pause(clock.elapsed() < 300 ? 1 : 0);
    }
    const int count = int(spy.count()) - 2;
    mManager->endProgress();
    if (type == 0 && clock.elapsed() > 450) {
        QSKIP("too slow a machine for a bound on times");
    }
    QVERIFY2(count >= least && count <= qMax<qint64>(most, type == 1 ? clock.elapsed() / 10 : 0),
             qPrintable(QString::number(count)));
}

void tst_VantraProgressMgr::shortOperationIsNeverSeenAndBlocks()
{
    OpacityWatch watch;
    QSignalSpy clicks(mButton, &QPushButton::clicked);
    bool blocked = false;
    QTimer::singleShot(150, mWindow, [&] {
        const auto *dialog = qobject_cast<VantraProgress *>(QApplication::activeModalWidget());
        blocked = dialog != nullptr && dialog->isVisible() && mManager->progressRunning();
        QTest::mouseClick(mWindow->windowHandle(), Qt::LeftButton, {}, mButton->geometry().center());
    });
    runOnThread(mManager, mWindow, [](__VTProgress *ioProgress) {
        QElapsedTimer clock;
        clock.start();
        VTProgressDoProgressBeginStage(ioProgress, 1, CFSTR("Work"), 700);
        while (clock.elapsed() < 700) {
            VTProgressDoProgressUpdateStage(ioProgress, int(clock.elapsed()));
            pause(1);
        }
    });
    QVERIFY(blocked);
    QCOMPARE(clicks.count(), 0);
    QCOMPARE(watch.highest, 0.0);
    QTest::mouseClick(mWindow->windowHandle(), Qt::LeftButton, {}, mButton->geometry().center());
    QCOMPARE(clicks.count(), 1);
}

void tst_VantraProgressMgr::turnsVisibleAfterTheDelay_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<bool>("reports");
    QTest::newRow("by the timer") << 200 << false;
    QTest::newRow("by the timer, with reports") << 600 << true;
    QTest::newRow("at once") << 0 << false;
}

void tst_VantraProgressMgr::turnsVisibleAfterTheDelay()
{
    QFETCH(const int, delay);
    QFETCH(const bool, reports);
    mManager->setDelayBeforeShowDialog(delay);
    QCOMPARE(mManager->delayBeforeShowDialog(), delay);
    OpacityWatch watch;
    runOnThread(mManager, mWindow, [=](__VTProgress *ioProgress) {
        for (int i = 0; i < delay + 200; ++i) {
            if (reports) {
                VTProgressDoProgressUpdateStage(ioProgress, i);
            }
            pause(1);
        }
    });
    QCOMPARE(watch.highest, 1.0);
    QVERIFY2(watch.visibleAfter >= delay, qPrintable(QString::number(watch.visibleAfter)));
}

void tst_VantraProgressMgr::updatesComeTwiceASecondAtMost()
{
    QList<qint64> times;
    QElapsedTimer clock;
    clock.start();
    QObject context;
    connect(
        mManager, &VantraProgressMgr::progressUpdate, &context, [&] { times << clock.elapsed(); },
        Qt::DirectConnection);
    runOnThread(mManager, mWindow, [](__VTProgress *ioProgress) {
        QElapsedTimer whole;
        whole.start();
        for (int i = 0; whole.elapsed() < 1300; ++i) {
            VTProgressDoProgressUpdateStage(ioProgress, i);
        }
    });
    QVERIFY2(times.size() == 2, qPrintable(QString::number(times.size())));
    QVERIFY(times.at(0) > 490);
    QVERIFY(times.at(1) - times.at(0) > 490);
}

void tst_VantraProgressMgr::busyBar()
{
    int token = 0;
    mManager->beginProgress(mWindow, token, VantraProgressTypeDefault);
    bool busy = false;
    QTimer::singleShot(50, mWindow, [&] {
        VantraProgress *dialog = dialogOf(mWindow);
        busy =
            dialog->findChild<QProgressBar *>()->maximum() == 0 &&
            dialog->findChild<QLabel *>(QStringLiteral("labelOperation"))->text() == QLatin1String("Busy") &&
            dialog->findChild<QLabel *>(QStringLiteral("labelStage"))->text().isEmpty();
        emit mManager->endProgressSignal(token);
    });
    QCOMPARE(mManager->runProgressIndeterminate(QStringLiteral("Busy"), token), int(QDialog::Accepted));
    QVERIFY(busy);
}

void tst_VantraProgressMgr::cancelReachesTheWorker_data()
{
    QTest::addColumn<int>("key"); // 0 for the button, -1 for closing the window
    QTest::addColumn<bool>("buttonEnabled");
    QTest::newRow("button") << 0 << true;
    QTest::newRow("title bar") << -1 << true;
    QTest::newRow("key") << int(Qt::Key_Escape) << true;
    QTest::newRow("key, button disabled") << int(Qt::Key_Period) << false;
}

void tst_VantraProgressMgr::cancelReachesTheWorker()
{
    QFETCH(const int, key);
    QFETCH(const bool, buttonEnabled);
    mManager->setCancelKeys({Qt::Key_Escape, Qt::Key_Period});
    QTimer::singleShot(100, mWindow, [&] {
        mManager->setCancelEnabled(buttonEnabled);
        VantraProgress *dialog = dialogOf(mWindow);
        auto *button = dialog->findChild<QPushButton *>();
        if (key > 0) {
            QTest::keyClick(dialog->windowHandle(), Qt::Key(key));
        } else if (key == 0) {
            QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {},
                              button->mapTo(dialog, button->rect().center()));
        } else {
            dialog->close();
        }
    });
    int result = 0;
    int last = 0;
    const int code = runOnThread(mManager, mWindow, [&](__VTProgress *ioProgress) {
        result = workUntilCanceled(ioProgress);
        last = VTProgressDoProgressEndStage(ioProgress);
    });
    QCOMPARE(result, 1007);
    QCOMPARE(last, 1007);
    QCOMPARE(code, int(QDialog::Accepted));
    QCOMPARE(mManager->keyUsedToCancel(), qMax(0, key));
    runOnThread(mManager, mWindow, [](__VTProgress *) {});
    QCOMPARE(mManager->keyUsedToCancel(), 0);
}

void tst_VantraProgressMgr::cancelButtonIsHiddenInTheRun()
{
    bool blocks = false;
    QTimer::singleShot(50, mWindow, [&] { mManager->setCancelVisible(false); });
    QTimer::singleShot(150, mWindow, [&] {
        const auto *dialog = qobject_cast<VantraProgress *>(QApplication::activeModalWidget());
        blocks = dialog != nullptr && dialog->isVisible() && dialog->windowOpacity() == 0.0;
        mManager->setCancelVisible(true);
    });
    QTimer::singleShot(250, mWindow, [&] { dialogOf(mWindow)->close(); });
    int result = 0;
    const int code = runOnThread(mManager, mWindow,
                                 [&](__VTProgress *ioProgress) { result = workUntilCanceled(ioProgress); });
    QVERIFY(blocks);
    QCOMPARE(result, 1007);
    QCOMPARE(code, int(QDialog::Accepted));
}

void tst_VantraProgressMgr::workOnTheGuiThread_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("responsive") << 1;
    QTest::newRow("unthrottled") << 2;
}

void tst_VantraProgressMgr::workOnTheGuiThread()
{
    QFETCH(const int, type);
    OpacityWatch watch;
    mManager->setCancelKeys({Qt::Key_Escape});
    mManager->setDelayBeforeShowDialog(120);
    mManager->beginProgress(mWindow, VantraProgressType(type));
    VantraProgress *dialog = dialogOf(mWindow);
    QVERIFY(!dialog->isVisible());
    QTimer::singleShot(250, dialog, [dialog] { QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape); });
    const int result = workUntilCanceled(mManager->progress());
    QCOMPARE(result, 1007);
    QVERIFY(mManager->canceled());
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->keyUsedToCancel(), int(Qt::Key_Escape));
    mManager->endProgress();
    QVERIFY(!dialog->isVisible());
    QCOMPARE(mManager->keyUsedToCancel(), 0);
    QCOMPARE(watch.highest, 1.0);
    QVERIFY(watch.visibleAfter >= 120);
}

void tst_VantraProgressMgr::fakeModalSwallowsInput()
{
    OpenManager manager(nullptr);
    manager.setCancelKeys({Qt::Key_Escape});
    manager.beginProgress(mWindow, VantraProgressTypeDefault);
    __VTProgress *progress = manager.progress();
    QSignalSpy clicks(mButton, &QPushButton::clicked);
    QSignalSpy releases(mButton, &QPushButton::released);
    manager.setFakeModal(true);
    QTest::keyClick(mButton, Qt::Key_Space);
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(!mWindow->close());
    QVERIFY(!VTProgressGetCancel(progress));
    QTest::keyClick(mWindow, Qt::Key_Escape);
    manager.setFakeModal(false);
    QVERIFY(manager.canceled());
    QVERIFY(VTProgressGetCancel(progress));
    QCOMPARE(clicks.count(), 0);
    manager.endProgressSlot(0);
    QCOMPARE(manager.keyUsedToCancel(), int(Qt::Key_Escape));
    QTest::mouseClick(mButton, Qt::LeftButton);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(releases.count(), 1);
}

void tst_VantraProgressMgr::logPrefixAndFilter()
{
    OpenManager manager(nullptr);
    VTQtLog::LogParams params = manager.logParams();
    QVERIFY(QRegularExpression(QStringLiteral("^\\d{13} $")).match(params.mPrefix(params)).hasMatch());
    params.mName = QStringLiteral("Import");
    QVERIFY(params.mPrefix(params).endsWith(QStringLiteral("  Import ")));
    QVERIFY(params.mFilter(0, params));
    QVERIFY(!params.mFilter(1, params));
}

FATAL_TEST_MAIN(tst_VantraProgressMgr)
#include "tst_VantraProgressMgr.moc"
