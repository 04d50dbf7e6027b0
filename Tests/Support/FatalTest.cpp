#include "Support/FatalTest.h"

#include <QtCore/QHash>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

#include <cstdlib>
#include <exception>

#if defined(Q_OS_UNIX)
#include <sys/resource.h>
#elif defined(Q_OS_WIN)
#include <qt_windows.h>
#endif

namespace {

const char *const kCaseVariable = "VTWIDGETS_FATAL_CASE";
constexpr int kCameBackCode = 42;
[[maybe_unused]] constexpr int kAbortedCode = 3; // as of abort() on Windows
constexpr int kTimeout = 60000; // ms; a child under sanitizers on a busy machine is slow to start

QHash<QByteArray, FatalTest::Case> &cases()
{
    static QHash<QByteArray, FatalTest::Case> sCases;
    return sCases;
}

QProcessEnvironment childEnvironment(const char *inName, const QString &inPlatform)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(kCaseVariable), QLatin1String(inName));
    if (!inPlatform.isEmpty()) {
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), inPlatform);
    }
    // The words are read from the standard error, so nothing may lead them elsewhere or dress them up.
    environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_MESSAGE_PATTERN"), QStringLiteral("%{message}"));
    // An abort is what is wanted; the sanitizers have nothing to add to it.
    const QString options = environment.value(QStringLiteral("ASAN_OPTIONS"));
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       options + QStringLiteral(":handle_abort=0:detect_leaks=0"));
    return environment;
}

} // namespace

FatalTest::Registration::Registration(const char *inName, Case inCase)
{
    cases().insert(inName, inCase);
}

FatalTest::Outcome FatalTest::run(const char *inName, const QString &inPlatform)
{
    QProcess child;
    child.setProcessEnvironment(childEnvironment(inName, inPlatform));
    child.start(QCoreApplication::applicationFilePath(), {});
    if (!child.waitForFinished(kTimeout)) {
        child.kill();
        child.waitForFinished();
        return {false, QStringLiteral("no child, or no end of it: ") + child.errorString()};
    }
    // Where there are no signals, abort() shows as an exit code.
    const bool cameBack = child.exitStatus() == QProcess::NormalExit && child.exitCode() == kCameBackCode;
    return {!cameBack, QString::fromLocal8Bit(child.readAllStandardError())};
}

QString FatalTest::assertionOf(const char *inName, const QString &inPlatform)
{
    static const QRegularExpression sPlain(QStringLiteral("ASSERT: \"(.*)\" in file [^\n]*"));
    static const QRegularExpression sPlaced(QStringLiteral("ASSERT failure in (.*): \"(.*)\", file [^\n]*"));
    const Outcome outcome = run(inName, inPlatform);
    if (!outcome.aborted) {
        return QStringLiteral("(came back) ") + outcome.output;
    }
    if (const auto plain = sPlain.match(outcome.output); plain.hasMatch()) {
        return plain.captured(1);
    }
    if (const auto placed = sPlaced.match(outcome.output); placed.hasMatch()) {
        return placed.captured(1) + QLatin1String(": ") + placed.captured(2);
    }
    return QStringLiteral("(stopped without an assertion) ") + outcome.output;
}

void FatalTest::prepareProcess()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#if defined(Q_OS_UNIX)
    if (qEnvironmentVariableIsSet(kCaseVariable)) {
        const rlimit none = {0, 0};
        setrlimit(RLIMIT_CORE, &none);
    }
#elif defined(Q_OS_WIN)
    // Here abort() and a crash may open a dialog and wait for the user.
    if (qEnvironmentVariableIsSet(kCaseVariable)) {
        std::set_terminate([] { std::_Exit(kAbortedCode); });
        SetUnhandledExceptionFilter([](EXCEPTION_POINTERS *) -> LONG { std::_Exit(kAbortedCode); });
    }
#endif
}

void FatalTest::runCaseOfChild()
{
    const QByteArray name = qgetenv(kCaseVariable);
    if (name.isEmpty()) {
        return;
    }
    const Case wanted = cases().value(name);
    if (wanted == nullptr) {
        qWarning("There is no fatal case named %s", name.constData());
    } else {
        wanted();
    }
    // Leaves at once: what the case left behind is nobody's business.
    std::_Exit(kCameBackCode);
}
