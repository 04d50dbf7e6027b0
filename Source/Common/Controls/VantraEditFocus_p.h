#pragma once

// Which focus changes line and text edits ignore.

class QFocusEvent;
class QWidget;

namespace VantraEditFocus {

/// Returns true if the event takes the focus to a popup whose parent is the widget, such as the context menu
/// of a line edit. Call it while the event is handled.
bool leavesForPopupOf(const QWidget *inWidget, const QFocusEvent *inEvent);

} // namespace VantraEditFocus
