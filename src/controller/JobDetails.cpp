#include <storlib/Names.h>

#include "controller/CimNames.h"
#include "controller/FsaCIMInstanceWrapper.h"
#include "controller/FsaTimes.h"
#include "controller/JobMapping.h"
#include "controller/StatusMaps.h"
#include "controller/InstanceBatch.h"

namespace vex::cim::fwf::fsamap {

namespace {

using Row = PropertyRow<JobContext>;

// LocalOrUtcTime 1: Local Time.
constexpr unsigned kLocalTime = 1;
// OperationalStatus 17: Completed (the job has ended, whatever the outcome).
constexpr unsigned long long kOsCompleted = 17;
// A controller keeps an ended task listed this long before dropping it; the
// job leaves the cache with it.
constexpr std::uint64_t kEndedTaskKeptSeconds = 300;

const storlib::Progress& of(const JobContext& j) { return *j.task; }

bool running(const JobContext& j) { return of(j).getTaskState() == storlib::TaskState::Running; }

// CIM_ConcreteJob.JobState: 4 Running, 7 Completed, 8 Terminated, 10 Exception.
unsigned jobState(const JobContext& j) {
    switch (of(j).getTaskState()) {
    case storlib::TaskState::Completed: return 7;
    case storlib::TaskState::Aborted: return 8;
    case storlib::TaskState::Failed: return 10;
    default: return 4;
    }
}

// OK while running; once ended OK, Error or Stopped, each with Completed.
RawValue operationalStatus(const JobContext& j) {
    switch (of(j).getTaskState()) {
    case storlib::TaskState::Completed: return RawValue(std::vector<unsigned long long>{OS_OK, kOsCompleted});
    case storlib::TaskState::Aborted: return RawValue(std::vector<unsigned long long>{OS_STOPPED, kOsCompleted});
    case storlib::TaskState::Failed: return RawValue(std::vector<unsigned long long>{OS_ERROR, kOsCompleted});
    default: return RawValue(std::vector<unsigned long long>{OS_OK});
    }
}

// The task started, or, once it has ended, when it ended.
std::int64_t lastStateChange(const JobContext& j) {
    const std::int64_t start = of(j).getStartTime();
    return running(j) ? start : start + static_cast<std::int64_t>(of(j).getElapsedSeconds());
}

bool onLogicalDrive(const JobContext& j) { return of(j).getLogicalDriveID() != storlib::Addr::ANY; }

// "LogicalDrive:<SPInstanceID>" or "HardDrive:<DDDeviceID>" of the task's target.
RawValue target(const JobContext& j) {
    if (onLogicalDrive(j)) {
        return raw("LogicalDrive:" + logicalDriveId(j.controller, static_cast<int>(of(j).getLogicalDriveID())));
    }
    return raw("HardDrive:" + driveDeviceId(j.controller, static_cast<int>(of(j).getChannelID()),
                                            static_cast<int>(of(j).getDeviceID())));
}

const Row kJob[] = {
    // controller, task
    {"InstanceID", CIM_STRING, KEY,
     [](const JobContext& j) { return raw(formatText("%d_%d", j.controller, static_cast<int>(of(j).getTaskID()))); }},
    {"Name", CIM_STRING, PLAIN, [](const JobContext& j) { return raw(storlib::toString(of(j).getTaskType())); }},
    {"TypeAndSubTypeOfOperation", CIM_STRING, PLAIN,
     [](const JobContext& j) {
         return raw(formatText("%s:%s", onLogicalDrive(j) ? "LogicalDrive" : "HardDrive",
                               storlib::toString(of(j).getTaskType())));
     }},
    {"DeviceTypeAndID", CIM_STRING, PLAIN, target},
    {"OperationalStatus", CIM_UINT16_ARRAY, PLAIN, operationalStatus},
    {"JobStatus", CIM_STRING, PLAIN, [](const JobContext& j) { return raw(storlib::toString(of(j).getTaskState())); }},
    {"JobState", CIM_UINT16, PLAIN, [](const JobContext& j) { return raw(jobState(j)); }},
    {"StartTime", CIM_DATETIME, PLAIN, [](const JobContext& j) { return raw(momentOf(of(j).getStartTime())); }},
    {"LastTimeOfModification", CIM_DATETIME, PLAIN, [](const JobContext& j) { return raw(momentOf(j.now)); }},
    {"TimeOfLastStateChange", CIM_DATETIME, PLAIN, [](const JobContext& j) { return raw(momentOf(lastStateChange(j))); }},
    {"ElapsedTime", CIM_DATETIME, PLAIN, [](const JobContext& j) { return raw(intervalOf(of(j).getElapsedSeconds())); }},
    // The job leaves the cache when the controller drops its ended task.
    {"DeleteOnCompletion", CIM_BOOLEAN, PLAIN, [](const JobContext&) { return raw(true); }},
    {"TimeBeforeRemoval", CIM_DATETIME, PLAIN, [](const JobContext&) { return raw(intervalOf(kEndedTaskKeptSeconds)); }},
    {"PercentComplete", CIM_UINT16, PLAIN, [](const JobContext& j) { return raw(of(j).getPercentComplete()); }},
    {"LocalOrUtcTime", CIM_UINT16, PLAIN, [](const JobContext&) { return raw(kLocalTime); }},
    {"Priority", CIM_UINT32, PLAIN, [](const JobContext& j) { return raw(of(j).getPriority()); }},
};

}  // namespace

void addJobDetails(const JobContext& job, InstanceBatch& batch) {
    fsaCIMInstanceWrapper instance;
    instance.addRows(kJob, job);
    batch.add(VEX_OBJ_JOB, instance);
}

void updateLrcInformation(const ControllerContext& controller, std::int64_t now, InstanceBatch& batch) {
    for (const storlib::RaidObject* object :
         storlib::FilterCollection(*controller.adapter, storlib::Progress::kClassName)) {
        // Ended tasks too, at their final state, for as long as the controller lists them.
        addJobDetails(JobContext{controller.index, object->as<storlib::Progress>(), now}, batch);
    }
}

}  // namespace vex::cim::fwf::fsamap
