#include "LogCapture.h"

#include <algorithm>
#include <mutex>

namespace vex::cmpitest {

namespace {

std::mutex& linesMutex() {
    static std::mutex mutex;
    return mutex;
}

std::vector<LogLine>& lines() {
    static std::vector<LogLine> captured;
    return captured;
}

}  // namespace

void clearLog() {
    std::lock_guard<std::mutex> lock(linesMutex());
    lines().clear();
}

std::vector<LogLine> logLines() {
    std::lock_guard<std::mutex> lock(linesMutex());
    return lines();
}

void recordLine(int level, const char* text) {
    std::lock_guard<std::mutex> lock(linesMutex());
    lines().push_back({level, text != nullptr ? text : "(null)"});
}

bool logged(const std::string& text) {
    auto all = logLines();
    return std::any_of(all.begin(), all.end(),
                       [&](const LogLine& l) { return l.level != 0 && l.text == text; });
}

bool loggedAt(int level, const std::string& text) {
    auto all = logLines();
    return std::any_of(all.begin(), all.end(),
                       [&](const LogLine& l) { return l.level == level && l.text == text; });
}

bool traced(const std::string& text) { return loggedAt(0, text); }

int countLines(const std::string& text) {
    auto all = logLines();
    return static_cast<int>(
        std::count_if(all.begin(), all.end(), [&](const LogLine& l) { return l.text == text; }));
}

}  // namespace vex::cmpitest
