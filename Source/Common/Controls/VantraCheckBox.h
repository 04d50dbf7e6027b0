#pragma once

// A check box in the house font.
//
//     auto *checkBox = new VantraCheckBox(parent);
//     checkBox->setText(tr("Show grid"));
//     connect(checkBox, &QCheckBox::toggled, grid, &QWidget::setVisible);
//
// GUI thread only.

#include "Controls/VantraCheckBoxBase.h"

class VTWIDGETSLITE_EXPORT VantraCheckBox : public VantraCheckBoxBase
{
    Q_OBJECT

public:
    // The fonts must be loaded (VantraFont::loadApplicationFonts).
    explicit VantraCheckBox(QWidget *inParent = nullptr);
    ~VantraCheckBox() override;
};
