// Provider settings the event machinery reads from the monitor's settings
// file ("NRMConfig.conf", re-read by the monitor every cycle).
#ifndef VEX_EVENTS_EVENTSETTINGS_H
#define VEX_EVENTS_EVENTSETTINGS_H

namespace vex::cim::fwf::events {

// "agent.lifecycleIndications=on": after each cache rebuild the cache is
// compared with the one before, and every created, deleted or modified
// object becomes a life-cycle indication. Off by default.
bool lifecycleIndicationsEnabled();

}  // namespace vex::cim::fwf::events

#endif
