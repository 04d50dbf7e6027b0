#include "Shared/VantraPluginStart.h"

#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

namespace {

bool isThemeLoaded()
{
    return VantraStyleTheme::instance().colorPalette().contains(VantraPalette::Normal,
                                                                VantraPalette::WindowBackground);
}

} // namespace

void VantraPluginStart::ensureFontsAndTheme()
{
    VantraFont::ensureApplicationFonts();
    if (!isThemeLoaded()) {
        VantraStyleTheme::loadGlobalConfig(QStringLiteral("base"), QStringLiteral("blue"));
    }
}
