// Feeding the controller event queue.
#pragma once
#include "sim/Model.h"

#include <string>

namespace storlib::sim {

struct EventTarget {
    uint32_t channel = Addr::ANY, device = Addr::ANY, logicalDrive = Addr::ANY;
    uint64_t extended = Addr::ANY64;
    static EventTarget drive(const DriveRec& d) { return {d.channel, d.device, Addr::ANY, Addr::ANY64}; }
    static EventTarget ld(const LdRec& l) { return {Addr::ANY, Addr::ANY, l.id, Addr::ANY64}; }
    static EventTarget none() { return {}; }
};

// Appends an event to the controller's queue, dropping the oldest events
// beyond the model's queue size.
void emit(Model& m, ControllerRec& c, uint32_t type, const EventTarget& target, std::string text,
          uint32_t d1 = 0, uint32_t d2 = 0, uint32_t d3 = 0);

}  // namespace storlib::sim
