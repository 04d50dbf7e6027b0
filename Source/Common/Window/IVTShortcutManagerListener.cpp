#include "Window/IVTShortcutManagerListener.h"

IVTShortcutManagerListener::~IVTShortcutManagerListener() = default;
