// DateAndTime: a moment or a time span as plain numbers, the form in which
// dates and durations read from a controller are handed to the property
// mapping before they become CIM datetime strings.
#ifndef VEX_FRAMEWORK_DATEANDTIME_H
#define VEX_FRAMEWORK_DATEANDTIME_H

#include <string>

namespace vex::cim::fwf {

struct DateAndTime {
    unsigned int year = 0;
    unsigned int month = 0;        // 1..12
    unsigned int day = 0;          // day of the month; for a span, the number of days
    unsigned int hour = 0;
    unsigned int minute = 0;
    unsigned int second = 0;
    unsigned int microsecond = 0;
    bool isInterval = false;       // a span: year and month are not used

    // The CIM datetime text: a moment as "yyyymmddhhmmss.uuuuuu+530" (the
    // framework's fixed offset, see CIMDateTime), a span as
    // "ddddddddhhmmss.uuuuuu:000".
    std::string toString() const;
};

}  // namespace vex::cim::fwf

#endif
