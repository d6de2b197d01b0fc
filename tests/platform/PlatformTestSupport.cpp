#include "platform/PlatformTestSupport.h"

#include <pthread.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/TkzLogState.h"
#include "platform/TkzPaths.h"

namespace vex::platform::test {

TempDir::TempDir() {
    const char *base = std::getenv("TMPDIR");
    std::string pattern = std::string(base && *base ? base : "/tmp") + "/vexplatform.XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    if (mkdtemp(name.data()) == nullptr) {
        ADD_FAILURE() << "mkdtemp failed for " << pattern;
    }
    path_ = name.data();
}

TempDir::~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

bool fileExists(const std::string &path) { return std::filesystem::exists(path); }

void writeFile(const std::string &path, const std::string &content) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << content;
    ASSERT_TRUE(out.good()) << path;
}

std::vector<std::string> readLines(const std::string &path) {
    std::vector<std::string> lines;
    std::ifstream in(path, std::ios::binary);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::string logThreadId() {
    char id[16];
    std::snprintf(id, sizeof id, "%8X", static_cast<unsigned int>(pthread_self()));
    return id;
}

namespace {

bool isClock(const std::string &clock) {
    if (clock.size() != 8 || clock[2] != ':' || clock[5] != ':') {
        return false;
    }
    for (size_t i : {0, 1, 3, 4, 6, 7}) {
        if (clock[i] < '0' || clock[i] > '9') {
            return false;
        }
    }
    return true;
}

// "m/d/yyyy hh:mm:ss" with month and day unpadded.
bool parseStamp(const std::string &stamp, LogLine *line) {
    char clock[9] = {};
    int consumed = 0;
    if (std::sscanf(stamp.c_str(), "%d/%d/%d %8[0-9:]%n", &line->month, &line->day, &line->year, clock,
                    &consumed) != 4 ||
        static_cast<size_t>(consumed) != stamp.size()) {
        return false;
    }
    line->clock = clock;
    bool padded = stamp[0] == '0' || stamp[stamp.find('/') + 1] == '0';
    return !padded && line->month >= 1 && line->month <= 12 && line->day >= 1 && line->day <= 31 &&
           line->year >= 1000 && line->year <= 9999 && isClock(line->clock);
}

}  // namespace

bool parseLogLine(const std::string &text, LogLine *line) {
    size_t open = text.find('[');
    size_t close = text.find(']', open);
    if (open == std::string::npos || close == std::string::npos || close - open - 1 < 8) {
        return false;
    }
    if (!parseStamp(text.substr(0, open), line)) {
        return false;
    }
    line->tag = text.substr(open + 1, close - open - 1 - 8);
    line->threadId = text.substr(close - 8, 8);
    line->rest = text.substr(close + 1);
    return true;
}

void LogTest::SetUp() {
    setLogDirectory(dir_.path());
    resetLogStateForTesting();
}

void LogTest::TearDown() {
    resetLogStateForTesting();
    restoreDefaultPaths();
}

std::string LogTest::logFile(const std::string &component) const { return dir_.file(component + ".txt"); }

void LogTest::switchLogOn(const std::string &component) const { writeFile(logFile(component), ""); }

std::vector<std::string> LogTest::logLines(const std::string &component) const {
    return readLines(logFile(component));
}

}  // namespace vex::platform::test
