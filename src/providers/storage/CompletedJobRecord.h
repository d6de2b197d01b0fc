// The completed-job record of a job that has left the cache: its last
// properties, with the outcome decided from how far it got.
#ifndef VEX_PROVIDERS_STORAGE_COMPLETEDJOBRECORD_H
#define VEX_PROVIDERS_STORAGE_COMPLETEDJOBRECORD_H

#include <vector>

#include "framework/CompletedJob.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

// The job's properties by name, in record order. A job last seen above 94 %
// counts as finished: "Completed" at 100 %; otherwise "Failed" at its last
// percentage.
_CompletedJob completedJobRecord(const std::vector<CIMProperty>& properties);

}  // namespace vex::cim::fwf

#endif
