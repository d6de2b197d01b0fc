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

// CIM_ConcreteJob.JobState 4: Running; LocalOrUtcTime 1: Local Time.
constexpr unsigned kJobRunning = 4;
constexpr unsigned kLocalTime = 1;

const storlib::Progress& of(const JobContext& j) { return *j.task; }

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
    {"OperationalStatus", CIM_UINT16_ARRAY, PLAIN,
     [](const JobContext&) { return RawValue(std::vector<unsigned long long>{OS_OK}); }},
    {"JobStatus", CIM_STRING, PLAIN, [](const JobContext& j) { return raw(storlib::toString(of(j).getTaskState())); }},
    {"JobState", CIM_UINT16, PLAIN, [](const JobContext&) { return raw(kJobRunning); }},
    {"StartTime", CIM_DATETIME, PLAIN, [](const JobContext& j) { return raw(momentOf(of(j).getStartTime())); }},
    {"LastTimeOfModification", CIM_DATETIME, PLAIN, [](const JobContext& j) { return raw(momentOf(j.now)); }},
    {"TimeOfLastStateChange", CIM_DATETIME, PLAIN, [](const JobContext& j) { return raw(momentOf(of(j).getStartTime())); }},
    {"ElapsedTime", CIM_DATETIME, PLAIN, [](const JobContext& j) { return raw(intervalOf(of(j).getElapsedSeconds())); }},
    // The job leaves the cache when its task ends.
    {"DeleteOnCompletion", CIM_BOOLEAN, PLAIN, [](const JobContext&) { return raw(true); }},
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
        const auto* task = object->as<storlib::Progress>();
        if (task->getTaskState() == storlib::TaskState::Running) {
            addJobDetails(JobContext{controller.index, task, now}, batch);
        }
    }
}

}  // namespace vex::cim::fwf::fsamap
