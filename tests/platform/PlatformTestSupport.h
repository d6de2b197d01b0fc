// Helpers for the portability-layer tests: a scratch directory, small file
// utilities and a fixture that points the log at the scratch directory.
#ifndef VEX_TESTS_PLATFORM_PLATFORMTESTSUPPORT_H
#define VEX_TESTS_PLATFORM_PLATFORMTESTSUPPORT_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vex::platform::test {

// A fresh directory under $TMPDIR (or /tmp), removed with its contents.
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
// The calling thread's id as the log writes it ("%8X").
std::string logThreadId();

// Each test starts with logging not initialised and the log directory in a
// scratch directory; everything is put back afterwards.
class LogTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    std::string logFile(const std::string &component = "SMIS") const;
    void switchLogOn(const std::string &component = "SMIS") const;  // creates the empty file
    std::vector<std::string> logLines(const std::string &component = "SMIS") const;

    TempDir dir_;
};

}  // namespace vex::platform::test

#endif  // VEX_TESTS_PLATFORM_PLATFORMTESTSUPPORT_H
