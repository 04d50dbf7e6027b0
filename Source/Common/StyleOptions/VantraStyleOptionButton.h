#pragma once

// What a push button tells the style: the label's font, the caps, a background role and the label's
// alignment.

#include "Controls/VantraButton.h"
#include "Theme/VantraPalette.h"
#include "VTWidgetsLiteExport.h"

#include <QtGui/QFont>
#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionButton : public QStyleOptionButton
{
public:
    using QtOption = QStyleOptionButton;
    enum StyleOptionType { Type = SO_Button };
    enum StyleOptionVersion { Version = 2 };

    QFont font; // the label's font; the theme replaces it by the font of the state
    // Caps and family of the button.
    VantraButton::ButtonStyle buttonStyle = VantraButton::LeftAndRightCapButtonStyle;
    // Replaces the background role unless DefaultRole.
    VantraPalette::PaletteRole backgroundButtonRole = VantraPalette::DefaultRole;
    Qt::Alignment alignment = Qt::AlignCenter; // of the label when the button has no icon

    VantraStyleOptionButton() : VantraStyleOptionButton(Version) {}
    VantraStyleOptionButton(const VantraStyleOptionButton &inOther) : VantraStyleOptionButton()
    {
        *this = inOther;
    }
    VantraStyleOptionButton &operator=(const VantraStyleOptionButton &) = default;

protected:
    explicit VantraStyleOptionButton(int inVersion) : QStyleOptionButton(inVersion) {}
};
