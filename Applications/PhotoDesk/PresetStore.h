#pragma once

// Looks that the user keeps under a name: a few of the program's own, and those of a file in the user's data
// folder. GUI thread only.

#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

class PresetStore
{
public:
    // Reads the file; one that is missing or damaged counts as empty, and is first overwritten by a change.
    explicit PresetStore(const QString &inPath = defaultPath());

    static QString defaultPath();

    QStringList builtInNames() const;
    QStringList ownNames() const { return mOwn.keys(); }
    bool contains(const QString &inName) const { return !look(inName).isEmpty(); }
    bool isBuiltIn(const QString &inName) const { return builtInNames().contains(inName); }

    // Empty for an unknown name.
    QJsonObject look(const QString &inName) const;

    // Each changes the file at once and returns an empty text, or in plain words why nothing was changed.
    QString save(const QString &inName, const QJsonObject &inLook);
    QString rename(const QString &inOld, const QString &inNew);
    QString remove(const QString &inName);

private:
    QString replace(const QJsonObject &inOwn);
    QString refuseName(const QString &inName) const;

    QString mPath;
    QJsonObject mOwn; // look by name
};
