#include "platform/PlatformTestSupport.h"

#include <pthread.h>
#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "platform/TkzPaths.h"

namespace vex::platform::test {

TempDir::TempDir() {
    char name[] = "/tmp/vexplatform.XXXXXX";
    if (mkdtemp(name) == nullptr) {
        ADD_FAILURE() << "mkdtemp failed";
    }
    path_ = name;
}

TempDir::~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

bool fileExists(const std::string &path) { return std::filesystem::exists(path); }

void writeFile(const std::string &path, const std::string &content) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << content;
    EXPECT_TRUE(out.good()) << path;
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

// "m/d/yyyy hh:mm:ss" with month and day unpadded.
bool parseStamp(const std::string &stamp, LogLine *line) {
    int hour = -1, minute = -1, second = -1, used = 0;
    if (std::sscanf(stamp.c_str(), "%d/%d/%d %2d:%2d:%2d%n", &line->month, &line->day, &line->year, &hour,
                    &minute, &second, &used) != 6 ||
        static_cast<size_t>(used) != stamp.size() || stamp.size() < 9) {
        return false;
    }
    line->clock = stamp.substr(stamp.size() - 8);
    bool padded = stamp[0] == '0' || stamp[stamp.find('/') + 1] == '0';
    return !padded && line->clock[2] == ':' && line->clock[5] == ':' && line->month >= 1 && line->month <= 12 &&
           line->day >= 1 && line->day <= 31 && line->year >= 1000 && line->year <= 9999;
}

}  // namespace

bool parseLogLine(const std::string &text, LogLine *line) {
    size_t open = text.find('[');
    size_t close = text.find(']', open);
    if (close == std::string::npos || close - open - 1 < 8 || !parseStamp(text.substr(0, open), line)) {
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

std::vector<LogLine> LogTest::parsedLogLines(const std::string &component) const {
    std::vector<LogLine> parsed;
    for (const std::string &text : logLines(component)) {
        LogLine line;
        EXPECT_TRUE(parseLogLine(text, &line)) << text;
        parsed.push_back(line);
    }
    return parsed;
}

}  // namespace vex::platform::test
