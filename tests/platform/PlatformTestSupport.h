// Helpers for the portability-layer tests: a scratch directory, small file
// utilities, a log-line parser and a fixture that points the log at the
// scratch directory.
#ifndef VEX_TESTS_PLATFORM_PLATFORMTESTSUPPORT_H
#define VEX_TESTS_PLATFORM_PLATFORMTESTSUPPORT_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/TkzLogState.h"

namespace vex::platform::test {

// A fresh directory under /tmp, removed with its contents.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir &) = delete;
    TempDir &operator=(const TempDir &) = delete;
    const std::string &path() const { return path_; }
    std::string file(const std::string &name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

bool fileExists(const std::string &path);
void writeFile(const std::string &path, const std::string &content);
std::vector<std::string> readLines(const std::string &path);
std::string logThreadId();  // the calling thread's id as the log writes it

// "m/d/yyyy hh:mm:ss[<tag><thread id>]<rest>": the tag is the component with
// its dashes, the thread id its last 8 characters before "]".
struct LogLine {
    int month = 0, day = 0, year = 0;
    std::string clock, tag, threadId, rest;
};
// False when the text does not have that shape (padded month or day included).
bool parseLogLine(const std::string &text, LogLine *line);

// Each test starts with logging not initialised and its directory in a
// scratch directory; everything is put back afterwards.
class LogTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    std::string logFile(const std::string &component = "SMIS") const;
    void switchLogOn(const std::string &component = "SMIS") const;  // creates the empty file
    std::vector<std::string> logLines(const std::string &component = "SMIS") const;
    std::vector<LogLine> parsedLogLines(const std::string &component = "SMIS") const;

    TempDir dir_;
};

}  // namespace vex::platform::test

#endif  // VEX_TESTS_PLATFORM_PLATFORMTESTSUPPORT_H
