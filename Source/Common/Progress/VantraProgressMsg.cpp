#include "Progress/VantraProgressMsg.h"

#include "VTQtStringUtils.h"

void VantraProgressMsg::setStageName(const __CFString *inName)
{
    if (inName != nullptr) {
        mStageName = VTQtStringUtils::createQStringFromCFStringRef(inName);
    }
}
