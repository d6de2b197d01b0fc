// What the monitor makes of the controllers' own events: whether one means
// the configuration must be read again, and which ones become monitor events
// directly.
#ifndef VEX_MONITOR_CONTROLLEREVENTRULES_H
#define VEX_MONITOR_CONTROLLEREVENTRULES_H

#include <cstdint>
#include <string>

namespace storlib {
class StorEvent;
}

namespace vex::monitor {

// The refresh rule: true when this controller event means the configuration
// must be re-read.
bool eventNeedsRefresh(std::uint32_t type, std::uint32_t detail1, std::uint32_t detail2,
                       std::uint32_t detail3);
bool eventNeedsRefresh(const storlib::StorEvent& event);

// The key of a controller event that maps straight to a monitor event
// (passed through), or null.
const char* passThroughKey(const storlib::StorEvent& event);

// The key of a task event that tells of progress (first detail 1) or a
// start (first detail 2): "..._PROGRESS" or "..._STARTED" of the task's
// kind; "" for any other event.
std::string taskEventKey(const storlib::StorEvent& event);

}  // namespace vex::monitor

#endif
