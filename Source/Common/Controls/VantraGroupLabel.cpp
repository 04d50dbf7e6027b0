#include "Controls/VantraGroupLabel.h"

#include "Theme/VantraFont.h"

VantraGroupLabel::VantraGroupLabel(QWidget *inParent) : VantraLabel(inParent)
{
    setFont(VantraFont::largeFont());
}

VantraGroupLabel::~VantraGroupLabel() = default;
