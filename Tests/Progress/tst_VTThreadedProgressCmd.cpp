#include "Progress/VTThreadedProgressCmd.h"
#include "Progress/VantraProgress.h"
#include "Progress/VantraProgressMgr.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Support/Watchdog.h"
#include "Window/VantraMainWindow.h"

#include <QtCore/QRandomGenerator>
#include <QtWidgets/QPushButton>

#include <atomic>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

#if defined(Q_OS_UNIX)
#include <pthread.h>
#endif

// Counts of rounds are divided by this: the thread sanitizer makes everything slower.
#if defined(__SANITIZE_THREAD__)
static constexpr int kEase = 4;
#elif defined(__SANITIZE_ADDRESS__)
static constexpr int kEase = 5;
#else
static constexpr int kEase = 1;
#endif

static void pause(int inMilliseconds)
{
    QThread::msleep(static_cast<unsigned long>(inMilliseconds));
}

FATAL_CASE(throwing)
{
    VantraMainWindow window;
    VTThreadedProgressCmd().execute(
        QString(), true, [](__VTProgress *) -> int { throw std::runtime_error("out"); }, &window);
}

class tst_VTThreadedProgressCmd : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { delete mWindow; }
    void init() { mWatchdog.emplace(120); }
    void cleanup();
    void givesTheResult();
    void emptyFunctionGivesZero();
    void cancelIsOfferedOnRequest_data();
    void cancelIsOfferedOnRequest();
    void runsOneAfterAnother();
    void nestedEndsTheOuterOneLevelEarly();
    void worksOnWhenTheRunEnds();
    void nextRunIsLiveAfterAnEarlyEnd_data();
    void nextRunIsLiveAfterAnEarlyEnd();
    void endsItsOwnOperationAlone();
    void managerGoesInTheRun();
    void leavingTheThreadEndsTheProgress();
    void throwingEndsTheProcess();
    void manyShortOperations();
    void cancelsAtRandomMoments();
    void endsFromBothSides();
    void manyReports();

private:
    int execute(const std::function<int(__VTProgress *)> &inFunction, bool inAllowCancel = true)
    {
        VTThreadedProgressCmd command;
        command.setAllowCancel(inAllowCancel);
        return command.execute(QStringLiteral("Work"), false, inFunction, mWindow);
    }

    std::optional<Watchdog> mWatchdog;
    VantraMainWindow *mWindow = nullptr;
    VantraProgressMgr *mManager = nullptr;
};

void tst_VTThreadedProgressCmd::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    mWindow = new VantraMainWindow;
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(mWindow));
    mManager = VantraProgressMgr::sharedInstance();
}

void tst_VTThreadedProgressCmd::cleanup()
{
    mWatchdog.reset();
    mManager->setCancelKeys({});
    QTRY_VERIFY(!mManager->progressRunning());
    QVERIFY(mManager->progress() == nullptr);
    QTRY_VERIFY(mWindow->findChildren<VantraProgress *>().isEmpty());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void tst_VTThreadedProgressCmd::givesTheResult()
{
    const QThread *thread = QThread::currentThread();
    const QThread *other = thread;
    bool reported = false;
    const int result = execute([&](__VTProgress *ioProgress) {
        other = QThread::currentThread();
        reported = VTProgressDoProgressBeginStage(ioProgress, 1, CFSTR("Copy"), 2) == 0;
        return 42;
    });
    QCOMPARE(result, 42);
    QVERIFY(other != thread);
    QVERIFY(reported);
}

void tst_VTThreadedProgressCmd::emptyFunctionGivesZero()
{
    QCOMPARE(execute(nullptr), 0);
}

void tst_VTThreadedProgressCmd::cancelIsOfferedOnRequest_data()
{
    QTest::addColumn<bool>("offered");
    QTest::newRow("not offered") << false;
    QTest::newRow("offered") << true;
}

// The key cancels either way, the button when it is offered.
void tst_VTThreadedProgressCmd::cancelIsOfferedOnRequest()
{
    QFETCH(const bool, offered);
    mManager->setCancelKeys({Qt::Key_Escape});
    bool enabled = !offered;
    QTimer::singleShot(50, mWindow, [&] {
        auto *dialog = qobject_cast<VantraProgress *>(QApplication::activeModalWidget());
        enabled = dialog->findChild<QPushButton *>()->isEnabled();
        dialog->close();
        if (dialog->canceled() == offered) {
            dialog->setCanceled(false);
            VTProgressSetCancel(mManager->progress(), false);
            QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
        }
    });
    const int result = execute(
        [](__VTProgress *ioProgress) {
            int code = 0;
            while ((code = VTProgressDoProgressUpdateStage(ioProgress, 0)) == 0) {
                pause(200);
            }
            return code;
        },
        offered);
    QCOMPARE(result, 1007);
    QCOMPARE(enabled, offered);
    QCOMPARE(mManager->keyUsedToCancel(), int(Qt::Key_Escape));
}

void tst_VTThreadedProgressCmd::runsOneAfterAnother()
{
    VTThreadedProgressCmd command;
    for (int i = 1; i <= 10; ++i) {
        QCOMPARE(command.execute(
                     QString::number(i), i % 2 == 0, [i](__VTProgress *) { return i; }, mWindow),
                 i);
    }
}

void tst_VTThreadedProgressCmd::nestedEndsTheOuterOneLevelEarly()
{
    mManager->beginProgress(mWindow, VantraProgressTypeUnthrottled);
    QPushButton *button = mWindow->findChild<VantraProgress *>()->findChild<QPushButton *>();
    QCOMPARE(execute([](__VTProgress *) { return 5; }, false), 5);
    QVERIFY(!button->isEnabled());
    QVERIFY(mManager->progressRunning());
    QCOMPARE(mManager->updateStage(0), 0); // processes the worker's end
    QVERIFY(!mManager->progressRunning());
    QCOMPARE(mManager->updateStage(1), 0);
    mManager->endProgress();
}

// The object stays good for a function that outlives its operation.
void tst_VTThreadedProgressCmd::worksOnWhenTheRunEnds()
{
    QTimer::singleShot(20, mWindow,
                       [] { qobject_cast<QDialog *>(QApplication::activeModalWidget())->done(3); });
    int last = -1;
    const int result = execute([&last](__VTProgress *ioProgress) {
        for (int i = 0; i < 150; ++i) {
            last = VTProgressDoProgressBeginStage(ioProgress, i, CFSTR("On"), 1);
            pause(1);
        }
        return 6;
    });
    QCOMPARE(result, 6);
    QCOMPARE(last, 0);
}

void tst_VTThreadedProgressCmd::nextRunIsLiveAfterAnEarlyEnd_data()
{
    QTest::addColumn<bool>("parentDeleted"); // otherwise the application ends the operation
    QTest::addColumn<bool>("withinTheFirst");
    QTest::newRow("parent deleted") << true << false;
    QTest::newRow("ended") << false << false;
    QTest::newRow("ended and replaced") << false << true;
}

// The end of the first run's thread arrives while the second run works.
void tst_VTThreadedProgressCmd::nextRunIsLiveAfterAnEarlyEnd()
{
    QFETCH(const bool, parentDeleted);
    QFETCH(const bool, withinTheFirst);
    bool live = false;
    const auto runSecond = [&] {
        QTimer::singleShot(150, mWindow, [&] { live = QApplication::activeModalWidget() != nullptr; });
        execute([](__VTProgress *) {
            pause(300);
            return 0;
        });
    };
    QPointer<QWidget> parent(new QWidget);
    QTimer::singleShot(20, mWindow, [&] {
        parentDeleted ? delete parent : mManager->endProgress();
        if (withinTheFirst) {
            runSecond();
        }
    });
    VTThreadedProgressCmd().execute(
        QStringLiteral("First"), false,
        [](__VTProgress *) {
            pause(100);
            return 0;
        },
        parent);
    if (!withinTheFirst) {
        runSecond();
    }
    QVERIFY(live);
    delete parent;
}

void tst_VTThreadedProgressCmd::endsItsOwnOperationAlone()
{
    QObject context;
    // The thread ends while the GUI thread is busy, so its end and this slot arrive together.
    QTimer::singleShot(0, mWindow, [] { pause(100); });
    connect(
        mManager, &VantraProgressMgr::endProgressSignal, &context,
        [this] { mManager->beginProgress(mWindow, VantraProgressTypeDefault); }, Qt::QueuedConnection);
    QCOMPARE(execute([](__VTProgress *) { return 1; }), 1);
    QVERIFY(mManager->progressRunning());
    mManager->endProgress();
}

void tst_VTThreadedProgressCmd::managerGoesInTheRun()
{
    // The child leaves the process as it is; what counts is that it comes so far.
    const FatalTest::Outcome outcome = FatalTest::run("managerGoes");
    QVERIFY2(!outcome.aborted, qPrintable(outcome.output));
    QVERIFY2(outcome.output.contains(QLatin1String("result 1007")), qPrintable(outcome.output));
}

FATAL_CASE(managerGoes)
{
    const Watchdog watchdog(30);
    auto *window = new VantraMainWindow;
    window->show();
    QTimer::singleShot(50, qApp, [window] { delete window; });
    VTThreadedProgressCmd command;
    const int result = command.execute(
        QString(), true,
        [](__VTProgress *ioProgress) {
            int code = 0;
            while ((code = VTProgressDoProgressUpdateStage(ioProgress, 0)) == 0) {
            }
            return code;
        },
        window);
    std::fprintf(stderr, "result %d\n", result);
}

void tst_VTThreadedProgressCmd::leavingTheThreadEndsTheProgress()
{
#if defined(Q_OS_LINUX)
    const int result = execute([](__VTProgress *) -> int {
        pause(50);
        pthread_exit(nullptr);
    });
    QCOMPARE(result, 0);
#else
    QSKIP("a thread can't leave its function here without leaving its objects behind");
#endif
}

void tst_VTThreadedProgressCmd::throwingEndsTheProcess()
{
    const FatalTest::Outcome outcome = FatalTest::run("throwing");
    QVERIFY2(outcome.aborted, qPrintable(outcome.output));
}

void tst_VTThreadedProgressCmd::manyShortOperations()
{
    int sum = 0;
    const int rounds = 10000 / kEase;
    for (int i = 0; i < rounds; ++i) {
        sum += execute([i](__VTProgress *ioProgress) {
            VTProgressDoProgressBeginStage(ioProgress, 1, CFSTR("Short"), i);
            return VTProgressDoProgressUpdateStage(ioProgress, 0) + 1;
        });
    }
    QCOMPARE(sum, rounds);
}

void tst_VTThreadedProgressCmd::cancelsAtRandomMoments()
{
    mManager->setCancelKeys({Qt::Key_Escape});
    QRandomGenerator random(1);
    for (int i = 0; i < 1000 / kEase; ++i) {
        const int microseconds = random.bounded(3000);
        // By either means, and sometimes when it is too late.
        QTimer::singleShot(random.bounded(3), mWindow, [&] {
            if (auto *dialog = qobject_cast<VantraProgress *>(QApplication::activeModalWidget())) {
                random.bounded(2) == 0 ? dialog->reject() : QTest::keyClick(dialog, Qt::Key_Escape);
            }
        });
        const int result = execute([microseconds](__VTProgress *ioProgress) {
            QElapsedTimer clock;
            clock.start();
            int code = 0;
            while (code == 0 && clock.nsecsElapsed() < 1000 * microseconds) {
                code = VTProgressDoProgressUpdateStage(ioProgress, 1);
            }
            return code;
        });
        QVERIFY(result == 0 || result == 1007);
    }
}

// The GUI thread ends an operation while its worker does, too, sometimes several times.
void tst_VTThreadedProgressCmd::endsFromBothSides()
{
    QRandomGenerator random(2);
    for (int i = 0; i < 1000 / kEase; ++i) {
        const int microseconds = random.bounded(1500);
        QTimer::singleShot(random.bounded(2), mWindow, [this] { mManager->endProgress(); });
        if (i % 3 == 0) {
            QTimer::singleShot(0, mWindow, [this] { emit mManager->endProgressSignal(0); });
        }
        const int result = execute([=](__VTProgress *ioProgress) {
            QThread::usleep(static_cast<unsigned long>(microseconds));
            VTProgressDoProgressBeginStage(ioProgress, 1, CFSTR("Late"), 1);
            mManager->endProgress();
            return 7;
        });
        QCOMPARE(result, 7);
    }
}

// Several threads that share one object, too.
void tst_VTThreadedProgressCmd::manyReports()
{
    std::atomic<int> messages{0};
    QObject context;
    connect(
        mManager, &VantraProgressMgr::progressUpdate, &context, [&] { ++messages; }, Qt::DirectConnection);
    QElapsedTimer clock;
    clock.start();
    execute([](__VTProgress *ioProgress) {
        for (int i = 0; i < 10000000 / kEase; ++i) {
            VTProgressDoProgressUpdateStage(ioProgress, i);
        }
        return 0;
    });
    qInfo("%d reports in %d ms", 10000000 / kEase, int(clock.elapsed()));
    QVERIFY(messages <= clock.elapsed() / 500);
    execute([](__VTProgress *ioProgress) {
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([ioProgress] {
                for (int i = 0; i < 500000 / kEase; ++i) {
                    VTProgressDoProgressUpdateStage(ioProgress, i);
                }
            });
        }
        for (std::thread &thread : threads) {
            thread.join();
        }
        return 0;
    });
}

FATAL_TEST_MAIN(tst_VTThreadedProgressCmd)
#include "tst_VTThreadedProgressCmd.moc"
