// uPollEvent: a request for a cache refresh, copied whole into and out of the
// event manager's one-slot queue.
#ifndef VEX_EVENTS_UPOLLEVENT_H
#define VEX_EVENTS_UPOLLEVENT_H

#include <cstdint>
#include <type_traits>

namespace vex::cim::fwf {

struct uPollEvent {
    std::uint32_t EventType;  // bit 1: configuration change; bit 16: any other change
    std::uint32_t AdapterID;  // controller number, only logged; 0 from the listener
    std::uint32_t ObjectID;   // not used
    std::uint32_t Reserved[5];
};

static_assert(std::is_trivially_copyable<uPollEvent>::value, "uPollEvent is copied as a whole");

}  // namespace vex::cim::fwf

#endif
