#pragma once

// Tries out themes that are no resources of the library: reads documents as the library would, and shows them
// as if they had been the only ones ever loaded. For programs that help to write themes.
//
//     if (auto palettes = VantraThemeTrial::read(base, accent))
//         VantraThemeTrial::show(std::move(*palettes));   // then tell all widgets

#include "Theme/VantraColorPalette.h"
#include "Theme/VantraFontPalette.h"

#include <optional>

class QJsonObject;

class VantraThemeTrial
{
public:
    struct Palettes
    {
        VantraColorPalette colors;
        VantraFontPalette fonts;
    };

    // The accent's aliases and colour entries win over the base's. Nothing when an entry of a palette is no
    // object or a palette no array.
    static std::optional<Palettes> read(const QJsonObject &inBase, const QJsonObject &inAccent);

    // Replaces all that VantraStyleTheme::instance() holds of colours and fonts; an ordinary load would
    // leave there what the new theme doesn't name, and so hide its holes.
    static void show(Palettes &&inPalettes);
};
