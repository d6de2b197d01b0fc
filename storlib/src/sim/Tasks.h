// Background tasks: start, progress with the controller clock, completion.
#pragma once
#include "sim/Model.h"

namespace storlib::sim {

struct TaskTarget {
    uint32_t ld = Addr::ANY, channel = Addr::ANY, device = Addr::ANY;
};

// Controller seconds a finished task stays listed (at 100 % when completed).
constexpr double kFinishedTaskRetention = 300;

TaskRec& startTask(Model& m, ControllerRec& c, TaskType type, const TaskTarget& target, double workMB,
                   TaskPriority priority, const std::string& what);
double taskRate(const ControllerRec& c, const TaskRec& t);   // MiB per controller second
double taskDoneAt(const ControllerRec& c, const TaskRec& t, double now);
uint32_t taskPercent(const ControllerRec& c, const TaskRec& t, double now);
// Takes the done amount at `now` and re-bases the task there (before a rate change).
void rebaseTask(const ControllerRec& c, TaskRec& t, double now);

// Runs every progress step and completion due up to `to`, in time order.
// Returns true when anything changed.
bool advanceTasks(Model& m, double to);
bool tasksDue(const Model& m, double to);
void completeTask(Model& m, ControllerRec& c, TaskRec& t);
void endTask(Model& m, ControllerRec& c, TaskRec& t, TaskState state, const std::string& why);
// Ends every running task of a logical drive (it is being deleted).
void abortTasksOf(Model& m, ControllerRec& c, uint32_t ldId);

// Starts rebuilding member `member` of the logical drive onto drive d.
void startRebuild(Model& m, ControllerRec& c, LdRec& ld, size_t member, DriveRec& d);

}  // namespace storlib::sim
