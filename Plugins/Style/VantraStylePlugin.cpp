#include "VantraStylePlugin.h"

#include "Shared/VantraPluginStart.h"
#include "VantraPluginStyle.h"

QStyle *VantraStylePlugin::create(const QString &inKey)
{
    if (inKey.compare(QLatin1String("vantra"), Qt::CaseInsensitive) != 0) {
        return nullptr;
    }
    VantraPluginStart::ensureFontsAndTheme();
    return new VantraPluginStyle;
}
