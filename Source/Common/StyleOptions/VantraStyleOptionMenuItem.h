#pragma once

// What the style adds to a menu item: whether its menu is an overlay over the picture. Private to the style.

#include <QtWidgets/QStyleOption>

class VantraStyleOptionMenuItem : public QStyleOptionMenuItem
{
public:
    using QtOption = QStyleOptionMenuItem;
    enum StyleOptionType { Type = SO_MenuItem };
    enum StyleOptionVersion { Version = 2 };

    bool hudOverlay = false;         // the item belongs to an overlay menu
    bool hudOverlayResolved = false; // hudOverlay has been worked out from the menu

    VantraStyleOptionMenuItem() : QStyleOptionMenuItem(Version) {}
    VantraStyleOptionMenuItem(const VantraStyleOptionMenuItem &inOther) : VantraStyleOptionMenuItem()
    {
        *this = inOther;
    }
    VantraStyleOptionMenuItem &operator=(const VantraStyleOptionMenuItem &) = default;
};
