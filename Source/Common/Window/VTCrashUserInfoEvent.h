#pragma once

// Tells that the user's data for crash reports are known. Has a type number of its own, so receivers of
// VTUserEmailEvent don't hear of it.
//
//     VTCrashUserInfoEvent event(uuid, name, email);   // the name comes second
//     QCoreApplication::sendEvent(qApp, &event);

#include "VTWidgetsLiteExport.h"
#include "Window/VTUserEmailEvent.h"

class VTWIDGETSLITE_EXPORT VTCrashUserInfoEvent : public VTUserEmailEvent
{
public:
    // Given by Qt when the library is loaded; may be another number in the next run.
    static const int kEventType;

    VTCrashUserInfoEvent(const QString &inUserUUID, const QString &inUserName, const QString &inUserEmail);
    VTCrashUserInfoEvent(const VTCrashUserInfoEvent &inOther);
    VTCrashUserInfoEvent &operator=(const VTCrashUserInfoEvent &inOther);

    // Only the name leaves the other event; identity and e-mail address are copied.
    VTCrashUserInfoEvent(VTCrashUserInfoEvent &&ioOther);
    VTCrashUserInfoEvent &operator=(VTCrashUserInfoEvent &&ioOther);

    ~VTCrashUserInfoEvent() override;

    QString userName() const { return mUserName; }
    void setUserName(const QString &inUserName) { mUserName = inUserName; }

private:
    QString mUserName;
};
