#include "VantraStylePlugin.h"

#include "VantraPluginStyle.h"

#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

namespace {

bool isThemeLoaded()
{
    return VantraStyleTheme::instance().colorPalette().contains(VantraPalette::Normal,
                                                                VantraPalette::WindowBackground);
}

} // namespace

QStyle *VantraStylePlugin::create(const QString &inKey)
{
    if (inKey.compare(QLatin1String("vantra"), Qt::CaseInsensitive) != 0) {
        return nullptr;
    }
    VantraFont::ensureApplicationFonts();
    if (!isThemeLoaded()) {
        VantraStyleTheme::loadGlobalConfig(QStringLiteral("base"), QStringLiteral("blue"));
    }
    return new VantraPluginStyle;
}
