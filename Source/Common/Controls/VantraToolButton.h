#pragma once

// The library's tool button: an icon family, a background and the side on which its tool tip opens.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QToolButton>

class VTWIDGETSLITE_EXPORT VantraToolButton : public QToolButton
{
    Q_OBJECT

public:
    enum ButtonStyle {
        IconStyle = 0,
        IconOnOffStyle = 1,
        IconGroupModuleStyle = 2,
        IconGroupSingleStyle = 3,
        IconGroupTopStyle = 4,
        IconGroupMiddleStyle = 5,
        IconGroupBottomStyle = 6,
    };
    Q_ENUM(ButtonStyle)

    enum BackgroundStyle {
        BackgroundStyleToolButton = 0,
        BackgroundStyleButton = 1,
        BackgroundStyleAccentButton = 2,
        BackgroundStyleAlternateButton = 3,
        BackgroundStyleComboBoxNone = 4,
        BackgroundStyleComboBoxStandard = 5,
        BackgroundStyleTobButton = 6,
    };
    Q_ENUM(BackgroundStyle)

    enum ToolTipDirection {
        ToolTipDirectionLeft = 0,
        ToolTipDirectionRight = 1,
        ToolTipDirectionBelow = 2,
        ToolTipDirectionAbove = 3,
        ToolTipDirectionAuto = 4,
    };
    Q_ENUM(ToolTipDirection)

    using QToolButton::QToolButton;
};
