#include "RaidState.h"

#include <algorithm>
#include <set>

#include "RaidSources.h"

namespace vexraid {

const char* kindWord(Kind kind) {
    switch (kind) {
    case Kind::Controller: return "controller";
    case Kind::Volume: return "volume";
    case Kind::Drive: return "drive";
    case Kind::Battery: return "battery";
    case Kind::Enclosure: return "enclosure";
    case Kind::Fan: return "fan";
    case Kind::PowerSupply: return "power supply";
    case Kind::Sensor: return "sensor";
    case Kind::Element: return "element";
    }
    return "object";
}

const std::vector<std::string>& kindStates(Kind kind) {
    static const std::vector<std::string> kController = {"ok", "failed"};
    static const std::vector<std::string> kVolume = {"ok", "rebuilding", "degraded", "failed"};
    static const std::vector<std::string> kDrive = {"ok", "rebuilding", "predictive_failure", "offline", "missing", "failed"};
    static const std::vector<std::string> kBattery = {"ok", "charging", "learning", "low", "unknown", "failed"};
    static const std::vector<std::string> kEnclosure = {"ok", "degraded", "failed", "lost"};
    static const std::vector<std::string> kElement = {"ok", "noncritical", "critical", "unrecoverable", "not_installed", "unknown"};
    switch (kind) {
    case Kind::Controller: return kController;
    case Kind::Volume: return kVolume;
    case Kind::Drive: return kDrive;
    case Kind::Battery: return kBattery;
    case Kind::Enclosure: return kEnclosure;
    default: return kElement;
    }
}

std::size_t RaidState::count(Kind kind) const {
    return static_cast<std::size_t>(
        std::count_if(objects.begin(), objects.end(), [kind](const RaidObject& o) { return o.kind == kind; }));
}

namespace {

// A volume that a rebuild is running for is "rebuilding" (the rebuild's
// progress beside it) rather than merely degraded.
void joinRebuilds(RaidState& state) {
    for (const RaidJob& job : state.jobs) {
        if (job.task != "rebuild") continue;
        const std::string prefix = "LogicalDrive:";
        if (job.target.compare(0, prefix.size(), prefix) != 0) continue;
        const std::string volume = job.target.substr(prefix.size());
        for (RaidObject& o : state.objects) {
            if (o.kind != Kind::Volume || o.id != volume) continue;
            o.rebuildRatio = job.progressRatio;
            if (o.state == "degraded" || o.state == "ok") o.state = "rebuilding";
        }
    }
}

// Every object read after the controllers must belong to one of them: one
// that does not was read after its controller left the host.
void requireControllers(const RaidState& state) {
    std::set<std::string> controllers;
    for (const RaidObject& o : state.objects) {
        if (o.kind == Kind::Controller) controllers.insert(o.id);
    }
    if (controllers.empty()) throw StateUnknown("no RAID controller found");
    auto orphan = [&](const std::string& controller) { return !controller.empty() && controllers.count(controller) == 0; };
    for (const RaidObject& o : state.objects) {
        if (orphan(o.controller)) throw StateUnknown("controller " + o.controller + " vanished while it was read");
    }
    for (const RaidJob& j : state.jobs) {
        if (orphan(j.controller)) throw StateUnknown("controller " + j.controller + " vanished while it was read");
    }
}

}  // namespace

RaidState readRaidState(const Enumerator& enumerate) {
    SourceContext context;
    for (const RaidSource& source : raidSources()) {
        auto instances = enumerate(source.className);
        if (!instances) continue;
        for (const cmpihost::Instance& instance : *instances) source.read(instance, context);
    }
    joinRebuilds(context.state);
    requireControllers(context.state);
    return context.state;
}

}  // namespace vexraid
