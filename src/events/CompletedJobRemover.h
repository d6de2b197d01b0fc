// The completed-job remover's rule: a VEX_CompletedJob record is dropped
// once its job has ended ("Completed" or "Failed" in a record; "Finished",
// "Failure", "Preempted" or "Terminated" in a controller's words), the job is
// no longer listed as a VEX_ConcreteJob, and its last change
// (LastTimeOfModification) lies more than kCompletedJobKeptSeconds back.
// Records without a readable LastTimeOfModification are kept.
#ifndef VEX_EVENTS_COMPLETEDJOBREMOVER_H
#define VEX_EVENTS_COMPLETEDJOBREMOVER_H

#include <set>
#include <string>
#include <vector>

#include "framework/CIMDateTime.h"
#include "framework/CIMInstance.h"

namespace vex::cim::fwf {

constexpr long long kCompletedJobKeptSeconds = 3600;

bool jobHasEnded(const std::string& jobStatus);

// The InstanceIDs of the records the rule drops at `now`.
std::vector<std::string> expiredCompletedJobs(const std::vector<CIMInstance>& records,
                                              const std::set<std::string>& listedJobs, const CIMDateTime& now);

// One pass of the remover through the plug-in registry; answers how many
// records it dropped.
std::size_t removeExpiredCompletedJobs();

}  // namespace vex::cim::fwf

#endif
