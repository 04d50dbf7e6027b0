#!/usr/bin/env bash
# Type-checks the sources for macOS with clang and GNUstep's AppKit. Nothing is linked or run. What GNUstep lacks is
# declared below as macOS declares it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

qmake=$(command -v qmake6 || command -v qmake)
qt=$("$qmake" -query QT_INSTALL_HEADERS)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cat >"$work/macos.h" <<'TEXT'
#import <AppKit/AppKit.h>
typedef struct CGColorSpace *CGColorSpaceRef;
typedef NSRect CGRect;
typedef uint32_t CGBitmapInfo;
enum CGImageAlphaInfo : uint32_t { kCGImageAlphaPremultipliedFirst = 2 };
enum : uint32_t { kCGBitmapByteOrder32Host = 2 << 12 };
extern "C" {
CGColorSpaceRef CGColorSpaceCreateDeviceRGB();
void CGColorSpaceRelease(CGColorSpaceRef);
CGContextRef CGBitmapContextCreate(void *, size_t, size_t, size_t, size_t, CGColorSpaceRef, CGBitmapInfo);
CGRect CGRectMake(CGFloat, CGFloat, CGFloat, CGFloat);
void CGContextDrawImage(CGContextRef, CGRect, CGImageRef);
void CGContextRelease(CGContextRef);
}
@interface NSWindow (Newer)
@property (strong) NSAppearance *appearance;
@property BOOL titlebarAppearsTransparent;
@end
TEXT

# The headers of the Objective-C runtime are GCC's.
runtime=$(dirname "$(dirname "$(find /usr/lib/gcc -path '*/objc/objc.h' | sort -V | tail -n 1)")")
flags=(-x objective-c++ -std=c++17 -fsyntax-only -fobjc-runtime=gcc -Wall -Wextra -Werror
    -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -DGNUSTEP_GUI_LIBRARY=1 -DQT_FORCE_ASSERTS -DQT_NO_CAST_TO_ASCII
    -isystem /usr/include/GNUstep -idirafter "$runtime" -include "$work/macos.h"
    -isystem "$qt" -isystem "$qt/QtCore" -isystem "$qt/QtGui" -isystem "$qt/QtWidgets"
    -I Source/Common -I Source/Platform)
for folder in Source/Common/*/ Source/Platform/*/; do
    flags+=(-I "$folder")
done

mapfile -t sources < <(find Source Plugins Applications -name '*.mm' | sort)
echo "check-mac: ${#sources[@]} sources"
for source in "${sources[@]}"; do
    clang++ "${flags[@]}" "$source"
done
echo "check-mac: all passed"
