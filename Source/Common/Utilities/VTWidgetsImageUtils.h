#pragma once

// Loads the pictures of the resources for the display at hand, turns one-coloured masks into icons of any
// colour, and prepares menus.
//
//     button->setIcon(VTWidgetsLoadIcon(":/VTWidgets/Buttons/Save.png", textColor, accentColor));
//
// A picture lies in two files, "Save.png" and "Save@2x.png". One that can't be loaded stops the process: it
// is a fault of packaging, and there is no placeholder. GUI thread only: even loading an image asks the
// screens.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QString>
#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

class QColor;
class QMenu;
class QWidget;

// The double-resolution file on a high-resolution display, if there is one; otherwise the file itself.
VTWIDGETSLITE_EXPORT QImage VTWidgetsLoadImage(const QString &inPath);

// The double-resolution file on a high-resolution display, whether there is one or not: a picture without it
// stops the process there.
VTWIDGETSLITE_EXPORT QPixmap VTWidgetsLoadPixmap(const QString &inPath);

// 2 when double-resolution pictures are in use, otherwise the system's ratio.
VTWIDGETSLITE_EXPORT int VTWidgetsGetDevicePixelRatio();

// An icon of one picture.
VTWIDGETSLITE_EXPORT QIcon VTWidgetsLoadIcon(const QString &inPath);

// An icon with one picture for the state off and one for on, enabled and disabled.
VTWIDGETSLITE_EXPORT QIcon VTWidgetsLoadIcon(const QString &inOffPath, const QString &inOnPath);

// An icon of a mask in two or three colours. An invalid selected or disabled colour leaves that form out.
VTWIDGETSLITE_EXPORT QIcon VTWidgetsLoadIcon(const QString &inPath, const QColor &inNormal,
                                             const QColor &inSelected);
VTWIDGETSLITE_EXPORT QIcon VTWidgetsLoadIcon(const QString &inPath, const QColor &inNormal,
                                             const QColor &inSelected, const QColor &inDisabled);

// An icon of the picture as it is, and of its mask in the selected colour if that is valid.
VTWIDGETSLITE_EXPORT QIcon VTWidgetsLoadSelectableIcon(const QString &inPath, const QColor &inSelected);

// The image's shape, which is its alpha, in one colour. The pixmap has the image's size in pixels and a
// device pixel ratio of 1.
VTWIDGETSLITE_EXPORT QPixmap VTWidgetsGenerateColorPixmap(const QImage &inImage, const QColor &inColor);

// All sizes of an icon's normal form in one colour; other modes and states are not carried over.
VTWIDGETSLITE_EXPORT QIcon VTWidgetsGenerateColorIcon(const QIcon &inIcon, const QColor &inColor);

// Gives the icon a selected form equal to its normal one, so that Qt doesn't shade it.
VTWIDGETSLITE_EXPORT void VTWidgetsGenerateIconSelectedPixmaps(QIcon &ioIcon);

// A new VantraMenu, prepared as below. The parent owns it.
VTWIDGETSLITE_EXPORT QMenu *VTWidgetsCreateStyledMenu(const QString &inTitle, QWidget *inParent);

// Gives a menu and all its submenus the main font and the direction from left to right.
VTWIDGETSLITE_EXPORT void VTWidgetsInitStyledMenu(QMenu &ioMenu);
