#pragma once

// The theme's type: a table from (group, role) to a point size and a weight. Entries are never handed out,
// only applied to a font. A value class; the one that everything reads lives in VantraStyleTheme. GUI thread
// only, no lock.

#include "Theme/VantraPalette.h"

#include <QtGui/QFont>

#include <unordered_map>

class QJsonObject;
class QWidget;

class VTWIDGETSLITE_EXPORT VantraFontPalette : public VantraPalette
{
public:
    VantraFontPalette() = default;
    VantraFontPalette(const VantraFontPalette &) = default;
    VantraFontPalette &operator=(const VantraFontPalette &) = default;

    // The palette moved from is left empty and usable.
    VantraFontPalette(VantraFontPalette &&ioOther) noexcept;
    VantraFontPalette &operator=(VantraFontPalette &&ioOther) noexcept;

    // Overlays the entries of "font_palette" onto the present ones; later entries replace both values of
    // earlier ones. A missing "font_palette" is fine. False when it isn't an array or holds an element that
    // isn't an object; entries before that element stay.
    bool loadConfig(const QJsonObject &inObject);

    // Applies the entry to the font and tells whether it set size or weight. With a widget, each of the two
    // is set only where the font still agrees with the widget's own, so that what somebody set on purpose
    // survives. Sizes are in points and take the user's modifier.
    //
    // inUseLargestFont is for measuring: it takes the largest size and the heaviest weight of the role's
    // three groups, whichever group is given. For a role without entries it sets the weight to 1.
    bool adjustFont(PaletteGroup inGroup, PaletteRole inRole, const QWidget *inWidget, QFont &ioFont,
                    bool inUseLargestFont) const;

    // Applies size and weight of the exact pair to the font, without comparing with any widget.
    void applyFont(PaletteGroup inGroup, PaletteRole inRole, QFont &ioFont) const;

private:
    struct FontEntry
    {
        int pointSize = 0; // design size; 0 or less sets no size
        int weight = 0;    // QFont::Weight; below 1 the file gave none or an unknown word
    };

    struct AdjustmentKey
    {
        Key entry;
        bool largest;

        friend bool operator==(const AdjustmentKey &inLeft, const AdjustmentKey &inRight)
        {
            return inLeft.entry == inRight.entry && inLeft.largest == inRight.largest;
        }
    };

    struct AdjustmentKeyHash
    {
        std::size_t operator()(const AdjustmentKey &inKey) const
        {
            return KeyHash()(inKey.entry) * 2 + (inKey.largest ? 1 : 0);
        }
    };

    // The last adjustment of a shared font, which recurs at every paint. Applying the entry again would
    // detach the font from its engine, which then has to be looked up again.
    struct Adjustment
    {
        QFont input;
        QFont output;
        int pointSize = 0; // final size of the entry, with the user's modifier and the display's scaling
        bool sizeFree = false;
        bool weightFree = false;
        bool changed = false;
    };

    const FontEntry *find(PaletteGroup inGroup, PaletteRole inRole) const;

    static int finalPointSize(const FontEntry &inEntry);
    bool applyEntry(const FontEntry &inEntry, bool inSizeFree, bool inWeightFree, QFont &ioFont) const;

    std::unordered_map<Key, FontEntry, KeyHash> mFonts;
    mutable std::unordered_map<AdjustmentKey, Adjustment, AdjustmentKeyHash>
        mAdjustments; // emptied by each load
};
