#pragma once

// What a tab tells the style: which tab of its bar is under the pointer.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionTab : public QStyleOptionTab
{
public:
    using QtOption = QStyleOptionTab;
    enum StyleOptionType { Type = SO_Tab };
    enum StyleOptionVersion { Version = 2 };

    int hoveredTabIndex = -1; // compared with tabIndex; -1 for none

    VantraStyleOptionTab() : VantraStyleOptionTab(Version) {}
    VantraStyleOptionTab(const VantraStyleOptionTab &inOther) : VantraStyleOptionTab() { *this = inOther; }
    VantraStyleOptionTab &operator=(const VantraStyleOptionTab &) = default;

protected:
    explicit VantraStyleOptionTab(int inVersion) : QStyleOptionTab(inVersion) {}
};
