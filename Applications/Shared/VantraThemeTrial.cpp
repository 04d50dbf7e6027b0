#include "Shared/VantraThemeTrial.h"

#include "Theme/VantraStyleTheme.h"

#include <QtCore/QJsonObject>

std::optional<VantraThemeTrial::Palettes> VantraThemeTrial::read(const QJsonObject &inBase,
                                                                 const QJsonObject &inAccent)
{
    QJsonObject merged = inBase;
    QJsonObject accent = inAccent;
    VantraStyleTheme::sInstance.mergeConfigImpl(merged, accent);
    Palettes palettes;
    if (!palettes.colors.loadConfig(merged) || !palettes.fonts.loadConfig(merged))
        return std::nullopt;
    return palettes;
}

void VantraThemeTrial::show(Palettes &&inPalettes)
{
    VantraStyleTheme::sInstance.mColorPalette = std::move(inPalettes.colors);
    VantraStyleTheme::sInstance.mFontPalette = std::move(inPalettes.fonts);
}
