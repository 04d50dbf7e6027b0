#pragma once

// What a tool button tells the style: icon family, background, tinting and growth of the icon.

#include "Controls/VantraToolButton.h"
#include "Theme/VantraIconPalette.h"
#include "Theme/VantraPalette.h"
#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionToolButton : public QStyleOptionToolButton
{
public:
    using QtOption = QStyleOptionToolButton;
    enum StyleOptionType { Type = SO_ToolButton };
    enum StyleOptionVersion { Version = 2 };

    VantraToolButton::ButtonStyle buttonStyle = VantraToolButton::IconStyle; // icon family
    // Look of the panel.
    VantraToolButton::BackgroundStyle backgroundStyle = VantraToolButton::BackgroundStyleToolButton;
    // Replaces the background role unless DefaultRole.
    VantraPalette::PaletteRole backgroundButtonRole = VantraPalette::DefaultRole;
    // How the icon is tinted.
    VantraIconPalette::IconTintings iconTinting = VantraIconPalette::IconTintingNone;
    // Role, in group Normal, of the alternate tint.
    VantraPalette::PaletteRole alternateTintRole = VantraPalette::Accent;
    // The icon grows by 1.25 while hovered; its room is reserved at all times.
    bool enlargeIconOnHover = false;

    VantraStyleOptionToolButton() : VantraStyleOptionToolButton(Version) {}
    VantraStyleOptionToolButton(const VantraStyleOptionToolButton &inOther) : VantraStyleOptionToolButton()
    {
        *this = inOther;
    }
    VantraStyleOptionToolButton &operator=(const VantraStyleOptionToolButton &) = default;

protected:
    explicit VantraStyleOptionToolButton(int inVersion) : QStyleOptionToolButton(inVersion) {}
};
