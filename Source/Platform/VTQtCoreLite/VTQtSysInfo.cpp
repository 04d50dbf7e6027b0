#include "VTQtSysInfo.h"

#include <QtCore/QOperatingSystemVersion>

bool VTQtSysInfo::isWinPlatform()
{
#if defined(Q_OS_WIN)
    return true;
#else
    return false;
#endif
}

bool VTQtSysInfo::isMacPlatform()
{
#if defined(Q_OS_MACOS)
    return true;
#else
    return false;
#endif
}

bool VTQtSysInfo::highSierraOrGreater()
{
    return isMacPlatform() && QOperatingSystemVersion::current() >= QOperatingSystemVersion::MacOSHighSierra;
}
