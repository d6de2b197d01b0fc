#include <gtest/gtest.h>

#include "LogCapture.h"
#include "framework/CIMDateTime.h"
#include "framework/DateAndTime.h"

namespace vex::cim::fwf::test {
namespace {

constexpr long long kDay = 86400000000LL;

CIMDateTime moment(unsigned int year, unsigned int month, unsigned int day, unsigned int hour = 0,
                   unsigned int minute = 0, unsigned int second = 0, unsigned int fraction = 0) {
    DateTime record;
    record.year = year;
    record.month = month;
    record.day = day;
    record.hour = hour;
    record.minute = minute;
    record.second = second;
    record.fraction = fraction;
    return CIMDateTime(record);
}

// Leap years, month lengths (the days passed ignore leap years) and the
// days of the whole years between two years (none when not later).
TEST(CIMDateTimeCalendar, LeapYearsMonthsAndYearsInBetween) {
    EXPECT_TRUE(CIMDateTime::isLeapYear(2000) && CIMDateTime::isLeapYear(2024));
    EXPECT_FALSE(CIMDateTime::isLeapYear(1900) || CIMDateTime::isLeapYear(2023));
    EXPECT_EQ(CIMDateTime::getDaysPerMonth(2024, 2), 29u);
    EXPECT_EQ(CIMDateTime::getDaysPerMonth(1900, 2), 28u);
    EXPECT_EQ(CIMDateTime::getDaysPerMonth(2023, 12), 31u);
    EXPECT_EQ(CIMDateTime::getDaysPerMonth(2023, 13), 0u);
    EXPECT_EQ(CIMDateTime::getDaysPassed(2), 59u);
    EXPECT_EQ(CIMDateTime::getDaysPassed(12), 365u);
    EXPECT_EQ(CIMDateTime::getDaysPassed(0), 0u);
    EXPECT_EQ(CIMDateTime::getDifferenceInYears(2026, 2024), 365u);
    EXPECT_EQ(CIMDateTime::getDifferenceInYears(2025, 2023), 366u);
    for (unsigned int later : {2025u, 2024u, 2020u}) {
        EXPECT_EQ(CIMDateTime::getDifferenceInYears(later, 2024), 0u) << later;
    }
}

TEST(CIMDateTimeText, CimFormWithTheFixedOffset) {
    EXPECT_EQ(moment(2024, 3, 7, 9, 5, 2, 42).toString(), "20240307090502.000042+530");
    EXPECT_EQ(CIMDateTime().toString(), "00000000000000.000000+530");

    CIMDateTime now;
    now.getCurrentDateTime();
    const std::string text = now.toString();
    ASSERT_EQ(text.size(), 25u);
    EXPECT_EQ(text.substr(21), "+530");
    EXPECT_GE(now.getDateTimeStruct().year, 2024u);

    DateTime other;
    other.utcOffset = "-0800";  // the record carries its offset in and out
    CIMDateTime carried;
    carried.setDateTime(other);
    EXPECT_EQ(carried.getDateTimeStruct().utcOffset, "-0800");
    EXPECT_EQ(CIMDateTime(other).getDateTimeStruct().utcOffset, "+530");
}

TEST(CIMDateTimeDifference, WithinOneYearAndAcrossYears) {
    EXPECT_EQ(moment(2024, 3, 1).calculateTimeDifference(moment(2024, 2, 28)), 2 * kDay);
    EXPECT_EQ(moment(2023, 3, 1).calculateTimeDifference(moment(2023, 2, 28)), 1 * kDay);
    EXPECT_EQ(moment(2024, 1, 1, 0, 0, 0, 0).calculateTimeDifference(
                  moment(2023, 12, 31, 23, 59, 59, 999999)),
              1);
    EXPECT_EQ(moment(2026, 1, 1).calculateTimeDifference(moment(2024, 1, 1)),
              (366 + 365) * kDay);
    EXPECT_EQ(moment(2024, 5, 1, 10, 30).calculateTimeDifference(moment(2024, 5, 1, 9, 45)),
              45LL * 60000000);
}

TEST(CIMDateTimeDifference, EarlierYearAfterThisOneIsLoggedAndGivesZero) {
    clearLog();
    EXPECT_EQ(moment(2023, 6, 1).calculateTimeDifference(moment(2024, 1, 1)), 0);
    const std::vector<LoggedLine> lines = loggedLines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].text,
              "calculateTimeDifference :: Current year cannot be less than past year.");

    clearLog();
    moment(2024, 1, 1, 0, 0, 3).calculateTimeDifference(moment(2024, 1, 1));
    ASSERT_EQ(loggedLines().size(), 1u);
    EXPECT_EQ(loggedLines()[0].text, "calculateTimeDifference :: Difference in Secs, 3000000 n 0");
}

TEST(CIMDateTimeDifference, TimeOutPassesWhenTheSpanIsReached) {
    const CIMDateTime start = moment(2024, 12, 31, 23, 0);
    CIMDateTime limit;  // one hour and a half
    DateTime span;
    span.hour = 1;
    span.minute = 30;
    limit.setDateTime(span);
    EXPECT_EQ(limit.getTimeinUSecs(), 90ULL * 60000000);

    EXPECT_FALSE(moment(2025, 1, 1, 0, 29, 59).passedTimeOut(start, limit));
    EXPECT_TRUE(moment(2025, 1, 1, 0, 30).passedTimeOut(start, limit));
    EXPECT_FALSE(moment(2024, 12, 31, 22, 0).passedTimeOut(start, limit));
}

TEST(DateAndTimeText, MomentsAndSpans) {
    DateAndTime created;
    created.year = 2023;
    created.month = 11;
    created.day = 5;
    created.hour = 14;
    EXPECT_EQ(created.toString(), "20231105140000.000000+530");

    DateAndTime elapsed;
    elapsed.isInterval = true;
    elapsed.day = 2;
    elapsed.minute = 7;
    elapsed.microsecond = 5;
    EXPECT_EQ(elapsed.toString(), "00000002000700.000005:000");
}

}  // namespace
}  // namespace vex::cim::fwf::test
