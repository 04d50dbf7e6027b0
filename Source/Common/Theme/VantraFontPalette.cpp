#include "Theme/VantraFontPalette.h"

#include "Theme/VantraFont.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QMetaEnum>
#include <QtGui/QFont>
#include <QtWidgets/QWidget>

#include <utility>

namespace {

bool setSize(int inPointSize, const QWidget *inWidget, QFont &ioFont)
{
    if (inPointSize <= 0 || (inWidget != nullptr && ioFont.pointSize() != inWidget->font().pointSize())) {
        return false;
    }
    ioFont.setPointSize(VantraFont::scaledPointSize(inPointSize));
    return true;
}

bool setWeight(int inWeight, const QWidget *inWidget, QFont &ioFont)
{
    if (inWidget != nullptr && ioFont.weight() != inWidget->font().weight()) {
        return false;
    }
    // A weight that the file doesn't give, or misspells, becomes the lightest, as Qt bounds it.
    ioFont.setWeight(static_cast<QFont::Weight>(qMax(1, inWeight)));
    return true;
}

} // namespace

VantraFontPalette::VantraFontPalette(VantraFontPalette &&ioOther) noexcept
    : mFonts(std::exchange(ioOther.mFonts, {}))
{
}

VantraFontPalette &VantraFontPalette::operator=(VantraFontPalette &&ioOther) noexcept
{
    if (this != &ioOther) {
        mFonts = std::exchange(ioOther.mFonts, {});
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
    const bool sizeSet = setSize(wanted.pointSize, inWidget, ioFont);
    const bool weightSet = setWeight(wanted.weight, inWidget, ioFont);
    return sizeSet || weightSet;
}

void VantraFontPalette::applyFont(PaletteGroup inGroup, PaletteRole inRole, QFont &ioFont) const
{
    if (const FontEntry *entry = find(inGroup, inRole)) {
        setSize(entry->pointSize, nullptr, ioFont);
        setWeight(entry->weight, nullptr, ioFont);
    }
}
