#include "Theme/VantraPalette.h"

#include <QtCore/QJsonObject>
#include <QtCore/QMetaEnum>

VantraPalette::Key VantraPalette::keyFromConfig(const QJsonObject &inEntry)
{
    static const QMetaEnum sGroups = QMetaEnum::fromType<PaletteGroup>();
    static const QMetaEnum sRoles = QMetaEnum::fromType<PaletteRole>();
    const QByteArray group = inEntry.value(QLatin1String("group")).toString().toUtf8();
    const QByteArray role = inEntry.value(QLatin1String("role")).toString().toUtf8();
    return {static_cast<PaletteGroup>(sGroups.keyToValue(group.constData())),
            static_cast<PaletteRole>(sRoles.keyToValue(role.constData()))};
}
