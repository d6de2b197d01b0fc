/*
 * The log's time stamp, taken from the C library's textual time (ctime_r,
 * "Www Mmm dd hh:mm:ss yyyy\n") and written "m/d/yyyy hh:mm:ss" without
 * padding the month and day. Internal to the provider.
 */
#ifndef VEX_PLATFORM_TKZLOCALTIME_H
#define VEX_PLATFORM_TKZLOCALTIME_H

#include <cstddef>

namespace vex::platform {

// "Jan" -> 1 ... "Dec" -> 12; 0 for anything else.
int monthNumber(const char *name);

// Rewrites one ctime_r text into buffer: 0, or 1 when the text does not
// parse or the result does not fit.
int formatCtimeText(const char *ctimeText, char *buffer, std::size_t size);

}  // namespace vex::platform

#endif  // VEX_PLATFORM_TKZLOCALTIME_H
