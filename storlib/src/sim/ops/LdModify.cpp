// RAID level migration and online capacity expansion of a logical drive.
#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"
#include "sim/Tasks.h"
#include "sim/ops/SpecCheck.h"

#include <storlib/Feature.h>
#include <storlib/Names.h>
#include <storlib/RaidLevel.h>

namespace storlib::sim::ops {
namespace {

int featureValue(const AdapterData& a, uint32_t id) {
    for (const FeatureEntry& f : a.features)
        if (f.id == id) return f.value;
    return 0;
}

Ret checkFeature(const ControllerRec& c, RaidLevel from, RaidLevel to) {
    uint32_t id = from == to ? expansionFeature(from) : migrationFeature(from, to);
    std::string what = from == to ? std::string("expanding ") + toString(from)
                                  : std::string("migrating ") + toString(from) + " to " + toString(to);
    if (id == Feature::None) return refuse(RetStatus::NotSupported, what + " is not possible");
    int v = featureValue(c.ad, id);
    if (v == 1) return Ret::success();
    return refuse(RetStatus::NotSupported, what + (v == -1 ? " is not enabled on this controller"
                                                           : " is not supported by this controller"));
}

LogicalDriveSpec withCurrentMembers(const ControllerRec& c, const LdRec& ld, LogicalDriveSpec spec, uint32_t adapter) {
    if (spec.chunks.empty())
        for (const ChunkRec& k : ld.members) spec.chunks.emplace_back(Addr(adapter, k.channel, k.device));
    (void)c;
    return spec;
}

}  // namespace

Ret modifyLd(Model& m, const Addr& a, const LogicalDriveSpec& requested) {
    ControllerRec* c = nullptr;
    LdRec* ld = nullptr;
    if (Ret r = resolveLd(m, a, c, ld); !r) return r;
    if (ld->migrating || hasRunningTask(*c, ld->id, Addr::ANY, Addr::ANY))
        return refuse(RetStatus::Busy, ldName(*ld) + " has a task running");
    if (ld->ld.substate != LogicalDriveState::Optimal)
        return refuse(RetStatus::InvalidState, ldName(*ld) + " is " + toString(ld->ld.substate) + ": cannot reconfigure it");
    LogicalDriveSpec spec = withCurrentMembers(*c, *ld, requested, a.getAdapterID());
    if (Ret r = checkFeature(*c, ld->ld.raidLevel, spec.raidLevel); !r) return r;
    Layout layout;
    if (Ret r = planLayout(*c, spec, ld->id, ld, layout); !r) return r;
    uint64_t newData = raidDataCapacityMB(spec.raidLevel, static_cast<uint32_t>(layout.chunks.size()),
                                          layout.chunkMB, layout.legs);
    if (newData < ld->ld.dataSizeMB)
        return refuse(RetStatus::NoSpace, "the new layout holds " + std::to_string(newData) + " MB, less than the " +
                                              std::to_string(ld->ld.dataSizeMB) + " MB of " + ldName(*ld));
    ld->migrating = true;
    ld->target = layout.chunks;
    ld->targetLevel = spec.raidLevel;
    ld->targetLegs = layout.legs;
    ld->targetStripeKB = spec.stripeSizeKB;
    ld->targetDataMB = newData;
    emit(m, *c, EventType::ConfigChange, EventTarget::ld(*ld),
         ldName(*ld) + " reconfiguration to " + toString(spec.raidLevel) + " with " +
             std::to_string(layout.chunks.size()) + " members started",
         0, 0, 3);
    startTask(m, *c, TaskType::Migrate, {ld->id, Addr::ANY, Addr::ANY}, static_cast<double>(layout.chunkMB),
              ld->ld.taskPriority, "");
    reconcile(m, *c);
    return Ret::success();
}

}  // namespace storlib::sim::ops
