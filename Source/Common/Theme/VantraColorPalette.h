#pragma once

// The theme's colours: a table from (group, role) to a brush. A value class; the one that everything reads
// lives in VantraStyleTheme.
//
// A pair without an entry yields solid red, with no fallback to another group or role: red on the screen is
// the report of a hole in the theme. GUI thread only, no lock.

#include "Theme/VantraPalette.h"

#include <QtCore/QJsonValue>
#include <QtGui/QBrush>
#include <QtGui/QPalette>

#include <unordered_map>
#include <utility>

class QJsonObject;
class QWidget;

class VTWIDGETSLITE_EXPORT VantraColorPalette : public VantraPalette
{
public:
    VantraColorPalette() = default;
    VantraColorPalette(const VantraColorPalette &) = default;
    VantraColorPalette &operator=(const VantraColorPalette &) = default;

    // The palette moved from is left empty and usable.
    VantraColorPalette(VantraColorPalette &&ioOther) noexcept;
    VantraColorPalette &operator=(VantraColorPalette &&ioOther) noexcept;

    // The stored brush, or solid red.
    QBrush brush(PaletteGroup inGroup, PaletteRole inRole) const;

    // The brush of inPalette at inColorRole when it differs from the application palette's, which means that
    // somebody set it on purpose; otherwise brush(inGroup, inRole). Disabled reads the palette's disabled
    // colours, the other groups its active ones.
    QBrush brush(PaletteGroup inGroup, PaletteRole inRole, QPalette::ColorRole inColorRole,
                 const QPalette &inPalette) const;

    // The colours of the two forms above.
    QColor color(PaletteGroup inGroup, PaletteRole inRole) const;
    QColor color(PaletteGroup inGroup, PaletteRole inRole, QPalette::ColorRole inColorRole,
                 const QPalette &inPalette) const;

    // True when the pair has an entry of its own.
    bool contains(PaletteGroup inGroup, PaletteRole inRole) const;

    // Insert or replace one entry; setColor stores a solid brush. Nothing is repainted by this.
    void setBrush(PaletteGroup inGroup, PaletteRole inRole, const QBrush &inBrush);
    void setColor(PaletteGroup inGroup, PaletteRole inRole, const QColor &inColor);

    // Writes the role's theme colours into inColorRole of ioPalette, in all three of its colour groups:
    // Highlighted or Normal into the active and inactive one, Disabled into the disabled one, each only where
    // the theme has it. With a widget, does nothing if ioPalette no longer agrees with the widget's own
    // palette at that role, so that a colour set on purpose survives.
    void adjustPalette(PaletteGroup inGroup, PaletteRole inRole, QPalette::ColorRole inColorRole,
                       const QWidget *inWidget, QPalette &ioPalette) const;

    // Overlays the entries of "color_palette", with the aliases of "color_aliases", onto the present ones;
    // later entries win. An entry without a usable colour is skipped. False when "color_palette" is missing,
    // not an array, or holds an element that isn't an object; entries before that element stay.
    bool loadConfig(const QJsonObject &inObject);

    // Appends every entry to "color_palette" of ioObject, each with an alias of its own in "color_aliases".
    // Alpha and brush styles are not written. Always true.
    bool saveConfig(QJsonObject &ioObject) const;

private:
    QColor lookupColor(const QJsonObject &inAliases, const QJsonValue &inValue) const;
    std::pair<QString, QJsonValue> aliasAndColor(PaletteGroup inGroup, PaletteRole inRole,
                                                 const QString &inAlias) const;
    const QBrush *find(PaletteGroup inGroup, PaletteRole inRole) const;

    struct AdjustmentKey
    {
        Key entry;
        QPalette::ColorRole colorRole;

        friend bool operator==(const AdjustmentKey &inLeft, const AdjustmentKey &inRight)
        {
            return inLeft.entry == inRight.entry && inLeft.colorRole == inRight.colorRole;
        }
    };

    struct AdjustmentKeyHash
    {
        std::size_t operator()(const AdjustmentKey &inKey) const
        {
            return KeyHash()(inKey.entry) * QPalette::NColorRoles + inKey.colorRole;
        }
    };

    // The last adjustment of a shared palette, which recurs at every paint. Writing it again would copy all
    // brushes of the palette.
    struct Adjustment
    {
        QPalette input;
        QPalette output;
    };

    void writeColors(PaletteGroup inGroup, PaletteRole inRole, QPalette::ColorRole inColorRole,
                     QPalette &ioPalette) const;

    std::unordered_map<Key, QBrush, KeyHash> mBrushes;

    // Emptied by each change of a brush. Bounded, since it keeps palettes of callers alive.
    mutable std::unordered_map<AdjustmentKey, Adjustment, AdjustmentKeyHash> mAdjustments;
};
