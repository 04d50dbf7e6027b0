#pragma once

// The house type: the "Roboto" family that the library carries, an eight-step scale of point sizes over it,
// and the user's choice of a larger text size.
//
//     VantraFont::loadApplicationFonts();               // once, before the first font is asked for
//     VantraFont::setUserSelectedFontPointSizeModifier(2);
//     label->setFont(VantraFont::largeFont());
//
// The shared fonts are built once per final point size and stay valid until unloadApplicationFonts. A change
// of the modifier reaches only fonts that are asked for afterwards. The "...Immutable" forms ignore the
// modifier. Asking for a font before loading stops the process; sizes may be asked for at any time. GUI
// thread only.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QFont>

#include <map>
#include <memory>

class QWidget;

class VTWIDGETSLITE_EXPORT VantraFont : public QFont
{
public:
    // Family "Roboto" at 11 points plus the modifier, weight 400.
    VantraFont();

    // The same family at a size in points, to which the modifier is added.
    explicit VantraFont(int inPointSize);

    // Another family at a size in points, to which the modifier is added.
    VantraFont(const QString &inFamily, int inPointSize);

    static QString getFontFamily();

    // The user's text size: 0, 2 or 4 points are added to every size that isn't immutable. Any other value
    // stops the process. Fonts that widgets already have stay as they are.
    static void setUserSelectedFontPointSizeModifier(int inModifier);
    static int userSelectedFontPointSizeModifier();

    // The final point size of a design size: with the modifier and the display's scaling.
    static int scaledPointSize(int inDesignPointSize);

    // Registers the thirteen font files with Qt. Loading twice without unloading stops the process, and so
    // does a file that can't be registered. True on success.
    static bool loadApplicationFonts();

    // Registers the fonts for a plug-in that can't know whether the program does so itself. Does nothing when
    // they are loaded; the program's own first loadApplicationFonts() afterwards takes them over.
    static bool ensureApplicationFonts();

    // Removes the fonts and destroys the shared ones, so that they can be loaded again.
    static void unloadApplicationFonts();

    // Gives the font to the widget and to all its descendants, except those that keep their own font:
    // text-only buttons and group labels. The widget itself takes it without exception.
    static void setFont(const QFont &inFont, QWidget *ioWidget);

    // Gives the font to the listed widgets with the same exceptions.
    static void setFont(const QFont &inFont, const QList<QWidget *> &inWidgets);

    // The type scale: 8, 9, 10, 11, 12, 13, 14 and 18 points.
    static const QFont &extraSmallFont();
    static const QFont &smallFont();
    static const QFont &smallFontPlus();
    static const QFont &mainFont();
    static const QFont &fontPlus();
    static const QFont &largeFont();
    static const QFont &largeFontPlus();
    static const QFont &extraLargeFont();

    static const QFont &extraSmallFontImmutable();
    static const QFont &smallFontImmutable();
    static const QFont &smallFontPlusImmutable();
    static const QFont &mainFontImmutable();
    static const QFont &fontPlusImmutable();
    static const QFont &largeFontImmutable();
    static const QFont &largeFontPlusImmutable();
    static const QFont &extraLargeFontImmutable();

    // The scale's final sizes in points.
    static int extraSmallFontSize();
    static int smallFontSize();
    static int smallFontPlusSize();
    static int mainFontSize();
    static int fontPlusSize();
    static int largeFontSize();
    static int largeFontPlusSize();
    static int extraLargeFontSize();

    static int extraSmallFontSizeImmutable();
    static int smallFontSizeImmutable();
    static int smallFontPlusSizeImmutable();
    static int mainFontSizeImmutable();
    static int fontPlusSizeImmutable();
    static int largeFontSizeImmutable();
    static int largeFontPlusSizeImmutable();
    static int extraLargeFontSizeImmutable();

private:
    static constexpr int kExtraSmallPointSize = 8;
    static constexpr int kSmallPointSize = 9;
    static constexpr int kSmallPointSizePlus = 10;
    static constexpr int kPointSize = 11;
    static constexpr int kPointSizePlus = 12;
    static constexpr int kLargePointSize = 13;
    static constexpr int kLargePointSizePlus = 14;
    static constexpr int kExtraLargePointSize = 18;

    static const QString kRobotoFontFamily;
    static bool kFontsInitialized;
    static int kUserSelectedPointSizeModifier;

    static const QFont &getFontImpl(int inPointSize);
    void init();

    static bool sLoadedByPlugin;
    static QList<int> sFontIDs;
    static std::map<int, std::unique_ptr<QFont>> sFontCache;
};
