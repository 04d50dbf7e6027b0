#pragma once

// What the programs need around windows, screens and texts and Qt doesn't offer directly.
//
//     VTWidgetsCenterOnParent(dialog, window);
//     VTWidgetsSortStringList(names);                              // "Item 2" before "Item 10"
//     qDebug() << VTWidgetsScreenInfo(window);                     // "DP-1-2560x1440@1x"
//
// GUI thread only, except for the constants. A null widget stops the process where nothing else is said.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtGui/qwindowdefs.h>
#include <QtWidgets/QStyle>

class QColor;
class QScreen;
class QWidget;

// The icon of the running program, inSize logical pixels wide and high, with the device pixel ratio set; -1
// is the system's ratio. On Windows the program's own resource "IDI_ICON1", on other systems the
// application's window icon. A null image when there is none.
VTWIDGETSLITE_EXPORT QImage VTWidgetsGetAppIconAsImage(int inSize, int inRatio);

// The whole text of a file or resource, as UTF-8 unless it begins with another encoding's mark. A file that
// can't be opened stops the process.
VTWIDGETSLITE_EXPORT QString VTWidgetsGetString(const QString &inPath);

// Sorts as a person expects: without regard to case, numbers by their value.
VTWIDGETSLITE_EXPORT void VTWidgetsSortStringList(QList<QString> &ioList);

// Brings a window forward and gives it the focus. Does nothing while another program is active, so that the
// focus isn't stolen from it.
VTWIDGETSLITE_EXPORT void VTWidgetsActivateWindow(QWidget *inActivateWindow);

// With true, the window keeps a border in full screen from its next change of state on, which Windows needs
// for menus and tool tips to show above it; without effect on other systems. There is no way back: false does
// nothing.
VTWIDGETSLITE_EXPORT void VTWidgetsSetHasBorderInFullScreen(QWidget *inWidget, bool inEnable);

// Whether the current theme is dark, judged by its WindowBackground: for what has a dark and a light form.
VTWIDGETSLITE_EXPORT bool VTWidgetsIsThemeDark();

// Keeps the title bar of a window dark or light like the current theme, for the window's whole life. On
// Windows and macOS; other systems have settings of their own for it, and older versions of Windows have no
// dark title bar. Main windows, message boxes and progress dialogs do this themselves.
VTWIDGETSLITE_EXPORT void VTWidgetsMatchFrameToTheme(QWidget *inWindow);

// Name, size in logical pixels and ratio of a screen, as in "DP-1-2560x1440@1x"; "Undefined" for none. The
// first form describes the widget's screen, the primary one while the widget has no window.
VTWIDGETSLITE_EXPORT QString VTWidgetsScreenInfo(QWidget *inWidget);
VTWIDGETSLITE_EXPORT QString VTWidgetsScreenInfo(QScreen *inScreen);

// The names of the flags that are set, separated by commas, for log lines.
VTWIDGETSLITE_EXPORT QString VTWidgetsDumpStyleState(QStyle::State inState);

// Moves a top-level widget to the middle of another widget.
VTWIDGETSLITE_EXPORT void VTWidgetsCenterOnParent(QWidget *inWidgetToCenter, QWidget *inParentWidget);

class VTWIDGETSLITE_EXPORT VTWidgetUtils
{
public:
    VTWidgetUtils() = delete;

    // The sizes that a brush steps through, in pixels, from 1 to 2500.
    static const QList<int> kStandardBrushSizeValues;

    // Whether inAncestor is a parent of inWidget at any distance. A widget is no ancestor of its own.
    static bool isAncestorWidget(QWidget *inWidget, QWidget *inAncestor);

    // Crashes, so that the crash reporter can be tried.
    static void testCrashReport();

    // Operations on native windows of macOS; on every other system they stop the process, so calls stand
    // behind VTQtSysInfo::isMacPlatform(). The first argument is the window that is worked on.

    // A child window moves with its parent and lies above it.
    static void objcAddChildWindowToWindow(WId inChild, WId inParent);
    static void objcRemoveChildWindow(WId inChild, WId inParent);

    // The window's place among the layers of the screen; 0 is that of an ordinary window.
    static int objcLevel(WId inWindow);
    static void objcSetLevel(WId inWindow, int inLevel);

    static void objcSetTitleBarColor(WId inWindow, const QColor &inColor);

    // Gives the window the system's own full screen.
    static void objcSetCollectionBehaviorFullScreenPrimary(WId inWindow);
};

// Names of the groups under which the programs keep their presets.
extern VTWIDGETSLITE_EXPORT const QString kBrowseFilterPaneStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kBrowseSearchStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kMetadataTemplateStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kMetadataStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kMetadataStylesStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kSmartImportStylesStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kSmartImportStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kExportStylesStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kExportStyleStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kThumbviewStyleStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kThumbViewStylesStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kNewFileStyleStyleGroup;
extern VTWIDGETSLITE_EXPORT const QString kNewFileStylesStyleGroup;
