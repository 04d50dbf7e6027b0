#include "GalleryTheme.h"

#include "Shared/ThemeFile.h"
#include "Shared/VantraThemeTrial.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonObject>

namespace {
// Editors write a file in several steps; in milliseconds.
constexpr int kPause = 120;
} // namespace

GalleryTheme::GalleryTheme(const QString &inThemeFile, const QString &inAccentFile, QObject *inParent)
    : QObject(inParent), mThemeFile(inThemeFile), mAccentFile(inAccentFile)
{
    mPause.setSingleShot(true);
    mPause.setInterval(kPause);
    connect(&mPause, &QTimer::timeout, this, &GalleryTheme::onTouched);
    connect(&mWatcher, &QFileSystemWatcher::fileChanged, &mPause, qOverload<>(&QTimer::start));
    connect(&mWatcher, &QFileSystemWatcher::directoryChanged, &mPause, qOverload<>(&QTimer::start));
}

QString GalleryTheme::load(const QString &inAccent)
{
    const ThemeFile base =
        ThemeFile::read(mThemeFile.isEmpty() ? ThemeFile::stockPath(QStringLiteral("base")) : mThemeFile);
    const ThemeFile accent =
        ThemeFile::read(mAccentFile.isEmpty() ? ThemeFile::stockPath(inAccent) : mAccentFile);
    for (const ThemeFile *file : {&base, &accent}) {
        const QString trouble = file->trouble();
        if (!trouble.isEmpty())
            return trouble;
    }
    if (!base.text.value(QStringLiteral("/color_palette")).isArray())
        return base.prefix({}) +
               QStringLiteral("there is no array \"color_palette\", so that all would be red");
    auto palettes = VantraThemeTrial::read(base.text.root().toObject(), accent.text.root().toObject());
    if (!palettes)
        return base.prefix({}) +
               QStringLiteral("a palette is no array of objects; vtwidgets-theme check says more");
    VantraThemeTrial::show(std::move(*palettes));
    return QString();
}

void GalleryTheme::watch()
{
    mKnown = contents();
    watchAgain();
}

// A file that is replaced by another of its name is no longer watched; its folder still is, and tells of the
// new one. A folder that is replaced as a whole is not found again.
void GalleryTheme::watchAgain()
{
    for (const QString &file : {mThemeFile, mAccentFile}) {
        if (file.isEmpty())
            continue;
        const QFileInfo info(file);
        for (const QString &path : {info.absoluteFilePath(), info.absolutePath()}) {
            const bool known = mWatcher.files().contains(path) || mWatcher.directories().contains(path);
            if (!known && QFileInfo::exists(path))
                mWatcher.addPath(path);
        }
    }
}

void GalleryTheme::onTouched()
{
    watchAgain();
    // Much goes on in a folder that has nothing to do with the files.
    const QList<QByteArray> now = contents();
    if (now == mKnown)
        return;
    mKnown = now;
    emit touched();
}

// What tells two states of the files apart; empty for a file that can't be read.
QList<QByteArray> GalleryTheme::contents() const
{
    QList<QByteArray> result;
    for (const QString &name : {mThemeFile, mAccentFile}) {
        QFile file(name);
        QCryptographicHash hash(QCryptographicHash::Sha1);
        result << (file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result() : QByteArray());
    }
    return result;
}
