#include "Window/VTAppDidFinishLaunchingEvent.h"
#include "Window/VTCrashUserInfoEvent.h"
#include "Window/VTQuitEvent.h"

#include <QtCore/QSet>
#include <QtTest/QtTest>

class tst_VTApplicationEvents : public QObject
{
    Q_OBJECT

private slots:
    void eachHasANumberOfItsOwn();
    void crashInfoKeepsItsNumberAndItsValues();
};

void tst_VTApplicationEvents::eachHasANumberOfItsOwn()
{
    const QSet<int> numbers = {VTQuitEvent::kEventType, VTAppDidFinishLaunchingEvent::kEventType,
                               VTUserEmailEvent::kEventType, VTCrashUserInfoEvent::kEventType};
    QCOMPARE(numbers.count(), 4);
    for (const int number : numbers) {
        QVERIFY(number >= QEvent::User && number <= QEvent::MaxUser);
    }
    QCOMPARE(static_cast<int>(VTQuitEvent().type()), VTQuitEvent::kEventType);
    const VTAppDidFinishLaunchingEvent launched(nullptr);
    QCOMPARE(static_cast<int>(launched.type()), VTAppDidFinishLaunchingEvent::kEventType);
    QVERIFY(launched.mainWindow() == nullptr);
}

void tst_VTApplicationEvents::crashInfoKeepsItsNumberAndItsValues()
{
    VTCrashUserInfoEvent event(QStringLiteral("u"), QStringLiteral("n"), QStringLiteral("e"));
    const VTUserEmailEvent copyOfBase(event);
    const VTCrashUserInfoEvent moved(std::move(event));
    QCOMPARE(static_cast<int>(copyOfBase.type()), VTCrashUserInfoEvent::kEventType);
    QCOMPARE(static_cast<int>(moved.type()), VTCrashUserInfoEvent::kEventType);
    QCOMPARE(moved.userUUID() + moved.userName() + moved.userEmail(), QStringLiteral("une"));
    // The base's values stay behind in a moved event.
    QCOMPARE(event.userUUID() + event.userEmail(), QStringLiteral("ue"));
}

QTEST_APPLESS_MAIN(tst_VTApplicationEvents)
#include "tst_VTApplicationEvents.moc"
