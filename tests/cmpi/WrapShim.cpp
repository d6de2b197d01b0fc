// Log capture for in-process tests: the test program is linked with
// --wrap=TkzLogMsg --wrap=TkzTrace.
#include <cstdarg>
#include <cstdio>

#include "LogCapture.h"

extern "C" int __wrap_TkzLogMsg(int level, const char* format, ...)
    __attribute__((format(printf, 2, 3)));
extern "C" int __wrap_TkzTrace(const char* text);

extern "C" int __wrap_TkzLogMsg(int level, const char* format, ...) {
    char buffer[2048];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    vex::cmpitest::recordLine(level == 0 ? -1 : level, buffer);
    return 0;
}

extern "C" int __wrap_TkzTrace(const char* text) {
    vex::cmpitest::recordLine(0, text);
    return 0;
}
