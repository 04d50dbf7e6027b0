#include "Window/VantraMainWindowNative_p.h"

#include <qt_windows.h>

bool VantraMainWindowNative::isMaximizeCommand(const void *inMessage)
{
    const auto *message = static_cast<const MSG *>(inMessage);
    return message != nullptr && message->message == WM_SYSCOMMAND && message->wParam == SC_MAXIMIZE;
}

unsigned long VantraMainWindowNative::setTopmost(WId inWindow, bool inTopmost)
{
    const HWND place = inTopmost ? HWND_TOPMOST : HWND_NOTOPMOST;
    const BOOL done =
        SetWindowPos(reinterpret_cast<HWND>(inWindow), place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    return done ? 0 : GetLastError();
}
