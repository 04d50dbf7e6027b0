#pragma once

// A menu bar inside its window on every system, never the system's own, in the 12-point font and at least as
// high as that font and two of its x-heights.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QMenuBar>

class VTWIDGETSLITE_EXPORT VantraMenuBar : public QMenuBar
{
    Q_OBJECT

public:
    // The fonts must be loaded (VantraFont::loadApplicationFonts).
    explicit VantraMenuBar(QWidget *inParent = nullptr);
    ~VantraMenuBar() override;
};
