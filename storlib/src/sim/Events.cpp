#include "sim/Events.h"

namespace storlib::sim {

void emit(Model& m, ControllerRec& c, uint32_t type, const EventTarget& target, std::string text,
          uint32_t d1, uint32_t d2, uint32_t d3) {
    StorEventData e;
    e.sequence = c.nextSequence++;
    e.time = static_cast<int64_t>(m.now);
    e.type = type;
    e.detail1 = d1;
    e.detail2 = d2;
    e.detail3 = d3;
    e.channelID = target.channel;
    e.deviceID = target.device;
    e.logicalDriveID = target.logicalDrive;
    e.extendedID = target.extended;
    e.description = std::move(text);
    c.events.push_back(std::move(e));
    size_t limit = m.eventQueueSize ? m.eventQueueSize : 1;
    while (c.events.size() > limit) c.events.pop_front();
}

}  // namespace storlib::sim
