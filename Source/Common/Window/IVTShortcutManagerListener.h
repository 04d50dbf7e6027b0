#pragma once

// Hears from the application's shortcut manager that the user has given a command another key.

#include "VTWidgetsLiteExport.h"

class QKeySequence;

class VTWIDGETSLITE_EXPORT IVTShortcutManagerListener
{
public:
    virtual ~IVTShortcutManagerListener();

    // Called on the GUI thread once actions and shortcuts have the new sequence.
    virtual void keySequenceChanged(const QKeySequence &inOld, const QKeySequence &inNew) = 0;
};
