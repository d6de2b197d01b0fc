#include "framework/DateAndTime.h"

#include <cstdio>

#include "framework/CIMDateTime.h"

namespace vex::cim::fwf {

std::string DateAndTime::toString() const {
    if (isInterval) {
        char buffer[96];
        std::snprintf(buffer, sizeof buffer, "%08u%02u%02u%02u.%06u:000", day, hour, minute,
                      second, microsecond);
        return buffer;
    }
    DateTime record;
    record.year = year;
    record.month = month;
    record.day = day;
    record.hour = hour;
    record.minute = minute;
    record.second = second;
    record.fraction = microsecond;
    return CIMDateTime(record).toString();
}

}  // namespace vex::cim::fwf
