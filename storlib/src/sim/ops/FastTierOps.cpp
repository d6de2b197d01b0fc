// Fast tier pool maintenance.
#include "sim/Events.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"
#include "sim/Tasks.h"

namespace storlib::sim::ops {
namespace {

uint32_t poolDrives(const ControllerRec& c) {
    uint32_t n = 0;
    for (const DriveRec& d : c.drives) n += d.hd.fastTierAssigned;
    return n;
}

}  // namespace

Ret fastTierCoherency(Model& m, uint32_t adapter) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    if (!c->ad.supportsFastTier) return refuse(RetStatus::NotSupported, "the controller has no fast tier");
    if (poolDrives(*c) == 0) return refuse(RetStatus::InvalidState, "the fast tier pool is empty");
    for (const TaskRec& t : c->tasks)
        if (t.p.taskState == TaskState::Running && t.p.taskType == TaskType::FastTierCoherency)
            return refuse(RetStatus::Busy, "a coherency check is running");
    startTask(m, *c, TaskType::FastTierCoherency, {}, 1024.0, c->ad.defaultTaskPriority, "");
    return Ret::success();
}

Ret clearFastTierPool(Model& m, uint32_t adapter) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    if (!c->ad.supportsFastTier) return refuse(RetStatus::NotSupported, "the controller has no fast tier");
    if (c->ad.fastTierDirty) return refuse(RetStatus::Busy, "the fast tier holds dirty data; flush it first");
    for (DriveRec& d : c->drives) d.hd.fastTierAssigned = false;
    emit(m, *c, EventType::FastTier, EventTarget::none(), "fast tier pool cleared", 3);
    return Ret::success();
}

}  // namespace storlib::sim::ops
