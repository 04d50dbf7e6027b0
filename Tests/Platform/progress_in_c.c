/* Compiled as C99 by a test of its own: algorithms needn't be C++. */

#include "VTCore19/VTProgress.h"

static int ignoreProgress(__VTProgress *ioProgress, VTProgressCmdType inCmd)
{
    return inCmd == VTProgressCmdUpdateStage && VTProgressGetCancel(ioProgress) ? VTProgressResultCanceled : 0;
}

int exportAll(int inCount)
{
    int result;
    int i;
    __VTProgress *progress = VTProgressCreate();
    VTProgressSetCB(progress, ignoreProgress, &result);
    VTProgressSetTitle(progress, CFSTR("Export"));
    result = VTProgressDoProgressBeginStage(progress, 1, CFSTR("Write"), inCount);
    for (i = 0; result == 0 && i < inCount; ++i) {
        result = VTProgressDoProgressUpdateStage(progress, i);
    }
    VTProgressDoProgressEndStage(progress);
    VTProgressRelease(progress);
    return result;
}
