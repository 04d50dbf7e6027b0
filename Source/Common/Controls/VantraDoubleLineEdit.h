#pragma once

// The numeric field of forms: a VantraDoubleLineEditBase in the house font.
//
//     auto *zoom = new VantraDoubleLineEdit(parent);
//     zoom->setMaximum(400.0);
//     connect(zoom, &VantraDoubleLineEdit::valueChanged, this, &Form::setZoom);
//
// The font is VantraFont::mainFont() as it is at construction, so fonts must be loaded before. GUI thread
// only.

#include "Controls/VantraDoubleLineEditBase.h"

class VTWIDGETSLITE_EXPORT VantraDoubleLineEdit : public VantraDoubleLineEditBase
{
    Q_OBJECT

public:
    explicit VantraDoubleLineEdit(QWidget *inParent = nullptr);
    ~VantraDoubleLineEdit() override;
};
