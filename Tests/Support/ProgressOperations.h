#pragma once

// Operations of the progress manager, as its tests run them.

#include "Progress/VantraProgress.h"
#include "Progress/VantraProgressMgr.h"

#include <chrono>
#include <functional>
#include <thread>
#include <utility>

namespace ProgressOperations {

// Opens what only subclasses reach.
class OpenManager : public VantraProgressMgr
{
public:
    explicit OpenManager(QObject *inParent) : VantraProgressMgr(inParent) {}
    using VantraProgressMgr::logParams;
    using VantraProgressMgr::setFakeModal;

    static VantraProgressMgr *exchangeInstance(VantraProgressMgr *inManager)
    {
        return std::exchange(sInstance, inManager);
    }
};

// The dialog of the current operation.
inline VantraProgress *dialogOf(QWidget *inParent)
{
    for (auto *dialog : inParent->findChildren<VantraProgress *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (dialog->result() == 0 && dialog->isEnabled()) {
            return dialog;
        }
    }
    return nullptr;
}

using Work = std::function<void(__VTProgress *)>;

// An operation with a thread of the application's own. Returns the result of the run.
inline int runOnThread(VantraProgressMgr *ioManager, QWidget *inParent, const Work &inWork)
{
    int token = 0;
    ioManager->beginProgress(inParent, token, VantraProgressTypeDefault);
    __VTProgress *progress = ioManager->progress();
    std::thread worker([&] {
        inWork(progress);
        ioManager->endProgress(token);
    });
    const int result = ioManager->runProgress(token);
    worker.join();
    return result;
}

inline void pause(int inMilliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(inMilliseconds));
}

inline int workUntilCanceled(__VTProgress *ioProgress)
{
    int result = VTProgressDoProgressBeginStage(ioProgress, 1, CFSTR("Work"), 1000000);
    for (int i = 0; result == 0; ++i) {
        result = VTProgressDoProgressUpdateStage(ioProgress, i);
        pause(1);
    }
    return result;
}

} // namespace ProgressOperations
