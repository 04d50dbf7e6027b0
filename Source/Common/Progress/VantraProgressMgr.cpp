#include "Progress/VantraProgressMgr.h"

#include "Progress/VantraProgress.h"
#include "Utilities/VTWidgetUtils.h"
#include "VTQtStringUtils.h"
#include "VTQtSysInfo.h"
#include "VTUtilsAtomic.h"
#include "Window/VantraMainWindow.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QMutexLocker>
#include <QtCore/QThread>
#include <QtGui/QKeyEvent>

#include <utility>

namespace {

constexpr int kDefaultDelay = 2000;     // ms
constexpr int kDefaultInterval = 500;   // ms
constexpr int kResponsiveInterval = 10; // ms
constexpr int kExecRunning = 3;

// How many calls have come from progress objects and not gone back, of all threads and of this one. A manager
// that goes waits for the others.
std::atomic<int> sVisitors{0};
thread_local int sOwnVisits = 0;

class Visit
{
public:
    Visit()
    {
        ++sOwnVisits;
        sVisitors.fetch_add(1);
    }
    Visit(const Visit &) = delete;
    Visit &operator=(const Visit &) = delete;
    ~Visit()
    {
        sVisitors.fetch_sub(1);
        --sOwnVisits;
    }

    static bool othersAreHere() { return sVisitors.load() > sOwnVisits; }

    static void waitForOthers()
    {
        while (othersAreHere()) {
            QThread::yieldCurrentThread();
        }
    }
};

// Everybody who takes the manager's lock runs on the GUI thread. Who finds it taken was called by a slot that
// the taker itself, further up the stack, has called, and would wait for ever.
QMutex *notTakenAbove(QMutex *ioMutex)
{
    const bool takenAbove = !ioMutex->tryLock();
    Q_ASSERT(!takenAbove && "An operation may not begin, run or end while another one is ending.");
    ioMutex->unlock();
    return ioMutex;
}

// A slot on the end of the dialog may delete the dialog.
void closeDialog(const QPointer<VantraProgressBaseDlg> &inDialog, bool inDelete)
{
    inDialog->accept();
    if (inDialog && inDelete) {
        inDialog->deleteLater();
    }
}

QString defaultPrefix(const VTQtLog::LogParams &inParams)
{
    QString prefix = QStringLiteral("%1 ").arg(QDateTime::currentMSecsSinceEpoch());
    if (!inParams.mName.isEmpty()) {
        prefix += QLatin1Char(' ') + inParams.mName + QLatin1Char(' ');
    }
    return prefix;
}

bool defaultFilter(int inLevel, const VTQtLog::LogParams &inParams)
{
    return inLevel <= inParams.mLevel;
}

} // namespace

VantraProgressMgr *VantraProgressMgr::sInstance = nullptr;

VantraProgressMgr *VantraProgressMgr::sharedInstance()
{
    if (sInstance == nullptr) {
        QWidget *parent = VantraMainWindow::activeWindow();
        Q_ASSERT(parent != nullptr);
        sInstance = new VantraProgressMgr(parent);
        sInstance->connectSignals();
    }
    return sInstance;
}

VantraProgressMgr::VantraProgressMgr(QObject *inParent) : QObject(inParent)
{
    qRegisterMetaType<VantraProgressMsg>("VantraProgressMsg");
    qRegisterMetaType<VantraProgressToken>("VantraProgressToken");
    mLastUpdateTimer.start();
    setTitle(QString());
    mLogParams.mPrefix = &defaultPrefix;
    mLogParams.mFilter = &defaultFilter;
}

VantraProgressMgr::~VantraProgressMgr()
{
    mGoing = true;
    cleanupPreviousProgressDialog();
    if (__VTProgress *progress = mVTProgressRef.exchange(nullptr)) {
        VTProgressSetCancel(progress, true);
        VTProgressSetCB(progress, &VantraProgressMgr::progressCB, nullptr);
    }
    Visit::waitForOthers();
    disconnect(mCancelConnection);
    if (mProgressDlg) {
        closeDialog(std::exchange(mProgressDlg, nullptr), true);
    }
}

void VantraProgressMgr::connectSignals()
{
    bool didConnect =
        connect(this, &VantraProgressMgr::progressUpdate, this, &VantraProgressMgr::progressSlot);
    Q_ASSERT(didConnect && "progressUpdate");
    didConnect = connect(this, &VantraProgressMgr::endProgressSignal, this,
                         &VantraProgressMgr::endProgressSlot, Qt::QueuedConnection);
    Q_ASSERT(didConnect && "endProgressSignal");
    didConnect = connect(this, &VantraProgressMgr::cleanupPreviousProgressDialogSignal, this,
                         &VantraProgressMgr::cleanupPreviousProgressDialogSlot, Qt::QueuedConnection);
    Q_ASSERT(didConnect && "cleanupPreviousProgressDialogSignal");
    didConnect = connect(&mTimer, &QTimer::timeout, this, &VantraProgressMgr::showProgressIfNotShown);
    Q_ASSERT(didConnect && "Progress mTimer");
}

bool VantraProgressMgr::progressRunning() const
{
    return mProgressCount != 0 || mRunningMarker != nullptr || mRunCount > 0;
}

int VantraProgressMgr::beginProgress(QWidget *inParent, VantraProgressType inType)
{
    int token = 0;
    return beginProgress(inParent, token, inType);
}

int VantraProgressMgr::beginProgress(QWidget *inParent, int &outToken, VantraProgressType inType)
{
    const QMutexLocker locker(notTakenAbove(mMutex.get()));
    outToken = 0;
    if (++mProgressCount > 1) {
        return 0;
    }
    Q_ASSERT(!mVTProgressRef);
    Q_ASSERT(!mProgressDlg);
    cleanupPreviousProgressDialog();
    mVTProgressOwner = std::shared_ptr<__VTProgress>(VTProgressCreate(), &VTProgressRelease);
    mVTProgressRef = mVTProgressOwner.get();
    VTProgressSetCB(mVTProgressRef, &VantraProgressMgr::progressCB, this);
    mBeginTimer.start();
    mKeyUsedToCancel = 0;
    mFakeModalCancelKey = 0;
    mLastUpdateTime = mLastUpdateTimer.elapsed();
    mDialogShown = false;
    mCanceled = false;
    mProgressType = inType;
    outToken = VTUtilsAtomicIncrement32(&mNextToken);
    mMinUpdateInterval = inType == VantraProgressTypeResponsive ? kResponsiveInterval : kDefaultInterval;
    makeDialog(inParent);
    return 0;
}

void VantraProgressMgr::makeDialog(QWidget *inParent)
{
    auto *dialog = new VantraProgress(inParent);
    mProgressDlg = dialog;
    attachToParentWindow(inParent);
    mDeleteDialogAtEnd = true;
    dialog->setCancelKeys(mCancelKeys);
    if (inParent != nullptr && inParent != VantraMainWindow::activeWindow()) {
        mWidgetToReactivate = inParent;
    }
    if (const QString text = title(); !text.isEmpty()) {
        dialog->setOperationText(text);
    }
    dialog->setWindowOpacity(0.0);
    dialog->setSizeGripEnabled(false);
    dialog->setCancelEnabled(true);
    mCancelConnection = connect(
        dialog, &VantraProgressBaseDlg::progressCanceled, dialog,
        [this] {
            if (__VTProgress *progress = mVTProgressRef) {
                VTProgressSetCancel(progress, true);
            }
        },
        Qt::DirectConnection);
}

void VantraProgressMgr::attachToParentWindow(QWidget *inParent)
{
    if (VTQtSysInfo::isMacPlatform() && inParent != nullptr && inParent != VantraMainWindow::activeWindow()) {
        VTWidgetUtils::objcAddChildWindowToWindow(mProgressDlg->winId(), inParent->window()->winId());
    }
}

void VantraProgressMgr::detachFromParentWindow()
{
    QWidget *parent = mProgressDlg->parentWidget();
    if (VTQtSysInfo::isMacPlatform() && parent != nullptr && parent != VantraMainWindow::activeWindow()) {
        VTWidgetUtils::objcRemoveChildWindow(mProgressDlg->winId(), parent->window()->winId());
    }
}

int VantraProgressMgr::runProgress()
{
    return runProgress(0);
}

int VantraProgressMgr::runProgress(int inToken)
{
    QMutexLocker locker(notTakenAbove(mMutex.get()));
    if (mProgressCount > 1) {
        return 0;
    }
    Q_ASSERT(mProgressCount > 0);
    mCanceled = false;
    ++mRunCount;
    mRunToken = inToken;
    const bool delayed = mDelayBeforeShowDialog > 0;
    if (mProgressDlg) {
        mProgressDlg->setWindowOpacity(delayed ? 0.0 : 1.0);
    }
    int result = 0;
    if (delayed && mProgressDlg) {
        mTimer.setSingleShot(true);
        mTimer.start(mDelayBeforeShowDialog);
        mProgressDlg->setModal(true);
    }
    // A slot may begin the next operation, with its own connection, before this run returns.
    const QMetaObject::Connection cancelConnection = mCancelConnection;
    // Without dialog and delay the locker below ends a caller's error that would hang otherwise.
    if (delayed || mProgressDlg) {
        mExecState = kExecRunning;
        locker.unlock();
        const QPointer<VantraProgressMgr> self(this);
        if (mProgressDlg) {
            result = mProgressDlg->exec();
        }
        if (self.isNull()) {
            return 0;
        }
    }
    if (cancelConnection) {
        disconnect(cancelConnection);
    }
    locker.relock();
    mExecState = 0;
    if (--mRunCount == 0) {
        mCanceled = false;
    }
    return result;
}

int VantraProgressMgr::runProgressIndeterminate(const QString &inText)
{
    return runProgressIndeterminate(inText, 0);
}

int VantraProgressMgr::runProgressIndeterminate(const QString &inText, int inToken)
{
    if (!mProgressDlg) {
        return 0;
    }
    mProgressDlg->setOperationText(inText);
    mProgressDlg->setRange(0, 0);
    mProgressDlg->setStageText(QString());
    return runProgress(inToken);
}

void VantraProgressMgr::endProgress()
{
    endProgress(0);
}

void VantraProgressMgr::endProgress(int inToken)
{
    // The manager lives on the application's thread, also after the application object is gone.
    if (QThread::currentThread() != thread()) {
        emit endProgressSignal(inToken);
    } else {
        endProgressNow();
    }
}

int VantraProgressMgr::progressCB(__VTProgress *ioProgress, VTProgressCmdType inCmd)
{
    const Visit visit;
    auto *manager = static_cast<VantraProgressMgr *>(VTProgressGetContext(ioProgress));
    return manager == nullptr ? kCanceledResult : manager->progress(ioProgress, inCmd);
}

// For a thread that may outlive the manager.
void VantraProgressMgr::endProgressOf(__VTProgress *inProgress, int inToken)
{
    const Visit visit;
    if (auto *manager = static_cast<VantraProgressMgr *>(VTProgressGetContext(inProgress))) {
        manager->endProgress(inToken);
    }
}

void VantraProgressMgr::beginCommand(const __VTProgress *inProgress, VantraProgressToken inToken)
{
    // A nested command has no token, and the end of its thread always counts.
    if (inToken != 0) {
        mThreadEnds.insert(inToken, inProgress);
    }
}

void VantraProgressMgr::endCommand(const __VTProgress *inProgress, VantraProgressToken inToken)
{
    // This end replaces that of the command's thread, which may still be in the queue.
    if (const auto end = mThreadEnds.find(inToken); end != mThreadEnds.end()) {
        *end = nullptr;
    }
    // A slot may have begun the next operation already.
    const __VTProgress *current = mVTProgressRef;
    if (current == nullptr || current == inProgress) {
        endProgress(inToken);
    }
}

void VantraProgressMgr::endProgressSlot(VantraProgressToken inToken)
{
    // A slot on the end of the dialog may delete this manager, but the locked mutex has to outlive it.
    const QPointer<VantraProgressMgr> self(this);
    const std::shared_ptr<QMutex> mutex = mMutex;
    const QMutexLocker locker(notTakenAbove(mutex.get()));
    const __VTProgress *current = mVTProgressRef;
    const bool isLate = mThreadEnds.value(inToken, current) != current;
    mThreadEnds.remove(inToken);
    if (isLate || --mProgressCount > 0) {
        return;
    }
    if (mProgressCount < 0) {
        mProgressCount = 0;
        return;
    }
    if (mProgressDlg) {
        detachFromParentWindow();
        const int key = keyOfDialog();
        const bool deletesDialog = std::exchange(mDeleteDialogAtEnd, false);
        closeDialog(std::exchange(mProgressDlg, nullptr), deletesDialog);
        if (self.isNull()) {
            return;
        }
        mKeyUsedToCancel = key;
    }
    mVTProgressRef = nullptr;
    mVTProgressOwner.reset();
    forgetOperation();
    reactivate(mWidgetToReactivate);
}

void VantraProgressMgr::endProgressNow()
{
    {
        const QMutexLocker locker(notTakenAbove(mMutex.get()));
        if (--mProgressCount == 0) {
            mPreviousProgressDlg = mProgressDlg;
            mProgressDlg = nullptr;
            mVTProgressRef = nullptr;
            mPreviousVTProgressRef = std::move(mVTProgressOwner);
            mPreviousWidgetToReactivate = mWidgetToReactivate;
            mWidgetToReactivate = nullptr;
            forgetOperation();
        } else if (mProgressCount < 0) {
            mProgressCount = 0;
        }
    }
    cleanupPreviousProgressDialog();
}

void VantraProgressMgr::forgetOperation()
{
    mDelayBeforeShowDialog = kDefaultDelay;
    mTimer.stop();
    mRunToken = 0;
    setTitle(QString());
    mCanceled = false;
}

void VantraProgressMgr::cleanupPreviousProgressDialog()
{
    if (mPreviousProgressDlg) {
        // The dialog of the operation that has just ended is no longer the current one, so the key that
        // canceled it is not found here.
        checkForCancelData();
        const QPointer<VantraProgressMgr> self(this);
        closeDialog(std::exchange(mPreviousProgressDlg, nullptr), true);
        if (self.isNull()) {
            return;
        }
    }
    mPreviousVTProgressRef.reset();
    reactivate(mPreviousWidgetToReactivate);
}

void VantraProgressMgr::cleanupPreviousProgressDialogSlot()
{
    const std::shared_ptr<QMutex> mutex = mMutex; // outlives a manager that a slot deletes
    const QMutexLocker locker(notTakenAbove(mutex.get()));
    cleanupPreviousProgressDialog();
}

int VantraProgressMgr::keyOfDialog() const
{
    const auto *dialog = qobject_cast<const VantraProgress *>(mProgressDlg.data());
    if (dialog == nullptr) {
        return 0;
    }
    return mFakeModalCancelKey != 0 ? mFakeModalCancelKey : dialog->keyUsedToCancel();
}

void VantraProgressMgr::checkForCancelData()
{
    mKeyUsedToCancel = keyOfDialog();
}

void VantraProgressMgr::reactivate(QPointer<QWidget> &ioWidget)
{
    // Before the activation, because a slot that answers it may delete this manager.
    QWidget *widget = ioWidget;
    ioWidget = nullptr;
    reactivateMainWindow(widget);
}

void VantraProgressMgr::reactivateMainWindow(QWidget *&ioWidget)
{
    QWidget *target = ioWidget != nullptr ? ioWidget : VantraMainWindow::activeWindow();
    // A window that is being destroyed takes its manager with it and can't come forward.
    if (target == nullptr || (mGoing && target == parent())) {
        return;
    }
    VTWidgetsActivateWindow(target);
    ioWidget = nullptr;
}

__VTProgress *VantraProgressMgr::progress() const
{
    return mVTProgressRef;
}

QString VantraProgressMgr::title() const
{
    const Visit visit; // so that setTitle keeps the text
    return *mTitle.load();
}

void VantraProgressMgr::setTitle(const QString &inTitle)
{
    mTitles.push_back(std::make_unique<const QString>(inTitle));
    mTitle = mTitles.back().get();
    // Another thread may be copying an earlier title.
    if (!Visit::othersAreHere()) {
        mTitles.erase(mTitles.begin(), mTitles.end() - 1);
    }
}

void VantraProgressMgr::setCancelEnabled(bool inEnabled)
{
    if (mProgressDlg) {
        mProgressDlg->setCancelEnabled(inEnabled);
    }
}

void VantraProgressMgr::setCancelVisible(bool inVisible)
{
    if (auto *dialog = qobject_cast<VantraProgress *>(mProgressDlg.data())) {
        dialog->setCancelVisible(inVisible);
    } else {
        Q_ASSERT(false && "setCancelVisible() called on a dialog that may not have a cancel button.");
    }
}

void VantraProgressMgr::setFakeModal(bool inOn)
{
    QWidget *menu = nullptr;
    if (VTQtSysInfo::isWinPlatform()) {
        if (const auto *window = qobject_cast<VantraMainWindow *>(VantraMainWindow::activeWindow())) {
            menu = window->menuWidget();
        }
    }
    mFakeModal = inOn;
    if (inOn) {
        QCoreApplication::instance()->installEventFilter(this);
    } else {
        QCoreApplication::instance()->removeEventFilter(this);
    }
    if (menu != nullptr) {
        menu->setEnabled(!inOn);
    }
}

bool VantraProgressMgr::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (mCancelKeys.contains(key)) {
            mTimer.stop();
            mFakeModalCancelKey = key;
            mCanceled = true;
            VTProgressSetCancel(mVTProgressRef, true);
        }
        return true;
    }
    case QEvent::Close:
        // Without this, the window would go without having been asked.
        event->ignore();
        return true;
    // A release passes: who was pressed before the filter came would wait for it.
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
    case QEvent::HoverMove: return true;
    default: return QObject::eventFilter(watched, event);
    }
}
