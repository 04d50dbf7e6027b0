#pragma once

// A label in the large font, for the name of a group of controls.
//
//     auto *title = new VantraGroupLabel(parent);
//     title->setText(tr("Adjustments"));

#include "Controls/VantraLabel.h"

class VTWIDGETSLITE_EXPORT VantraGroupLabel : public VantraLabel
{
    Q_OBJECT

public:
    explicit VantraGroupLabel(QWidget *inParent = nullptr);
    ~VantraGroupLabel() override;
};
