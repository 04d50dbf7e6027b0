// The road of a message: from the algorithm's call, through the throttle, to the dialog.

#include "Progress/VantraProgress.h"
#include "Progress/VantraProgressMgr.h"
#include "VTQtStringUtils.h"

#include <QtCore/QCoreApplication>

int VantraProgressMgr::beginStage(int inStage, const QString &inName, int inStageCount)
{
    const CFStringRef name = VTQtStringUtils::createCFStringRefFromQString(inName);
    const int result = VTProgressDoProgressBeginStage(mVTProgressRef, inStage, name, inStageCount);
    CFRelease(name);
    return result;
}

int VantraProgressMgr::endStage()
{
    return VTProgressDoProgressEndStage(mVTProgressRef);
}

int VantraProgressMgr::updateStage(int inValue)
{
    return VTProgressDoProgressUpdateStage(mVTProgressRef, inValue);
}

int VantraProgressMgr::updateStageAndName(int inValue, const QString &inName)
{
    __VTProgress *progress = mVTProgressRef;
    if (progress == nullptr) {
        return 0;
    }
    const CFStringRef name = VTQtStringUtils::createCFStringRefFromQString(inName);
    VTProgressSetStageName(progress, name);
    CFRelease(name);
    return VTProgressDoProgressUpdateStage(progress, inValue);
}

int VantraProgressMgr::progress(__VTProgress *inProgress, VTProgressCmdType inCmd)
{
    VantraProgressMsg message;
    message.setCmd(inCmd);
    bool passes = false;
    switch (inCmd) {
    case VTProgressCmdBeginStage: passes = true; break;
    case VTProgressCmdUpdateStage: passes = passesThrottle(); break;
    case VTProgressCmdEndStage: passes = true; break;
    }
    if (passes) {
        if (inCmd != VTProgressCmdEndStage) {
            updateProgressMessage(inProgress, message);
        }
        // On the GUI thread the slot processes events, and one of them may be the end of this manager.
        const QPointer<VantraProgressMgr> self(this);
        emit progressUpdate(message);
        if (self.isNull()) {
            return kCanceledResult;
        }
    }
    return mCanceled ? kCanceledResult : 0;
}

// Of several threads that are here at once, one gets through.
bool VantraProgressMgr::passesThrottle()
{
    if (mProgressType > VantraProgressTypeResponsive) {
        return true;
    }
    const qint64 now = mLastUpdateTimer.elapsed();
    qint64 last = mLastUpdateTime.load(std::memory_order_relaxed);
    return now - last > mMinUpdateInterval.load(std::memory_order_relaxed) &&
           mLastUpdateTime.compare_exchange_strong(last, now);
}

void VantraProgressMgr::updateProgressMessage(__VTProgress *inProgress, VantraProgressMsg &ioMsg)
{
    const CFStringRef ownTitle = VTProgressGetTitle(inProgress);
    ioMsg.setTitle(ownTitle != nullptr ? VTQtStringUtils::createQStringFromCFStringRef(ownTitle) : title());
    ioMsg.setStage(VTProgressGetStage(inProgress));
    ioMsg.setStages(VTProgressGetStages(inProgress));
    ioMsg.setStageName(VTProgressGetStageName(inProgress));
    ioMsg.setStageCount(VTProgressGetStageCount(inProgress));
    ioMsg.setStageValue(VTProgressGetStageValue(inProgress));
}

void VantraProgressMgr::progressSlot(VantraProgressMsg inMsg)
{
    if (!mProgressDlg) {
        return;
    }
    const VantraProgressType type = mProgressType;
    bool processesEvents = false;
    if (inMsg.cmd() == VTProgressCmdBeginStage) {
        showTexts(inMsg);
        mProgressDlg->setRange(0, inMsg.stageCount() - 1);
        mProgressDlg->setValue(0);
        processesEvents = type == VantraProgressTypeResponsive;
    } else if (inMsg.cmd() == VTProgressCmdUpdateStage) {
        if (!mDialogShown && mBeginTimer.elapsed() > mDelayBeforeShowDialog &&
            mProgressDlg->windowOpacity() == 0.0) {
            mProgressDlg->show();
            mProgressDlg->setWindowOpacity(1.0);
            mDialogShown = true;
        }
        showTexts(inMsg);
        mProgressDlg->setValue(inMsg.stageValue());
        processesEvents = type == VantraProgressTypeResponsive || type == VantraProgressTypeUnthrottled;
    }
    if (processesEvents) {
        const QPointer<VantraProgressMgr> self(this);
        QCoreApplication::processEvents();
        if (self.isNull()) {
            return;
        }
    }
    if (mProgressDlg) {
        mCanceled = mProgressDlg->canceled();
    }
}

void VantraProgressMgr::showTexts(const VantraProgressMsg &inMsg)
{
    mProgressDlg->setOperationText(
        inMsg.stages() < 1
            ? inMsg.title()
            : tr("%1 (%2 of %3)")
                  .arg(inMsg.title(), QString::number(inMsg.stage()), QString::number(inMsg.stages())));
    mProgressDlg->setStageText(inMsg.stageName());
}

void VantraProgressMgr::showProgressIfNotShown()
{
    if (mProgressDlg) {
        mProgressDlg->setWindowOpacity(1.0);
    }
}
