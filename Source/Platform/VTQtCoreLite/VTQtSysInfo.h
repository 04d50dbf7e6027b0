#pragma once

// Which system the program runs on, asked at run time so that all logic is compiled on all systems.

#include "VTQtCoreLiteExport.h"

class VTQTCORELITE_EXPORT VTQtSysInfo
{
public:
    VTQtSysInfo() = delete;

    static bool isWinPlatform();
    static bool isMacPlatform();

    // True on macOS 10.13 and later, false on every other system.
    static bool highSierraOrGreater();
};
