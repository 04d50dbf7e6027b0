#include "Shared/ThemeFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace {
// No theme comes near; a device that never ends does.
constexpr qint64 kLargest = 16 * 1024 * 1024;
} // namespace

ThemeFile ThemeFile::read(const QString &inPath)
{
    ThemeFile result;
    result.path = inPath;
    QFile file(inPath);
    if (QFileInfo(inPath).isDir()) {
        result.refusal = QStringLiteral("can't read \"%1\": it is a folder").arg(inPath);
        return result;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        result.refusal = QStringLiteral("can't read \"%1\": %2").arg(inPath, file.errorString());
        return result;
    }
    const QByteArray bytes = file.read(kLargest + 1);
    if (file.error() != QFileDevice::NoError)
        result.refusal = QStringLiteral("can't read \"%1\": %2").arg(inPath, file.errorString());
    else if (bytes.size() > kLargest)
        result.refusal = QStringLiteral("\"%1\" is larger than any theme").arg(inPath);
    else
        result.text = JsonText(bytes);
    return result;
}

QString ThemeFile::stockPath(const QString &inName)
{
    return QStringLiteral(":/VTWidgets/Themes/%1.json").arg(inName);
}

QString ThemeFile::prefix(TextPosition inPosition) const
{
    return path + QStringLiteral(":%1:%2: ").arg(inPosition.line).arg(inPosition.column);
}

QString ThemeFile::trouble() const
{
    if (!refusal.isEmpty())
        return refusal;
    if (!text.isValid())
        return prefix(text.errorPosition()) + text.error();
    if (!text.root().isObject())
        return prefix(text.positionOf(QString())) + QStringLiteral("a theme is an object in braces");
    return QString();
}
