// What one log or trace line looks like, byte for byte.
#include <gtest/gtest.h>

#include <ctime>
#include <string>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"

namespace vex::platform::test {
namespace {

bool sameDay(const LogLine &line, std::time_t when) {
    std::tm tm{};
    localtime_r(&when, &tm);
    return line.month == tm.tm_mon + 1 && line.day == tm.tm_mday && line.year == tm.tm_year + 1900;
}

using LogLineTest = LogTest;

TEST_F(LogLineTest, LogLineCarriesTimeComponentThreadIdLevelAndMessage) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    std::time_t before = std::time(nullptr);
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_ERROR, "disk %d of %s", 3, "ctrl"), 0);
    std::time_t after = std::time(nullptr);

    auto lines = parsedLogLines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].tag, "SMIS------");
    EXPECT_EQ(lines[0].threadId, logThreadId());
    EXPECT_EQ(lines[0].rest, "\t:LOG_ERROR::disk 3 of ctrl");
    EXPECT_TRUE(sameDay(lines[0], before) || sameDay(lines[0], after));
}

TEST_F(LogLineTest, EveryLevelIsWrittenWithItsWordAndUnknownLevelsAsInfo) {
    const char *expected[] = {":LOG_INFO::",  ":LOG_FATAL::", ":LOG_ERROR::", ":LOG_WARN::", ":LOG_DEBUG::",
                              ":LOG_INFO::",  ":LOG_INFO::",  ":LOG_INFO::",  ":LOG_INFO::", ":LOG_INFO::"};
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    for (int level = 0; level <= 9; ++level) {
        ASSERT_EQ(TkzLogMsg(level, "level %d", level), 0);
    }
    auto lines = parsedLogLines();
    ASSERT_EQ(lines.size(), 10u);
    for (int level = 0; level <= 9; ++level) {
        EXPECT_EQ(lines[level].rest, std::string("\t") + expected[level] + "level " + std::to_string(level));
    }
}

TEST_F(LogLineTest, TraceLineHasTwoBlanksAndTheSpacedInfoWordAndNeverFormatsItsText) {
    switchLogOn();
    ASSERT_EQ(TkzLogInit("SMIS"), 0);  // traces its success into the existing file
    ASSERT_EQ(TkzTrace("Entering %s %n %d 100%"), 0);

    auto lines = parsedLogLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].rest, "  :LOG_INFO :: ######OSLIB Init Suucesazful#####");
    EXPECT_EQ(lines[1].tag, "SMIS------");
    EXPECT_EQ(lines[1].threadId, logThreadId());
    EXPECT_EQ(lines[1].rest, "  :LOG_INFO :: Entering %s %n %d 100%");
}

TEST_F(LogLineTest, MessageLongerThanTheBufferIsCutTo511Characters) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    std::string longText(2000, 'x');
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_INFO, "%s%s", longText.c_str(), "END"), 0);
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_INFO, "next"), 0);

    auto lines = parsedLogLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].rest, "\t:LOG_INFO::" + std::string(511, 'x'));
    EXPECT_EQ(lines[1].rest, "\t:LOG_INFO::next");
}

TEST_F(LogLineTest, DashesFillTheComponentToTenCharactersNeverMore) {
    const std::pair<const char *, const char *> cases[] = {
        {"A", "A---------"}, {"ABCDEFGHIJ", "ABCDEFGHIJ"}, {"ABCDEFGHIJKL", "ABCDEFGHIJKL"}};
    for (auto [component, tag] : cases) {
        resetLogStateForTesting();
        ASSERT_EQ(TkzLogInit(component), 0);
        switchLogOn(component);
        ASSERT_EQ(TkzLogMsg(TKZ_LOG_WARN, "w"), 0);
        auto lines = parsedLogLines(component);
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].tag, tag);
    }
}

}  // namespace
}  // namespace vex::platform::test
