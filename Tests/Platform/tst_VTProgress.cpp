#include "VTProgress.h"
#include "VTQtPath.h"
#include "VTQtStringUtils.h"

#include <QtTest/QtTest>

#include <memory>
#include <thread>
#include <vector>

namespace {

using Progress = std::unique_ptr<__VTProgress, decltype(&VTProgressRelease)>;

Progress makeProgress()
{
    return Progress(VTProgressCreate(), &VTProgressRelease);
}

// Sets a text whose handle is given back at once.
template <typename Setter>
void setText(Setter inSetter, __VTProgress *ioProgress, const QString &inText)
{
    const CFStringRef text = VTQtStringUtils::createCFStringRefFromQString(inText);
    inSetter(ioProgress, text);
    CFRelease(text);
}

QString textOf(CFStringRef inText)
{
    return VTQtStringUtils::createQStringFromCFStringRef(inText);
}

struct Calls
{
    int result = 0;
    std::vector<VTProgressCmdType> commands;
};

int record(__VTProgress *ioProgress, VTProgressCmdType inCmd)
{
    auto *calls = static_cast<Calls *>(VTProgressGetContext(ioProgress));
    calls->commands.push_back(inCmd);
    return calls->result;
}

} // namespace

class tst_VTProgress : public QObject
{
    Q_OBJECT

private slots:
    void newObjectIsEmpty();
    void callsRecordAndTell();
    void cancelIsSeenByEveryCall();
    void borrowedTextOutlivesItsSuccessor();
    void nullObjectDoesNothing();
    void referencesKeepTheObject();
    void manyThreadsReportAtOnce();
    void textsGoThereAndBack_data();
    void textsGoThereAndBack();
    void pathsJoinAndSplit();
};

void tst_VTProgress::newObjectIsEmpty()
{
    const Progress progress = makeProgress();
    QVERIFY(VTProgressGetTitle(progress.get()) == nullptr);
    QVERIFY(VTProgressGetStageName(progress.get()) == nullptr);
    QCOMPARE(VTProgressGetStages(progress.get()), 0);
    QVERIFY(!VTProgressGetCancel(progress.get()));
    QCOMPARE(VTProgressDoProgressUpdateStage(progress.get(), 1), 0);
}

void tst_VTProgress::callsRecordAndTell()
{
    const Progress progress = makeProgress();
    Calls calls;
    VTProgressSetCB(progress.get(), &record, &calls);
    VTProgressSetStages(progress.get(), 3);
    QCOMPARE(VTProgressDoProgressBeginStage(progress.get(), 2, CFSTR("Copy"), 40), 0);
    calls.result = 7;
    QCOMPARE(VTProgressDoProgressUpdateStage(progress.get(), 12), 7);
    QCOMPARE(VTProgressDoProgressEndStage(progress.get()), 7);
    const std::vector<VTProgressCmdType> commands = {VTProgressCmdBeginStage, VTProgressCmdUpdateStage,
                                                     VTProgressCmdEndStage};
    QVERIFY(calls.commands == commands);
    QCOMPARE(VTProgressGetStages(progress.get()), 3);
    QCOMPARE(VTProgressGetStage(progress.get()), 2);
    QCOMPARE(VTProgressGetStageCount(progress.get()), 40);
    QCOMPARE(VTProgressGetStageValue(progress.get()), 12);
    QCOMPARE(textOf(VTProgressGetStageName(progress.get())), QStringLiteral("Copy"));
    VTProgressDoProgressBeginStage(progress.get(), 3, nullptr, 5);
    QCOMPARE(VTProgressGetStageValue(progress.get()), 0);
    QVERIFY(VTProgressGetStageName(progress.get()) == nullptr);
}

void tst_VTProgress::cancelIsSeenByEveryCall()
{
    const Progress progress = makeProgress();
    Calls calls;
    VTProgressSetCB(progress.get(), &record, &calls);
    VTProgressSetCancel(progress.get(), true);
    QCOMPARE(VTProgressDoProgressBeginStage(progress.get(), 1, nullptr, 1), 1007);
    QCOMPARE(VTProgressDoProgressUpdateStage(progress.get(), 0), 1007);
    QCOMPARE(VTProgressDoProgressEndStage(progress.get()), 1007);
    calls.result = 5;
    QCOMPARE(VTProgressDoProgressEndStage(progress.get()), 5);
    calls.result = 0;
    VTProgressSetCancel(progress.get(), false);
    QCOMPARE(VTProgressDoProgressEndStage(progress.get()), 0);
}

void tst_VTProgress::borrowedTextOutlivesItsSuccessor()
{
    Progress progress = makeProgress();
    setText(&VTProgressSetTitle, progress.get(), QStringLiteral("first"));
    const CFStringRef borrowed = VTProgressGetTitle(progress.get());
    setText(&VTProgressSetTitle, progress.get(), QStringLiteral("second"));
    setText(&VTProgressSetStageName, progress.get(), QStringLiteral("stage"));
    QCOMPARE(textOf(VTProgressGetStageName(progress.get())), QStringLiteral("stage"));
    progress.reset();
    QCOMPARE(textOf(borrowed), QStringLiteral("first"));
}

void tst_VTProgress::nullObjectDoesNothing()
{
    VTProgressSetCancel(nullptr, true);
    VTProgressSetTitle(nullptr, CFSTR("x"));
    VTProgressSetCB(nullptr, &record, nullptr);
    QCOMPARE(VTProgressDoProgressBeginStage(nullptr, 1, CFSTR("x"), 1), 0);
    QCOMPARE(VTProgressDoProgressUpdateStage(nullptr, 1), 0);
    QCOMPARE(VTProgressDoProgressEndStage(nullptr), 0);
    QVERIFY(VTProgressGetStageName(nullptr) == nullptr);
    VTProgressRelease(VTProgressRetain(nullptr));
}

void tst_VTProgress::referencesKeepTheObject()
{
    __VTProgress *progress = VTProgressCreate();
    QCOMPARE(VTProgressRetain(progress), progress);
    VTProgressRelease(progress);
    VTProgressSetStages(progress, 4);
    QCOMPARE(VTProgressGetStages(progress), 4);
    VTProgressRelease(progress);
}

void tst_VTProgress::manyThreadsReportAtOnce()
{
    const Progress progress = makeProgress();
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&progress, thread] {
            int seen = 0;
            for (int i = 0; VTProgressDoProgressUpdateStage(progress.get(), i) == 0; ++i) {
                setText(&VTProgressSetStageName, progress.get(), QString::number(thread));
                const CFStringRef name = VTProgressGetStageName(progress.get());
                seen += name != nullptr && textOf(name).size() == 1 ? 0 : 1;
            }
            QCOMPARE(seen, 0);
        });
    }
    QTest::qWait(200);
    VTProgressSetCancel(progress.get(), true);
    for (std::thread &thread : threads) {
        thread.join();
    }
}

void tst_VTProgress::textsGoThereAndBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("plain") << QStringLiteral("Export");
    QTest::newRow("beyond Latin") << QStringLiteral("Größe \u65e5\u672c \U0001F4F7");
}

void tst_VTProgress::textsGoThereAndBack()
{
    QFETCH(const QString, text);
    const CFStringRef handle = VTQtStringUtils::createCFStringRefFromQString(text);
    QVERIFY(handle != nullptr);
    QCOMPARE(textOf(handle), text.isNull() ? QStringLiteral("") : text);
    CFRelease(handle);
    QVERIFY(textOf(nullptr).isNull());
}

void tst_VTProgress::pathsJoinAndSplit()
{
    const VTQtPath folder(QStringLiteral("/logs/./today/"));
    const VTQtPath file = folder / QStringLiteral("progress.log");
    QCOMPARE(file.toString(), QStringLiteral("/logs/today/progress.log"));
    QCOMPARE(file.fileName(), QStringLiteral("progress.log"));
    QVERIFY(file.parent() == folder);
    QVERIFY(VTQtPath() / QStringLiteral("a") == VTQtPath(QStringLiteral("a")));
    QVERIFY(folder / QStringLiteral("/b") == VTQtPath(QStringLiteral("/b")));
    QVERIFY(VTQtPath().isEmpty() && VTQtPath().parent().isEmpty());
}

QTEST_MAIN(tst_VTProgress)
#include "tst_VTProgress.moc"
