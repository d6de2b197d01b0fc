// Following jobs: a job (VEX_ConcreteJob) stands for a controller task. Once
// the task ends the job shows its final JobState (7 completed, 8 terminated,
// 10 exception) until the controller drops the task; it then leaves the
// provider's list and its outcome is kept as a VEX_CompletedJob. Progress is
// PercentComplete.
#ifndef VEXRAID_JOBS_H
#define VEXRAID_JOBS_H

#include <cmpihost/ObjectPath.h>

#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "Session.h"

namespace vexraid {

struct FollowOptions {
    double intervalSeconds = 1.0;
    double timeoutSeconds = 0;  // 0: no limit
    bool terminal = false;      // draw bars with "\r"
};

// How one followed job ended: "Completed, 100%" and the like.
struct JobOutcome {
    std::string id;
    std::string status;  // the job's JobStatus, or its completed-job record's; "ended" when neither is known
    unsigned percent = 0;
};

// JobState 7 Completed, 8 Terminated, 9 Killed, 10 Exception; a job without
// a JobState counts as running while it is listed.
bool hasEnded(const cmpihost::Instance& job);

// The paths of the jobs running now (not those that have ended).
std::vector<cmpihost::ObjectPath> runningJobs(Session& session);

// Polls the jobs until each has ended, drawing one progress bar per job
// on out; returns 0, or 1 when the timeout or Ctrl-C came first. Each ended
// job's outcome is printed on out, and appended to outcomes when given.
int followJobs(Session& session, const std::vector<cmpihost::ObjectPath>& jobs, const FollowOptions& options,
               std::ostream& out, std::vector<JobOutcome>* outcomes = nullptr);

// RequestedState values of RequestStateChange: abort, and the priorities.
constexpr unsigned short kAbortJob = 4;
constexpr unsigned short kPriorityHigh = 32769;
constexpr unsigned short kPriorityMedium = 32770;
constexpr unsigned short kPriorityLow = 32771;

// RequestStateChange on one job.
cmpihost::Response changeJobState(Session& session, const cmpihost::ObjectPath& job, unsigned short requestedState);

// The jobs that appear within waitSeconds and are not among known.
std::vector<cmpihost::ObjectPath> newJobs(Session& session, const std::set<std::string>& known,
                                          double waitSeconds);

// The text of each path, to compare job lists.
std::set<std::string> pathTexts(const std::vector<cmpihost::ObjectPath>& paths);

}  // namespace vexraid

#endif
