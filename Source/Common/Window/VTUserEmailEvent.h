#pragma once

// Tells that the user's identity and e-mail address are known.
//
//     VTUserEmailEvent event(uuid, email);
//     QCoreApplication::sendEvent(qApp, &event);
//
// A receiver may rewrite the values before it passes the event on. A subclass brings a type number of its
// own.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QEvent>
#include <QtCore/QString>

class VTWIDGETSLITE_EXPORT VTUserEmailEvent : public QEvent
{
public:
    // Given by Qt when the library is loaded; may be another number in the next run.
    static const int kEventType;

    VTUserEmailEvent(const QString &inUserUUID, const QString &inUserEmail);
    VTUserEmailEvent(const VTUserEmailEvent &inOther);
    VTUserEmailEvent &operator=(const VTUserEmailEvent &inOther);
    ~VTUserEmailEvent() override;

    QString userUUID() const { return mUserUUID; }
    void setUserUUID(const QString &inUserUUID) { mUserUUID = inUserUUID; }

    QString userEmail() const { return mUserEmail; }
    void setUserEmail(const QString &inUserEmail) { mUserEmail = inUserEmail; }

protected:
    VTUserEmailEvent(QEvent::Type inType, const QString &inUserUUID, const QString &inUserEmail);

private:
    QString mUserUUID;
    QString mUserEmail;
};
