// Jobs: every task a controller lists (running or ended) becomes one instance of cache
// type 12, served as VEX_ConcreteJob (InstanceID is its key).
#ifndef VEX_CONTROLLER_JOBMAPPING_H
#define VEX_CONTROLLER_JOBMAPPING_H

#include <cstdint>

#include "controller/MappingContext.h"

namespace vex::cim::fwf {
class InstanceBatch;
}

namespace vex::cim::fwf::fsamap {

// The tasks of one controller; now is the snapshot's controller clock.
void updateLrcInformation(const ControllerContext& controller, std::int64_t now, InstanceBatch& batch);
void addJobDetails(const JobContext& job, InstanceBatch& batch);

}  // namespace vex::cim::fwf::fsamap

#endif
