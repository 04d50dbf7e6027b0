#include "Progress/VTThreadedProgressCmd.h"

#include "Progress/VantraProgressMgr.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>

VTThreadedProgressCmd::VTThreadedProgressCmd() = default;

VTThreadedProgressCmd::~VTThreadedProgressCmd() = default;

int VTThreadedProgressCmd::execute(const QString &inTitle, bool inIndeterminate,
                                   const std::function<int(__VTProgress *)> &inFunction, QWidget *inParent)
{
    mFunction = inFunction;
    const QPointer<VantraProgressMgr> manager = VantraProgressMgr::sharedInstance();
    manager->setTitle(inTitle);
    manager->beginProgress(inParent, mToken, VantraProgressTypeDefault);
    manager->setCancelEnabled(mAllowCancel);
    mProgress = manager->mVTProgressOwner;
    manager->beginCommand(mProgress.get(), mToken);
    start(QThread::InheritPriority);
    if (inIndeterminate) {
        manager->runProgressIndeterminate(inTitle, mToken);
    } else {
        manager->runProgress(mToken);
    }
    if (!manager.isNull()) {
        manager->endCommand(mProgress.get(), mToken);
    }
    wait(QDeadlineTimer(QDeadlineTimer::Forever));
    const int result = mResult.load(std::memory_order_acquire);
    mProgress.reset();
    return result;
}

void VTThreadedProgressCmd::run()
{
    int result = 0;
    // Not left to the last lines: without the end the application would stay blocked, and the function may
    // end the thread in its own way.
    const auto end = qScopeGuard([this, &result] {
        VantraProgressMgr::endProgressOf(mProgress.get(), mToken);
        mResult.store(result, std::memory_order_release);
    });
    if (mFunction) {
        result = mFunction(mProgress.get());
    }
}
