#pragma once

// The library's push button: a visual button style tells the caps and the family that the style paints.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QPushButton>

class VTWIDGETSLITE_EXPORT VantraButton : public QPushButton
{
    Q_OBJECT

public:
    enum ButtonStyle {
        LeftAndRightCapButtonStyle = 0,
        LeftCapButtonStyle = 1,
        RightCapButtonStyle = 2,
        NoCapButtonStyle = 3,
        TextOnlyStyle = 4,
        LeftAndRightCapButtonAccentStyle = 5,
        LeftAndRightCapTabButtonStyle = 6,
        LeftCapTabButtonStyle = 7,
        RightCapTabButtonStyle = 8,
        NoCapTabButtonStyle = 9,
        LinkButtonStyle = 10,
    };
    Q_ENUM(ButtonStyle)

    using QPushButton::QPushButton;
};
