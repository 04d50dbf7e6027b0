#pragma once

// Runs one function on a thread of its own under the progress dialog, and waits for it with a live window.
//
//     VTThreadedProgressCmd command;
//     command.setAllowCancel(true);
//     const int result = command.execute(tr("Export"), false, exportAll, window);
//
// For the caller it is a plain call. The function reports to the progress object that it is given, touches no
// widget, and returns when a progress call answers anything but 0. VantraProgressMgr tells all about the
// dialog.
//
// One object is for one run at a time. Within an operation of the GUI thread a command shares its dialog but
// has no event loop of its own: nothing is painted until the function returns, and the outer operation's
// progress ends with the command, one level early.
//
// When the dialog ends before the function does, as for an application that quits, execute still waits for
// the function, and the late end of its thread doesn't end the next operation. A function that leaves its
// thread instead of returning counts as one that returned 0. One that throws ends the process, as for every
// thread of Qt.

#include "VTProgress.h"
#include "VTWidgetsLiteExport.h"

#include <QtCore/QThread>

#include <atomic>
#include <functional>
#include <memory>

class QString;
class QWidget;

class VTWIDGETSLITE_EXPORT VTThreadedProgressCmd : public QThread
{
    Q_OBJECT

public:
    VTThreadedProgressCmd();
    ~VTThreadedProgressCmd() override;

    // Whether the dialog's Cancel button is enabled; false by default. The manager's cancel keys work all the
    // same. To be called before execute.
    void setAllowCancel(bool inAllowCancel) { mAllowCancel = inAllowCancel; }

    // Returns what the function returned, 0 for an empty one. inIndeterminate shows a busy bar under the
    // title. The dialog's parent may not be null. GUI thread only.
    int execute(const QString &inTitle, bool inIndeterminate,
                const std::function<int(__VTProgress *)> &inFunction, QWidget *inParent);

private:
    void run() override;

    // Written last by the thread, so that who reads it after the thread's end sees all that it did.
    std::atomic<int> mResult{0};
    std::function<int(__VTProgress *)> mFunction;
    // Kept until the thread has ended, even if the manager or its operation ends before.
    std::shared_ptr<__VTProgress> mProgress;
    int mToken = 0;
    bool mAllowCancel = false;
};
