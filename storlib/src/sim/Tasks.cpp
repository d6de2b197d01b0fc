#include "sim/Tasks.h"

#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Layout.h"
#include "sim/Lookup.h"

#include <storlib/Names.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace storlib::sim {
namespace {

double timeToReach(const ControllerRec& c, const TaskRec& t, double mb) {
    return t.anchor + (mb - t.doneMB) / taskRate(c, t);
}

// The next moment the task reports something: a 10 % step or its end.
double nextEventTime(const ControllerRec& c, const TaskRec& t) {
    uint32_t step = t.lastStep + 1;
    double mb = step <= 9 ? t.workMB * step / 10.0 : t.workMB;
    return timeToReach(c, t, mb);
}

EventTarget targetOf(const TaskRec& t) {
    return {t.p.channelID, t.p.deviceID, t.p.logicalDriveID, t.p.taskId};
}

std::string taskText(const TaskRec& t, const char* verb) {
    std::string what = toString(t.p.taskType);
    if (t.p.logicalDriveID != Addr::ANY) what += " of logical drive " + std::to_string(t.p.logicalDriveID);
    if (t.p.channelID != Addr::ANY)
        what += (t.p.logicalDriveID != Addr::ANY ? " onto drive " : " of drive ") +
                std::to_string(t.p.channelID) + ":" + std::to_string(t.p.deviceID);
    return "Task " + std::to_string(t.p.taskId) + " (" + what + ") " + verb;
}

void finishMigration(Model& m, ControllerRec& c, LdRec& ld) {
    ld.members = std::move(ld.target);
    ld.target.clear();
    for (ChunkRec& k : ld.members) k.state = ChunkState::Ok;
    ld.migrating = false;
    ld.ld.raidLevel = ld.targetLevel;
    ld.ld.legs = ld.targetLegs;
    ld.ld.stripeSizeKB = ld.targetStripeKB;
    updateCapacity(ld);
    emit(m, c, EventType::ConfigChange, EventTarget::ld(ld), ldName(ld) + " reconfiguration completed", 0, 0, 3);
}

void finishRebuild(ControllerRec& c, const TaskRec& t, bool done) {
    LdRec* ld = findLd(c, t.p.logicalDriveID);
    if (!ld) return;
    for (ChunkRec& k : ld->members)
        if (k.channel == t.p.channelID && k.device == t.p.deviceID && k.state == ChunkState::Rebuilding)
            k.state = done ? ChunkState::Ok : ChunkState::Failed;
}

void applyCompletion(Model& m, ControllerRec& c, TaskRec& t) {
    LdRec* ld = findLd(c, t.p.logicalDriveID);
    DriveRec* d = findDrive(c, t.p.channelID, t.p.deviceID);
    switch (t.p.taskType) {
    case TaskType::Build:
    case TaskType::Clear:
        if (ld) ld->ld.initialized = true;
        break;
    case TaskType::Rebuild: finishRebuild(c, t, true); break;
    case TaskType::VerifyFix:
        if (ld) ld->ld.badStripes = 0;
        break;
    case TaskType::Migrate:
        if (ld && ld->migrating) finishMigration(m, c, *ld);
        break;
    case TaskType::SecureErase:
        if (d) d->hd.state = DriveState::Ready;
        break;
    case TaskType::FastTierCoherency: c.ad.fastTierDirty = false; break;
    default: break;
    }
}

bool purgeFinished(Model& m) {
    bool changed = false;
    for (ControllerRec& c : m.controllers) {
        auto old = c.tasks.size();
        c.tasks.erase(std::remove_if(c.tasks.begin(), c.tasks.end(), [&](const TaskRec& t) {
                          return t.p.taskState != TaskState::Running && t.anchor + kFinishedTaskRetention <= m.now;
                      }),
                      c.tasks.end());
        changed = changed || old != c.tasks.size();
    }
    return changed;
}

}  // namespace

double taskRate(const ControllerRec& c, const TaskRec& t) {
    double base = std::max<uint32_t>(1, c.ad.taskRateMBps);
    switch (t.p.priority) {
    case TaskPriority::High: return base;
    case TaskPriority::Medium: return base / 2;
    default: return base / 4;
    }
}

double taskDoneAt(const ControllerRec& c, const TaskRec& t, double now) {
    if (t.p.taskState != TaskState::Running) return t.doneMB;
    return std::min(t.workMB, t.doneMB + std::max(0.0, now - t.anchor) * taskRate(c, t));
}

uint32_t taskPercent(const ControllerRec& c, const TaskRec& t, double now) {
    if (t.p.taskState == TaskState::Completed || t.workMB <= 0) return 100;
    double pct = std::floor(taskDoneAt(c, t, now) * 100.0 / t.workMB);
    uint32_t cap = t.p.taskState == TaskState::Running ? 99 : 100;
    return std::min<uint32_t>(cap, static_cast<uint32_t>(std::max(0.0, pct)));
}

void rebaseTask(const ControllerRec& c, TaskRec& t, double now) {
    t.doneMB = taskDoneAt(c, t, now);
    t.anchor = now;
}

TaskRec& startTask(Model& m, ControllerRec& c, TaskType type, const TaskTarget& target, double workMB,
                   TaskPriority priority, const std::string& what) {
    TaskRec t;
    t.p.taskId = c.nextTaskId++;
    t.p.taskType = type;
    t.p.taskState = TaskState::Running;
    t.p.priority = priority;
    t.p.logicalDriveID = target.ld;
    t.p.channelID = target.channel;
    t.p.deviceID = target.device;
    t.p.startTime = static_cast<int64_t>(m.now);
    t.workMB = std::max(1.0, workMB);
    t.anchor = m.now;
    c.tasks.push_back(t);
    TaskRec& added = c.tasks.back();
    emit(m, c, EventType::Task, targetOf(added), taskText(added, "started") + (what.empty() ? "" : ": " + what),
         2, static_cast<uint32_t>(type), 0);
    return added;
}

void completeTask(Model& m, ControllerRec& c, TaskRec& t) {
    t.doneMB = t.workMB;
    t.anchor = m.now;
    t.p.taskState = TaskState::Completed;
    uint32_t id = t.p.taskId;
    emit(m, c, EventType::Task, targetOf(t), taskText(t, "completed"), 3, static_cast<uint32_t>(t.p.taskType), 100);
    applyCompletion(m, c, *findTask(c, id));
    reconcile(m, c);
}

void endTask(Model& m, ControllerRec& c, TaskRec& t, TaskState state, const std::string& why) {
    if (t.p.taskState != TaskState::Running) return;
    rebaseTask(c, t, m.now);
    t.p.taskState = state;
    emit(m, c, EventType::Task, targetOf(t), taskText(t, state == TaskState::Aborted ? "aborted" : "failed") +
         (why.empty() ? "" : ": " + why), 4, static_cast<uint32_t>(t.p.taskType), taskPercent(c, t, m.now));
    if (t.p.taskType == TaskType::Rebuild) finishRebuild(c, t, false);
    if (t.p.taskType == TaskType::Migrate)
        if (LdRec* ld = findLd(c, t.p.logicalDriveID)) {
            ld->migrating = false;
            ld->target.clear();
        }
}

void abortTasksOf(Model& m, ControllerRec& c, uint32_t ldId) {
    for (TaskRec& t : c.tasks)
        if (t.p.logicalDriveID == ldId) endTask(m, c, t, TaskState::Failed, "logical drive failed or deleted");
}

void startRebuild(Model& m, ControllerRec& c, LdRec& ld, size_t member, DriveRec& d) {
    ChunkRec& k = ld.members[member];
    uint64_t start = firstFit(c, d, k.sizeMB);
    k = ChunkRec{d.channel, d.device, start == ~0ull ? 0 : start, k.sizeMB, ChunkState::Rebuilding};
    DriveState old = d.hd.state;
    d.hd.state = DriveState::Rebuilding;
    d.hd.spareType = SpareType::None;
    d.hd.dedicatedTo.clear();
    emit(m, c, EventType::DriveState, EventTarget::drive(d), driveName(d) + " is rebuilding for " + ldName(ld),
         static_cast<uint32_t>(DriveState::Rebuilding), static_cast<uint32_t>(old));
    startTask(m, c, TaskType::Rebuild, {ld.id, d.channel, d.device}, static_cast<double>(k.sizeMB),
              ld.ld.taskPriority, "");
}

bool tasksDue(const Model& m, double to) {
    for (const ControllerRec& c : m.controllers)
        for (const TaskRec& t : c.tasks) {
            if (t.p.taskState == TaskState::Running && nextEventTime(c, t) <= to) return true;
            if (t.p.taskState != TaskState::Running && t.anchor + kFinishedTaskRetention <= to) return true;
        }
    return false;
}

bool advanceTasks(Model& m, double to) {
    bool changed = false;
    for (;;) {
        ControllerRec* bestC = nullptr;
        uint32_t bestId = 0;
        double best = std::numeric_limits<double>::infinity();
        for (ControllerRec& c : m.controllers)
            for (TaskRec& t : c.tasks)
                if (t.p.taskState == TaskState::Running && nextEventTime(c, t) < best) {
                    best = nextEventTime(c, t);
                    bestC = &c;
                    bestId = t.p.taskId;
                }
        if (!bestC || best > to) break;
        m.now = std::max(m.now, best);
        TaskRec& t = *findTask(*bestC, bestId);
        changed = true;
        if (++t.lastStep <= 9) {
            emit(m, *bestC, EventType::Task, targetOf(t), taskText(t, "in progress"), 1,
                 static_cast<uint32_t>(t.p.taskType), t.lastStep * 10);
        } else {
            completeTask(m, *bestC, t);
        }
    }
    m.now = std::max(m.now, to);
    return purgeFinished(m) || changed;
}

}  // namespace storlib::sim
