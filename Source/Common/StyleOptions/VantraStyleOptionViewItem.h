#pragma once

// What an item of a view tells the style: tinting of its decoration and an indent of its text.

#include "Theme/VantraIconPalette.h"
#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionViewItem : public QStyleOptionViewItem
{
public:
    using QtOption = QStyleOptionViewItem;
    enum StyleOptionType { Type = SO_ViewItem };
    enum StyleOptionVersion { Version = 2 };

    // How the decoration is tinted.
    VantraIconPalette::IconTintings iconTinting = VantraIconPalette::IconTintingNone;
    bool useIndent = false; // the text of an item without decoration and check indicator starts further right

    VantraStyleOptionViewItem() : VantraStyleOptionViewItem(Version) {}
    VantraStyleOptionViewItem(const VantraStyleOptionViewItem &inOther) : VantraStyleOptionViewItem()
    {
        *this = inOther;
    }
    VantraStyleOptionViewItem &operator=(const VantraStyleOptionViewItem &) = default;

protected:
    explicit VantraStyleOptionViewItem(int inVersion) : QStyleOptionViewItem(inVersion) {}
};
