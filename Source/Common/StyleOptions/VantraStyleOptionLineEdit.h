#pragma once

// What a line edit tells the style: the look of its panel.

#include "Controls/VantraLineEditBase.h"
#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionLineEdit : public QStyleOptionFrame
{
public:
    using QtOption = QStyleOptionFrame;
    enum StyleOptionType { Type = SO_Frame };
    enum StyleOptionVersion { Version = 2 };

    // Look and radius of the panel.
    VantraLineEditBase::BorderStyle borderStyle = VantraLineEditBase::BorderNone;

    VantraStyleOptionLineEdit() : VantraStyleOptionLineEdit(Version) {}
    // For a plain option: a sunken one gets BorderHighlight, any other BorderNone.
    explicit VantraStyleOptionLineEdit(const QStyleOptionFrame &inOption) : VantraStyleOptionLineEdit()
    {
        QStyleOptionFrame::operator=(inOption);
        borderStyle = state.testFlag(QStyle::State_Sunken) ? VantraLineEditBase::BorderHighlight
                                                           : VantraLineEditBase::BorderNone;
    }
    VantraStyleOptionLineEdit(const VantraStyleOptionLineEdit &inOther) : VantraStyleOptionLineEdit()
    {
        *this = inOther;
    }
    VantraStyleOptionLineEdit &operator=(const VantraStyleOptionLineEdit &) = default;

protected:
    explicit VantraStyleOptionLineEdit(int inVersion) : QStyleOptionFrame(inVersion) {}
};
