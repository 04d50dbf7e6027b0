#pragma once

// Owned string handles: immutable UTF-8 texts with a reference count, passed across library borders.
//
//     CFStringRef name = CFStringCreateWithUTF8("Export");   // count 1, owned by the caller
//     VTLog(CFSTR("Job::start %s\n"), CFStringGetUTF8(name));
//     CFRelease(name);
//
// All operations may be called from any thread; the count is atomic. C sources may include this header. On
// macOS the system's own CoreFoundation has handles of these names, and this header steps aside for it.

#include "VTCoreFoundation19Export.h"

#if defined(__APPLE__)

#include <CoreFoundation/CoreFoundation.h>

#else

#if defined(__cplusplus)
extern "C" {
#endif

typedef const struct __CFString *CFStringRef;

// Makes a handle with a copy of the zero-terminated UTF-8 text. The caller owns one reference and gives it
// back with CFRelease. A null text gives a null handle.
VTCOREFOUNDATION19_EXPORT CFStringRef CFStringCreateWithUTF8(const char *inText);

// The text of a handle, zero-terminated UTF-8, valid as long as the handle; "" for a null handle.
VTCOREFOUNDATION19_EXPORT const char *CFStringGetUTF8(CFStringRef inString);

// Adds a reference and returns the handle. Null stays null.
VTCOREFOUNDATION19_EXPORT CFStringRef CFRetain(CFStringRef inString);

// Gives one reference back; the last one frees the text. Does nothing for null and for constant strings.
VTCOREFOUNDATION19_EXPORT void CFRelease(CFStringRef inString);

// The constant string of a literal: made once for each distinct pointer, never freed, ignores CFRelease.
VTCOREFOUNDATION19_EXPORT CFStringRef VTCFConstantString(const char *inLiteral);

#define CFSTR(literal) VTCFConstantString("" literal)

#if defined(__cplusplus)
}
#endif

#endif
