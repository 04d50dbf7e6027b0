#include "Utilities/VTWidgetUtils.h"
#include "Utilities/VTWidgetUtilsNative_p.h"

#include <QtGui/QColor>
#include <QtGui/QGuiApplication>

#import <AppKit/AppKit.h>

namespace {

// A Qt window's native handle on this system is its view.
NSWindow *nativeWindow(WId inWindow)
{
    return [reinterpret_cast<NSView *>(inWindow) window];
}

} // namespace

QImage VTWidgetUtilsNative::appIcon(int inPixels)
{
    NSRect area = NSMakeRect(0, 0, inPixels, inPixels);
    CGImageRef icon = [[NSApp applicationIconImage] CGImageForProposedRect:&area context:nil hints:nil];
    QImage image(inPixels, inPixels, QImage::Format_ARGB32_Premultiplied);
    if (icon == nullptr || image.isNull()) {
        return QImage();
    }
    image.fill(0);
    const CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    const CGContextRef context =
        CGBitmapContextCreate(image.bits(), static_cast<size_t>(inPixels), static_cast<size_t>(inPixels), 8,
                              static_cast<size_t>(image.bytesPerLine()), space,
                              static_cast<CGBitmapInfo>(kCGImageAlphaPremultipliedFirst) |
                                  static_cast<CGBitmapInfo>(kCGBitmapByteOrder32Host));
    CGContextDrawImage(context, CGRectMake(0, 0, inPixels, inPixels), icon);
    CGContextRelease(context);
    CGColorSpaceRelease(space);
    return image;
}

void VTWidgetUtilsNative::addBorder(WId)
{
}

void VTWidgetUtilsNative::setFrameDark(WId inWindow, bool inDark)
{
    // Other platform plugins, such as "offscreen", have handles that are not views.
    if (QGuiApplication::platformName() == "cocoa") {
        nativeWindow(inWindow).appearance =
            [NSAppearance appearanceNamed:inDark ? NSAppearanceNameDarkAqua : NSAppearanceNameAqua];
    }
}

void VTWidgetUtils::objcAddChildWindowToWindow(WId inChild, WId inParent)
{
    [nativeWindow(inParent) addChildWindow:nativeWindow(inChild) ordered:NSWindowAbove];
}

void VTWidgetUtils::objcRemoveChildWindow(WId inChild, WId inParent)
{
    [nativeWindow(inParent) removeChildWindow:nativeWindow(inChild)];
}

int VTWidgetUtils::objcLevel(WId inWindow)
{
    return static_cast<int>([nativeWindow(inWindow) level]);
}

void VTWidgetUtils::objcSetLevel(WId inWindow, int inLevel)
{
    [nativeWindow(inWindow) setLevel:inLevel];
}

void VTWidgetUtils::objcSetTitleBarColor(WId inWindow, const QColor &inColor)
{
    NSWindow *window = nativeWindow(inWindow);
    window.titlebarAppearsTransparent = YES;
    window.backgroundColor = [NSColor colorWithSRGBRed:inColor.redF()
                                                 green:inColor.greenF()
                                                  blue:inColor.blueF()
                                                 alpha:inColor.alphaF()];
}

void VTWidgetUtils::objcSetCollectionBehaviorFullScreenPrimary(WId inWindow)
{
    NSWindow *window = nativeWindow(inWindow);
    window.collectionBehavior = window.collectionBehavior | NSWindowCollectionBehaviorFullScreenPrimary;
}
