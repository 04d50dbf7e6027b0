#pragma once

// How well the theme's texts stand out from their grounds: the contrast ratio of the Web Content
// Accessibility Guidelines for every pair of roles that is painted as text on ground.

#include "Theme/VantraColorPalette.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QColor>

#include <algorithm>
#include <cmath>
#include <optional>

namespace Contrast {
// What body text should reach.
constexpr double kEnough = 4.5;

// A colour as it is seen through to an opaque ground.
inline QColor over(const QColor &inColor, const QColor &inGround)
{
    const auto blend = [alpha = inColor.alphaF()](double inTop, double inBottom) {
        return std::clamp(alpha * inTop + (1.0 - alpha) * inBottom, 0.0, 1.0);
    };
    return QColor::fromRgbF(float(blend(inColor.redF(), inGround.redF())),
                            float(blend(inColor.greenF(), inGround.greenF())),
                            float(blend(inColor.blueF(), inGround.blueF())));
}

// Relative luminance of an opaque colour, 0 to 1.
inline double luminance(const QColor &inColor)
{
    const auto linear = [](double inValue) {
        return inValue <= 0.04045 ? inValue / 12.92 : std::pow((inValue + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(inColor.redF()) + 0.7152 * linear(inColor.greenF()) +
           0.0722 * linear(inColor.blueF());
}

// From 1 to 21, the same for both orders of two opaque colours.
inline double ratio(const QColor &inText, const QColor &inGround)
{
    const auto [darker, lighter] = std::minmax({luminance(inText), luminance(inGround)});
    return (lighter + 0.05) / (darker + 0.05);
}

struct Pair
{
    VantraPalette::PaletteRole text;
    VantraPalette::PaletteRole ground;
};
const QList<Pair> &pairs();

// "ButtonText on ButtonBackground"
QString nameOf(const Pair &inPair);

// The colours of a pair in a group, both made opaque.
struct Colors
{
    QColor text;
    QColor ground;

    double ratio() const { return Contrast::ratio(text, ground); }
};

// The group that the ground is painted in while the text is in the given one.
VantraPalette::PaletteGroup groundGroup(const Pair &inPair, VantraPalette::PaletteGroup inGroup);

// Nothing when the palette lacks one of the two.
std::optional<Colors> colorsOf(const VantraColorPalette &inPalette, const Pair &inPair,
                               VantraPalette::PaletteGroup inGroup);

// The same for the theme that is loaded.
std::optional<Colors> colorsOf(const Pair &inPair, VantraPalette::PaletteGroup inGroup);

// The whole table in lines, for the theme that is loaded.
QString table();
} // namespace Contrast
