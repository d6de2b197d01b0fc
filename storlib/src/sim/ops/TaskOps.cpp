// Changing and stopping background tasks.
#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"
#include "sim/Tasks.h"

#include <storlib/Names.h>

namespace storlib::sim::ops {
namespace {

Ret resolveTask(Model& m, const Addr& a, ControllerRec*& c, TaskRec*& t) {
    if (Ret r = resolveController(m, a.getAdapterID(), c); !r) return r;
    t = a.getExtendedID() > 0xffffffffull ? nullptr : findTask(*c, static_cast<uint32_t>(a.getExtendedID()));
    if (!t) return refuse(RetStatus::NotFound, "no task " + std::to_string(a.getExtendedID()));
    if (t->p.taskState != TaskState::Running)
        return refuse(RetStatus::InvalidState, "task " + std::to_string(t->p.taskId) + " has ended");
    return Ret::success();
}

void reprioritise(Model& m, ControllerRec& c, TaskRec& t, TaskPriority prio) {
    rebaseTask(c, t, m.now);
    t.p.priority = prio;
}

}  // namespace

Ret setTaskPriority(Model& m, const Addr& a, TaskPriority prio) {
    ControllerRec* c = nullptr;
    TaskRec* t = nullptr;
    if (Ret r = resolveTask(m, a, c, t); !r) return r;
    reprioritise(m, *c, *t, prio);
    emit(m, *c, EventType::Task, {t->p.channelID, t->p.deviceID, t->p.logicalDriveID, t->p.taskId},
         "task " + std::to_string(t->p.taskId) + " priority " + toString(prio), 1,
         static_cast<uint32_t>(t->p.taskType), taskPercent(*c, *t, m.now));
    return Ret::success();
}

Ret abortTask(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    TaskRec* t = nullptr;
    if (Ret r = resolveTask(m, a, c, t); !r) return r;
    if (t->p.taskType == TaskType::Rebuild || t->p.taskType == TaskType::Migrate ||
        t->p.taskType == TaskType::SecureErase)
        return refuse(RetStatus::NotSupported, std::string("a ") + toString(t->p.taskType) + " task cannot be stopped");
    endTask(m, *c, *t, TaskState::Aborted, "stopped by request");
    reconcile(m, *c);
    return Ret::success();
}

Ret setDefaultTaskPriority(Model& m, uint32_t adapter, TaskPriority prio, bool applyToRunning) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    c->ad.defaultTaskPriority = prio;
    for (LdRec& ld : c->logicalDrives) ld.ld.taskPriority = prio;
    if (applyToRunning)
        for (TaskRec& t : c->tasks)
            if (t.p.taskState == TaskState::Running) reprioritise(m, *c, t, prio);
    emit(m, *c, EventType::ControllerSetting, EventTarget::none(),
         std::string("default task priority ") + toString(prio), 5, static_cast<uint32_t>(prio));
    return Ret::success();
}

Ret finishTask(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    TaskRec* t = nullptr;
    if (Ret r = resolveTask(m, a, c, t); !r) return r;
    completeTask(m, *c, *t);
    return Ret::success();
}

Ret finishAllTasks(Model& m) {
    // Completions may start further tasks (a rebuild onto a spare); a
    // bounded number of rounds finishes those too.
    for (int round = 0; round < 16; ++round) {
        bool any = false;
        for (ControllerRec& c : m.controllers)
            for (size_t i = 0; i < c.tasks.size(); ++i)
                if (c.tasks[i].p.taskState == TaskState::Running) {
                    completeTask(m, c, c.tasks[i]);
                    any = true;
                }
        if (!any) break;
    }
    return Ret::success();
}

}  // namespace storlib::sim::ops
