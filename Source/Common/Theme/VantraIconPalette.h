#pragma once

// Tints one-coloured icons with the colour of the text beside them or with an accent. A flag set tells for
// each mode and state of an icon which of the two it takes.
//
//     const QPixmap pixmap = VantraStyleTheme::instance().tintedPixmap(
//         icon, QSize(24, 24), devicePixelRatioF(), QIcon::Normal, QIcon::On,
//         VantraIconPalette::IconTintingOnAlternateOffForeground, textColor, accentColor);
//
// Results are kept in QPixmapCache under keys that hold the colour, so a changed theme needs no flush. The
// class itself holds no data. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QObject>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>

class QColor;
class QSize;

class VTWIDGETSLITE_EXPORT VantraIconPalette
{
    Q_GADGET

public:
    // "On" and "Off" are the QIcon::State; "Normal", "Disabled", "Active" and "Selected" the QIcon::Mode.
    // IconTintingNone, which turns tinting off, is the four Off...None bits alone.
    enum IconTinting {
        IconTintingOnNormalNone = 0x1,
        IconTintingOnDisabledNone = 0x2,
        IconTintingOnActiveNone = 0x4,
        IconTintingOnSelectedNone = 0x8,
        IconTintingOffNormalNone = 0x10,
        IconTintingOffDisabledNone = 0x20,
        IconTintingOffActiveNone = 0x40,
        IconTintingOffSelectedNone = 0x80,
        IconTintingOnNormalForeground = 0x100,
        IconTintingOnDisabledForeground = 0x200,
        IconTintingOnActiveForeground = 0x400,
        IconTintingOnSelectedForeground = 0x800,
        IconTintingOffNormalForeground = 0x1000,
        IconTintingOffDisabledForeground = 0x2000,
        IconTintingOffActiveForeground = 0x4000,
        IconTintingOffSelectedForeground = 0x8000,
        IconTintingOnNormalAlternate = 0x10000,
        IconTintingOnDisabledAlternate = 0x20000,
        IconTintingOnActiveAlternate = 0x40000,
        IconTintingOnSelectedAlternate = 0x80000,
        IconTintingOffNormalAlternate = 0x100000,
        IconTintingOffDisabledAlternate = 0x200000,
        IconTintingOffActiveAlternate = 0x400000,
        IconTintingOffSelectedAlternate = 0x800000,

        IconTintingNone = 0xf0,
        IconTintingOnForeground = 0xf00,
        IconTintingOffForeground = 0xf000,
        IconTintingOnAlternate = 0xf0000,
        IconTintingOffAlternate = 0xf00000,
        IconTintingForeground = 0xff00,
        IconTintingAlternate = 0xff0000,
        IconTintingOnAlternateOffForeground = 0xff000,
        IconTintingNormalForeground = 0x1100,
        IconTintingSelectedAlternate = 0x880000,
        IconTintingDisabledForeground = 0x2200,
    };
    Q_DECLARE_FLAGS(IconTintings, IconTinting)
    Q_FLAG(IconTintings)

    // The icon's pixmap for a mode, a state, a size in logical pixels and a device pixel ratio, tinted as the
    // flags ask; the foreground flag of a mode and state beats the alternate one. The tint replaces red,
    // green and blue of every pixel and leaves its alpha; an invalid colour means no tint. A null icon gives
    // a null pixmap.
    QPixmap tintPixmap(const QIcon &inIcon, const QSize &inSize, double inDevicePixelRatio,
                       QIcon::Mode inMode, QIcon::State inState, IconTintings inTinting,
                       const QColor &inForeground, const QColor &inAlternate) const;

private:
    QString cacheKey(const QIcon &inIcon, const QSize &inSize, double inDevicePixelRatio, QIcon::Mode inMode,
                     QIcon::State inState) const;
    QString cacheKey(const QIcon &inIcon, const QSize &inSize, double inDevicePixelRatio, QIcon::Mode inMode,
                     QIcon::State inState, const QColor &inColor) const;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VantraIconPalette::IconTintings)
