#pragma once

// Theme documents that the gallery shows in place of the library's own, and their changes on the disk.

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QTimer>

class GalleryTheme : public QObject
{
    Q_OBJECT

public:
    // Either file name may be empty: the library's own base, or the accent of the given name, stands in.
    GalleryTheme(const QString &inThemeFile, const QString &inAccentFile, QObject *inParent = nullptr);

    bool hasFiles() const { return !mThemeFile.isEmpty() || !mAccentFile.isEmpty(); }
    bool hasAccentFile() const { return !mAccentFile.isEmpty(); }

    // Reads both documents and makes them the theme. Returns what is wrong with them, in one line, or
    // nothing; the theme is left as it was then. The widgets aren't told.
    QString load(const QString &inAccent);

    // Begins to look for changes of the files.
    void watch();

signals:
    // A file may have other contents than before. Comes a moment after the last of several changes.
    void touched();

private:
    void watchAgain();
    void onTouched();
    QList<QByteArray> contents() const;

    QString mThemeFile;
    QString mAccentFile;
    QFileSystemWatcher mWatcher;
    QTimer mPause;
    QList<QByteArray> mKnown;
};
