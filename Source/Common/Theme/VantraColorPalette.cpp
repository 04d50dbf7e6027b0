#include "Theme/VantraColorPalette.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QMetaEnum>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QWidget>

namespace {

const QLatin1String kPaletteKey("color_palette");
const QLatin1String kAliasesKey("color_aliases");
const QLatin1String kGroupKey("group");
const QLatin1String kRoleKey("role");
const QLatin1String kColorKey("color");

constexpr std::size_t kMostAdjustments = 1024; // far more than a program uses with one theme

QPalette::ColorGroup toColorGroup(VantraPalette::PaletteGroup inGroup)
{
    return inGroup == VantraPalette::Disabled ? QPalette::Disabled : QPalette::Active;
}

// A kept palette with textures would hold their pixels until another palette takes its place.
bool hasTextures(const QPalette &inPalette)
{
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const QBrush &brush = inPalette.brush(static_cast<QPalette::ColorGroup>(group),
                                                  static_cast<QPalette::ColorRole>(role));
            if (brush.style() == Qt::TexturePattern) {
                return true;
            }
        }
    }
    return false;
}

const QBrush &missingBrush()
{
    static const QBrush sRed(Qt::red, Qt::SolidPattern);
    return sRed;
}

} // namespace

VantraColorPalette::VantraColorPalette(VantraColorPalette &&ioOther) noexcept
    : mBrushes(std::exchange(ioOther.mBrushes, {})), mAdjustments(std::exchange(ioOther.mAdjustments, {}))
{
}

VantraColorPalette &VantraColorPalette::operator=(VantraColorPalette &&ioOther) noexcept
{
    if (this != &ioOther) {
        mBrushes = std::exchange(ioOther.mBrushes, {});
        mAdjustments = std::exchange(ioOther.mAdjustments, {});
    }
    return *this;
}

const QBrush *VantraColorPalette::find(PaletteGroup inGroup, PaletteRole inRole) const
{
    const auto entry = mBrushes.find(Key{inGroup, inRole});
    return entry == mBrushes.end() ? nullptr : &entry->second;
}

QBrush VantraColorPalette::brush(PaletteGroup inGroup, PaletteRole inRole) const
{
    const QBrush *entry = find(inGroup, inRole);
    return entry != nullptr ? *entry : missingBrush();
}

QBrush VantraColorPalette::brush(PaletteGroup inGroup, PaletteRole inRole, QPalette::ColorRole inColorRole,
                                 const QPalette &inPalette) const
{
    const QPalette::ColorGroup colorGroup = toColorGroup(inGroup);
    const QBrush own = inPalette.brush(colorGroup, inColorRole);
    if (own != QGuiApplication::palette().brush(colorGroup, inColorRole)) {
        return own;
    }
    return brush(inGroup, inRole);
}

QColor VantraColorPalette::color(PaletteGroup inGroup, PaletteRole inRole) const
{
    const QBrush *entry = find(inGroup, inRole);
    return (entry != nullptr ? *entry : missingBrush()).color();
}

QColor VantraColorPalette::color(PaletteGroup inGroup, PaletteRole inRole, QPalette::ColorRole inColorRole,
                                 const QPalette &inPalette) const
{
    return brush(inGroup, inRole, inColorRole, inPalette).color();
}

bool VantraColorPalette::contains(PaletteGroup inGroup, PaletteRole inRole) const
{
    return find(inGroup, inRole) != nullptr;
}

void VantraColorPalette::setBrush(PaletteGroup inGroup, PaletteRole inRole, const QBrush &inBrush)
{
    mBrushes[Key{inGroup, inRole}] = inBrush;
    mAdjustments.clear();
}

void VantraColorPalette::setColor(PaletteGroup inGroup, PaletteRole inRole, const QColor &inColor)
{
    setBrush(inGroup, inRole, QBrush(inColor, Qt::SolidPattern));
}

void VantraColorPalette::adjustPalette(PaletteGroup inGroup, PaletteRole inRole,
                                       QPalette::ColorRole inColorRole, const QWidget *inWidget,
                                       QPalette &ioPalette) const
{
    if (inWidget != nullptr) {
        const QPalette::ColorGroup colorGroup = toColorGroup(inGroup);
        if (ioPalette.color(colorGroup, inColorRole) != inWidget->palette().color(colorGroup, inColorRole)) {
            return;
        }
    }

    const AdjustmentKey key{{inGroup, inRole}, inColorRole};
    auto known = mAdjustments.find(key);
    if (known == mAdjustments.end() || !ioPalette.isCopyOf(known->second.input)) {
        if (hasTextures(ioPalette)) {
            writeColors(inGroup, inRole, inColorRole, ioPalette);
            return;
        }
        if (mAdjustments.size() >= kMostAdjustments) {
            mAdjustments.clear();
        }
        known = mAdjustments.insert_or_assign(key, Adjustment{ioPalette, ioPalette}).first;
        writeColors(inGroup, inRole, inColorRole, known->second.output);
    }
    const QPalette::ColorGroup current = ioPalette.currentColorGroup();
    ioPalette = known->second.output;
    ioPalette.setCurrentColorGroup(current);
}

void VantraColorPalette::writeColors(PaletteGroup inGroup, PaletteRole inRole,
                                     QPalette::ColorRole inColorRole, QPalette &ioPalette) const
{
    const QBrush *active = inGroup == Highlighted ? find(Highlighted, inRole) : nullptr;
    if (active == nullptr) {
        active = find(Normal, inRole);
    }
    if (active != nullptr) {
        ioPalette.setColor(QPalette::Active, inColorRole, active->color());
        ioPalette.setColor(QPalette::Inactive, inColorRole, active->color());
    }
    if (const QBrush *disabled = find(Disabled, inRole)) {
        ioPalette.setColor(QPalette::Disabled, inColorRole, disabled->color());
    }
}

bool VantraColorPalette::loadConfig(const QJsonObject &inObject)
{
    const QJsonValue palette = inObject.value(kPaletteKey);
    if (!palette.isArray()) {
        return false;
    }
    mAdjustments.clear();
    const QJsonObject aliases = inObject.value(kAliasesKey).toObject();
    const QJsonArray entries = palette.toArray();
    for (const QJsonValue value : entries) {
        if (!value.isObject()) {
            return false;
        }
        const QJsonObject entry = value.toObject();
        const QColor color = lookupColor(aliases, entry.value(kColorKey));
        if (color.isValid()) {
            mBrushes[keyFromConfig(entry)] = QBrush(color, Qt::SolidPattern);
        }
    }
    return true;
}

bool VantraColorPalette::saveConfig(QJsonObject &ioObject) const
{
    static const QMetaEnum sGroups = QMetaEnum::fromType<PaletteGroup>();
    static const QMetaEnum sRoles = QMetaEnum::fromType<PaletteRole>();
    QJsonArray palette = ioObject.value(kPaletteKey).toArray();
    QJsonObject aliases = ioObject.value(kAliasesKey).toObject();
    for (const auto &[key, brush] : mBrushes) {
        const QString role = QString::fromLatin1(sRoles.valueToKey(key.role));
        const QString group = QString::fromLatin1(sGroups.valueToKey(key.group));
        const auto [alias, color] = aliasAndColor(key.group, key.role, role + group + QLatin1String("Color"));
        QJsonValue colorValue = color;
        if (!alias.isEmpty()) {
            aliases.insert(alias, color);
            colorValue = alias;
        }
        palette.append(QJsonObject{{kRoleKey, role}, {kGroupKey, group}, {kColorKey, colorValue}});
    }
    ioObject.insert(kPaletteKey, palette);
    ioObject.insert(kAliasesKey, aliases);
    return true;
}

QColor VantraColorPalette::lookupColor(const QJsonObject &inAliases, const QJsonValue &inValue) const
{
    // Aliases don't chain: one whose value is itself a text gives no components and so no colour.
    const QJsonArray components =
        inValue.isString() ? inAliases.value(inValue.toString()).toArray() : inValue.toArray();
    const auto component = [&components](qsizetype inIndex) { return components.at(inIndex).toInt(); };
    switch (components.size()) {
    case 0:
    case 2: return QColor();
    case 1: return QColor(component(0), component(0), component(0), 255);
    case 3: return QColor(component(0), component(1), component(2), 255);
    default: return QColor(component(0), component(1), component(2), component(3));
    }
}

std::pair<QString, QJsonValue> VantraColorPalette::aliasAndColor(PaletteGroup inGroup, PaletteRole inRole,
                                                                 const QString &inAlias) const
{
    const QColor entry = color(inGroup, inRole);
    return {inAlias, QJsonArray{entry.red(), entry.green(), entry.blue()}};
}
