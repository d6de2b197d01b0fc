// When the log writes and when it does not: the file-presence switch, the
// size limit, initialisation once per process and shutdown.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"
#include "platform/TkzPaths.h"

namespace vex::platform::test {
namespace {

constexpr off_t kLimit = 10485759;  // largest file that still receives lines

off_t sizeOf(const std::string &path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 ? info.st_size : -1;
}

using LogSwitchTest = LogTest;

TEST_F(LogSwitchTest, TheFilesPresenceSwitchesLoggingAndItIsNeverCreated) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_FATAL, "lost"), 0);
    EXPECT_EQ(TkzTrace("lost"), 0);
    EXPECT_TRUE(std::filesystem::is_empty(dir_.path()));

    switchLogOn();
    TkzLogMsg(TKZ_LOG_FATAL, "kept");
    EXPECT_EQ(logLines().size(), 1u);

    std::filesystem::remove(logFile());
    TkzLogMsg(TKZ_LOG_FATAL, "lost again");
    EXPECT_FALSE(fileExists(logFile()));
}

TEST_F(LogSwitchTest, FileAtTheLimitStillGrowsOneByteLargerDoesNot) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    for (int trace = 0; trace < 2; ++trace) {
        ASSERT_EQ(truncate(logFile().c_str(), kLimit), 0);
        trace ? TkzTrace("fits") : TkzLogMsg(TKZ_LOG_INFO, "fits");
        EXPECT_GT(sizeOf(logFile()), kLimit) << (trace ? "trace" : "log");
    }

    ASSERT_EQ(truncate(logFile().c_str(), kLimit + 1), 0);
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_INFO, "too big"), 0);
    EXPECT_EQ(TkzTrace("too big"), 0);
    EXPECT_EQ(sizeOf(logFile()), kLimit + 1);
}

TEST_F(LogSwitchTest, SecondInitWithAnotherComponentKeepsTheFirstFile) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    switchLogOn("OTHER");
    EXPECT_EQ(TkzLogInit("OTHER"), 0);
    TkzLogMsg(TKZ_LOG_INFO, "where");

    auto lines = parsedLogLines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].tag, "SMIS------");
    EXPECT_TRUE(logLines("OTHER").empty());
}

TEST_F(LogSwitchTest, LinesOutsideInitAndUninitAreDroppedAndNullComponentIsRefused) {
    switchLogOn();
    TkzLogMsg(TKZ_LOG_INFO, "too early");
    TkzTrace("too early");
    EXPECT_EQ(TkzLogInit(nullptr), 3);
    TkzLogMsg(TKZ_LOG_INFO, "still too early");
    EXPECT_TRUE(logLines().empty());

    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    ASSERT_EQ(logLines().size(), 1u);  // the init trace
    TkzLogUninit();
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_INFO, "too late"), 0);
    // Initialisation happens once per process: it does not come back.
    EXPECT_EQ(TkzLogInit("SMIS"), 0);
    TkzTrace("still too late");
    EXPECT_EQ(logLines().size(), 1u);
}

// The default directory is the real /var/log; a component name of its own
// keeps this test away from the provider's SMIS.txt.
TEST_F(LogSwitchTest, DefaultDirectoryIsVarLog) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root to write /var/log";
    }
    restoreDefaultPaths();
    std::string component = "VexPlatformTest" + std::to_string(getpid());
    std::string path = "/var/log/" + component + ".txt";
    writeFile(path, "");
    EXPECT_EQ(TkzLogInit(component.c_str()), 0);
    TkzLogMsg(TKZ_LOG_DEBUG, "real");
    auto lines = readLines(path);
    std::filesystem::remove(path);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_NE(lines[1].find(":LOG_DEBUG::real"), std::string::npos);
}

}  // namespace
}  // namespace vex::platform::test
