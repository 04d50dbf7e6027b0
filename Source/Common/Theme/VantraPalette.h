#pragma once

// The two words that name every themed colour and font: a role says what is painted, a group in which
// condition. Both are known to the meta-object system, since theme files spell them as text.
//
//     const QColor text = VantraStyleTheme::instance().colorPalette().color(VantraPalette::Disabled,
//                                                                           VantraPalette::ButtonText);

#include "VTWidgetsLiteExport.h"

#include <QtCore/QObject>

class QJsonObject;

class VTWIDGETSLITE_EXPORT VantraPalette
{
    Q_GADGET

public:
    // Not a QPalette::ColorGroup. Value 2 is left free.
    enum PaletteGroup : int {
        Normal = 0,
        Disabled = 1,
        Highlighted = 3,
    };
    Q_ENUM(PaletteGroup)

    // The spellings are those of the theme files, to the letter. DefaultRole stands for "the role of the
    // control's own style" and has no colour of its own.
    enum PaletteRole : int {
        DefaultRole = 0,
        WindowBackground = 1,
        WindowText = 2,
        Accent = 3,
        HighlightedText = 4,
        HighlightedTextBackground = 5,
        ButtonBackground = 6,
        ButtonText = 7,
        AlternateButtonBackground = 8,
        AlternateButtonText = 9,
        AccentButtonBackground = 10,
        AccentButtonText = 11,
        TobButtonBackground = 12,
        TobButtonText = 13,
        BlueAccentButtonBackground = 14,
        GreenAccentButtonBackground = 15,
        OrangeAccentButtonBackground = 16,
        PurpleAccentButtonBackground = 17,
        RedAccentButtonBackground = 18,
        TabButtonBackground = 19,
        TabButtonText = 20,
        TabBarBackground = 21,
        TabBarText = 22,
        MenuBackground = 23,
        MenuLine = 24,
        OverlayMenuBackground = 25,
        OverlayMenuLine = 26,
        MenuItemText = 27,
        SpinBoxBackground = 28,
        SpinBoxText = 29,
        ComboBoxBackground = 30,
        ComboBoxText = 31,
        LineEditBackgroundNone = 32,
        LineEditBackground = 33,
        TokenBoxBackground = 34,
        LineEditText = 35,
        ToolButtonIconBackground = 36,
        ToolButtonText = 37,
        ModuleToolButtonText = 38,
        Checkmark = 39,
        Checkbox = 40,
        FrameBackground = 41,
        FrameRaisedBackground = 42,
        FrameSunkenBackground = 43,
        FrameLine = 44,
        FrameOverlayBackground = 45,
        PaneBackground = 46,
        PaneLine = 47,
        PaneHeaderText = 48,
        ListPaneHeaderText = 49,
        SubPaneHeaderText = 50,
        SliderGrove = 51,
        SliderHandle = 52,
        SliderValue = 53,
        ViewItemText = 54,
        ViewItemBackground = 55,
        CategoryViewItemBackground = 56,
        GroupBoxText = 57,
        GroupBoxFrameBackground = 58,
        GroupBoxContentsBackground = 59,
        ScrollBar = 60,
        ProgressBarGroove = 61,
        ProgressBarContents = 62,
        SplitterBackground = 63,
        SplitterHandle = 64,
    };
    Q_ENUM(PaletteRole)

protected:
    // The pair that names one entry. Words that a theme file spells wrongly are held as -1.
    struct Key
    {
        PaletteGroup group;
        PaletteRole role;

        friend bool operator==(const Key &inLeft, const Key &inRight)
        {
            return inLeft.group == inRight.group && inLeft.role == inRight.role;
        }
    };

    struct KeyHash
    {
        std::size_t operator()(const Key &inKey) const
        {
            return static_cast<std::size_t>((static_cast<quint64>(inKey.group) << 32) |
                                            static_cast<quint64>(static_cast<qint64>(inKey.role)));
        }
    };

    // Reads the words "group" and "role" of a theme entry; an unknown or absent word reads as -1.
    static Key keyFromConfig(const QJsonObject &inEntry);
};
