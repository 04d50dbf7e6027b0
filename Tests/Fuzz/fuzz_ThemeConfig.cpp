// Theme files of any bytes: they are read without harm, what was read is what is saved, and reading them
// again changes nothing.

#include "Theme/VantraColorPalette.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraFontPalette.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtGui/QFont>

#include <algorithm>
#include <cstdint>

namespace {

constexpr VantraPalette::PaletteGroup kGroups[] = {VantraPalette::Normal, VantraPalette::Disabled,
                                                   VantraPalette::Highlighted};

bool holdsObjectsAlone(const QJsonValue &inPalette)
{
    const QJsonArray entries = inPalette.toArray();
    return inPalette.isArray() && std::all_of(entries.begin(), entries.end(),
                                              [](const QJsonValue &inEntry) { return inEntry.isObject(); });
}

template <typename Check>
void forEachPair(Check inCheck)
{
    for (int role = 0; role <= VantraPalette::SplitterHandle; ++role) {
        for (const VantraPalette::PaletteGroup group : kGroups) {
            inCheck(group, static_cast<VantraPalette::PaletteRole>(role));
        }
    }
}

void checkColors(const QJsonObject &inObject)
{
    VantraColorPalette palette;
    const bool result = palette.loadConfig(inObject);
    Q_ASSERT(result == holdsObjectsAlone(inObject.value(QLatin1String("color_palette"))));

    QJsonObject saved;
    const bool written = palette.saveConfig(saved);
    Q_ASSERT(written);
    VantraColorPalette copy;
    const bool readBack = copy.loadConfig(saved);
    Q_ASSERT(readBack);
    VantraColorPalette again = palette;
    const bool sameResult = again.loadConfig(inObject) == result;
    Q_ASSERT(sameResult);
    forEachPair([&](VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole) {
        const QColor color = palette.color(inGroup, inRole);
        Q_ASSERT(color.isValid());
        Q_ASSERT(again.brush(inGroup, inRole) == palette.brush(inGroup, inRole));
        Q_ASSERT(copy.contains(inGroup, inRole) == palette.contains(inGroup, inRole));
        Q_ASSERT(copy.color(inGroup, inRole) == QColor(color.red(), color.green(), color.blue()));
    });
}

void checkFonts(const QJsonObject &inObject)
{
    const QJsonValue entries = inObject.value(QLatin1String("font_palette"));
    VantraFontPalette palette;
    const bool result = palette.loadConfig(inObject);
    Q_ASSERT(result == (entries.isUndefined() || holdsObjectsAlone(entries)));
    forEachPair([&](VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole) {
        for (const bool largest : {false, true}) {
            QFont font(QStringLiteral("Roboto"), 10);
            palette.adjustFont(inGroup, inRole, nullptr, font, largest);
            Q_ASSERT(font.pointSize() > 0);
            Q_ASSERT(font.weight() >= 1 && font.weight() <= 1000);
        }
    });
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    VantraFont::setUserSelectedFontPointSizeModifier(4);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *inData, std::size_t inSize)
{
    const QByteArray bytes(reinterpret_cast<const char *>(inData), static_cast<qsizetype>(inSize));
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    checkColors(object);
    checkFonts(object);
    return 0;
}
