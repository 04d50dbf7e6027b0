#include "VTCFString.h"

#if !defined(__APPLE__)

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

struct __CFString
{
    explicit __CFString(const char *inText, bool inConstant = false) : text(inText), constant(inConstant) {}

    std::string text;
    bool constant;
    mutable std::atomic<int> references{1};
};

CFStringRef CFStringCreateWithUTF8(const char *inText)
{
    return inText == nullptr ? nullptr : new __CFString(inText);
}

const char *CFStringGetUTF8(CFStringRef inString)
{
    return inString == nullptr ? "" : inString->text.c_str();
}

CFStringRef CFRetain(CFStringRef inString)
{
    if (inString != nullptr && !inString->constant) {
        inString->references.fetch_add(1, std::memory_order_relaxed);
    }
    return inString;
}

void CFRelease(CFStringRef inString)
{
    if (inString == nullptr || inString->constant) {
        return;
    }
    if (inString->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        delete inString;
    }
}

CFStringRef VTCFConstantString(const char *inLiteral)
{
    using Strings = std::unordered_map<const char *, std::unique_ptr<const __CFString>>;
    // Not destroyed at the program's end, which threads may outlive.
    static std::mutex &sMutex = *new std::mutex;
    static Strings &sStrings = *new Strings;
    const std::lock_guard<std::mutex> lock(sMutex);
    std::unique_ptr<const __CFString> &string = sStrings[inLiteral];
    if (!string) {
        string = std::make_unique<const __CFString>(inLiteral, true);
    }
    return string.get();
}

#endif
