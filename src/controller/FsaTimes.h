// Controller times (seconds since the epoch on the controller clock) as the
// date and time values of the cached instances, in local time.
#ifndef VEX_CONTROLLER_FSATIMES_H
#define VEX_CONTROLLER_FSATIMES_H

#include <cstdint>
#include <string>

#include "framework/DateAndTime.h"

namespace vex::cim::fwf::fsamap {

DateAndTime momentOf(std::int64_t epochSeconds);
DateAndTime intervalOf(std::uint64_t seconds);
// "%d/%d/%d": month, day, year.
std::string dateText(std::int64_t epochSeconds);

}  // namespace vex::cim::fwf::fsamap

#endif
