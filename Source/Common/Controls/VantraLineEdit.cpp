#include "Controls/VantraLineEdit.h"

#include "Theme/VantraFont.h"

VantraLineEdit::VantraLineEdit(QWidget *inParent) : VantraLineEditBase(inParent)
{
    setFont(VantraFont::mainFont());
}

VantraLineEdit::~VantraLineEdit() = default;
