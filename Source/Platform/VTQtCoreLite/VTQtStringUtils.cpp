#include "VTQtStringUtils.h"

QString VTQtStringUtils::createQStringFromCFStringRef(CFStringRef inString)
{
    if (inString == nullptr) {
        return QString();
    }
#if defined(Q_OS_MACOS)
    return QString::fromCFString(inString);
#else
    return QString::fromUtf8(CFStringGetUTF8(inString));
#endif
}

CFStringRef VTQtStringUtils::createCFStringRefFromQString(const QString &inText)
{
#if defined(Q_OS_MACOS)
    return inText.toCFString();
#else
    return CFStringCreateWithUTF8(inText.toUtf8().constData());
#endif
}
