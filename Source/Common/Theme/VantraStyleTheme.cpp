#include "Theme/VantraStyleTheme.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>
#include <QtGui/QFontMetrics>

namespace {

const QLatin1String kPaletteKey("color_palette");
const QLatin1String kAliasesKey("color_aliases");

QString stockPath(const QString &inName)
{
    return QStringLiteral(":/VTWidgets/Themes/%1.json").arg(inName);
}

} // namespace

VantraStyleTheme VantraStyleTheme::sInstance;

VantraStyleTheme::VantraStyleTheme() = default;
VantraStyleTheme::~VantraStyleTheme() = default;

const VantraStyleTheme &VantraStyleTheme::instance()
{
    return sInstance;
}

bool VantraStyleTheme::loadGlobalConfig(const QString &inBaseName, const QString &inAccentName)
{
    return sInstance.loadConfig(stockPath(inBaseName), stockPath(inAccentName));
}

bool VantraStyleTheme::loadConfig(const QString &inBasePath, const QString &inAccentPath)
{
    QFile baseFile(inBasePath);
    if (!baseFile.open(QIODevice::ReadOnly)) {
        return false;
    }
    QFile accentFile(inAccentPath);
    if (!accentFile.open(QIODevice::ReadOnly)) {
        return false;
    }
    QJsonObject first = QJsonDocument::fromJson(baseFile.readAll()).object();
    QJsonObject second = QJsonDocument::fromJson(accentFile.readAll()).object();
    mergeConfigImpl(first, second);
    return mColorPalette.loadConfig(first) && mFontPalette.loadConfig(first);
}

bool VantraStyleTheme::mergeConfigImpl(QJsonObject &ioFirst, QJsonObject &inSecond) const
{
    QJsonArray palette = ioFirst.value(kPaletteKey).toArray();
    QJsonObject aliases = ioFirst.value(kAliasesKey).toObject();
    const QJsonArray secondPalette = inSecond.value(kPaletteKey).toArray();
    const QJsonObject secondAliases = inSecond.value(kAliasesKey).toObject();
    for (const QJsonValue entry : secondPalette) {
        palette.append(entry);
    }
    for (auto alias = secondAliases.begin(); alias != secondAliases.end(); ++alias) {
        aliases.insert(alias.key(), alias.value());
    }
    ioFirst.insert(kPaletteKey, palette);
    ioFirst.insert(kAliasesKey, aliases);
    return true;
}

void VantraStyleTheme::saveConfigImpl(const QString &inPath) const
{
    QFile file(inPath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return;
    }
    QJsonObject object;
    mColorPalette.saveConfig(object);
    file.write(QJsonDocument(object).toJson(QJsonDocument::Indented));
}

QString VantraStyleTheme::insertNewlines(const QFontMetrics &inMetrics, int inMaxWidth, const QString &inText)
{
    QString rest = inText;
    QStringList lines;
    qsizetype lastBreak = 0;
    for (qsizetype i = 0; i < rest.size(); ++i) {
        if (!rest.at(i).isSpace()) {
            continue;
        }
        if (inMetrics.horizontalAdvance(rest.left(i)) <= inMaxWidth) {
            lastBreak = i;
        } else {
            lines.append(rest.mid(0, lastBreak));
            rest = rest.mid(lastBreak + 1);
            lastBreak = 0;
        }
    }
    lines.append(rest);
    return lines.join(QLatin1Char('\n'));
}
