// Creating a logical drive from a LogicalDriveSpec.
#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Layout.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"
#include "sim/Tasks.h"
#include "sim/ops/SpecCheck.h"

#include <storlib/Names.h>
#include <storlib/RaidLevel.h>

namespace storlib::sim::ops {
namespace {

uint32_t freeLdId(const ControllerRec& c) {
    for (uint32_t id = 0;; ++id) {
        bool used = false;
        for (const LdRec& ld : c.logicalDrives) used = used || ld.id == id;
        if (!used) return id;
    }
}

uint32_t serialFor(const ControllerRec& c, uint32_t id, double now) {
    uint32_t h = 2166136261u;
    for (char ch : c.ad.serialNumber) h = (h ^ static_cast<uint8_t>(ch)) * 16777619u;
    return h ^ (id * 0x9e3779b9u) ^ static_cast<uint32_t>(now);
}

void startInit(Model& m, ControllerRec& c, LdRec& ld, InitMethod method, TaskPriority prio) {
    uint64_t chunk = ld.members.empty() ? 0 : ld.members.front().sizeMB;
    ld.ld.quickInitialized = method == InitMethod::Quick;
    ld.ld.initialized = method == InitMethod::Quick;
    if (method != InitMethod::Build && method != InitMethod::Clear) return;
    TaskType type = method == InitMethod::Clear || !isRedundant(ld.ld.raidLevel) ? TaskType::Clear : TaskType::Build;
    startTask(m, c, type, {ld.id, Addr::ANY, Addr::ANY}, static_cast<double>(chunk), prio, "");
}

}  // namespace

Ret createLd(Model& m, const LogicalDriveSpec& spec, uint32_t* newId) {
    if (spec.chunks.empty()) return refuse(RetStatus::InvalidArgument, "no member drives given");
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, spec.chunks.front().drive.getAdapterID(), c); !r) return r;
    if (c->ad.functionalMode == FunctionalMode::HBA)
        return refuse(RetStatus::NotSupported, "the controller is in HBA mode");
    if (c->logicalDrives.size() >= c->ad.maxLogicalDrives)
        return refuse(RetStatus::LimitReached, "the controller has its maximum of logical drives");
    Layout layout;
    if (Ret r = planLayout(*c, spec, Addr::ANY, nullptr, layout); !r) return r;

    LdRec ld;
    ld.id = freeLdId(*c);
    ld.ld.name = spec.name.empty() ? "Device " + std::to_string(ld.id) : spec.name;
    ld.ld.raidLevel = spec.raidLevel;
    ld.ld.legs = layout.legs;
    ld.ld.stripeSizeKB = spec.stripeSizeKB;
    ld.ld.readCache = spec.readCache;
    ld.ld.writeCache = spec.writeCache;
    ld.ld.taskPriority = spec.taskPriority;
    ld.ld.isFastTier3 = spec.isFastTier3;
    ld.ld.fastTierSetting = spec.fastTierSetting;
    ld.ld.creationTime = static_cast<int64_t>(m.now);
    ld.ld.serialNumber = serialFor(*c, ld.id, m.now);
    ld.members = layout.chunks;
    updateCapacity(ld);
    c->logicalDrives.push_back(ld);
    LdRec& added = c->logicalDrives.back();
    emit(m, *c, EventType::ConfigChange, EventTarget::ld(added),
         ldName(added) + " created: " + toString(spec.raidLevel) + ", " + std::to_string(layout.chunks.size()) +
             " members, " + std::to_string(added.ld.dataSizeMB) + " MB",
         0, 0, 1);
    startInit(m, *c, added, spec.initMethod, spec.taskPriority);
    if (newId) *newId = added.id;
    reconcile(m, *c);
    return Ret::success();
}

Ret initializeLd(Model& m, const Addr& a, InitMethod method, TaskPriority prio) {
    ControllerRec* c = nullptr;
    LdRec* ld = nullptr;
    if (Ret r = resolveLd(m, a, c, ld); !r) return r;
    if (hasRunningTask(*c, ld->id, Addr::ANY, Addr::ANY))
        return refuse(RetStatus::Busy, ldName(*ld) + " has a task running");
    if (ld->ld.substate != LogicalDriveState::Optimal)
        return refuse(RetStatus::InvalidState, ldName(*ld) + " is " + toString(ld->ld.substate) + ": cannot initialize it");
    startInit(m, *c, *ld, method, prio);
    reconcile(m, *c);
    return Ret::success();
}

}  // namespace storlib::sim::ops
