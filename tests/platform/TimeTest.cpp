// The log's time stamp and the offset from UTC.
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>

#include "platform/Tkz.h"
#include "platform/TkzLocalTime.h"

namespace vex::platform::test {
namespace {

TEST(LocalTimeTest, CtimeTextBecomesUnpaddedMonthDayYearAndClock) {
    const char *months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(monthNumber(months[i]), i + 1) << months[i];
    }
    EXPECT_EQ(monthNumber("jan"), 0);

    char out[64];
    ASSERT_EQ(formatCtimeText("Sun Nov  2 05:07:06 2026\n", out, sizeof out), 0);
    EXPECT_STREQ(out, "11/2/2026 05:07:06");
    ASSERT_EQ(formatCtimeText("Wed Dec 31 23:59:59 1969\n", out, sizeof out), 0);
    EXPECT_STREQ(out, "12/31/1969 23:59:59");
    EXPECT_EQ(formatCtimeText("Sun Foo  2 05:07:06 2026\n", out, sizeof out), 1);
    EXPECT_EQ(formatCtimeText("garbage", out, sizeof out), 1);
    char small[8];
    EXPECT_EQ(formatCtimeText("Sun Nov  2 05:07:06 2026\n", small, sizeof small), 1);
    EXPECT_STREQ(small, "11/2/20");
}

TEST(TimeZoneTest, OffsetIsSignedMinutesFromUtc) {
    const char *saved = std::getenv("TZ");
    std::string old = saved ? saved : "";
    const std::pair<const char *, const char *> zones[] = {
        {"UTC0", "+000"}, {"IST-5:30", "+330"}, {"EST5", "-300"}, {"<-0930>9:30", "-570"}};
    for (auto [tz, expected] : zones) {
        setenv("TZ", tz, 1);
        tzset();
        char zone[16];
        ASSERT_EQ(TkzGetTimeZone(zone, sizeof zone), 0);
        EXPECT_STREQ(zone, expected) << tz;
    }
    saved ? setenv("TZ", old.c_str(), 1) : unsetenv("TZ");
    tzset();
}

}  // namespace
}  // namespace vex::platform::test
