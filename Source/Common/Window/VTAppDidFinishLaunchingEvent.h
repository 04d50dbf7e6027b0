#pragma once

// Tells that the application has finished launching, and which main window it has.
//
//     QCoreApplication::postEvent(qApp, new VTAppDidFinishLaunchingEvent(window));
//     ...
//     if (event->type() == VTAppDidFinishLaunchingEvent::kEventType) {
//         start(static_cast<VTAppDidFinishLaunchingEvent *>(event)->mainWindow());
//     }
//
// The window isn't owned and must outlive the event's delivery, or be null.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QEvent>

class QMainWindow;

class VTWIDGETSLITE_EXPORT VTAppDidFinishLaunchingEvent : public QEvent
{
public:
    // Given by Qt when the library is loaded; may be another number in the next run.
    static const int kEventType;

    explicit VTAppDidFinishLaunchingEvent(QMainWindow *inMainWindow);
    VTAppDidFinishLaunchingEvent(const VTAppDidFinishLaunchingEvent &inOther);
    VTAppDidFinishLaunchingEvent &operator=(const VTAppDidFinishLaunchingEvent &inOther);
    ~VTAppDidFinishLaunchingEvent() override;

    QMainWindow *mainWindow() const { return mMainWindow; }

private:
    QMainWindow *mMainWindow;
};
