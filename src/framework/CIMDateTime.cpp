#include "framework/CIMDateTime.h"

#include <cstdio>

#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

constexpr unsigned int kDaysPerMonth[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr unsigned int kDaysPassed[12] = {31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};

constexpr long long kUSecsPerSecond = 1000000LL;
constexpr long long kUSecsPerMinute = 60 * kUSecsPerSecond;
constexpr long long kUSecsPerHour = 60 * kUSecsPerMinute;
constexpr long long kUSecsPerDay = 24 * kUSecsPerHour;

bool isMonth(unsigned int month) { return month >= 1 && month <= 12; }

}  // namespace

CIMDateTime::CIMDateTime() = default;

CIMDateTime::CIMDateTime(const DateTime& dateTime) : m_dateTime(dateTime) {
    m_dateTime.utcOffset = kUtcOffset;
}

DateTime CIMDateTime::getCurrentDateTime() {
    TkzSystemTime now{};
    if (TkzGetSystemTime(&now) == 0) {
        m_dateTime.fraction = now.microsecond;
        m_dateTime.second = now.second;
        m_dateTime.minute = now.minute;
        m_dateTime.hour = now.hour;
        m_dateTime.day = now.day;
        m_dateTime.dayOfWeek = now.dayOfWeek;
        m_dateTime.month = now.month;
        m_dateTime.year = now.year;
    }
    return m_dateTime;
}

DateTime CIMDateTime::getCurrentTime() {
    TkzSystemTime now{};
    if (TkzGetSystemTime(&now) == 0) {
        m_dateTime.fraction = now.microsecond;
        m_dateTime.second = now.second;
        m_dateTime.minute = now.minute;
        m_dateTime.hour = now.hour;
    }
    return m_dateTime;
}

std::string CIMDateTime::toString() const {
    char buffer[128];
    std::snprintf(buffer, sizeof buffer, "%04d%02d%02d%02d%02d%02d.%06d",
                  static_cast<int>(m_dateTime.year), static_cast<int>(m_dateTime.month),
                  static_cast<int>(m_dateTime.day), static_cast<int>(m_dateTime.hour),
                  static_cast<int>(m_dateTime.minute), static_cast<int>(m_dateTime.second),
                  static_cast<int>(m_dateTime.fraction));
    return buffer + m_dateTime.utcOffset;
}

bool CIMDateTime::isLeapYear(unsigned int year) {
    if (year % 400 == 0) {
        return true;
    }
    if (year % 4 != 0) {
        return false;
    }
    return year % 100 != 0;
}

unsigned int CIMDateTime::getDaysPerMonth(unsigned int year, unsigned int month) {
    if (!isMonth(month)) {
        return 0;
    }
    return (month == 2 && isLeapYear(year)) ? 29 : kDaysPerMonth[month - 1];
}

unsigned int CIMDateTime::getDaysPassed(unsigned int month) {
    return isMonth(month) ? kDaysPassed[month - 1] : 0;
}

unsigned int CIMDateTime::getDifferenceInYears(unsigned int laterYear, unsigned int earlierYear) {
    if (laterYear <= earlierYear || laterYear - earlierYear <= 1) {
        return 0;
    }
    unsigned int days = 0;
    for (unsigned int year = earlierYear + 1; year < laterYear; ++year) {
        days += isLeapYear(year) ? 366 : 365;
    }
    return days;
}

unsigned long long CIMDateTime::getTimeinUSecs() const {
    const unsigned long long hours = m_dateTime.day * 24ULL + m_dateTime.hour;
    const unsigned long long minutes = hours * 60 + m_dateTime.minute;
    const unsigned long long seconds = minutes * 60 + m_dateTime.second;
    return seconds * 1000000ULL + m_dateTime.fraction;
}

unsigned int CIMDateTime::dayOfYear(unsigned int year, unsigned int month, unsigned int day) {
    unsigned int days = day + getDaysPassed(month - 1);
    if (month > 2 && isLeapYear(year)) {
        ++days;
    }
    return days;
}

long long CIMDateTime::calculateTimeDifference(const CIMDateTime& earlier) const {
    const DateTime& now = m_dateTime;
    const DateTime& then = earlier.m_dateTime;
    if (now.year < then.year) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s", "calculateTimeDifference",
                  "Current year cannot be less than past year.");
        return 0;
    }
    const long long nowDay = dayOfYear(now.year, now.month, now.day);
    const long long thenDay = dayOfYear(then.year, then.month, then.day);
    long long days = nowDay - thenDay;
    if (now.year > then.year) {
        const long long thenYearDays = isLeapYear(then.year) ? 366 : 365;
        days = (thenYearDays - thenDay) + getDifferenceInYears(now.year, then.year) + nowDay;
    }
    const long long difference = days * kUSecsPerDay +
        (static_cast<long long>(now.hour) - then.hour) * kUSecsPerHour +
        (static_cast<long long>(now.minute) - then.minute) * kUSecsPerMinute +
        (static_cast<long long>(now.second) - then.second) * kUSecsPerSecond +
        (static_cast<long long>(now.fraction) - then.fraction);
    // The 64-bit microsecond count, as its low and high 32-bit words.
    const unsigned long long bits = static_cast<unsigned long long>(difference);
    TkzLogMsg(TKZ_LOG_DEBUG, "%s :: Difference in Secs, %d n %d", "calculateTimeDifference",
              static_cast<int>(bits & 0xffffffffULL), static_cast<int>(bits >> 32));
    return difference;
}

bool CIMDateTime::passedTimeOut(const CIMDateTime& start, const CIMDateTime& timeout) const {
    const long long elapsed = calculateTimeDifference(start);
    return elapsed >= 0 && static_cast<unsigned long long>(elapsed) >= timeout.getTimeinUSecs();
}

}  // namespace vex::cim::fwf
