#pragma once

// Conditions that stop the process are met in a child: the test program starts itself again for one named
// case and compares the words of the assertion that ended it.
//
//     FATAL_CASE(fontBeforeLoading)
//     {
//         VantraFont::mainFont();
//     }
//
//     void tst_VantraFont::needsLoadedFonts()
//     {
//         QCOMPARE(FatalTest::assertionOf("fontBeforeLoading"), QString("kFontsInitialized && ..."));
//     }
//
//     FATAL_TEST_MAIN(tst_VantraFont)   // in place of QTEST_MAIN
//
// A case runs with a QApplication of its own and nothing else set up.

#include <QtCore/QString>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace FatalTest {

using Case = void (*)();

// Enters a case under its name; FATAL_CASE does this before main runs.
struct Registration
{
    Registration(const char *inName, Case inCase);
};

struct Outcome
{
    bool aborted = false; // false when the case came back, or the child couldn't be started or was too slow
    QString output;       // all that the child wrote to its standard error
};

// Runs a case in a child process, on this program's platform plug-in or on another.
Outcome run(const char *inName, const QString &inPlatform = QString());

// Runs a case and gives the text of the assertion that stopped it: the condition of a Q_ASSERT, "where: what"
// of a Q_ASSERT_X. Anything else is told in words within parentheses, so that a comparison shows it.
QString assertionOf(const char *inName, const QString &inPlatform = QString());

// Before QApplication: takes a platform without a screen unless one is chosen, and, in a child, keeps core
// dumps away.
void prepareProcess();

// In a child, runs its case and ends the process; otherwise returns.
void runCaseOfChild();

template <typename Test>
int main(int inCount, char **inArguments)
{
    prepareProcess();
    QApplication application(inCount, inArguments);
    runCaseOfChild();
    Test test;
    return QTest::qExec(&test, inCount, inArguments);
}

} // namespace FatalTest

#define FATAL_CASE(name)                                                                                     \
    static void name();                                                                                      \
    static const FatalTest::Registration sRegister_##name(#name, name);                                      \
    static void name()

#define FATAL_TEST_MAIN(TestClass)                                                                           \
    int main(int inCount, char **inArguments)                                                                \
    {                                                                                                        \
        QTEST_SET_MAIN_SOURCE_PATH                                                                           \
        return FatalTest::main<TestClass>(inCount, inArguments);                                             \
    }
