#include "Progress/VantraProgressMsg.h"

#include "VTQtStringUtils.h"

VantraProgressMsg &VantraProgressMsg::operator=(const VantraProgressMsg &inOther)
{
    inOther.takeOver();
    mCmd = inOther.mCmd;
    mStage = inOther.mStage;
    mStages = inOther.mStages;
    mStageCount = inOther.mStageCount;
    mStageValue = inOther.mStageValue;
    mStageName = inOther.mStageName;
    mTitle = inOther.mTitle;
    mComplete.store(true, std::memory_order_release);
    return *this;
}

void VantraProgressMsg::setStageName(const __CFString *inName)
{
    if (inName != nullptr) {
        mStageName = VTQtStringUtils::createQStringFromCFStringRef(inName);
    }
}
