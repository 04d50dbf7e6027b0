#pragma once

// What a combo box tells the style: the font of the current text and the background.

#include "Controls/VantraComboBoxBase.h"
#include "VTWidgetsLiteExport.h"

#include <QtGui/QFont>
#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionComboBox : public QStyleOptionComboBox
{
public:
    using QtOption = QStyleOptionComboBox;
    enum StyleOptionType { Type = SO_ComboBox };
    enum StyleOptionVersion { Version = 2 };

    QFont font; // of the current text
    // Pill, transparent pill or none.
    VantraComboBoxBase::BackgroundStyle backgroundStyle = VantraComboBoxBase::BackgroundStyleStandard;

    VantraStyleOptionComboBox() : VantraStyleOptionComboBox(Version) {}
    VantraStyleOptionComboBox(const VantraStyleOptionComboBox &inOther) : VantraStyleOptionComboBox()
    {
        *this = inOther;
    }
    VantraStyleOptionComboBox &operator=(const VantraStyleOptionComboBox &) = default;

protected:
    explicit VantraStyleOptionComboBox(int inVersion) : QStyleOptionComboBox(inVersion) {}
};
