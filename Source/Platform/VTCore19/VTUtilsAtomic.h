#pragma once

#include "VTCore19Export.h"

// Adds 1 to the number in one atomic step and returns the new value. Any thread.
VTCORE19_EXPORT int VTUtilsAtomicIncrement32(int *ioValue);
