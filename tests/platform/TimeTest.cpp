// Local time stamps and the offset from UTC.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "platform/Tkz.h"
#include "platform/TkzLocalTime.h"

namespace vex::platform::test {
namespace {

TEST(LocalTimeTest, MonthNamesMapToNumbersAndAnythingElseToZero) {
    const char *names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(monthNumber(names[i]), i + 1) << names[i];
    }
    EXPECT_EQ(monthNumber("jan"), 0);
    EXPECT_EQ(monthNumber("Janu"), 0);
    EXPECT_EQ(monthNumber(""), 0);
}

TEST(LocalTimeTest, CtimeTextBecomesUnpaddedMonthDayYearAndClock) {
    char out[64];
    ASSERT_EQ(formatCtimeText("Sun Nov  2 05:07:06 2026\n", out, sizeof out), 0);
    EXPECT_STREQ(out, "11/2/2026 05:07:06");
    ASSERT_EQ(formatCtimeText("Wed Dec 31 23:59:59 1969\n", out, sizeof out), 0);
    EXPECT_STREQ(out, "12/31/1969 23:59:59");

    EXPECT_EQ(formatCtimeText("Sun Foo  2 05:07:06 2026\n", out, sizeof out), 1);
    EXPECT_EQ(formatCtimeText("garbage", out, sizeof out), 1);
    char small[8];
    EXPECT_EQ(formatCtimeText("Sun Nov  2 05:07:06 2026\n", small, sizeof small), 1);
    EXPECT_EQ(std::string(small).size(), sizeof small - 1);
}

// The ctime-based stamp and the strftime-based one describe the same moment.
TEST(LocalTimeTest, LocalTimeAgreesWithFormattedTime) {
    for (int attempt = 0; attempt < 5; ++attempt) {
        char local[64];
        char formatted[64];
        ASSERT_EQ(TkzGetLocalTime(local, sizeof local), 0);
        ASSERT_EQ(TkzGetFormatedTime(formatted, sizeof formatted), 0);
        int m1, d1, y1, m2, d2, y2;
        char clock1[9], clock2[9];
        ASSERT_EQ(std::sscanf(local, "%d/%d/%d %8s", &m1, &d1, &y1, clock1), 4) << local;
        ASSERT_EQ(std::sscanf(formatted, "%d/%d/%d %8s", &m2, &d2, &y2, clock2), 4) << formatted;
        if (std::string(clock1) != clock2) {
            continue;  // a second boundary passed in between
        }
        EXPECT_EQ(m1, m2);
        EXPECT_EQ(d1, d2);
        EXPECT_EQ(y1, y2);
        EXPECT_NE(local[0], '0') << local;
        EXPECT_EQ(std::string(formatted).size(), 19u) << formatted;
        return;
    }
    FAIL() << "clock kept changing";
}

TEST(LocalTimeTest, SystemTimeMatchesBrokenDownTime) {
    std::tm tm{};
    TkzSystemTime st{};
    ASSERT_EQ(TkzGetTimeInTM(&tm), 0);
    ASSERT_EQ(TkzGetSystemTime(&st), 0);
    EXPECT_EQ(st.year, static_cast<unsigned>(tm.tm_year + 1900));
    EXPECT_EQ(st.month, static_cast<unsigned>(tm.tm_mon + 1));
    EXPECT_LE(st.day, 31u);
    EXPECT_GE(st.day, 1u);
    EXPECT_LE(st.dayOfWeek, 6u);
    EXPECT_LT(st.microsecond, 1000000u);
    EXPECT_NE(TkzGetSystemTime(nullptr), 0);
}

class TimeZoneTest : public ::testing::TestWithParam<std::pair<const char *, const char *>> {
protected:
    void SetUp() override {
        const char *tz = std::getenv("TZ");
        hadTz_ = tz != nullptr;
        savedTz_ = hadTz_ ? tz : "";
    }
    void TearDown() override {
        if (hadTz_) {
            setenv("TZ", savedTz_.c_str(), 1);
        } else {
            unsetenv("TZ");
        }
        tzset();
    }
    bool hadTz_ = false;
    std::string savedTz_;
};

TEST_P(TimeZoneTest, OffsetIsSignedMinutesFromUtc) {
    setenv("TZ", GetParam().first, 1);
    tzset();
    char zone[16];
    ASSERT_EQ(TkzGetTimeZone(zone, sizeof zone), 0);
    EXPECT_STREQ(zone, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Zones, TimeZoneTest,
                         ::testing::Values(std::make_pair("UTC0", "+000"), std::make_pair("IST-5:30", "+330"),
                                           std::make_pair("EST5", "-300"), std::make_pair("<-0930>9:30", "-570")));

}  // namespace
}  // namespace vex::platform::test
