#include "sim/Lookup.h"

#include <storlib/RaidLevel.h>

namespace storlib::sim {

ControllerRec* findController(Model& m, uint32_t adapter) {
    uint32_t index = 0;
    for (ControllerRec& c : m.controllers) {
        if (!c.present) continue;
        if (index++ == adapter) return &c;
    }
    return nullptr;
}

uint32_t controllerIndex(const Model& m, const ControllerRec& c) {
    uint32_t index = 0;
    for (const ControllerRec& x : m.controllers) {
        if (&x == &c) return index;
        if (x.present) ++index;
    }
    return Addr::ANY;
}

DriveRec* findDrive(ControllerRec& c, uint32_t channel, uint32_t device) {
    for (DriveRec& d : c.drives)
        if (d.channel == channel && d.device == device) return &d;
    return nullptr;
}

LdRec* findLd(ControllerRec& c, uint32_t id) {
    for (LdRec& ld : c.logicalDrives)
        if (ld.id == id) return &ld;
    return nullptr;
}

EnclosureRec* findEnclosure(ControllerRec& c, uint32_t channel, uint32_t device) {
    for (EnclosureRec& e : c.enclosures)
        if (e.channel == channel && e.device == device) return &e;
    return nullptr;
}

EnclosureRec* findEnclosureByIndex(ControllerRec& c, uint32_t index) {
    for (EnclosureRec& e : c.enclosures)
        if (e.enc.enclosureIndex == index) return &e;
    return nullptr;
}

TaskRec* findTask(ControllerRec& c, uint32_t id) {
    for (TaskRec& t : c.tasks)
        if (t.p.taskId == id) return &t;
    return nullptr;
}

Ret resolveController(Model& m, uint32_t adapter, ControllerRec*& c) {
    c = findController(m, adapter);
    if (!c) return refuse(RetStatus::NotFound, "no controller " + std::to_string(adapter));
    if (c->ad.status != 0)
        return refuse(RetStatus::InvalidState, "controller " + std::to_string(adapter) + " is not responding");
    return Ret::success();
}

Ret resolveDrive(Model& m, const Addr& a, ControllerRec*& c, DriveRec*& d) {
    if (Ret r = resolveController(m, a.getAdapterID(), c); !r) return r;
    d = findDrive(*c, a.getChannelID(), a.getDeviceID());
    if (!d)
        return refuse(RetStatus::NotFound, "no drive " + std::to_string(a.getChannelID()) + ":" +
                                               std::to_string(a.getDeviceID()) + " on controller " +
                                               std::to_string(a.getAdapterID()));
    return Ret::success();
}

Ret resolveLd(Model& m, const Addr& a, ControllerRec*& c, LdRec*& ld) {
    if (Ret r = resolveController(m, a.getAdapterID(), c); !r) return r;
    ld = findLd(*c, a.getLogicalDriveID());
    if (!ld)
        return refuse(RetStatus::NotFound, "no logical drive " + std::to_string(a.getLogicalDriveID()) +
                                               " on controller " + std::to_string(a.getAdapterID()));
    return Ret::success();
}

Ret resolveEnclosure(Model& m, const Addr& a, ControllerRec*& c, EnclosureRec*& e) {
    if (Ret r = resolveController(m, a.getAdapterID(), c); !r) return r;
    e = findEnclosure(*c, a.getChannelID(), a.getDeviceID());
    if (!e) return refuse(RetStatus::NotFound, "no enclosure at " + a.toString());
    return Ret::success();
}

std::string driveName(const DriveRec& d) {
    return "drive " + std::to_string(d.channel) + ":" + std::to_string(d.device);
}

std::string ldName(const LdRec& ld) {
    return "logical drive " + std::to_string(ld.id) + " (" + ld.ld.name + ")";
}

std::vector<LdRec*> ldsUsingDrive(ControllerRec& c, const DriveRec& d) {
    std::vector<LdRec*> out;
    auto uses = [&](const std::vector<ChunkRec>& chunks) {
        for (const ChunkRec& k : chunks)
            if (k.channel == d.channel && k.device == d.device) return true;
        return false;
    };
    for (LdRec& ld : c.logicalDrives)
        if (uses(ld.members) || uses(ld.target)) out.push_back(&ld);
    return out;
}

bool hasRunningTask(const ControllerRec& c, uint32_t ldId, uint32_t channel, uint32_t device) {
    for (const TaskRec& t : c.tasks) {
        if (t.p.taskState != TaskState::Running) continue;
        if (ldId != Addr::ANY && t.p.logicalDriveID == ldId) return true;
        if (channel != Addr::ANY && t.p.channelID == channel && t.p.deviceID == device) return true;
    }
    return false;
}

bool isRedundant(RaidLevel level) {
    const RaidLevelRule* r = findRaidLevelRule(level);
    return r && r->redundancyPerLeg > 0;
}

}  // namespace storlib::sim
