#pragma once

// What the whole gallery looks like: accent, text size and style. One object for the process.
//
// A theme load and a text size notify nobody, so this class carries every change to all windows itself, in
// the way that any program with a live theme switch would have to.

#include "Theme/VantraPalette.h"

#include <QtCore/QObject>

#include <array>

class GalleryTheme;

class GalleryLook : public QObject
{
    Q_OBJECT

public:
    // An accent file's name and the role that holds its colour whatever accent is loaded.
    struct Accent
    {
        const char *name;
        VantraPalette::PaletteRole swatchRole;
    };
    static const std::array<Accent, 5> kAccents;

    // The steps of the user's text size, in points added to every size.
    static constexpr std::array<int, 3> kTextSizes = {0, 2, 4};

    // "House" is VantraStyle; "Fusion" shows the same widgets in the stock style and its stock palette.
    enum class Style { House, Fusion };

    using QObject::QObject;

    QString accent() const { return mAccent; }
    int textSize() const { return mTextSize; }
    Style style() const { return mStyle; }

    // Shows documents of these names from start() on, in place of the library's own; either may be empty.
    void setThemeFiles(const QString &inThemeFile, const QString &inAccentFile);

    // True when the accent comes from a file, so that setAccent has no effect.
    bool hasAccentFile() const;

    // Fonts, theme, style and application font, in the order that the library asks for. Once, before the
    // first window. Returns what is wrong with the theme files, in one line, or nothing.
    QString start(const QString &inAccent, int inTextSize, Style inStyle);

    // From now on, changes of the theme files are shown as they come.
    void followThemeFiles();

    void setAccent(const QString &inAccent);
    void setTextSize(int inTextSize);
    void setStyle(Style inStyle);

signals:
    // Every widget has been told already; for what paints nothing of its own but holds a copy of the theme.
    void changed();

    // What is wrong with the theme files as they are now, or nothing once it is mended. What was shown before
    // is shown on.
    void themeTroubled(const QString &inReason);

private:
    QString loadTheme();
    void installStyle();
    void tellAllWidgets();

    GalleryTheme *mTheme = nullptr;
    QString mAccent;
    int mTextSize = 0;
    Style mStyle = Style::House;
};
