#include "Theme/VantraFont.h"

#include "VTDpiUtils.h"
#include "VTQtSysInfo.h"

#include <QtCore/QResource>
#include <QtCore/QVariant>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QWidget>

namespace {

constexpr const char *kFontFiles[] = {
    "Roboto-Black.ttf",       "Roboto-BlackItalic.ttf",   "Roboto-Bold.ttf",   "Roboto-BoldItalic.ttf",
    "Roboto-Light.ttf",       "Roboto-LightItalic.ttf",   "Roboto-Medium.ttf", "Roboto-MediumItalic.ttf",
    "Roboto-Regular.ttf",     "Roboto-RegularItalic.ttf", "Roboto-Thin.ttf",   "Roboto-ThinItalic.ttf",
    "FontAwesome6ProReg.ttf",
};

// Registers a font of the resources without a copy: read as a file, each would lie in memory twice.
int addFont(const QString &inPath)
{
    const QResource resource(inPath);
    if (!resource.isValid() || resource.compressionAlgorithm() != QResource::NoCompression) {
        return QFontDatabase::addApplicationFont(inPath);
    }
    return QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(
        reinterpret_cast<const char *>(resource.data()), static_cast<qsizetype>(resource.size())));
}

// The controls stand above the type, so they are told apart by their meta-objects.
bool keepsItsOwnFont(const QWidget *inWidget)
{
    if (inWidget->inherits("VantraGroupLabel")) {
        return true;
    }
    return inWidget->inherits("VantraButton") && inWidget->property("textOnlyButtonStyle").toBool();
}

} // namespace

const QString VantraFont::kRobotoFontFamily = QStringLiteral("Roboto");
bool VantraFont::kFontsInitialized = false;
int VantraFont::kUserSelectedPointSizeModifier = 0;
bool VantraFont::sLoadedByPlugin = false;
QList<int> VantraFont::sFontIDs;
std::map<int, std::unique_ptr<QFont>> VantraFont::sFontCache;

VantraFont::VantraFont() : VantraFont(kPointSize)
{
}

VantraFont::VantraFont(int inPointSize) : VantraFont(kRobotoFontFamily, inPointSize)
{
}

VantraFont::VantraFont(const QString &inFamily, int inPointSize)
    : QFont(inFamily, inPointSize + kUserSelectedPointSizeModifier, QFont::Normal, false)
{
    init();
}

void VantraFont::init()
{
    setStyleStrategy(static_cast<StyleStrategy>(PreferQuality | PreferAntialias));
    if (VTQtSysInfo::isWinPlatform()) {
        // This sets the strategy anew as well, so fonts on Windows end on the default one.
        setStyleHint(QFont::Helvetica, QFont::PreferDefault);
    }
}

QString VantraFont::getFontFamily()
{
    return kRobotoFontFamily;
}

void VantraFont::setUserSelectedFontPointSizeModifier(int inModifier)
{
    // The location is spelled as the product's log readers know it.
    Q_ASSERT_X(inModifier == 0 || inModifier == 2 || inModifier == 4,
               "VentraFont::setUserSelectedFontPointSizeModifier",
               "User selected font modifier must be equivalent to one of the UserSelectedFontSize "
               "enumerations.");
    kUserSelectedPointSizeModifier = inModifier;
}

int VantraFont::userSelectedFontPointSizeModifier()
{
    return kUserSelectedPointSizeModifier;
}

int VantraFont::scaledPointSize(int inDesignPointSize)
{
    return VTDpiUtils::scaleFontPointSize(kUserSelectedPointSizeModifier + inDesignPointSize);
}

bool VantraFont::loadApplicationFonts()
{
    if (sLoadedByPlugin) {
        sLoadedByPlugin = false;
        return kFontsInitialized;
    }
    Q_ASSERT(sFontIDs.size() == 0 && "VantraFont::loadApplicationFonts should only be called once.");
    bool result = true;
    for (const char *file : kFontFiles) {
        const int id = addFont(QLatin1String(":/VTWidgets/Fonts/") + QLatin1String(file));
        const bool validFont = id != -1;
        Q_ASSERT(validFont && "Failed to add all application fonts");
        if (validFont) {
            sFontIDs.append(id);
        } else {
            result = false;
        }
    }
    kFontsInitialized = result;
    return kFontsInitialized;
}

bool VantraFont::ensureApplicationFonts()
{
    if (!kFontsInitialized) {
        loadApplicationFonts();
        sLoadedByPlugin = true;
    }
    return kFontsInitialized;
}

void VantraFont::unloadApplicationFonts()
{
    for (const int id : std::as_const(sFontIDs)) {
        const bool result = QFontDatabase::removeApplicationFont(id);
        Q_ASSERT(result && "Failed to remove application fonts");
        Q_UNUSED(result);
    }
    sFontIDs.clear();
    sFontCache.clear();
    kFontsInitialized = false;
    sLoadedByPlugin = false;
}

void VantraFont::setFont(const QFont &inFont, QWidget *ioWidget)
{
    ioWidget->setFont(inFont);
    setFont(inFont, ioWidget->findChildren<QWidget *>());
}

void VantraFont::setFont(const QFont &inFont, const QList<QWidget *> &inWidgets)
{
    for (QWidget *widget : inWidgets) {
        if (!keepsItsOwnFont(widget)) {
            widget->setFont(inFont);
        }
    }
}

const QFont &VantraFont::getFontImpl(int inPointSize)
{
    Q_ASSERT(kFontsInitialized && "Fonts have not been initialized yet.");
    std::unique_ptr<QFont> &font = sFontCache[inPointSize];
    if (!font) {
        // The constructor adds the modifier, and the size at hand already has it.
        font = std::make_unique<VantraFont>(inPointSize - kUserSelectedPointSizeModifier);
    }
    return *font;
}

const QFont &VantraFont::extraSmallFont()
{
    return getFontImpl(scaledPointSize(kExtraSmallPointSize));
}

const QFont &VantraFont::smallFont()
{
    return getFontImpl(scaledPointSize(kSmallPointSize));
}

const QFont &VantraFont::smallFontPlus()
{
    return getFontImpl(scaledPointSize(kSmallPointSizePlus));
}

const QFont &VantraFont::mainFont()
{
    return getFontImpl(scaledPointSize(kPointSize));
}

const QFont &VantraFont::fontPlus()
{
    return getFontImpl(scaledPointSize(kPointSizePlus));
}

const QFont &VantraFont::largeFont()
{
    return getFontImpl(scaledPointSize(kLargePointSize));
}

const QFont &VantraFont::largeFontPlus()
{
    return getFontImpl(scaledPointSize(kLargePointSizePlus));
}

const QFont &VantraFont::extraLargeFont()
{
    return getFontImpl(scaledPointSize(kExtraLargePointSize));
}

const QFont &VantraFont::extraSmallFontImmutable()
{
    return getFontImpl(VTDpiUtils::scaleFontPointSize(kExtraSmallPointSize));
}

const QFont &VantraFont::smallFontImmutable()
{
    return getFontImpl(VTDpiUtils::scaleFontPointSize(kSmallPointSize));
}

const QFont &VantraFont::smallFontPlusImmutable()
{
    return getFontImpl(VTDpiUtils::scaleFontPointSize(kSmallPointSizePlus));
}

const QFont &VantraFont::mainFontImmutable()
{
    return getFontImpl(VTDpiUtils::scaleFontPointSize(kPointSize));
}

const QFont &VantraFont::fontPlusImmutable()
{
    return getFontImpl(VTDpiUtils::scaleFontPointSize(kPointSizePlus));
}

const QFont &VantraFont::largeFontImmutable()
{
    return getFontImpl(VTDpiUtils::scaleFontPointSize(kLargePointSize));
}

const QFont &VantraFont::largeFontPlusImmutable()
{
    return getFontImpl(VTDpiUtils::scaleFontPointSize(kLargePointSizePlus));
}

const QFont &VantraFont::extraLargeFontImmutable()
{
    return getFontImpl(VTDpiUtils::scaleFontPointSize(kExtraLargePointSize));
}

int VantraFont::extraSmallFontSize()
{
    return scaledPointSize(kExtraSmallPointSize);
}

int VantraFont::smallFontSize()
{
    return scaledPointSize(kSmallPointSize);
}

int VantraFont::smallFontPlusSize()
{
    return scaledPointSize(kSmallPointSizePlus);
}

int VantraFont::mainFontSize()
{
    return scaledPointSize(kPointSize);
}

int VantraFont::fontPlusSize()
{
    return scaledPointSize(kPointSizePlus);
}

int VantraFont::largeFontSize()
{
    return scaledPointSize(kLargePointSize);
}

int VantraFont::largeFontPlusSize()
{
    return scaledPointSize(kLargePointSizePlus);
}

int VantraFont::extraLargeFontSize()
{
    return scaledPointSize(kExtraLargePointSize);
}

int VantraFont::extraSmallFontSizeImmutable()
{
    return VTDpiUtils::scaleFontPointSize(kExtraSmallPointSize);
}

int VantraFont::smallFontSizeImmutable()
{
    return VTDpiUtils::scaleFontPointSize(kSmallPointSize);
}

int VantraFont::smallFontPlusSizeImmutable()
{
    return VTDpiUtils::scaleFontPointSize(kSmallPointSizePlus);
}

int VantraFont::mainFontSizeImmutable()
{
    return VTDpiUtils::scaleFontPointSize(kPointSize);
}

int VantraFont::fontPlusSizeImmutable()
{
    return VTDpiUtils::scaleFontPointSize(kPointSizePlus);
}

int VantraFont::largeFontSizeImmutable()
{
    return VTDpiUtils::scaleFontPointSize(kLargePointSize);
}

int VantraFont::largeFontPlusSizeImmutable()
{
    return VTDpiUtils::scaleFontPointSize(kLargePointSizePlus);
}

int VantraFont::extraLargeFontSizeImmutable()
{
    return VTDpiUtils::scaleFontPointSize(kExtraLargePointSize);
}
