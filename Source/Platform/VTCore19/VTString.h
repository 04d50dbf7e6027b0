#pragma once

// The product's own text value: UTF-8, copied by value. Any thread, one at a time.
//
//     manager->addCategory(VTString("Black and white"));

#include "VTCore19Export.h"

#include <string>

class VTCORE19_EXPORT VTString
{
public:
    // Copies a zero-terminated UTF-8 text; null gives the empty one.
    explicit VTString(const char *inText);
    VTString(const VTString &inOther);
    VTString &operator=(const VTString &inOther);
    ~VTString();

    // Zero-terminated UTF-8, valid as long as this value is unchanged.
    const char *utf8() const;

private:
    std::string mText;
};
