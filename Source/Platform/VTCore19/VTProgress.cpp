#include "VTProgress.h"

#include <QtCore/QThreadStorage>

#include <atomic>
#include <mutex>
#include <utility>

namespace {

CFStringRef ownedCopy(CFStringRef inString)
{
    if (inString == nullptr) {
        return nullptr;
    }
#if defined(__APPLE__)
    // The system's strings may be mutable ones.
    return CFStringCreateCopy(nullptr, inString);
#else
    return CFRetain(inString);
#endif
}

CFStringRef retained(CFStringRef inString)
{
    return inString == nullptr ? nullptr : static_cast<CFStringRef>(CFRetain(inString));
}

void release(CFStringRef inString)
{
    if (inString != nullptr) {
        CFRelease(inString);
    }
}

// Keeps the string that a thread has borrowed last.
class Loan
{
public:
    Loan() = default;
    Loan(const Loan &) = delete;
    Loan &operator=(const Loan &) = delete;
    ~Loan() { release(mString); }

    // Takes over the caller's reference.
    CFStringRef replace(CFStringRef inString)
    {
        release(mString);
        mString = inString;
        return inString;
    }

private:
    CFStringRef mString = nullptr;
};

struct Loans
{
    Loan title;
    Loan stageName;
};

// Not thread_local: MinGW frees the memory of such variables before it destroys them. Not destroyed at the
// program's end, which threads may outlive.
Loans &loans()
{
    static QThreadStorage<Loans> &sLoans = *new QThreadStorage<Loans>;
    return sLoans.localData();
}

// A string that threads may exchange while others read it.
class SharedText
{
public:
    SharedText() = default;
    SharedText(const SharedText &) = delete;
    SharedText &operator=(const SharedText &) = delete;
    ~SharedText() { release(mString); }

    void set(CFStringRef inString)
    {
        CFStringRef former = ownedCopy(inString);
        {
            const std::lock_guard<std::mutex> lock(mMutex);
            std::swap(former, mString);
        }
        release(former);
    }

    CFStringRef borrow(Loan &ioLoan) const
    {
        CFStringRef string = nullptr;
        {
            const std::lock_guard<std::mutex> lock(mMutex);
            string = retained(mString);
        }
        return ioLoan.replace(string);
    }

private:
    mutable std::mutex mMutex;
    CFStringRef mString = nullptr;
};

} // namespace

struct __VTProgress
{
    std::atomic<int> references{1};
    std::atomic<VTProgressCallback> callback{nullptr};
    std::atomic<void *> context{nullptr};
    std::atomic<bool> canceled{false};
    std::atomic<int> stage{0};
    std::atomic<int> stages{0};
    std::atomic<int> stageCount{0};
    std::atomic<int> stageValue{0};
    SharedText title;
    SharedText stageName;
};

namespace {

// The numbers are for showing alone and order nothing.
int numberOf(const std::atomic<int> __VTProgress::*inField, const __VTProgress *inProgress)
{
    return inProgress == nullptr ? 0 : (inProgress->*inField).load(std::memory_order_relaxed);
}

int report(__VTProgress *ioProgress, VTProgressCmdType inCmd)
{
    // A callback that processes events may see the operation's end, and with it the end of the object.
    VTProgressRetain(ioProgress);
    const VTProgressCallback callback = ioProgress->callback.load(std::memory_order_acquire);
    int result = callback == nullptr ? 0 : callback(ioProgress, inCmd);
    if (result == 0 && ioProgress->canceled.load(std::memory_order_acquire)) {
        result = VTProgressResultCanceled;
    }
    VTProgressRelease(ioProgress);
    return result;
}

} // namespace

__VTProgress *VTProgressCreate()
{
    return new __VTProgress;
}

__VTProgress *VTProgressRetain(__VTProgress *ioProgress)
{
    if (ioProgress != nullptr) {
        ioProgress->references.fetch_add(1, std::memory_order_relaxed);
    }
    return ioProgress;
}

void VTProgressRelease(__VTProgress *ioProgress)
{
    if (ioProgress != nullptr && ioProgress->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        delete ioProgress;
    }
}

void VTProgressSetCB(__VTProgress *ioProgress, VTProgressCallback inCallback, void *inContext)
{
    if (ioProgress == nullptr) {
        return;
    }
    // A new callback never meets the context of the one before it.
    ioProgress->context.store(inContext);
    ioProgress->callback.store(inCallback);
}

void *VTProgressGetContext(const __VTProgress *inProgress)
{
    return inProgress == nullptr ? nullptr : inProgress->context.load();
}

void VTProgressSetCancel(__VTProgress *ioProgress, bool inCancel)
{
    if (ioProgress != nullptr) {
        ioProgress->canceled.store(inCancel, std::memory_order_release);
    }
}

bool VTProgressGetCancel(const __VTProgress *inProgress)
{
    return inProgress != nullptr && inProgress->canceled.load(std::memory_order_acquire);
}

void VTProgressSetTitle(__VTProgress *ioProgress, CFStringRef inTitle)
{
    if (ioProgress != nullptr) {
        ioProgress->title.set(inTitle);
    }
}

CFStringRef VTProgressGetTitle(const __VTProgress *inProgress)
{
    return inProgress == nullptr ? nullptr : inProgress->title.borrow(loans().title);
}

void VTProgressSetStages(__VTProgress *ioProgress, int inStages)
{
    if (ioProgress != nullptr) {
        ioProgress->stages.store(inStages, std::memory_order_relaxed);
    }
}

int VTProgressGetStages(const __VTProgress *inProgress)
{
    return numberOf(&__VTProgress::stages, inProgress);
}

int VTProgressGetStage(const __VTProgress *inProgress)
{
    return numberOf(&__VTProgress::stage, inProgress);
}

int VTProgressGetStageCount(const __VTProgress *inProgress)
{
    return numberOf(&__VTProgress::stageCount, inProgress);
}

int VTProgressGetStageValue(const __VTProgress *inProgress)
{
    return numberOf(&__VTProgress::stageValue, inProgress);
}

void VTProgressSetStageName(__VTProgress *ioProgress, CFStringRef inName)
{
    if (ioProgress != nullptr) {
        ioProgress->stageName.set(inName);
    }
}

CFStringRef VTProgressGetStageName(const __VTProgress *inProgress)
{
    return inProgress == nullptr ? nullptr : inProgress->stageName.borrow(loans().stageName);
}

int VTProgressDoProgressBeginStage(__VTProgress *ioProgress, int inStage, CFStringRef inName,
                                   int inStageCount)
{
    if (ioProgress == nullptr) {
        return 0;
    }
    ioProgress->stage.store(inStage, std::memory_order_relaxed);
    ioProgress->stageName.set(inName);
    ioProgress->stageCount.store(inStageCount, std::memory_order_relaxed);
    ioProgress->stageValue.store(0, std::memory_order_relaxed);
    return report(ioProgress, VTProgressCmdBeginStage);
}

int VTProgressDoProgressUpdateStage(__VTProgress *ioProgress, int inValue)
{
    if (ioProgress == nullptr) {
        return 0;
    }
    ioProgress->stageValue.store(inValue, std::memory_order_relaxed);
    return report(ioProgress, VTProgressCmdUpdateStage);
}

int VTProgressDoProgressEndStage(__VTProgress *ioProgress)
{
    return ioProgress == nullptr ? 0 : report(ioProgress, VTProgressCmdEndStage);
}
