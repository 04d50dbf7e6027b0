#pragma once

// Asks the application to quit. Who wants that posts one to the application object, which decides.
//
//     QCoreApplication::postEvent(qApp, new VTQuitEvent);
//     ...
//     if (event->type() == VTQuitEvent::kEventType) { ... }
//
// Any thread may make and post one.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QEvent>

class VTWIDGETSLITE_EXPORT VTQuitEvent : public QEvent
{
public:
    // Given by Qt when the library is loaded; may be another number in the next run.
    static const int kEventType;

    VTQuitEvent();
    VTQuitEvent(const VTQuitEvent &inOther);
    VTQuitEvent &operator=(const VTQuitEvent &inOther);
    ~VTQuitEvent() override;
};
