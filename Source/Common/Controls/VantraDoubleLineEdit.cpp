#include "Controls/VantraDoubleLineEdit.h"

#include "Theme/VantraFont.h"

VantraDoubleLineEdit::VantraDoubleLineEdit(QWidget *inParent) : VantraDoubleLineEditBase(inParent)
{
    setFont(VantraFont::mainFont());
}

VantraDoubleLineEdit::~VantraDoubleLineEdit() = default;
