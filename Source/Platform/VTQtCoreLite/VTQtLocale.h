#pragma once

// The locale in which the application's numbers are shown and read.
//
//     const QString text = VTQtLocale().toString(12.5, 'f', 2);
//     const double number = VTQtLocale().toDouble(text);
//
// It is QLocale's default locale unless the application has chosen another one for its numbers. The choice is
// one for the whole program: make it on the GUI thread, before numeric fields and other threads exist.

#include "VTQtCoreLiteExport.h"

#include <QtCore/QLocale>

class VTQTCORELITE_EXPORT VTQtLocale : public QLocale
{
public:
    // The locale that holds now; a later choice doesn't change the object.
    VTQtLocale();

    // Chooses the locale of all objects made from now on, with its number options.
    static void setApplicationLocale(const QLocale &inLocale);

    // Takes the choice back, so that the default locale serves again.
    static void unsetApplicationLocale();
};
