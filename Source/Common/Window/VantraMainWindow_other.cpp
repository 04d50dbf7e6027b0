#include "Window/VantraMainWindowNative_p.h"

bool VantraMainWindowNative::isMaximizeCommand(const void *)
{
    return false;
}

unsigned long VantraMainWindowNative::setTopmost(WId, bool)
{
    return 0;
}
