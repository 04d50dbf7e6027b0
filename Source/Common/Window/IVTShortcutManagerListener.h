#pragma once

// Hears from the application's shortcut manager that the user has given a command another key.

#include "VTWidgetsLiteExport.h"

class QKeySequence;

class VTWIDGETSLITE_EXPORT IVTShortcutManagerListener
{
public:
    // Called on the GUI thread once actions and shortcuts have the new sequence.
    virtual void keySequenceChanged(const QKeySequence &inOld, const QKeySequence &inNew) = 0;

protected:
    // Nobody ends a listener by way of this interface.
    ~IVTShortcutManagerListener() = default;
};
