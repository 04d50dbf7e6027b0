#include "PresetStore.h"

#include "PhotoAdjustments.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QSaveFile>
#include <QtCore/QStandardPaths>

namespace {
QString tr(const char *inText)
{
    return QCoreApplication::translate("PresetStore", inText);
}

struct BuiltIn
{
    const char *name;
    PhotoAdjustments adjustments;
};

const QVector<BuiltIn> &builtIns()
{
    static const QVector<BuiltIn> sBuiltIns = [] {
        QVector<BuiltIn> presets{
            {"Neutral", {}}, {"Warm evening", {}}, {"Cool morning", {}}, {"Silver", {}}, {"Punch", {}}};
        PhotoAdjustments &evening = presets[1].adjustments;
        evening.temperature = 35.0;
        evening.shadows = 20.0;
        evening.saturation = 12.0;
        PhotoAdjustments &morning = presets[2].adjustments;
        morning.temperature = -30.0;
        morning.highlights = -20.0;
        morning.exposure = 0.2;
        PhotoAdjustments &silver = presets[3].adjustments;
        silver.saturation = -100.0;
        silver.contrast = 25.0;
        silver.curve = {{0.0, 0.04}, {0.3, 0.26}, {0.7, 0.78}, {1.0, 0.98}};
        PhotoAdjustments &punch = presets[4].adjustments;
        punch.contrast = 40.0;
        punch.saturation = 25.0;
        punch.highlights = -15.0;
        return presets;
    }();
    return sBuiltIns;
}
} // namespace

PresetStore::PresetStore(const QString &inPath) : mPath(inPath)
{
    QFile file(mPath);
    if (file.open(QIODevice::ReadOnly))
        mOwn = QJsonDocument::fromJson(file.readAll()).object();
}

QString PresetStore::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1String("/presets.json");
}

QStringList PresetStore::builtInNames() const
{
    QStringList names;
    for (const BuiltIn &preset : builtIns())
        names << tr(preset.name);
    return names;
}

QJsonObject PresetStore::look(const QString &inName) const
{
    for (const BuiltIn &preset : builtIns()) {
        if (inName == tr(preset.name))
            return preset.adjustments.look();
    }
    return mOwn.value(inName).toObject();
}

QString PresetStore::refuseName(const QString &inName) const
{
    if (inName.trimmed().isEmpty())
        return tr("A preset needs a name.");
    return isBuiltIn(inName) ? tr("The preset \"%1\" comes with the program and stays as it is.").arg(inName)
                             : QString();
}

QString PresetStore::save(const QString &inName, const QJsonObject &inLook)
{
    const QString refusal = refuseName(inName);
    if (!refusal.isEmpty())
        return refusal;
    QJsonObject own = mOwn;
    own.insert(inName, inLook);
    return replace(own);
}

QString PresetStore::rename(const QString &inOld, const QString &inNew)
{
    QString refusal = refuseName(inOld);
    if (refusal.isEmpty())
        refusal = refuseName(inNew);
    if (refusal.isEmpty() && inOld != inNew && mOwn.contains(inNew))
        refusal = tr("There is a preset \"%1\" already.").arg(inNew);
    if (!refusal.isEmpty())
        return refusal;
    QJsonObject own = mOwn;
    own.insert(inNew, own.take(inOld));
    return replace(own);
}

QString PresetStore::remove(const QString &inName)
{
    const QString refusal = refuseName(inName);
    if (!refusal.isEmpty())
        return refusal;
    QJsonObject own = mOwn;
    own.remove(inName);
    return replace(own);
}

QString PresetStore::replace(const QJsonObject &inOwn)
{
    QDir().mkpath(QFileInfo(mPath).path());
    QSaveFile file(mPath);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(inOwn).toJson()) < 0 || !file.commit())
        return tr("The presets could not be written: %1").arg(file.errorString());
    mOwn = inOwn;
    return {};
}
