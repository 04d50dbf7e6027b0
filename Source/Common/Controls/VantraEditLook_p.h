#pragma once

// What line and text edits share: the theme's text colour for their state, and the underline of the focus.

class QStyleOptionFrame;
class QWidget;

namespace VantraEditLook {

// Gives the widget's palette the colour in which its text is drawn. Disabled wins over highlighted.
void setTextColor(QWidget *ioWidget, bool inHighlighted, bool inDisabled);

// The same for the palette of an option, by the option's own state.
void setTextColor(QStyleOptionFrame *ioOption);

void setUnderlined(QWidget *ioWidget, bool inUnderlined);

} // namespace VantraEditLook
