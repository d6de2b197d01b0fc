// Following jobs: a job (VEX_ConcreteJob) stands for a running controller
// task and leaves the provider's list when the task ends; its outcome is
// then kept as a VEX_CompletedJob. Progress is PercentComplete.
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

// The paths of the jobs running now.
std::vector<cmpihost::ObjectPath> runningJobs(Session& session);

// Polls the jobs until each has ended, drawing one progress bar per job
// on out; returns 0, or 1 when the timeout or Ctrl-C came first.
int followJobs(Session& session, const std::vector<cmpihost::ObjectPath>& jobs, const FollowOptions& options,
               std::ostream& out);

// The jobs that appear within waitSeconds and are not among known.
std::vector<cmpihost::ObjectPath> newJobs(Session& session, const std::set<std::string>& known,
                                          double waitSeconds);

// The text of each path, to compare job lists.
std::set<std::string> pathTexts(const std::vector<cmpihost::ObjectPath>& paths);

}  // namespace vexraid

#endif
