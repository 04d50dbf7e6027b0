#pragma once

// What a text edit tells the style: the look of its panel.

#include "Controls/VantraTextEdit.h"
#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionTextEdit : public QStyleOptionFrame
{
public:
    using QtOption = QStyleOptionFrame;
    enum StyleOptionType { Type = SO_Frame };
    enum StyleOptionVersion { Version = 2 };

    VantraTextEdit::BorderStyle borderStyle = VantraTextEdit::BorderNone; // look and radius of the panel

    VantraStyleOptionTextEdit() : VantraStyleOptionTextEdit(Version) {}
    VantraStyleOptionTextEdit(const VantraStyleOptionTextEdit &inOther) : VantraStyleOptionTextEdit()
    {
        *this = inOther;
    }
    VantraStyleOptionTextEdit &operator=(const VantraStyleOptionTextEdit &) = default;

protected:
    explicit VantraStyleOptionTextEdit(int inVersion) : QStyleOptionFrame(inVersion) {}
};
