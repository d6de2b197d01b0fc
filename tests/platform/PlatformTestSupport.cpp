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
