#include "Controls/VantraComboBox.h"

VantraComboBox::VantraComboBox(QWidget *inParent) : VantraComboBoxBase(inParent)
{
}

VantraComboBox::~VantraComboBox() = default;
