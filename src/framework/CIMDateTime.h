// CIMDateTime: the framework's date-time value. It reads the current time
// from the portability layer, prints it in CIM datetime form for properties
// of type CIM_DATETIME, and measures time between two moments for job
// time-outs.
//
// The UTC offset is always "+530": it is never computed from the system, so
// every printed datetime carries this fixed suffix.
#ifndef VEX_FRAMEWORK_CIMDATETIME_H
#define VEX_FRAMEWORK_CIMDATETIME_H

#include <string>

namespace vex::cim::fwf {

struct DateTime {
    unsigned int fraction = 0;  // microseconds, printed as six digits
    unsigned int second = 0;
    unsigned int minute = 0;
    unsigned int hour = 0;
    unsigned int day = 0;        // of the month
    unsigned int dayOfWeek = 0;  // kept, not printed
    unsigned int month = 0;      // 1..12
    unsigned int year = 0;       // four digits
    std::string utcOffset = "+530";
    unsigned long long extra = 0;  // copied with the record, not interpreted
};

class CIMDateTime {
public:
    static constexpr const char* kUtcOffset = "+530";

    // All fields zero, offset "+530".
    CIMDateTime();
    // The fields of `dateTime`, offset "+530" whatever it carries.
    explicit CIMDateTime(const DateTime& dateTime);

    // Reads the local time (all eight fields) and returns the record.
    DateTime getCurrentDateTime();
    // Reads the time of day only (fraction, second, minute, hour).
    DateTime getCurrentTime();

    void setDateTime(const DateTime& dateTime) { m_dateTime = dateTime; }
    DateTime getDateTimeStruct() const { return m_dateTime; }

    // "yyyymmddhhmmss.uuuuuu" followed by the offset text.
    std::string toString() const;

    static bool isLeapYear(unsigned int year);
    // 29 for February of a leap year, otherwise the calendar table; 0 for a
    // month outside 1..12.
    static unsigned int getDaysPerMonth(unsigned int year, unsigned int month);
    // Days elapsed at the end of `month` in a common year (no leap-year
    // correction): 31 for 1, 59 for 2, ... 365 for 12; 0 outside 1..12.
    static unsigned int getDaysPassed(unsigned int month);
    // Days of the whole years strictly between the two; 0 when laterYear is
    // not more than one year after earlierYear.
    static unsigned int getDifferenceInYears(unsigned int laterYear, unsigned int earlierYear);

    // The record read as a time span: days, hours, minutes, seconds and
    // microseconds (month and year are not counted), in microseconds.
    unsigned long long getTimeinUSecs() const;

    // Microseconds from `earlier` to this moment. When this year is before the
    // earlier one the difference is not computed: logged, and 0 returned.
    // Within one year a reversed order gives a negative number.
    long long calculateTimeDifference(const CIMDateTime& earlier) const;

    // True once the time from `start` to this moment has reached the span
    // `timeout` (see getTimeinUSecs). The caller sets this moment, usually
    // with getCurrentDateTime.
    bool passedTimeOut(const CIMDateTime& start, const CIMDateTime& timeout) const;

private:
    static unsigned int dayOfYear(unsigned int year, unsigned int month, unsigned int day);

    DateTime m_dateTime;
};

}  // namespace vex::cim::fwf

#endif
