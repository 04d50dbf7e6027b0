#pragma once

// What a progress object had to say at one moment: the value that travels from the algorithm's thread to the
// dialog.
//
//     connect(manager, &VantraProgressMgr::progressUpdate, log,
//             [log](const VantraProgressMsg &inMsg) { log->append(inMsg.stageName()); });
//
// A value: any thread may have its own. Registered with the meta types under its name.

#include "VTProgress.h"
#include "VTWidgetsLiteExport.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <atomic>

class VTWIDGETSLITE_EXPORT VantraProgressMsg
{
public:
    // Every number 0, the command among them, and empty texts.
    VantraProgressMsg() = default;
    VantraProgressMsg(const VantraProgressMsg &inOther) { *this = inOther; }
    VantraProgressMsg &operator=(const VantraProgressMsg &inOther);
    ~VantraProgressMsg() { takeOver(); }

    VTProgressCmdType cmd() const { return mCmd; }
    void setCmd(VTProgressCmdType inCmd) { mCmd = inCmd; }

    // The number of the current stage, counted from 1, and the number of all; below 1 the stages aren't
    // numbered.
    int stage() const { return mStage; }
    void setStage(int inStage) { mStage = inStage; }
    int stages() const { return mStages; }
    void setStages(int inStages) { mStages = inStages; }

    // The number of steps in the stage, and the current one, from 0 on.
    int stageCount() const { return mStageCount; }
    void setStageCount(int inCount) { mStageCount = inCount; }
    int stageValue() const { return mStageValue; }
    void setStageValue(int inValue) { mStageValue = inValue; }

    // A null handle leaves the name as it is. The handle stays the caller's.
    QString stageName() const { return mStageName; }
    void setStageName(const __CFString *inName);

    QString title() const { return mTitle; }
    void setTitle(const QString &inTitle) { mTitle = inTitle; }

private:
    // What another thread has put into this message is seen from here on.
    void takeOver() const { mComplete.load(std::memory_order_acquire); }

    VTProgressCmdType mCmd = VTProgressCmdType(0);
    int mStage = 0;
    int mStages = 0;
    int mStageCount = 0;
    int mStageValue = 0;
    QString mStageName;
    QString mTitle;
    // Written last by a copy, and read first of one: on its way from thread to thread a message answers for
    // its contents itself, and thread checkers needn't know how the event queue does it.
    std::atomic<bool> mComplete{true};
};

Q_DECLARE_METATYPE(VantraProgressMsg)
