/* Writing to the provider's log: TkzLogMsg and TkzTrace. */
#include <cstdarg>
#include <cstdio>

#include "platform/Tkz.h"
#include "platform/TkzLogLine.h"
#include "platform/TkzLogScope.h"
#include "platform/TkzLogState.h"

using namespace vex::platform;

namespace {
// A formatted message is cut to this buffer; callers keep their formats short.
constexpr std::size_t kMessageSize = 512;
}  // namespace

extern "C" int TkzLogMsg(int level, const char *format, ...) {
    if (logKnownOffInScope()) {
        return 0;
    }
    LogLock lock;
    if (!lock.held()) {
        return 1;
    }
    if (!logAcceptsLines()) {
        noteLogOff();
        return 0;
    }
    if (format == nullptr) {
        return 1;
    }
    char message[kMessageSize];
    va_list args;
    va_start(args, format);
    if (std::vsnprintf(message, sizeof message, format, args) < 0) {
        message[0] = '\0';
    }
    va_end(args);
    return appendLogLine(kLogIdEnd, logLevelWord(level), message);
}

extern "C" int TkzTrace(const char *text) {
    if (logKnownOffInScope()) {
        return 0;
    }
    LogLock lock;
    if (!lock.held()) {
        return 1;
    }
    if (!logAcceptsLines()) {
        noteLogOff();
        return 0;
    }
    if (text == nullptr) {
        return 1;
    }
    return appendLogLine(kTraceIdEnd, kTraceWord, text);
}
