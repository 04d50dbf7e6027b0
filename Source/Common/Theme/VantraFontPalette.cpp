#include "Theme/VantraFontPalette.h"

#include "Theme/VantraFont.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QMetaEnum>
#include <QtGui/QFont>
#include <QtWidgets/QWidget>

#include <utility>

namespace {

constexpr int kLargestPointSize = 0xFFFF; // so that the user's modifier can't overflow a theme's size

} // namespace

VantraFontPalette::VantraFontPalette(VantraFontPalette &&ioOther) noexcept
    : mFonts(std::exchange(ioOther.mFonts, {})), mAdjustments(std::exchange(ioOther.mAdjustments, {}))
{
}

VantraFontPalette &VantraFontPalette::operator=(VantraFontPalette &&ioOther) noexcept
{
    if (this != &ioOther) {
        mFonts = std::exchange(ioOther.mFonts, {});
        mAdjustments = std::exchange(ioOther.mAdjustments, {});
    }
    return *this;
}

const VantraFontPalette::FontEntry *VantraFontPalette::find(PaletteGroup inGroup, PaletteRole inRole) const
{
    const auto entry = mFonts.find(Key{inGroup, inRole});
    return entry == mFonts.end() ? nullptr : &entry->second;
}

bool VantraFontPalette::loadConfig(const QJsonObject &inObject)
{
    const QJsonValue palette = inObject.value(QLatin1String("font_palette"));
    if (palette.isUndefined()) {
        return true;
    }
    if (!palette.isArray()) {
        return false;
    }
    mAdjustments.clear();
    static const QMetaEnum sWeights = QMetaEnum::fromType<QFont::Weight>();
    const QLatin1String weightKey("weight");
    const QJsonArray entries = palette.toArray();
    for (const QJsonValue value : entries) {
        if (!value.isObject()) {
            return false;
        }
        const QJsonObject object = value.toObject();
        FontEntry entry;
        entry.pointSize = object.value(QLatin1String("size")).toInt();
        if (object.contains(weightKey)) {
            entry.weight = sWeights.keyToValue(object.value(weightKey).toString().toUtf8().constData());
        }
        if (entry.pointSize > 0 || entry.weight >= 1) {
            mFonts[keyFromConfig(object)] = entry;
        }
    }
    return true;
}

int VantraFontPalette::finalPointSize(const FontEntry &inEntry)
{
    return inEntry.pointSize > 0 ? VantraFont::scaledPointSize(qMin(inEntry.pointSize, kLargestPointSize))
                                 : 0;
}

bool VantraFontPalette::applyEntry(const FontEntry &inEntry, bool inSizeFree, bool inWeightFree,
                                   QFont &ioFont) const
{
    const bool setsSize = inSizeFree && inEntry.pointSize > 0;
    if (setsSize) {
        ioFont.setPointSize(finalPointSize(inEntry));
    }
    if (inWeightFree) {
        // A weight that the file doesn't give, or misspells, becomes the lightest, as Qt bounds it.
        ioFont.setWeight(static_cast<QFont::Weight>(qMax(1, inEntry.weight)));
    }
    return setsSize || inWeightFree;
}

bool VantraFontPalette::adjustFont(PaletteGroup inGroup, PaletteRole inRole, const QWidget *inWidget,
                                   QFont &ioFont, bool inUseLargestFont) const
{
    FontEntry wanted;
    if (inUseLargestFont) {
        wanted.weight = 1;
        for (const PaletteGroup group : {Normal, Disabled, Highlighted}) {
            if (const FontEntry *entry = find(group, inRole)) {
                wanted.pointSize = qMax(wanted.pointSize, entry->pointSize);
                wanted.weight = qMax(wanted.weight, entry->weight);
            }
        }
    } else if (const FontEntry *entry = find(inGroup, inRole)) {
        wanted = *entry;
    } else {
        return false;
    }

    const bool sizeFree = inWidget == nullptr || ioFont.pointSize() == inWidget->font().pointSize();
    const bool weightFree = inWidget == nullptr || ioFont.weight() == inWidget->font().weight();
    const int pointSize = finalPointSize(wanted);
    Adjustment &known = mAdjustments[{{inGroup, inRole}, inUseLargestFont}];
    if (!ioFont.isCopyOf(known.input) || ioFont.resolveMask() != known.input.resolveMask() ||
        pointSize != known.pointSize || sizeFree != known.sizeFree || weightFree != known.weightFree) {
        known = {ioFont, ioFont, pointSize, sizeFree, weightFree, false};
        known.changed = applyEntry(wanted, sizeFree, weightFree, known.output);
    }
    ioFont = known.output;
    return known.changed;
}

void VantraFontPalette::applyFont(PaletteGroup inGroup, PaletteRole inRole, QFont &ioFont) const
{
    if (const FontEntry *entry = find(inGroup, inRole)) {
        applyEntry(*entry, true, true, ioFont);
    }
}
