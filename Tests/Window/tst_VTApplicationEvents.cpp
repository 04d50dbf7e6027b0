#include "Window/VTAppDidFinishLaunchingEvent.h"
#include "Window/VTCrashUserInfoEvent.h"
#include "Window/VTQuitEvent.h"

#include <QtCore/QSet>
#include <QtTest/QtTest>

class tst_VTApplicationEvents : public QObject
{
    Q_OBJECT

private slots:
    void eachHasANumberOfItsOwn()
    {
        const VTCrashUserInfoEvent crash(QStringLiteral("u"), QStringLiteral("n"), QStringLiteral("e"));
        const QSet<int> numbers = {VTQuitEvent().type(), VTAppDidFinishLaunchingEvent(nullptr).type(),
                                   VTUserEmailEvent({}, {}).type(), VTUserEmailEvent(crash).type()};
        QCOMPARE(numbers, QSet<int>({VTQuitEvent::kEventType, VTAppDidFinishLaunchingEvent::kEventType,
                                     VTUserEmailEvent::kEventType, VTCrashUserInfoEvent::kEventType}));
        QCOMPARE(numbers.count(), 4);
        QVERIFY(*std::min_element(numbers.begin(), numbers.end()) >= QEvent::User);
    }

    void movingCrashInfoLeavesTheBasesValues()
    {
        VTCrashUserInfoEvent event(QStringLiteral("u"), QStringLiteral("n"), QStringLiteral("e"));
        const VTCrashUserInfoEvent moved(std::move(event));
        QCOMPARE(moved.userUUID() + moved.userName() + moved.userEmail(), QStringLiteral("une"));
        QCOMPARE(event.userUUID() + event.userEmail(), QStringLiteral("ue"));
    }
};

QTEST_APPLESS_MAIN(tst_VTApplicationEvents)
#include "tst_VTApplicationEvents.moc"
