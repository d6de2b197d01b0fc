// Saving, replaying and clearing a controller's configuration.
#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Json.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"
#include "sim/Tasks.h"

#include <storlib/Names.h>

namespace storlib::sim::ops {
namespace {

constexpr const char* kFormat = "storvex-config";

json driveRef(const ControllerRec& c, uint32_t channel, uint32_t device) {
    json j = {{"channel", channel}, {"device", device}};
    for (const DriveRec& d : c.drives)
        if (d.channel == channel && d.device == device) {
            j["enclosure"] = d.hd.enclosureIndex;
            j["slot"] = d.hd.slot;
        }
    return j;
}

json saveLd(const ControllerRec& c, const LdRec& ld) {
    json members = json::array();
    for (const ChunkRec& k : ld.members) {
        json r = driveRef(c, k.channel, k.device);
        r["startMB"] = k.startMB;
        r["sizeMB"] = k.sizeMB;
        members.push_back(r);
    }
    return {{"id", ld.id}, {"name", ld.ld.name}, {"raidLevel", toString(ld.ld.raidLevel)},
            {"stripeSizeKB", ld.ld.stripeSizeKB}, {"legs", ld.ld.legs}, {"members", members},
            {"readCache", toString(ld.ld.readCache)}, {"writeCache", toString(ld.ld.writeCache)}};
}

// Finds the drive a saved reference names, by address or by enclosure slot.
DriveRec* findRef(ControllerRec& c, const json& r, bool bySlot) {
    bySlot = bySlot && r.value("enclosure", -1) >= 0;  // drives outside enclosures go by address
    for (DriveRec& d : c.drives) {
        if (bySlot ? (d.hd.enclosureIndex == r.value("enclosure", -2) && d.hd.slot == r.value("slot", -2))
                   : (d.channel == r.value("channel", ~0u) && d.device == r.value("device", ~0u)))
            return &d;
    }
    return nullptr;
}

Ret playLd(Model& m, ControllerRec& c, uint32_t adapter, const json& l, bool bySlot) {
    LogicalDriveSpec spec;
    readValue(l.at("raidLevel"), spec.raidLevel, "raidLevel");
    spec.name = l.value("name", "");
    spec.stripeSizeKB = l.value("stripeSizeKB", 256u);
    spec.legs = l.value("legs", 0u);
    spec.initMethod = InitMethod::Skip;
    readValue(l.at("readCache"), spec.readCache, "readCache");
    readValue(l.at("writeCache"), spec.writeCache, "writeCache");
    for (const json& r : l.at("members")) {
        DriveRec* d = findRef(c, r, bySlot);
        if (!d) return refuse(RetStatus::NotFound, "a drive of logical drive \"" + spec.name + "\" is not present");
        spec.chunks.emplace_back(Addr(adapter, d->channel, d->device), r.at("startMB").get<uint64_t>(),
                                 r.at("sizeMB").get<uint64_t>());
    }
    uint32_t id = 0;
    if (Ret r = createLd(m, spec, &id); !r) return r;
    findLd(c, id)->ld.initialized = true;  // the data on the members is kept
    return Ret::success();
}

Ret playSpares(Model& m, ControllerRec& c, uint32_t adapter, const json& spares, bool bySlot) {
    for (const json& s : spares) {
        DriveRec* d = findRef(c, s, bySlot);
        if (!d) return refuse(RetStatus::NotFound, "a spare drive of the configuration is not present");
        Addr a(adapter, d->channel, d->device);
        if (s.value("type", "") == "global") {
            if (Ret r = assignGlobalSpare(m, a); !r) return r;
            continue;
        }
        for (const json& id : s.at("dedicatedTo"))
            if (Ret r = assignDedicatedSpare(m, a, Addr::logicalDrive(adapter, id.get<uint32_t>())); !r) return r;
    }
    return Ret::success();
}

Ret play(Model& m, ControllerRec& c, uint32_t adapter, const json& cfg, bool bySlot) {
    if (cfg.value("format", "") != kFormat) return refuse(RetStatus::InvalidArgument, "not a saved configuration");
    for (const json& l : cfg.at("logicalDrives"))
        if (Ret r = playLd(m, c, adapter, l, bySlot); !r) return r;
    if (Ret r = playSpares(m, c, adapter, cfg.at("spares"), bySlot); !r) return r;
    for (const json& j : cfg.at("jbods")) {
        DriveRec* d = findRef(c, j, bySlot);
        if (!d) return refuse(RetStatus::NotFound, "a JBOD drive of the configuration is not present");
        if (Ret r = createJBOD(m, Addr(adapter, d->channel, d->device)); !r) return r;
    }
    return Ret::success();
}

void clearAll(Model& m, ControllerRec& c) {
    for (LdRec& ld : c.logicalDrives) abortTasksOf(m, c, ld.id);
    c.logicalDrives.clear();
    for (DriveRec& d : c.drives) {
        if (d.hd.state == DriveState::HotSpare || d.hd.state == DriveState::JBOD) d.hd.state = DriveState::Ready;
        d.hd.spareType = SpareType::None;
        d.hd.dedicatedTo.clear();
    }
}

}  // namespace

Ret saveConfig(Model& m, uint32_t adapter, std::string& out) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    json lds = json::array(), spares = json::array(), jbods = json::array();
    for (const LdRec& ld : c->logicalDrives) lds.push_back(saveLd(*c, ld));
    for (const DriveRec& d : c->drives) {
        json r = driveRef(*c, d.channel, d.device);
        if (d.hd.state == DriveState::JBOD) jbods.push_back(r);
        if (d.hd.spareType == SpareType::None) continue;
        r["type"] = toString(d.hd.spareType);
        r["dedicatedTo"] = d.hd.dedicatedTo;
        spares.push_back(r);
    }
    json cfg = {{"format", kFormat}, {"version", 1}, {"controller", c->ad.serialNumber},
                {"logicalDrives", lds}, {"spares", spares}, {"jbods", jbods}};
    out = cfg.dump(2);
    return Ret::success();
}

Ret playConfig(Model& m, uint32_t adapter, const std::string& text, bool force, bool bySlot) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    if (!c->logicalDrives.empty() && !force)
        return refuse(RetStatus::InvalidState, "the controller has logical drives; restore with force to replace them");
    ControllerRec backup = *c;  // a configuration is restored whole or not at all
    Ret result;
    try {
        json cfg = json::parse(text);
        clearAll(m, *c);
        result = play(m, *c, adapter, cfg, bySlot);
    } catch (const std::exception& e) {
        result = refuse(RetStatus::InvalidArgument, std::string("not a saved configuration: ") + e.what());
    }
    if (!result) {
        *c = std::move(backup);
        return result;
    }
    emit(m, *c, EventType::ConfigRestored, EventTarget::none(), "configuration restored", 0, 0, 6);
    reconcile(m, *c);
    return Ret::success();
}

Ret resetConfig(Model& m, uint32_t adapter) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    clearAll(m, *c);
    emit(m, *c, EventType::ConfigChange, EventTarget::none(), "configuration cleared", 0, 0, 6);
    reconcile(m, *c);
    return Ret::success();
}

}  // namespace storlib::sim::ops
