#pragma once

// The line edit of forms: a VantraLineEditBase in the house font.
//
//     auto *name = new VantraLineEdit(parent);
//     name->setPlaceholderText(tr("Name"));
//     connect(name, &QLineEdit::editingFinished, this, &Form::rename);
//
// The font is VantraFont::mainFont() as it is at construction, so fonts must be loaded before. GUI thread
// only.

#include "Controls/VantraLineEditBase.h"

class VTWIDGETSLITE_EXPORT VantraLineEdit : public VantraLineEditBase
{
    Q_OBJECT

public:
    explicit VantraLineEdit(QWidget *inParent = nullptr);
    ~VantraLineEdit() override;
};
