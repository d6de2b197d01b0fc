// What one log or trace line looks like, byte for byte.
#include <gtest/gtest.h>

#include <ctime>
#include <string>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"

namespace vex::platform::test {
namespace {

std::tm localNow() {
    std::time_t now = std::time(nullptr);
    std::tm tm{};
    localtime_r(&now, &tm);
    return tm;
}

bool sameDay(const LogLine &line, const std::tm &tm) {
    return line.month == tm.tm_mon + 1 && line.day == tm.tm_mday && line.year == tm.tm_year + 1900;
}

// The single line of the SMIS log, parsed.
LogLine onlyLine(const std::vector<std::string> &lines) {
    LogLine line;
    EXPECT_EQ(lines.size(), 1u);
    if (!lines.empty()) {
        EXPECT_TRUE(parseLogLine(lines[0], &line)) << lines[0];
    }
    return line;
}

using LogLineTest = LogTest;

TEST_F(LogLineTest, LogLineCarriesTimeComponentThreadIdLevelAndMessage) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    std::tm before = localNow();
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_ERROR, "disk %d of %s", 3, "ctrl"), 0);
    std::tm after = localNow();

    LogLine line = onlyLine(logLines());
    EXPECT_EQ(line.tag, "SMIS------");
    EXPECT_EQ(line.threadId, logThreadId());
    EXPECT_EQ(line.rest, "\t:LOG_ERROR::disk 3 of ctrl");
    EXPECT_TRUE(sameDay(line, before) || sameDay(line, after));
}

TEST_F(LogLineTest, EveryLevelIsWrittenWithItsWordAndUnknownLevelsAsInfo) {
    const char *expected[] = {":LOG_INFO::",  ":LOG_FATAL::", ":LOG_ERROR::", ":LOG_WARN::", ":LOG_DEBUG::",
                              ":LOG_INFO::",  ":LOG_INFO::",  ":LOG_INFO::",  ":LOG_INFO::", ":LOG_INFO::"};
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    for (int level = 0; level <= 9; ++level) {
        ASSERT_EQ(TkzLogMsg(level, "level %d", level), 0);
    }
    TkzLogMsg(-1, "negative");

    auto lines = logLines();
    ASSERT_EQ(lines.size(), 11u);
    for (int level = 0; level <= 9; ++level) {
        LogLine line;
        ASSERT_TRUE(parseLogLine(lines[level], &line)) << lines[level];
        EXPECT_EQ(line.rest, std::string("\t") + expected[level] + "level " + std::to_string(level));
    }
    LogLine negative;
    ASSERT_TRUE(parseLogLine(lines[10], &negative));
    EXPECT_EQ(negative.rest, "\t:LOG_INFO::negative");
}

TEST_F(LogLineTest, TraceLineUsesTwoBlanksAndSpacedInfoWordAndNeverFormatsItsText) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    ASSERT_EQ(TkzTrace("Entering %s %n %d 100%"), 0);

    LogLine line = onlyLine(logLines());
    EXPECT_EQ(line.tag, "SMIS------");
    EXPECT_EQ(line.threadId, logThreadId());
    EXPECT_EQ(line.rest, "  :LOG_INFO :: Entering %s %n %d 100%");
}

TEST_F(LogLineTest, InitTracesItsSuccessWhenTheFileIsThere) {
    switchLogOn();
    ASSERT_EQ(TkzLogInit("SMIS"), 0);

    LogLine line = onlyLine(logLines());
    EXPECT_EQ(line.rest, "  :LOG_INFO :: ######OSLIB Init Suucesazful#####");
}

TEST_F(LogLineTest, MessageLongerThanTheBufferIsCutTo511Characters) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    std::string longText(2000, 'x');
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_INFO, "%s%s", longText.c_str(), "END"), 0);
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_INFO, "next"), 0);

    auto lines = logLines();
    ASSERT_EQ(lines.size(), 2u);
    LogLine cut;
    LogLine next;
    ASSERT_TRUE(parseLogLine(lines[0], &cut));
    ASSERT_TRUE(parseLogLine(lines[1], &next));
    EXPECT_EQ(cut.rest, "\t:LOG_INFO::" + std::string(511, 'x'));
    EXPECT_EQ(next.rest, "\t:LOG_INFO::next");
}

// The header pads the component with dashes to ten characters, never more.
struct HeaderCase {
    const char *component;
    const char *padded;
};

class LogHeaderTest : public LogTest, public ::testing::WithParamInterface<HeaderCase> {};

TEST_P(LogHeaderTest, ComponentAndDashesFillTenCharacters) {
    const HeaderCase &c = GetParam();
    ASSERT_EQ(TkzLogInit(c.component), 0);
    switchLogOn(c.component);
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_WARN, "w"), 0);

    LogLine line = onlyLine(logLines(c.component));
    EXPECT_EQ(line.tag, c.padded);
    EXPECT_EQ(line.rest, "\t:LOG_WARN::w");
}

INSTANTIATE_TEST_SUITE_P(Components, LogHeaderTest,
                         ::testing::Values(HeaderCase{"A", "A---------"}, HeaderCase{"SMIS", "SMIS------"},
                                           HeaderCase{"ABCDEFGHIJ", "ABCDEFGHIJ"},
                                           HeaderCase{"ABCDEFGHIJKL", "ABCDEFGHIJKL"}));

}  // namespace
}  // namespace vex::platform::test
