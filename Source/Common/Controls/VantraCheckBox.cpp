#include "Controls/VantraCheckBox.h"

#include "Theme/VantraFont.h"

VantraCheckBox::VantraCheckBox(QWidget *inParent) : VantraCheckBoxBase(inParent)
{
    setFont(VantraFont::mainFont());
}

VantraCheckBox::~VantraCheckBox() = default;
