#include "VTUtilsAtomic.h"

#if defined(_MSC_VER)
#include <intrin.h>

int VTUtilsAtomicIncrement32(int *ioValue)
{
    static_assert(sizeof(long) == sizeof(int));
    return static_cast<int>(_InterlockedIncrement(reinterpret_cast<volatile long *>(ioValue)));
}
#else
int VTUtilsAtomicIncrement32(int *ioValue)
{
    return __atomic_add_fetch(ioValue, 1, __ATOMIC_SEQ_CST);
}
#endif
