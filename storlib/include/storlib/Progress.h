// Progress: a background task of a controller (build, rebuild, verify, migration, ...).
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>
#include <storlib/Types.h>

namespace storlib {

#define STORLIB_PROGRESS_PROPERTIES(X)                                                     \
    X(uint32_t, taskId, getTaskID, 0)                                                      \
    X(TaskType, taskType, getTaskType, TaskType::Verify)                                   \
    X(TaskState, taskState, getTaskState, TaskState::Running)                              \
    X(uint32_t, percentComplete, getPercentComplete, 0)                                    \
    X(TaskPriority, priority, getPriority, TaskPriority::Medium)                           \
    X(uint32_t, logicalDriveID, getLogicalDriveID, Addr::ANY)  /* target logical drive */  \
    X(uint32_t, channelID, getChannelID, Addr::ANY)            /* target drive */          \
    X(uint32_t, deviceID, getDeviceID, Addr::ANY)                                          \
    X(int64_t, startTime, getStartTime, 0)                                                 \
    X(uint64_t, elapsedSec, getElapsedSeconds, 0)                                          \
    X(uint64_t, remainingSec, getRemainingSeconds, 0)

struct ProgressData {
    STORLIB_PROGRESS_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Address: controller, with the task id as extended component. getTarget()
// is the address of the logical drive or drive the task works on.
class STORLIB_API Progress : public RaidObject {
    STORLIB_OBJECT_CLASS(Progress, RaidObject)
public:
    Progress(const Addr& addr, ProgressData data) : RaidObject(addr), data_(data) {}
    ~Progress() override;
    STORLIB_PROGRESS_PROPERTIES(STORLIB_PROPERTY_GETTER)
    Addr getTarget() const {
        return Addr(getAddr().getAdapterID(), data_.channelID, data_.deviceID, data_.logicalDriveID);
    }
private:
    ProgressData data_;
};

}  // namespace storlib
