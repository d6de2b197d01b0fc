// The log capture's entry points. In-process tests are linked with
// --wrap=TkzLogMsg --wrap=TkzTrace and compile this with VEX_LOG_WRAP; tests
// of the loaded provider export these definitions from the test program
// (--export-dynamic-symbol), so the provider's calls land here.
#include <cstdarg>
#include <cstdio>

#include "LogCapture.h"

#if defined(VEX_LOG_WRAP)
#define VEX_LOG_FN(name) __wrap_##name
#else
#define VEX_LOG_FN(name) name
#endif

extern "C" __attribute__((visibility("default"))) int VEX_LOG_FN(TkzLogMsg)(int level,
                                                                           const char* format, ...)
    __attribute__((format(printf, 2, 3)));
extern "C" __attribute__((visibility("default"))) int VEX_LOG_FN(TkzTrace)(const char* text);

extern "C" int VEX_LOG_FN(TkzLogMsg)(int level, const char* format, ...) {
    char buffer[2048];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    vex::cmpitest::recordLine(level == 0 ? -1 : level, buffer);
    return 0;
}

extern "C" int VEX_LOG_FN(TkzTrace)(const char* text) {
    vex::cmpitest::recordLine(0, text);
    return 0;
}
