#pragma once

// What a program of the house does before its first widget, for programs that know nothing of this library
// and meet it as a plugin.

namespace VantraPluginStart {

// Loads the fonts, and the base theme with the accent "blue", each unless the program has done so itself. May
// be called as often as wanted, on the GUI thread.
void ensureFontsAndTheme();

} // namespace VantraPluginStart
