#include "Shared/ContrastTable.h"

#include "Theme/VantraStyleTheme.h"

#include <QtCore/QMetaEnum>

namespace {
// Where translucent grounds are looked at: menus over the picture, which may be anything, and what has no
// ground of its own on the window.
QColor whatLiesBelow(const VantraColorPalette &inPalette, VantraPalette::PaletteRole inGround,
                     VantraPalette::PaletteGroup inGroup)
{
    if (inGround == VantraPalette::OverlayMenuBackground)
        return QColor(128, 128, 128);
    return inPalette.color(inGroup, VantraPalette::WindowBackground);
}

// The window knows no hover: what lies on it is highlighted alone.
VantraPalette::PaletteGroup windowGroup(VantraPalette::PaletteGroup inGroup)
{
    return inGroup == VantraPalette::Disabled ? VantraPalette::Disabled : VantraPalette::Normal;
}
} // namespace

const QList<Contrast::Pair> &Contrast::pairs()
{
    using P = VantraPalette;
    static const QList<Pair> sPairs = {
        {P::WindowText, P::WindowBackground},
        {P::HighlightedText, P::HighlightedTextBackground},
        {P::ButtonText, P::ButtonBackground},
        {P::AlternateButtonText, P::AlternateButtonBackground},
        {P::AccentButtonText, P::AccentButtonBackground},
        {P::AccentButtonText, P::BlueAccentButtonBackground},
        {P::AccentButtonText, P::GreenAccentButtonBackground},
        {P::AccentButtonText, P::OrangeAccentButtonBackground},
        {P::AccentButtonText, P::PurpleAccentButtonBackground},
        {P::AccentButtonText, P::RedAccentButtonBackground},
        {P::TobButtonText, P::TobButtonBackground},
        {P::TabButtonText, P::TabButtonBackground},
        {P::TabBarText, P::TabBarBackground},
        {P::MenuItemText, P::MenuBackground},
        {P::MenuItemText, P::OverlayMenuBackground},
        {P::Checkmark, P::MenuBackground},
        {P::SpinBoxText, P::SpinBoxBackground},
        {P::ComboBoxText, P::ComboBoxBackground},
        {P::LineEditText, P::LineEditBackgroundNone},
        {P::LineEditText, P::LineEditBackground},
        {P::LineEditText, P::TokenBoxBackground},
        {P::ToolButtonText, P::WindowBackground},
        {P::ModuleToolButtonText, P::WindowBackground},
        {P::PaneHeaderText, P::PaneBackground},
        {P::ListPaneHeaderText, P::PaneBackground},
        {P::SubPaneHeaderText, P::PaneBackground},
        {P::GroupBoxText, P::GroupBoxFrameBackground},
        {P::ViewItemText, P::ViewItemBackground},
        {P::ViewItemText, P::CategoryViewItemBackground},
    };
    return sPairs;
}

QString Contrast::nameOf(const Pair &inPair)
{
    const QMetaEnum roles = QMetaEnum::fromType<VantraPalette::PaletteRole>();
    return QStringLiteral("%1 on %2")
        .arg(QLatin1String(roles.valueToKey(inPair.text)), QLatin1String(roles.valueToKey(inPair.ground)));
}

VantraPalette::PaletteGroup Contrast::groundGroup(const Pair &inPair, VantraPalette::PaletteGroup inGroup)
{
    return inPair.ground == VantraPalette::WindowBackground ? windowGroup(inGroup) : inGroup;
}

std::optional<Contrast::Colors> Contrast::colorsOf(const Pair &inPair, VantraPalette::PaletteGroup inGroup)
{
    return colorsOf(VantraStyleTheme::instance().colorPalette(), inPair, inGroup);
}

std::optional<Contrast::Colors> Contrast::colorsOf(const VantraColorPalette &inPalette, const Pair &inPair,
                                                   VantraPalette::PaletteGroup inGroup)
{
    const VantraPalette::PaletteGroup groundGroup = Contrast::groundGroup(inPair, inGroup);
    if (!inPalette.contains(inGroup, inPair.text) || !inPalette.contains(groundGroup, inPair.ground))
        return std::nullopt;
    const QColor ground = over(inPalette.color(groundGroup, inPair.ground),
                               whatLiesBelow(inPalette, inPair.ground, windowGroup(inGroup)));
    return Colors{over(inPalette.color(inGroup, inPair.text), ground), ground};
}

QString Contrast::table()
{
    const QMetaEnum groups = QMetaEnum::fromType<VantraPalette::PaletteGroup>();
    QString text;
    for (const Pair &pair : pairs()) {
        for (int index = 0; index < groups.keyCount(); ++index) {
            const auto colors = colorsOf(pair, static_cast<VantraPalette::PaletteGroup>(groups.value(index)));
            if (!colors)
                continue;
            const double value = colors->ratio();
            text += QStringLiteral("%1  %2  %3%4\n")
                        .arg(nameOf(pair), -48)
                        .arg(QLatin1String(groups.key(index)), -11)
                        .arg(value, 5, 'f', 2)
                        .arg(value < kEnough ? QStringLiteral("  below %1").arg(kEnough) : QString());
        }
    }
    return text;
}
