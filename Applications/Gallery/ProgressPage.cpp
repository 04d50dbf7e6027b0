#include "GalleryPage.h"

#include "Progress/VTThreadedProgressCmd.h"
#include "Progress/VantraProgress.h"
#include "Progress/VantraProgressMgr.h"
#include "VTQtStringUtils.h"
#include "WidgetPicture.h"
#include "Window/VantraMainWindow.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEvent>
#include <QtCore/QThread>
#include <QtCore/QTime>
#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <functional>

namespace {
using Work = std::function<int(__VTProgress *)>;

// Takes the given time in equal steps, one stage long.
int workStage(__VTProgress *ioProgress, int inStage, const QString &inName, int inMilliseconds)
{
    constexpr int kStep = 5; // ms
    const int steps = inMilliseconds / kStep;
    const CFStringRef name = VTQtStringUtils::createCFStringRefFromQString(inName);
    int result = VTProgressDoProgressBeginStage(ioProgress, inStage, name, steps);
    CFRelease(name);
    for (int step = 0; result == 0 && step < steps; ++step) {
        QThread::msleep(kStep);
        result = VTProgressDoProgressUpdateStage(ioProgress, step);
    }
    if (result == 0)
        result = VTProgressDoProgressEndStage(ioProgress);
    return result;
}

Work lasting(int inMilliseconds)
{
    return [=](__VTProgress *ioProgress) {
        return workStage(ioProgress, 1, QStringLiteral("Reading pictures"), inMilliseconds);
    };
}

int workInStages(__VTProgress *ioProgress)
{
    const char *const names[] = {"Reading pictures", "Applying the look", "Writing files"};
    VTProgressSetStages(ioProgress, 3);
    int result = 0;
    for (int stage = 1; result == 0 && stage <= 3; ++stage)
        result = workStage(ioProgress, stage, QLatin1String(names[stage - 1]), 2000);
    return result;
}

int reportAMillionTimes(__VTProgress *ioProgress)
{
    constexpr int kReports = 1000000;
    int result = VTProgressDoProgressBeginStage(ioProgress, 1, CFSTR("A million reports"), kReports);
    for (int i = 0; result == 0 && i < kReports; ++i)
        result = VTProgressDoProgressUpdateStage(ioProgress, i);
    return result;
}

// Paints a progress dialog that is never shown, since a window can't stand in a page. The dialog is real,
// laid out and painted by its own code.
class DialogPicture : public QWidget
{
public:
    using Arrange = std::function<void(VantraProgress *)>;

    explicit DialogPicture(const Arrange &inArrange) : mDialog(new VantraProgress(this))
    {
        inArrange(mDialog);
        setAccessibleName(mDialog->windowTitle());
    }

    QSize sizeHint() const override
    {
        mDialog->ensurePolished();
        return mDialog->layout()->sizeHint() + QSize(2, 2);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.drawImage(QPoint(1, 1),
                          widgetPicture(mDialog, sizeHint() - QSize(2, 2), devicePixelRatioF()));
        // Where its window would end.
        QColor line = palette().color(QPalette::WindowText);
        line.setAlphaF(0.25F);
        painter.setPen(line);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

    // A dialog is a window, which a parent's state doesn't reach.
    void changeEvent(QEvent *inEvent) override
    {
        if (inEvent->type() == QEvent::EnabledChange)
            mDialog->setEnabled(isEnabled());
        QWidget::changeEvent(inEvent);
    }

private:
    VantraProgress *mDialog;
};

class ProgressPage : public GalleryPage
{
public:
    explicit ProgressPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addDialogs();
        addOperations();
        addLog();
    }

private:
    void addDialogs();
    void addOperations();
    void addButton(const QString &inText, const QString &inNote, const std::function<void()> &inAction);
    void addLog();
    VantraProgressMgr *manager();
    void say(const QString &inLine);
    void sayEnd(const QString &inTitle, int inResult, qint64 inTime);
    void runOnThread(const QString &inTitle, const Work &inWork, bool inCancel = false,
                     const QList<int> &inKeys = {}, bool inBusy = false);
    void runHere(const QString &inTitle, VantraProgressType inType);
    void runNested();

    QGridLayout *mOperations = nullptr;
    QPlainTextEdit *mLog = nullptr;
    VantraProgressMgr *mManager = nullptr;
};

void ProgressPage::addDialogs()
{
    QVBoxLayout *body =
        addSection(QStringLiteral("Dialog"),
                   QStringLiteral("The one dialog of all long operations, in four moments of its life."));
    SampleGrid grid(body, 2, Qt::AlignTop);
    grid.add(QStringLiteral("Before the first message"), new DialogPicture([](VantraProgress *) {}));
    grid.add(QStringLiteral("In the second of three stages"), new DialogPicture([](VantraProgress *ioDialog) {
                 ioDialog->setOperationText(QStringLiteral("Export (2 of 3)"));
                 ioDialog->setStageText(QStringLiteral("Applying the look"));
                 ioDialog->setRange(0, 99);
                 ioDialog->setValue(37);
             }));
    grid.add(QStringLiteral("Of unknown length, can't be canceled"),
             new DialogPicture([](VantraProgress *ioDialog) {
                 ioDialog->setOperationText(QStringLiteral("Looking for cameras"));
                 ioDialog->setRange(0, 0);
                 ioDialog->setCancelEnabled(false);
             }));
    grid.add(QStringLiteral("Without a Cancel button"), new DialogPicture([](VantraProgress *ioDialog) {
                 ioDialog->setOperationText(QStringLiteral("Saving the catalog"));
                 ioDialog->setStageText(QStringLiteral("Almost done"));
                 ioDialog->setRange(0, 99);
                 ioDialog->setValue(90);
                 ioDialog->setCancelVisible(false);
             }));
}

void ProgressPage::addOperations()
{
    QVBoxLayout *body = addSection(
        QStringLiteral("Operations"),
        QStringLiteral("The application is blocked from the first moment; the dialog is seen after two "
                       "seconds."));
    mOperations = new QGridLayout;
    mOperations->setHorizontalSpacing(16);
    mOperations->setColumnStretch(1, 1);
    body->addLayout(mOperations);
    addButton(QStringLiteral("Short"), QStringLiteral("1 second, never seen"),
              [this] { runOnThread(QStringLiteral("Short"), lasting(1000)); });
    addButton(QStringLiteral("Long"), QStringLiteral("6 seconds, can't be canceled"),
              [this] { runOnThread(QStringLiteral("Long"), lasting(6000)); });
    addButton(QStringLiteral("Indeterminate"), QStringLiteral("5 seconds of a busy bar"), [this] {
        // Silent, as a stage would give the bar its range back.
        const Work work = [](__VTProgress *ioProgress) {
            for (int i = 0; i < 50 && !VTProgressGetCancel(ioProgress); ++i)
                QThread::msleep(100);
            return VTProgressGetCancel(ioProgress) ? int(VTProgressResultCanceled) : 0;
        };
        runOnThread(QStringLiteral("Looking for cameras"), work, true, {}, true);
    });
    addButton(QStringLiteral("Three stages"), QStringLiteral("2 seconds each"),
              [this] { runOnThread(QStringLiteral("Export"), &workInStages, true); });
    addButton(QStringLiteral("Cancel by button"), QStringLiteral("20 seconds, unless you press Cancel"),
              [this] { runOnThread(QStringLiteral("Import"), lasting(20000), true); });
    addButton(
        QStringLiteral("Cancel by key"),
        QStringLiteral("20 seconds, unless you press Esc or the full stop, even unseen"), [this] {
            runOnThread(QStringLiteral("Import"), lasting(20000), false, {Qt::Key_Escape, Qt::Key_Period});
        });
    addButton(QStringLiteral("Nested"), QStringLiteral("An operation of 4 seconds with another inside"),
              [this] { runNested(); });
    addButton(QStringLiteral("On this thread, type 1"), QStringLiteral("5 seconds, events every 10 ms"),
              [this] { runHere(QStringLiteral("Responsive"), VantraProgressTypeResponsive); });
    addButton(QStringLiteral("On this thread, type 2"), QStringLiteral("5 seconds, events at each step"),
              [this] { runHere(QStringLiteral("Unthrottled"), VantraProgressTypeUnthrottled); });
    addButton(QStringLiteral("Ten in a row"), QStringLiteral("0.2 seconds each, none of them seen"), [this] {
        for (int i = 1; i <= 10; ++i)
            runOnThread(QStringLiteral("Number %1").arg(i), lasting(200));
    });
    addButton(QStringLiteral("A million reports"), QStringLiteral("As fast as the worker can"),
              [this] { runOnThread(QStringLiteral("Count"), &reportAMillionTimes, true); });
}

void ProgressPage::addButton(const QString &inText, const QString &inNote,
                             const std::function<void()> &inAction)
{
    auto *button = new QPushButton(inText);
    connect(button, &QPushButton::clicked, this, inAction);
    const int row = mOperations->rowCount();
    mOperations->addWidget(button, row, 0);
    mOperations->addWidget(makeCaption(inNote), row, 1);
}

void ProgressPage::addLog()
{
    QVBoxLayout *body = addSection(QStringLiteral("What the manager says"));
    mLog = new QPlainTextEdit;
    mLog->setReadOnly(true);
    mLog->setMaximumBlockCount(500);
    mLog->setFixedHeight(160);
    mLog->setAccessibleName(QStringLiteral("Log"));
    mLog->setPlaceholderText(QStringLiteral("Nothing has run yet."));
    body->addWidget(mLog);
}

// Made with the first operation: it needs the window that it will belong to.
VantraProgressMgr *ProgressPage::manager()
{
    if (mManager == nullptr) {
        VantraMainWindow::setActiveWindow(window());
        mManager = VantraProgressMgr::sharedInstance();
        connect(mManager, &VantraProgressMgr::progressUpdate, this, [this](const VantraProgressMsg &inMsg) {
            static const char *const kNames[] = {"?", "stage begins", "step", "stage ends"};
            if (inMsg.cmd() == VTProgressCmdEndStage)
                return say(QLatin1String(kNames[3]));
            say(QStringLiteral("%1: \"%2\", stage %3 of %4 \"%5\", step %6 of %7")
                    .arg(QLatin1String(kNames[inMsg.cmd() & 3]), inMsg.title())
                    .arg(inMsg.stage())
                    .arg(inMsg.stages())
                    .arg(inMsg.stageName())
                    .arg(inMsg.stageValue())
                    .arg(inMsg.stageCount()));
        });
    }
    return mManager;
}

void ProgressPage::say(const QString &inLine)
{
    mLog->appendPlainText(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz  ")) + inLine);
}

void ProgressPage::sayEnd(const QString &inTitle, int inResult, qint64 inTime)
{
    const int key = mManager->keyUsedToCancel();
    say(QStringLiteral("%1 ended with %2 after %3 ms").arg(inTitle).arg(inResult).arg(inTime) +
        (key == 0 ? QString() : QStringLiteral(", canceled by ") + QKeySequence(key).toString()));
}

void ProgressPage::runOnThread(const QString &inTitle, const Work &inWork, bool inCancel,
                               const QList<int> &inKeys, bool inBusy)
{
    manager()->setCancelKeys(inKeys);
    say(inTitle + QStringLiteral(" begins"));
    QElapsedTimer clock;
    clock.start();
    VTThreadedProgressCmd command;
    command.setAllowCancel(inCancel);
    const int result = command.execute(inTitle, inBusy, inWork, window());
    sayEnd(inTitle, result, clock.elapsed());
}

void ProgressPage::runHere(const QString &inTitle, VantraProgressType inType)
{
    manager()->setCancelKeys({Qt::Key_Escape});
    manager()->setTitle(inTitle);
    QElapsedTimer clock;
    clock.start();
    manager()->beginProgress(window(), inType);
    const int result = lasting(5000)(manager()->progress());
    manager()->endProgress();
    sayEnd(inTitle, result, clock.elapsed());
}

void ProgressPage::runNested()
{
    manager()->setTitle(QStringLiteral("Outer"));
    QElapsedTimer clock;
    clock.start();
    manager()->beginProgress(window(), VantraProgressTypeResponsive);
    int result = workStage(manager()->progress(), 1, QStringLiteral("Outer, before"), 1500);
    manager()->beginProgress(window(), VantraProgressTypeDefault);
    if (result == 0)
        result = workStage(manager()->progress(), 2, QStringLiteral("Inner, in the same dialog"), 1500);
    manager()->endProgress();
    if (result == 0)
        result = workStage(manager()->progress(), 3, QStringLiteral("Outer, after"), 1000);
    manager()->endProgress();
    sayEnd(QStringLiteral("Nested"), result, clock.elapsed());
}
} // namespace

GalleryPage *makeProgressPage(QWidget *inParent)
{
    return new ProgressPage(inParent);
}
