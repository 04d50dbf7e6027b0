#include "VTLog.h"

#include <atomic>
#include <cstdio>
#include <vector>

#if defined(__APPLE__)
static const char *formatText(CFStringRef inFormat)
{
    return CFStringGetCStringPtr(inFormat, kCFStringEncodingUTF8);
}
#else
static const char *formatText(CFStringRef inFormat)
{
    return CFStringGetUTF8(inFormat);
}
#endif

namespace {

std::atomic<VTLogSink> sSink{nullptr};

} // namespace

void VTLogSetSink(VTLogSink inSink)
{
    sSink.store(inSink);
}

void VTLog(CFStringRef inFormat, ...)
{
    const char *format = formatText(inFormat);
    if (format == nullptr) {
        return;
    }

    va_list arguments;
    va_start(arguments, inFormat);
    va_list measuring;
    va_copy(measuring, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measuring);
    va_end(measuring);
    std::vector<char> line(length < 0 ? 1 : static_cast<std::size_t>(length) + 1, '\0');
    if (length > 0) {
        std::vsnprintf(line.data(), line.size(), format, arguments);
    }
    va_end(arguments);

    if (length > 0 && line[static_cast<std::size_t>(length) - 1] == '\n') {
        line[static_cast<std::size_t>(length) - 1] = '\0';
    }
    if (const VTLogSink sink = sSink.load()) {
        sink(line.data());
    } else {
        std::fprintf(stderr, "%s\n", line.data());
    }
}
