// For people who write themes: checks theme documents, prints their words, and shows what they look like.
//
// Exit codes: 0 when all is well, 1 when a check found something, 2 when nothing could be done.

#include "ThemeCheck.h"
#include "ThemePreview.h"
#include "Vocabulary.h"

#include <QtCore/QStringList>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {
constexpr int kFound = 1;
constexpr int kRefused = 2;

constexpr char kUsage[] = R"(vtwidgets-theme check FILE [ACCENT-FILE]
    Says what is wrong with a theme document, or with a theme and an accent together, as
    FILE:LINE:COLUMN: message. Gaps and weak contrasts that are meant are listed as notes.
vtwidgets-theme list
    Prints the words that theme documents may use.
vtwidgets-theme preview FILE [ACCENT-FILE] OUT.png
    Writes a picture of the standard widgets in the theme. Needs no display.

Exit codes: 0 all is well, 1 something was found, 2 the command or a file can't be used.
)";

int refuse(const QString &inReason)
{
    std::fprintf(stderr, "vtwidgets-theme: %s\n", qPrintable(inReason));
    return kRefused;
}

int print(const QString &inText)
{
    std::fputs(qPrintable(inText), stdout);
    return 0;
}

int check(const QStringList &inPaths)
{
    QList<ThemeFile> files;
    for (const QString &path : inPaths) {
        files << ThemeFile::read(path);
        if (!files.constLast().refusal.isEmpty())
            return refuse(files.constLast().refusal);
    }
    int exitCode = 0;
    const QList<Finding> findings = checkThemes(files);
    for (const Finding &finding : findings) {
        const bool isFault = finding.kind == Finding::Kind::Fault;
        print(files.at(finding.file).prefix(finding.position) +
              (isFault ? QString() : QStringLiteral("note: ")) + finding.message + QLatin1Char('\n'));
        if (isFault)
            exitCode = kFound;
    }
    return exitCode;
}

int preview(int inCount, char **inValues, const QStringList &inPaths)
{
    const QString accent = inPaths.size() == 3 ? inPaths.at(1) : QString();
    QString refusal = ThemePreview::check(inPaths.constFirst(), accent, inPaths.constLast());
    if (refusal.isEmpty()) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        const QApplication application(inCount, inValues);
        refusal = ThemePreview::write(inPaths.constFirst(), accent, inPaths.constLast());
    }
    return refusal.isEmpty() ? 0 : refuse(refusal);
}

// The command line in the encoding that it came in, without the program.
QStringList argumentsOf(int inCount, char **inValues)
{
    const QCoreApplication application(inCount, inValues);
    return QCoreApplication::arguments().mid(1);
}

int run(int argc, char **argv)
{
    QStringList arguments = argumentsOf(argc, argv);
    for (const QString &argument : std::as_const(arguments)) {
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h"))
            return print(QLatin1String(kUsage));
        if (argument == QLatin1String("--version"))
            return print(QStringLiteral("vtwidgets-theme " VTWIDGETS_VERSION "\n"));
        if (argument.startsWith(QLatin1Char('-')))
            return refuse(QStringLiteral("unknown option \"%1\"; --help tells what there is").arg(argument));
        if (argument.isEmpty())
            return refuse(QStringLiteral("an empty name is no file"));
    }
    if (arguments.isEmpty())
        return refuse(QStringLiteral("say what to do: check, list or preview; --help tells more"));

    const QString command = arguments.takeFirst();
    const qsizetype count = arguments.size();
    if (command == QLatin1String("check"))
        return count == 1 || count == 2
                   ? check(arguments)
                   : refuse(QStringLiteral("check takes a theme file and, if wanted, an accent file"));
    if (command == QLatin1String("list"))
        return count == 0 ? print(Vocabulary::list())
                          : refuse(QStringLiteral("list takes no \"%1\"").arg(arguments.constFirst()));
    if (command == QLatin1String("preview"))
        return count == 2 || count == 3
                   ? preview(argc, argv, arguments)
                   : refuse(QStringLiteral("preview takes a theme file, if wanted an accent file, and the "
                                           "name of a picture"));
    return refuse(
        QStringLiteral("no command is called \"%1\"; there are check, list and preview").arg(command));
}
} // namespace

int main(int argc, char **argv)
{
    const int exitCode = run(argc, argv);
    return std::fflush(stdout) == 0 ? exitCode : refuse(QStringLiteral("the output can't be written"));
}
