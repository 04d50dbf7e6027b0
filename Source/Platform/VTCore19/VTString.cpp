#include "VTString.h"

VTString::VTString(const char *inText) : mText(inText != nullptr ? inText : "")
{
}

VTString::VTString(const VTString &inOther) = default;

VTString &VTString::operator=(const VTString &inOther) = default;

VTString::~VTString() = default;

const char *VTString::utf8() const
{
    return mText.c_str();
}
