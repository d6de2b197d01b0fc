// Deleting, verifying, rebuilding and forcing logical drives online.
#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"
#include "sim/Tasks.h"

#include <storlib/Names.h>

#include <algorithm>

namespace storlib::sim::ops {

Ret deleteLd(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    LdRec* ld = nullptr;
    if (Ret r = resolveLd(m, a, c, ld); !r) return r;
    uint32_t id = ld->id;
    std::string name = ldName(*ld);
    abortTasksOf(m, *c, id);
    for (DriveRec& d : c->drives) {
        auto& to = d.hd.dedicatedTo;
        if (std::find(to.begin(), to.end(), id) == to.end()) continue;
        to.erase(std::remove(to.begin(), to.end(), id), to.end());
        if (to.empty() && d.hd.spareType == SpareType::Dedicated) {
            d.hd.spareType = SpareType::None;
            d.hd.state = DriveState::Ready;
            emit(m, *c, EventType::SpareChange, EventTarget::drive(d), driveName(d) + " is no longer a spare", 3);
        }
    }
    c->logicalDrives.erase(std::remove_if(c->logicalDrives.begin(), c->logicalDrives.end(),
                                          [&](const LdRec& x) { return x.id == id; }),
                           c->logicalDrives.end());
    emit(m, *c, EventType::ConfigChange, {Addr::ANY, Addr::ANY, id, Addr::ANY64}, name + " deleted", 0, 0, 2);
    reconcile(m, *c);
    return Ret::success();
}

Ret verifyLd(Model& m, const Addr& a, bool fix) {
    ControllerRec* c = nullptr;
    LdRec* ld = nullptr;
    if (Ret r = resolveLd(m, a, c, ld); !r) return r;
    if (hasRunningTask(*c, ld->id, Addr::ANY, Addr::ANY))
        return refuse(RetStatus::Busy, ldName(*ld) + " has a task running");
    if (ld->ld.substate != LogicalDriveState::Optimal)
        return refuse(RetStatus::InvalidState, ldName(*ld) + " is " + toString(ld->ld.substate) + ": cannot verify it");
    if (fix && !isRedundant(ld->ld.raidLevel))
        return refuse(RetStatus::NotSupported, ldName(*ld) + " has no redundancy to repair from");
    uint64_t chunk = ld->members.empty() ? 0 : ld->members.front().sizeMB;
    startTask(m, *c, fix ? TaskType::VerifyFix : TaskType::Verify, {ld->id, Addr::ANY, Addr::ANY},
              static_cast<double>(chunk), ld->ld.taskPriority, "");
    reconcile(m, *c);
    return Ret::success();
}

Ret rebuildLd(Model& m, const Addr& la, const Addr& da) {
    ControllerRec* c = nullptr;
    LdRec* ld = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveLd(m, la, c, ld); !r) return r;
    ControllerRec* dc = nullptr;
    if (Ret r = resolveDrive(m, da, dc, d); !r) return r;
    if (dc != c) return refuse(RetStatus::InvalidArgument, "the drive is on another controller");
    if (ld->ld.substate != LogicalDriveState::Degraded)
        return refuse(RetStatus::InvalidState, ldName(*ld) + " is " + toString(ld->ld.substate) + ": nothing to rebuild");
    if (hasRunningTask(*c, ld->id, Addr::ANY, Addr::ANY))
        return refuse(RetStatus::Busy, ldName(*ld) + " has a task running");
    if (d->hd.state != DriveState::Ready && d->hd.state != DriveState::HotSpare)
        return refuse(RetStatus::InvalidState, driveName(*d) + " is " + toString(d->hd.state) + ": cannot rebuild onto it");
    auto lost = std::find_if(ld->members.begin(), ld->members.end(), [](const ChunkRec& k) {
        return k.state == ChunkState::Failed || k.state == ChunkState::Missing;
    });
    if (lost == ld->members.end()) return refuse(RetStatus::InvalidState, ldName(*ld) + " has no failed member");
    if (d->hd.sizeMB < lost->sizeMB)
        return refuse(RetStatus::NoSpace, driveName(*d) + " is smaller than the members of " + ldName(*ld));
    startRebuild(m, *c, *ld, static_cast<size_t>(lost - ld->members.begin()), *d);
    reconcile(m, *c);
    return Ret::success();
}

Ret setLdState(Model& m, const Addr& a, LogicalDriveState target, uint32_t command, uint32_t options) {
    ControllerRec* c = nullptr;
    LdRec* ld = nullptr;
    if (Ret r = resolveLd(m, a, c, ld); !r) return r;
    (void)options;
    if (target != LogicalDriveState::Optimal)
        return refuse(RetStatus::InvalidArgument, "a logical drive can only be forced to optimal");
    if (ld->ld.substate == LogicalDriveState::Optimal) return refuse(RetStatus::InvalidState, ldName(*ld) + " is optimal");
    std::vector<DriveRec*> revive;
    for (const ChunkRec& k : ld->members) {
        if (k.state == ChunkState::Ok) continue;
        DriveRec* d = findDrive(*c, k.channel, k.device);
        if (!d || d->hd.state == DriveState::Missing)
            return refuse(RetStatus::InvalidState, "member " + std::to_string(k.channel) + ":" +
                                                       std::to_string(k.device) + " is missing");
        if (k.state == ChunkState::Rebuilding) return refuse(RetStatus::Busy, ldName(*ld) + " is rebuilding");
        revive.push_back(d);
    }
    for (DriveRec* d : revive) d->hd.state = DriveState::Online;
    for (ChunkRec& k : ld->members) k.state = ChunkState::Ok;
    ld->ld.forceOnlineFlags = command;
    emit(m, *c, EventType::LogicalDriveProperty, EventTarget::ld(*ld), ldName(*ld) + " forced online", 6);
    reconcile(m, *c);
    return Ret::success();
}

}  // namespace storlib::sim::ops
