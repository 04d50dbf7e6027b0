#include "Controls/VantraEditLook_p.h"

#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace {

QColor textColor(bool inHighlighted, bool inDisabled)
{
    const auto group = inDisabled      ? VantraPalette::Disabled
                       : inHighlighted ? VantraPalette::Highlighted
                                       : VantraPalette::Normal;
    return VantraStyleTheme::instance().colorPalette().brush(group, VantraPalette::LineEditText).color();
}

} // namespace

void VantraEditLook::setTextColor(QWidget *ioWidget, bool inHighlighted, bool inDisabled)
{
    QPalette palette = ioWidget->palette();
    palette.setColor(QPalette::Text, textColor(inHighlighted, inDisabled));
    ioWidget->setPalette(palette);
}

void VantraEditLook::setTextColor(QStyleOptionFrame *ioOption)
{
    ioOption->palette.setColor(QPalette::Text, textColor(ioOption->state.testFlag(QStyle::State_MouseOver),
                                                         !ioOption->state.testFlag(QStyle::State_Enabled)));
}

void VantraEditLook::setUnderlined(QWidget *ioWidget, bool inUnderlined)
{
    QFont font = ioWidget->font();
    font.setUnderline(inUnderlined);
    ioWidget->setFont(font);
}
