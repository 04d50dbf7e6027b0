#pragma once

// The one place through which every long operation shows progress, whichever thread it works on.
//
//     VantraProgressMgr *manager = VantraProgressMgr::sharedInstance();
//     manager->setTitle(tr("Export"));
//     manager->beginProgress(window, VantraProgressTypeDefault);
//     startWorker(manager->progress());   // it reports to the object, and calls manager->endProgress() last
//     manager->runProgress();             // blocks, with a live window, until the worker's end
//
// VTThreadedProgressCmd does all this for one function.
//
// From beginProgress to the last endProgress there is a dialog. It is modal from the start of the run, so
// that the application is blocked at once, but of opacity 0 for the first two seconds: what ends within them
// is never seen. (An X11 desktop without a compositor shows no opacity and so shows the dialog at once.)
// Texts and bar follow at most twice a second. A cancel reaches the algorithm as the result 1007 of a
// progress call; it is never interrupted.
//
// Work on the GUI thread itself takes VantraProgressTypeResponsive or VantraProgressTypeUnthrottled, and no
// runProgress; its progress calls keep the window alive.
//
// Threads: the progress object, endProgress() and canceled() are for all of them, and so are beginStage,
// updateStage, updateStageAndName and endStage while the operation lasts. Everything else belongs to the GUI
// thread. The manager has one lock. Only the GUI thread takes it, so a worker never waits for the GUI thread.
//
// Nesting: an operation within an operation shares the outer one's dialog. Each beginProgress needs one
// endProgress. A further one has no effect between two operations, but during the next operation it ends
// that one. VTThreadedProgressCmd ends only its own operation.
//
// Don't begin, run or end an operation in a slot that answers the closing of the dialog or the window's
// return to the front: the manager is at work then, and such a call stops the process. A queued slot may. A
// slot on the dialog's finished() may delete the dialog's parent or the window that owns the manager.
//
// What ends early:
// - Parent deleted: the dialog ends with it, and runProgress returns 0. The operation goes on unseen until
//   its own end.
// - Main window closed: the user can't while a run blocks it. Closed by the program, it goes out of sight
//   alone; dialog and operation stay.
// - Application quitting: quit() asks the dialog to close, as its title bar does, so that it cancels if the
//   button is enabled, and is refused. exit() ends the run, which returns 0; the operation goes on, worker
//   and caller still end it, and who waits for the worker waits for its whole work. An endProgress() of a
//   worker that comes after the application object is gone has no effect.
// - Window that owns the manager deleted: the manager goes with it, and nobody may use it any more. The
//   dialog ends, runProgress returns 0, and the algorithm's next progress call is answered with 1007. An
//   algorithm on another thread that goes on with its progress object has to hold a reference of its own.
// - Algorithm that leaves without an endProgress: the dialog stays and the application stays blocked. Put the
//   end into the destructor of an object of its own, as VTThreadedProgressCmd does.

#include "Progress/VantraProgressMsg.h"
#include "VTQtLog.h"
#include "VTWidgetsLiteExport.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <atomic>
#include <memory>
#include <vector>

class VantraProgressBaseDlg;

// How often updates of a stage are passed on, and whether that also processes events. A stage's begin and end
// are always passed on.
enum VantraProgressType : int {
    // Every 500 ms, no events: for work on another thread.
    VantraProgressTypeDefault = 0,
    // Every 10 ms, with events at each update and each begin of a stage: for work on the GUI thread.
    VantraProgressTypeResponsive = 1,
    // All of them, with events at each: for work on the GUI thread with few, long steps.
    VantraProgressTypeUnthrottled = 2,
};

// Tells one run from another. Carried from begin to end, and never compared.
using VantraProgressToken = int;

class VTWIDGETSLITE_EXPORT VantraProgressMgr : public QObject
{
    Q_OBJECT

public:
    // Made on first use, on the GUI thread, as a child of VantraMainWindow::activeWindow(), without which the
    // process stops. It goes with that window, which therefore outlives every use of the manager: afterwards
    // this still answers the old pointer.
    static VantraProgressMgr *sharedInstance();

    ~VantraProgressMgr() override;

    // Whether an operation has begun and not ended, or a run still unwinds.
    bool progressRunning() const;

    // Makes progress object and dialog, unless an operation is under way, which then goes one level deeper.
    // The dialog's parent may not be null; it comes back to the front at the end, in place of the main
    // window. Hands out the token of a new operation, 0 for a nested one. Always returns 0.
    int beginProgress(QWidget *inParent, VantraProgressType inType);
    int beginProgress(QWidget *inParent, int &outToken, VantraProgressType inType);

    // Shows the dialog, sees to it that it turns visible after the delay, and returns when the operation has
    // ended: the dialog's result, or 0 when nothing ran because the operation is nested or its dialog is
    // gone. Stops the process when nothing has begun.
    int runProgress();
    int runProgress(int inToken);

    // The same with a text and a busy bar, for work of unknown length. Returns 0 at once without a dialog.
    int runProgressIndeterminate(const QString &inText);
    int runProgressIndeterminate(const QString &inText, int inToken);

    // Ends the innermost level; at the outermost, closes the dialog and brings the window back to the front
    // if the application is the active one. Any thread: on others than the GUI thread it only leaves word for
    // that one. Delay and title go back to their defaults with the operation.
    void endProgress();
    void endProgress(int inToken);

    // The object that the algorithm reports to, null when nothing has begun. The manager gives up its
    // reference at the end.
    __VTProgress *progress() const;

    // Text of the next operation, empty by default. A title set on the progress object wins over it.
    void setTitle(const QString &inTitle);

    // Qt::Key values that cancel, none by default. They hold for all operations begun from now on.
    void setCancelKeys(const QList<int> &inKeys) { mCancelKeys = inKeys; }

    // The key that canceled the last operation, 0 for none and for the button. Only an end from another
    // thread keeps it; after one on the GUI thread it is 0.
    int keyUsedToCancel() const { return mKeyUsedToCancel; }

    // Milliseconds before the dialog of the next run turns visible, 2000 by default; 0 and less show it at
    // once.
    void setDelayBeforeShowDialog(int inDelay) { mDelayBeforeShowDialog = inDelay; }
    int delayBeforeShowDialog() const { return mDelayBeforeShowDialog; }

    // The Cancel button of the dialog, which is enabled at each begin. The keys work all the same. Does
    // nothing without a dialog.
    void setCancelEnabled(bool inEnabled);

    // Shows or hides the Cancel button, also during a run. Stops the process without a dialog that has one.
    void setCancelVisible(bool inVisible);

    // Whether the operation has been canceled, as far as the manager knows: it asks the dialog at every
    // message, so at type 0 this may be half a second late. False again after the end.
    bool canceled() const { return mCanceled; }

    // The calls of the progress object for callers that have the manager. Each returns 0, or the reason to
    // stop. Without an operation they do nothing and return 0. inStageCount is the number of steps,
    // inValue the current one, from 0 on.
    int beginStage(int inStage, const QString &inName, int inStageCount);
    int endStage();
    int updateStage(int inValue);
    int updateStageAndName(int inValue, const QString &inName);

signals:
    // A message of the algorithm, emitted on its thread.
    void progressUpdate(VantraProgressMsg inMsg);

    // An end that came from another thread, and the wish to be rid of what the last operation left.
    void endProgressSignal(VantraProgressToken inToken);
    void cleanupPreviousProgressDialogSignal();

public slots:
    void progressSlot(VantraProgressMsg inMsg);
    void endProgressSlot(VantraProgressToken inToken);
    void showProgressIfNotShown();
    void cleanupPreviousProgressDialogSlot();

protected:
    VantraProgressMgr(QObject *inParent = nullptr);

    void cleanupPreviousProgressDialog();
    bool eventFilter(QObject *watched, QEvent *event) override;

    // Blocks input without a modal dialog: a filter on the application swallows mouse, keys and drags, and
    // sees to the cancel keys.
    void setFakeModal(bool inOn);

    // Takes over the key that canceled from the filter or the dialog.
    void checkForCancelData();

    // The end on the GUI thread.
    void endProgressNow();

    // Brings a window, or the main window in place of null, to the front if the application is the active
    // one. The pointer is null afterwards.
    void reactivateMainWindow(QWidget *&ioWidget);

    // Fills a message with what the object says. Any thread.
    void updateProgressMessage(__VTProgress *inProgress, VantraProgressMsg &ioMsg);

    // Answers a call of the algorithm, on its thread.
    int progress(__VTProgress *inProgress, VTProgressCmdType inCmd);
    static int progressCB(__VTProgress *ioProgress, VTProgressCmdType inCmd);

    const VTQtLog::LogParams &logParams() const { return mLogParams; }

    static VantraProgressMgr *sInstance;

private:
    friend class VTThreadedProgressCmd;

    // What a progress call answers to make the algorithm stop.
    static constexpr int kCanceledResult = 1007;

    static void endProgressOf(__VTProgress *inProgress, int inToken);
    void beginCommand(const __VTProgress *inProgress, VantraProgressToken inToken);
    void endCommand(const __VTProgress *inProgress, VantraProgressToken inToken);
    void connectSignals();
    bool passesThrottle();
    void makeDialog(QWidget *inParent);
    int keyOfDialog() const;
    void attachToParentWindow(QWidget *inParent);
    void detachFromParentWindow();
    void forgetOperation();
    void reactivate(QPointer<QWidget> &ioWidget);
    QString title() const;
    void showTexts(const VantraProgressMsg &inMsg);

    // What the algorithm's thread reads is atomic, or settled before the first operation.
    std::atomic<bool> mCanceled{false};
    QElapsedTimer mBeginTimer;
    QElapsedTimer mLastUpdateTimer;         // runs from the constructor on
    std::atomic<qint64> mLastUpdateTime{0}; // in ms by that timer
    std::atomic<int> mMinUpdateInterval{500};
    int mDelayBeforeShowDialog = 2000;
    std::atomic<const QString *> mTitle{nullptr};        // the last of the titles
    std::vector<std::unique_ptr<const QString>> mTitles; // earlier ones while other threads may copy them
    bool mDeleteDialogAtEnd = false;
    QPointer<QWidget> mWidgetToReactivate;
    bool mDialogShown = false;
    std::atomic<VantraProgressType> mProgressType{VantraProgressTypeDefault};
    QTimer mTimer;
    QList<int> mCancelKeys;
    int mKeyUsedToCancel = 0;
    void *mRunningMarker = nullptr;
    bool mFakeModal = false;
    int mFakeModalCancelKey = 0;
    int mNextToken = 0;
    int mRunToken = 0;
    QPointer<VantraProgressBaseDlg> mProgressDlg;
    int mProgressCount = 0;
    std::atomic<__VTProgress *> mVTProgressRef{nullptr};
    std::shared_ptr<__VTProgress> mVTProgressOwner;
    int mExecState = 0;
    QMetaObject::Connection mCancelConnection;
    QPointer<VantraProgressBaseDlg> mPreviousProgressDlg;
    std::shared_ptr<__VTProgress> mPreviousVTProgressRef;
    QPointer<QWidget> mPreviousWidgetToReactivate;
    std::shared_ptr<QMutex> mMutex = std::make_shared<QMutex>();
    // The operations of the threaded commands whose thread has not yet ended, by token. Null for an operation
    // that the GUI thread has ended.
    QHash<VantraProgressToken, const __VTProgress *> mThreadEnds;
    int mRunCount = 0;
    VTQtLog::LogParams mLogParams;
    bool mGoing = false;
};
