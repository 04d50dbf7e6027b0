#pragma once

// What a group box tells the style. It adds no field; its version tells it from a plain option.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionGroupBox : public QStyleOptionGroupBox
{
public:
    using QtOption = QStyleOptionGroupBox;
    enum StyleOptionType { Type = SO_GroupBox };
    enum StyleOptionVersion { Version = 2 };

    VantraStyleOptionGroupBox() : VantraStyleOptionGroupBox(Version) {}
    VantraStyleOptionGroupBox(const VantraStyleOptionGroupBox &inOther) : VantraStyleOptionGroupBox()
    {
        *this = inOther;
    }
    VantraStyleOptionGroupBox &operator=(const VantraStyleOptionGroupBox &) = default;

protected:
    explicit VantraStyleOptionGroupBox(int inVersion) : QStyleOptionGroupBox(inVersion) {}
};
