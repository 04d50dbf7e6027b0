#pragma once

// The progress object: what an algorithm that knows nothing of windows reports to, and what it learns from
// that the user wants it to stop. Plain C, so that any library can use it.
//
//     static int exportAll(__VTProgress *ioProgress, int inCount)
//     {
//         int result = VTProgressDoProgressBeginStage(ioProgress, 1, CFSTR("Export"), inCount);
//         for (int i = 0; result == 0 && i < inCount; ++i) {
//             exportOne(i);
//             result = VTProgressDoProgressUpdateStage(ioProgress, i);
//         }
//         VTProgressDoProgressEndStage(ioProgress);
//         return result;   // 0, or the reason to have stopped
//     }
//
// All operations may be called from any thread, and from several at once. One value is never seen half
// written; values that belong together, such as the step and the number of steps, may be of different moments
// while another thread reports.
//
// An operation on a null object does nothing and answers 0, false or null, so that an algorithm needs no case
// of its own for a caller without progress.
//
// Objects are counted. VTProgressCreate hands one reference to its caller; who keeps an object for longer
// than the operation for which it was given to them takes one more with VTProgressRetain.

#include "VTCFString.h"
#include "VTCore19Export.h"

#if !defined(__cplusplus)
#include <stdbool.h>
#endif

#if defined(__cplusplus)
extern "C" {
#endif

typedef struct __VTProgress __VTProgress;

// What the callback is told of.
typedef enum VTProgressCmdType {
    VTProgressCmdBeginStage = 1,
    VTProgressCmdUpdateStage = 2,
    VTProgressCmdEndStage = 3
} VTProgressCmdType;

// What a progress call answers for an operation that has been canceled. Callbacks may answer other values
// than 0 for reasons of their own, so that an algorithm stops at any value but 0.
enum { VTProgressResultCanceled = 1007 };

// Called by the three VTProgressDo... operations on their own thread, after they have recorded their values.
// Any result but 0 asks the algorithm to stop.
typedef int (*VTProgressCallback)(__VTProgress *ioProgress, VTProgressCmdType inCmd);

// A new object: not canceled, without callback, title and name, every number 0. The caller owns one reference
// and gives it back with VTProgressRelease.
VTCORE19_EXPORT __VTProgress *VTProgressCreate(void);

// Adds a reference and returns the object.
VTCORE19_EXPORT __VTProgress *VTProgressRetain(__VTProgress *ioProgress);

// Gives one reference back; the last one frees the object.
VTCORE19_EXPORT void VTProgressRelease(__VTProgress *ioProgress);

// Stores a callback, or null for none, and a pointer for it that the object never follows. A call that is
// under way on another thread may still go to the earlier callback, and it may see the new context.
VTCORE19_EXPORT void VTProgressSetCB(__VTProgress *ioProgress, VTProgressCallback inCallback,
                                     void *inContext);
VTCORE19_EXPORT void *VTProgressGetContext(const __VTProgress *inProgress);

// Marks the operation as canceled, or takes that back. From then on the VTProgressDo... operations answer
// VTProgressResultCanceled by themselves when the callback has nothing else to say; the algorithm is never
// interrupted otherwise.
VTCORE19_EXPORT void VTProgressSetCancel(__VTProgress *ioProgress, bool inCancel);
VTCORE19_EXPORT bool VTProgressGetCancel(const __VTProgress *inProgress);

// Text of the whole operation. Null, the default, leaves the choice to who shows it. The object keeps what it
// needs, so that the caller may release its string at once.
//
// The string that comes back is borrowed: it is not to be released, and it stays valid until the same thread
// asks an object, this one or another, for its title again, even if the title is changed meanwhile.
VTCORE19_EXPORT void VTProgressSetTitle(__VTProgress *ioProgress, CFStringRef inTitle);
VTCORE19_EXPORT CFStringRef VTProgressGetTitle(const __VTProgress *inProgress);

// How many stages the operation has. 0, the default, stands for an operation that doesn't number them.
VTCORE19_EXPORT void VTProgressSetStages(__VTProgress *ioProgress, int inStages);
VTCORE19_EXPORT int VTProgressGetStages(const __VTProgress *inProgress);

// The number of the current stage, the number of its steps, and the current step.
VTCORE19_EXPORT int VTProgressGetStage(const __VTProgress *inProgress);
VTCORE19_EXPORT int VTProgressGetStageCount(const __VTProgress *inProgress);
VTCORE19_EXPORT int VTProgressGetStageValue(const __VTProgress *inProgress);

// Text of the current stage, null for none. Kept and borrowed like the title.
VTCORE19_EXPORT void VTProgressSetStageName(__VTProgress *ioProgress, CFStringRef inName);
VTCORE19_EXPORT CFStringRef VTProgressGetStageName(const __VTProgress *inProgress);

// Begins a stage: records its number, counted from 1, its name, which may be null, its number of steps, and
// step 0. Answers the callback's result, or the cancel as told above; any value but 0 means stop.
VTCORE19_EXPORT int VTProgressDoProgressBeginStage(__VTProgress *ioProgress, int inStage, CFStringRef inName,
                                                   int inStageCount);

// Records the current step, from 0 to the number of steps less one. Meant to be called as often as the
// algorithm likes: who shows the progress takes only as many as it needs. Answers like BeginStage.
VTCORE19_EXPORT int VTProgressDoProgressUpdateStage(__VTProgress *ioProgress, int inValue);

// Ends the stage; the recorded values stay until the next one. Answers like BeginStage.
VTCORE19_EXPORT int VTProgressDoProgressEndStage(__VTProgress *ioProgress);

#if defined(__cplusplus)
}
#endif
