#include "ThemePreview.h"

#include "Gallery/GalleryLook.h"
#include "Gallery/GalleryPages.h"
#include "Gallery/GalleryScreenshot.h"
#include "Gallery/GalleryTheme.h"
#include "Shared/ThemeFile.h"
#include "Vocabulary.h"

#include <QtCore/QJsonObject>

#include <algorithm>

namespace {
const QString kAccent = QStringLiteral("blue");

// What the gallery is to load as theme and as accent; an empty name is the library's own.
struct Files
{
    QString theme;
    QString accent;
};

Files filesFor(const QString &inTheme, const QString &inAccent)
{
    if (!inAccent.isEmpty())
        return {inTheme, inAccent};
    const QJsonObject root = ThemeFile::read(inTheme).text.root().toObject();
    const QJsonObject aliases = root.value(QLatin1String("color_aliases")).toObject();
    const QStringList accentAliases = Vocabulary::accentAliases();
    if (!root.contains(QLatin1String("color_palette")) && !aliases.isEmpty())
        return {QString(), inTheme};
    // A theme with an accent of its own keeps it.
    const bool hasAccent = std::any_of(accentAliases.begin(), accentAliases.end(),
                                       [&](const QString &inAlias) { return aliases.contains(inAlias); });
    return {inTheme, hasAccent ? inTheme : QString()};
}
} // namespace

QString ThemePreview::check(const QString &inTheme, const QString &inAccent, const QString &inPicture)
{
    if (!inPicture.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        return QStringLiteral("the picture \"%1\" must have a name that ends in .png").arg(inPicture);
    for (const QString &file : {inTheme, inAccent}) {
        const QString trouble = file.isEmpty() ? QString() : ThemeFile::read(file).trouble();
        if (!trouble.isEmpty())
            return trouble;
    }
    return GalleryScreenshot::check(inPicture);
}

QString ThemePreview::write(const QString &inTheme, const QString &inAccent, const QString &inPicture)
{
    GalleryLook look;
    const Files files = filesFor(inTheme, inAccent);
    look.setThemeFiles(files.theme, files.accent);
    const QString trouble = look.start(kAccent, 0, GalleryLook::Style::House);
    if (!trouble.isEmpty())
        return trouble;
    return GalleryScreenshot::writePage(GalleryPages::indexOf(QStringLiteral("standard-widgets")), inPicture);
}
