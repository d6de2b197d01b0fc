// What one cache build reads from and writes to.
#ifndef VEX_CONTROLLER_FSACACHEBUILD_H
#define VEX_CONTROLLER_FSACACHEBUILD_H

#include <memory>

#include <storlib/SystemConfig.h>

#include "controller/InstanceBatch.h"
#include "controller/VexCacheManager.h"
#include "controller/VexFSAInterface.h"

namespace vex::cim::fwf {

struct VexFSAInterface::CacheBuild {
    VexCacheManager& cache;
    // The controllers as of the start of the build; null when the library
    // could not give them (every controller then counts as not usable).
    std::shared_ptr<const storlib::SystemConfig> snapshot;
    // Drives, volumes, pools, enclosures, elements, jobs and settings, stored
    // in the cache once every controller was read.
    InstanceBatch batch;
};

}  // namespace vex::cim::fwf

#endif
