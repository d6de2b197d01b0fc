#include "platform/TkzLogLine.h"

#include <cstdio>
#include <cstring>

#include "platform/Tkz.h"
#include "platform/TkzLogState.h"

namespace vex::platform {
namespace {

constexpr std::size_t kHeaderWidth = 10;  // component plus dashes
constexpr const char kDashes[] = "----------";

// "[<component><dashes><thread id>]<idEnd>"
void formatHeader(char *header, std::size_t size, const char *idEnd) {
    const char *component = logComponent();
    std::size_t length = std::strlen(component);
    const char *dashes = kDashes + (length < kHeaderWidth ? length : kHeaderWidth);
    unsigned int threadId = static_cast<unsigned int>(TkzGetCurrentThreadId());
    std::snprintf(header, size, "[%s%s%8X]%s", component, dashes, threadId, idEnd);
}

}  // namespace

const char *logLevelWord(int level) {
    switch (level) {
    case TKZ_LOG_FATAL:
        return ":LOG_FATAL::";
    case TKZ_LOG_ERROR:
        return ":LOG_ERROR::";
    case TKZ_LOG_WARN:
        return ":LOG_WARN::";
    case TKZ_LOG_DEBUG:
        return ":LOG_DEBUG::";
    default:
        return ":LOG_INFO::";
    }
}

bool logAcceptsLines() {
    if (LOGInit.load() == 0 || g_LogMsg == nullptr) {
        return false;
    }
    // The file's presence is the switch: it is never created here.
    unsigned long long size = 0;
    if (!TkzFileExists(logFilePath(), &size)) {
        return false;
    }
    return size <= kLogSizeLimit;
}

int appendLogLine(const char *idEnd, const char *word, const char *text) {
    std::FILE *file = std::fopen(logFilePath(), "r+");
    if (file == nullptr) {
        return 1;
    }
    if (std::fseek(file, 0, SEEK_END) != 0) {
        std::fclose(file);
        return 1;
    }
    char time[64];
    if (TkzGetLocalTime(time, sizeof time) != 0) {
        time[0] = '\0';
    }
    char header[kLogComponentSize + 32];
    formatHeader(header, sizeof header, idEnd);
    int written = std::fprintf(file, "%s%s%s%s\n", time, header, word, text);
    int closed = std::fclose(file);
    return (written < 0 || closed != 0) ? 1 : 0;
}

}  // namespace vex::platform
