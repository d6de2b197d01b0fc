// When the log writes and when it does not: the file-presence switch, the
// size limit, initialisation once per process and shutdown.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"
#include "platform/TkzLogState.h"
#include "platform/TkzPaths.h"

namespace vex::platform::test {
namespace {

constexpr off_t kLimit = 10485759;  // largest file that still receives lines

using LogSwitchTest = LogTest;

TEST_F(LogSwitchTest, WithoutTheFileNothingIsWrittenAndNothingCreated) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_FATAL, "lost"), 0);
    EXPECT_EQ(TkzTrace("lost"), 0);
    EXPECT_FALSE(fileExists(logFile()));
    EXPECT_TRUE(std::filesystem::is_empty(dir_.path()));

    switchLogOn();
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_FATAL, "kept"), 0);
    ASSERT_EQ(logLines().size(), 1u);

    std::filesystem::remove(logFile());
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_FATAL, "lost again"), 0);
    EXPECT_FALSE(fileExists(logFile()));
}

TEST_F(LogSwitchTest, FileAtTheLimitStillGrowsOneByteLargerDoesNot) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();

    ASSERT_EQ(truncate(logFile().c_str(), kLimit), 0);
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_INFO, "fits"), 0);
    ASSERT_EQ(TkzTrace("fits"), 0);
    struct stat info {};
    ASSERT_EQ(stat(logFile().c_str(), &info), 0);
    EXPECT_GT(info.st_size, kLimit);

    ASSERT_EQ(truncate(logFile().c_str(), kLimit + 1), 0);
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_INFO, "too big"), 0);
    EXPECT_EQ(TkzTrace("too big"), 0);
    ASSERT_EQ(stat(logFile().c_str(), &info), 0);
    EXPECT_EQ(info.st_size, kLimit + 1);
}

TEST_F(LogSwitchTest, NullComponentIsRefusedAndDoesNotBlockALaterInit) {
    switchLogOn();
    EXPECT_EQ(TkzLogInit(nullptr), 3);
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_INFO, "before"), 0);
    EXPECT_TRUE(logLines().empty());

    EXPECT_EQ(TkzLogInit("SMIS"), 0);
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_INFO, "after"), 0);
    EXPECT_EQ(logLines().size(), 2u);  // the init trace and "after"
}

TEST_F(LogSwitchTest, SecondInitWithAnotherComponentKeepsTheFirstFile) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    switchLogOn("OTHER");
    EXPECT_EQ(TkzLogInit("OTHER"), 0);
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_INFO, "where"), 0);

    ASSERT_EQ(logLines().size(), 1u);
    EXPECT_NE(logLines()[0].find("[SMIS------"), std::string::npos);
    EXPECT_TRUE(logLines("OTHER").empty());
}

TEST_F(LogSwitchTest, LinesBeforeInitAndAfterUninitAreDropped) {
    switchLogOn();
    TkzLogMsg(TKZ_LOG_INFO, "too early");
    TkzTrace("too early");
    EXPECT_TRUE(logLines().empty());

    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    ASSERT_EQ(logLines().size(), 1u);
    TkzLogUninit();
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_INFO, "too late"), 0);
    EXPECT_EQ(TkzTrace("too late"), 0);
    // Initialisation happens once per process: it does not come back.
    EXPECT_EQ(TkzLogInit("SMIS"), 0);
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_INFO, "still late"), 0);
    EXPECT_EQ(logLines().size(), 1u);
}

TEST_F(LogSwitchTest, LogDirectoryWithTrailingSlashGetsNoSecondOne) {
    setLogDirectory(dir_.path() + "/");
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    EXPECT_EQ(std::string(logFilePath()), dir_.path() + "/SMIS.txt");
}

// The default directory is the real /var/log; a component name of its own
// keeps this test away from the provider's SMIS.txt.
TEST(LogDefaultDirectoryTest, WritesUnderVarLogWhenItsFileExists) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root to write /var/log";
    }
    restoreDefaultPaths();
    resetLogStateForTesting();
    std::string component = "VexPlatformTest" + std::to_string(getpid());
    std::string path = "/var/log/" + component + ".txt";
    writeFile(path, "");
    EXPECT_EQ(TkzLogInit(component.c_str()), 0);
    EXPECT_EQ(TkzLogMsg(TKZ_LOG_DEBUG, "real"), 0);
    auto lines = readLines(path);
    std::filesystem::remove(path);
    resetLogStateForTesting();

    ASSERT_EQ(lines.size(), 2u);
    EXPECT_NE(lines[1].find(":LOG_DEBUG::real"), std::string::npos);
}

}  // namespace
}  // namespace vex::platform::test
