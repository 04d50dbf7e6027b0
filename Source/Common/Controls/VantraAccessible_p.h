#pragma once

// What Qt's own accessibility of the base classes doesn't tell of the library's controls.
//
//     VantraAccessible::install();   // in the constructor of each control that has an interface here
//
// A control that needs an interface of its own gets a class and a line of the factory's table in the source.
// GUI thread only.

class QString;
class QWidget;

namespace VantraAccessible {

// Makes Qt ask the library for the interfaces of its controls, from the first call until the library's end.
void install();

// Changes the part of a widget's accessible description that a control keeps in step with its own state; an
// empty text is no part. What the application said stands before it, and stays.
void replaceDescription(QWidget *ioWidget, const QString &inOldPart, const QString &inNewPart);

} // namespace VantraAccessible
