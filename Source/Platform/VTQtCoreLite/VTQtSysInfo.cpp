#include "VTQtSysInfo.h"

#include "VTQtSysInfoPretence.h"

#include <QtCore/QOperatingSystemVersion>

namespace {

VTQtSysInfoPretence::System sPretended = VTQtSysInfoPretence::TheRealOne;

VTQtSysInfoPretence::System realSystem()
{
#if defined(Q_OS_WIN)
    return VTQtSysInfoPretence::Windows;
#elif defined(Q_OS_MACOS)
    return QOperatingSystemVersion::current() >= QOperatingSystemVersion::MacOSHighSierra
               ? VTQtSysInfoPretence::Mac
               : VTQtSysInfoPretence::MacBeforeHighSierra;
#else
    return VTQtSysInfoPretence::Other;
#endif
}

VTQtSysInfoPretence::System currentSystem()
{
    return sPretended == VTQtSysInfoPretence::TheRealOne ? realSystem() : sPretended;
}

} // namespace

VTQtSysInfoPretence::VTQtSysInfoPretence(System inSystem) : mEarlier(sPretended)
{
    sPretended = inSystem;
}

VTQtSysInfoPretence::~VTQtSysInfoPretence()
{
    sPretended = mEarlier;
}

bool VTQtSysInfo::isWinPlatform()
{
    return currentSystem() == VTQtSysInfoPretence::Windows;
}

bool VTQtSysInfo::isMacPlatform()
{
    const VTQtSysInfoPretence::System system = currentSystem();
    return system == VTQtSysInfoPretence::Mac || system == VTQtSysInfoPretence::MacBeforeHighSierra;
}

bool VTQtSysInfo::highSierraOrGreater()
{
    return currentSystem() == VTQtSysInfoPretence::Mac;
}
