#pragma once

// Names of dynamic properties that several libraries of the product read and write.

// On a tool button whose shortcut only reports: the QKeySequence that is held back from the button itself.
inline constexpr const char *kToolButtonKeySequenceProperty = "vtToolButtonKeySequence";
