#pragma once

// What a spin box tells the style: the text in the box and an emphasised span of it.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QString>
#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionSpinBox : public QStyleOptionSpinBox
{
public:
    using QtOption = QStyleOptionSpinBox;
    enum StyleOptionType { Type = SO_SpinBox };
    enum StyleOptionVersion { Version = 2 };

    QString displayText;    // painted in the box
    int highlightStart = 0; // first character of the emphasised span
    int highlightEnd = 0;   // one past the last character of that span

    VantraStyleOptionSpinBox() : VantraStyleOptionSpinBox(Version) {}
    VantraStyleOptionSpinBox(const VantraStyleOptionSpinBox &inOther) : VantraStyleOptionSpinBox()
    {
        *this = inOther;
    }
    VantraStyleOptionSpinBox &operator=(const VantraStyleOptionSpinBox &) = default;

protected:
    explicit VantraStyleOptionSpinBox(int inVersion) : QStyleOptionSpinBox(inVersion) {}
};
