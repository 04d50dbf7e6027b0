#pragma once

// From string handles to Qt's strings and back. Any thread.
//
//     const CFStringRef name = VTQtStringUtils::createCFStringRefFromQString(tr("Export"));
//     VTProgressSetStageName(progress, name);
//     CFRelease(name);

#include "VTCFString.h"
#include "VTQtCoreLiteExport.h"

#include <QtCore/QString>

class VTQTCORELITE_EXPORT VTQtStringUtils
{
public:
    VTQtStringUtils() = delete;

    // A copy of the handle's text; a null string for a null handle. The handle stays the caller's.
    static QString createQStringFromCFStringRef(CFStringRef inString);

    // A new handle that the caller releases. It is never null: an empty or null text gives an empty one. A
    // text that holds a zero character ends there.
    static CFStringRef createCFStringRefFromQString(const QString &inText);
};
