// Log capture for tests of the loaded provider: these definitions are
// exported from the test program (--export-dynamic-symbol), so the provider's
// calls of TkzLogMsg and TkzTrace land here instead of in its log file.
#include <cstdarg>
#include <cstdio>

#include "LogCapture.h"

extern "C" __attribute__((visibility("default"))) int TkzLogMsg(int level, const char* format, ...)
    __attribute__((format(printf, 2, 3)));
extern "C" __attribute__((visibility("default"))) int TkzTrace(const char* text);

extern "C" int TkzLogMsg(int level, const char* format, ...) {
    char buffer[2048];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    vex::cmpitest::recordLine(level == 0 ? -1 : level, buffer);
    return 0;
}

extern "C" int TkzTrace(const char* text) {
    vex::cmpitest::recordLine(0, text);
    return 0;
}
