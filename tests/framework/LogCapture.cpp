#include "LogCapture.h"

#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace vex::cim::fwf::test {

namespace {

std::mutex gMutex;
std::vector<LoggedLine> gLines;

}  // namespace

void clearLog() {
    std::lock_guard<std::mutex> lock(gMutex);
    gLines.clear();
}

std::vector<LoggedLine> loggedLines() {
    std::lock_guard<std::mutex> lock(gMutex);
    return gLines;
}

}  // namespace vex::cim::fwf::test

extern "C" int __wrap_TkzLogMsg(int level, const char* format, ...)
    __attribute__((format(printf, 2, 3)));

extern "C" int __wrap_TkzLogMsg(int level, const char* format, ...) {
    char buffer[512];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    std::lock_guard<std::mutex> lock(vex::cim::fwf::test::gMutex);
    vex::cim::fwf::test::gLines.push_back({level, buffer});
    return 0;
}
