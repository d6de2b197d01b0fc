// What one log or trace line looks like, byte for byte.
#include <gtest/gtest.h>

#include <ctime>
#include <regex>
#include <string>

#include "platform/PlatformTestSupport.h"
#include "platform/Tkz.h"

namespace vex::platform::test {
namespace {

// month/day/year (no padding) and hh:mm:ss, then the header.
const std::string kTime = R"(([1-9]|1[0-2])/([1-9]|[12][0-9]|3[01])/([0-9]{4}) ([0-9]{2}):([0-9]{2}):([0-9]{2}))";

std::string escaped(const std::string &text) { return std::regex_replace(text, std::regex(R"([.^$|()\[\]{}*+?\\])"), R"(\$&)"); }

std::tm localNow() {
    std::time_t now = std::time(nullptr);
    std::tm tm{};
    localtime_r(&now, &tm);
    return tm;
}

bool sameDay(const std::smatch &m, const std::tm &tm) {
    return std::stoi(m[1]) == tm.tm_mon + 1 && std::stoi(m[2]) == tm.tm_mday && std::stoi(m[3]) == tm.tm_year + 1900;
}

using LogLineTest = LogTest;

TEST_F(LogLineTest, LogLineCarriesTimeComponentThreadIdLevelAndMessage) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    std::tm before = localNow();
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_ERROR, "disk %d of %s", 3, "ctrl"), 0);
    std::tm after = localNow();

    auto lines = logLines();
    ASSERT_EQ(lines.size(), 1u);
    std::smatch m;
    std::regex line("^" + kTime + R"(\[SMIS------(.{8})\]\t:LOG_ERROR::disk 3 of ctrl$)");
    ASSERT_TRUE(std::regex_match(lines[0], m, line)) << lines[0];
    EXPECT_EQ(m[7].str(), logThreadId());
    EXPECT_TRUE(sameDay(m, before) || sameDay(m, after)) << lines[0];
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
    std::string prefix = "[SMIS------" + logThreadId() + "]\t";
    for (int level = 0; level <= 9; ++level) {
        std::string tail = prefix + expected[level] + "level " + std::to_string(level);
        EXPECT_NE(lines[level].find(tail), std::string::npos) << lines[level];
        EXPECT_EQ(lines[level].size(), lines[level].find(tail) + tail.size()) << lines[level];
    }
    EXPECT_NE(lines[10].find("]\t:LOG_INFO::negative"), std::string::npos) << lines[10];
}

TEST_F(LogLineTest, TraceLineUsesTwoBlanksAndSpacedInfoWordAndNeverFormatsItsText) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    ASSERT_EQ(TkzTrace("Entering %s %n %d 100%"), 0);

    auto lines = logLines();
    ASSERT_EQ(lines.size(), 1u);
    std::regex line("^" + kTime + R"(\[SMIS------)" + escaped(logThreadId()) +
                    R"(\]  :LOG_INFO :: Entering %s %n %d 100%$)");
    EXPECT_TRUE(std::regex_match(lines[0], line)) << lines[0];
}

TEST_F(LogLineTest, InitTracesItsSuccessWhenTheFileIsThere) {
    switchLogOn();
    ASSERT_EQ(TkzLogInit("SMIS"), 0);

    auto lines = logLines();
    ASSERT_EQ(lines.size(), 1u);
    std::string tail = "]  :LOG_INFO :: ######OSLIB Init Suucesazful#####";
    ASSERT_GE(lines[0].size(), tail.size());
    EXPECT_EQ(lines[0].substr(lines[0].size() - tail.size()), tail);
}

TEST_F(LogLineTest, MessageLongerThanTheBufferIsCutTo511Characters) {
    ASSERT_EQ(TkzLogInit("SMIS"), 0);
    switchLogOn();
    std::string longText(2000, 'x');
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_INFO, "%s%s", longText.c_str(), "END"), 0);
    ASSERT_EQ(TkzLogMsg(TKZ_LOG_INFO, "next"), 0);

    auto lines = logLines();
    ASSERT_EQ(lines.size(), 2u);
    std::string word = ":LOG_INFO::";
    size_t start = lines[0].find(word);
    ASSERT_NE(start, std::string::npos);
    EXPECT_EQ(lines[0].substr(start + word.size()), std::string(511, 'x'));
    EXPECT_NE(lines[1].find(":LOG_INFO::next"), std::string::npos);
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

    auto lines = logLines(c.component);
    ASSERT_EQ(lines.size(), 1u);
    std::string header = std::string("[") + c.padded + logThreadId() + "]\t:LOG_WARN::w";
    EXPECT_NE(lines[0].find(header), std::string::npos) << lines[0];
}

INSTANTIATE_TEST_SUITE_P(Components, LogHeaderTest,
                         ::testing::Values(HeaderCase{"A", "A---------"}, HeaderCase{"SMIS", "SMIS------"},
                                           HeaderCase{"ABCDEFGHIJ", "ABCDEFGHIJ"},
                                           HeaderCase{"ABCDEFGHIJKL", "ABCDEFGHIJKL"}));

}  // namespace
}  // namespace vex::platform::test
