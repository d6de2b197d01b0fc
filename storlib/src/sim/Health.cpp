#include "sim/Health.h"

#include "sim/Events.h"
#include "sim/Lookup.h"
#include "sim/Tasks.h"

#include <storlib/Names.h>
#include <storlib/RaidLevel.h>

#include <set>
#include <utility>

namespace storlib::sim {
namespace {

bool isBad(const ChunkRec& k) { return k.state != ChunkState::Ok; }

bool mirrorLost(const LdRec& ld, bool ring) {
    const auto& m = ld.members;
    size_t n = m.size();
    size_t stepBy = ring ? 1 : 2;
    for (size_t i = 0; i + (ring ? 0 : 1) < n; i += stepBy)
        if (isBad(m[i]) && isBad(m[(i + 1) % n])) return true;
    return false;
}

bool legLost(const LdRec& ld, const RaidLevelRule& r) {
    size_t legs = ld.ld.legs ? ld.ld.legs : 1;
    size_t per = ld.members.size() / legs;
    for (size_t leg = 0; leg < legs; ++leg) {
        uint32_t bad = 0;
        for (size_t i = leg * per; i < (leg + 1) * per; ++i) bad += isBad(ld.members[i]) ? 1 : 0;
        if (bad > r.redundancyPerLeg) return true;
    }
    return false;
}

LogicalDriveState taskState(const ControllerRec& c, const LdRec& ld, LogicalDriveState health) {
    if (health == LogicalDriveState::Failed) return health;
    for (const TaskRec& t : c.tasks) {
        if (t.p.taskState != TaskState::Running || t.p.logicalDriveID != ld.id) continue;
        switch (t.p.taskType) {
        case TaskType::Migrate: return LogicalDriveState::Migrating;
        case TaskType::Rebuild: return LogicalDriveState::Rebuilding;
        case TaskType::Build:
        case TaskType::Clear: return LogicalDriveState::Building;
        case TaskType::Verify:
        case TaskType::VerifyFix: return LogicalDriveState::Verifying;
        default: break;
        }
    }
    return health;
}

ChunkState chunkStateFor(const DriveRec* d, ChunkState current) {
    if (!d || d->hd.state == DriveState::Missing) return ChunkState::Missing;
    if (d->hd.state == DriveState::Failed || d->hd.state == DriveState::Offline) return ChunkState::Failed;
    return current;
}

void followDrives(ControllerRec& c, LdRec& ld) {
    for (ChunkRec& k : ld.members) k.state = chunkStateFor(findDrive(c, k.channel, k.device), k.state);
}

DriveRec* pickSpare(ControllerRec& c, const LdRec& ld, const ChunkRec& lost) {
    const DriveRec* old = findDrive(c, lost.channel, lost.device);
    DriveRec* fallback = nullptr;
    for (SpareType pass : {SpareType::Dedicated, SpareType::Global}) {
        for (DriveRec& d : c.drives) {
            if (d.hd.state != DriveState::HotSpare || d.hd.spareType != pass) continue;
            if (d.hd.sizeMB < lost.sizeMB) continue;
            if (pass == SpareType::Dedicated) {
                bool mine = false;
                for (uint32_t id : d.hd.dedicatedTo) mine = mine || id == ld.id;
                if (!mine) continue;
            }
            if (!old || (d.dev.interfaceType == old->dev.interfaceType && d.hd.mediaType == old->hd.mediaType))
                return &d;
            if (!fallback) fallback = &d;
        }
        if (fallback) return fallback;
    }
    return nullptr;
}

bool rebuildRunning(const ControllerRec& c, const LdRec& ld) {
    for (const TaskRec& t : c.tasks)
        if (t.p.taskState == TaskState::Running && t.p.logicalDriveID == ld.id &&
            (t.p.taskType == TaskType::Rebuild || t.p.taskType == TaskType::Migrate))
            return true;
    return false;
}

void takeSpare(Model& m, ControllerRec& c, LdRec& ld) {
    if (ld.ld.substate != LogicalDriveState::Degraded || rebuildRunning(c, ld)) return;
    for (size_t i = 0; i < ld.members.size(); ++i) {
        ChunkRec& k = ld.members[i];
        if (k.state != ChunkState::Failed && k.state != ChunkState::Missing) continue;
        if (DriveRec* spare = pickSpare(c, ld, k)) startRebuild(m, c, ld, i, *spare);
        return;
    }
}

// A consistency check or build cannot go on once a member is lost.
void stopChecks(Model& m, ControllerRec& c, const LdRec& ld) {
    for (TaskRec& t : c.tasks) {
        TaskType type = t.p.taskType;
        bool check = type == TaskType::Verify || type == TaskType::VerifyFix || type == TaskType::Build ||
                     type == TaskType::Clear;
        if (check && t.p.logicalDriveID == ld.id) endTask(m, c, t, TaskState::Failed, "a member was lost");
    }
}

void updateLd(Model& m, ControllerRec& c, LdRec& ld) {
    followDrives(c, ld);
    LogicalDriveState health = evaluateHealth(ld);
    if (health != LogicalDriveState::Optimal) stopChecks(m, c, ld);
    if (health == LogicalDriveState::Failed && ld.ld.substate != LogicalDriveState::Failed)
        abortTasksOf(m, c, ld.id);
    ld.ld.substate = health;
    LogicalDriveState now = taskState(c, ld, health);
    if (now == ld.ld.state) return;
    LogicalDriveState old = std::exchange(ld.ld.state, now);
    emit(m, c, EventType::LogicalDriveState, EventTarget::ld(ld),
         ldName(ld) + " is " + toString(now) + " (was " + toString(old) + ")",
         static_cast<uint32_t>(now), static_cast<uint32_t>(old));
}

void updateDriveRoles(Model& m, ControllerRec& c) {
    std::set<std::pair<uint32_t, uint32_t>> used, rebuilding;
    for (const LdRec& ld : c.logicalDrives)
        for (const auto* list : {&ld.members, &ld.target})
            for (const ChunkRec& k : *list) {
                used.insert({k.channel, k.device});
                if (k.state == ChunkState::Rebuilding) rebuilding.insert({k.channel, k.device});
            }
    for (DriveRec& d : c.drives) {
        DriveState s = d.hd.state;
        bool inUse = used.count({d.channel, d.device}) > 0;
        DriveState want = s;
        if (s == DriveState::Ready && inUse) want = DriveState::Online;
        if (s == DriveState::Online && !inUse) want = DriveState::Ready;
        if (s == DriveState::Rebuilding && !rebuilding.count({d.channel, d.device}))
            want = inUse ? DriveState::Online : DriveState::Ready;
        if (want == s) continue;
        d.hd.state = want;
        emit(m, c, EventType::DriveState, EventTarget::drive(d),
             driveName(d) + " is " + toString(want) + " (was " + toString(s) + ")",
             static_cast<uint32_t>(want), static_cast<uint32_t>(s));
    }
}

bool hasFault(const ControllerRec& c) {
    for (const LdRec& ld : c.logicalDrives)
        if (ld.ld.substate != LogicalDriveState::Optimal) return true;
    for (const DriveRec& d : c.drives)
        if (d.hd.state == DriveState::Failed) return true;
    if (c.battery && c.battery->status == BatteryStatus::Failed) return true;
    for (const EnclosureRec& e : c.enclosures) {
        for (const FanRec& f : e.fans)
            if (f.el.status == SESStatus::Critical) return true;
        for (const PowerSupplyRec& p : e.powerSupplies)
            if (p.el.status == SESStatus::Critical) return true;
        for (const SensorRec& s : e.temperatureSensors)
            if (s.el.status == SESStatus::Critical) return true;
    }
    return false;
}

void updateAlarm(Model& m, ControllerRec& c) {
    bool sounding = c.ad.alarmPresent && c.ad.alarmState == AlarmState::Enabled && hasFault(c);
    if (sounding == c.ad.alarmSounding) return;
    c.ad.alarmSounding = sounding;
    emit(m, c, EventType::Alarm, EventTarget::none(), sounding ? "Alarm is sounding" : "Alarm stopped",
         static_cast<uint32_t>(c.ad.alarmState), sounding ? 1 : 0);
}

}  // namespace

LogicalDriveState evaluateHealth(const LdRec& ld) {
    const RaidLevelRule* r = findRaidLevelRule(ld.ld.raidLevel);
    bool anyBad = false;
    for (const ChunkRec& k : ld.members) anyBad = anyBad || isBad(k);
    if (!anyBad) return LogicalDriveState::Optimal;
    if (!r || r->redundancyPerLeg == 0) return LogicalDriveState::Failed;
    bool lost = false;
    if (ld.ld.raidLevel == RaidLevel::Raid1 || ld.ld.raidLevel == RaidLevel::Raid10)
        lost = mirrorLost(ld, false);
    else if (ld.ld.raidLevel == RaidLevel::Raid1E)
        lost = mirrorLost(ld, true);
    else
        lost = legLost(ld, *r);
    return lost ? LogicalDriveState::Failed : LogicalDriveState::Degraded;
}

void reconcile(Model& m, ControllerRec& c) {
    for (LdRec& ld : c.logicalDrives) updateLd(m, c, ld);
    for (LdRec& ld : c.logicalDrives) {
        takeSpare(m, c, ld);
        updateLd(m, c, ld);
    }
    updateDriveRoles(m, c);
    updateAlarm(m, c);
}

}  // namespace storlib::sim
