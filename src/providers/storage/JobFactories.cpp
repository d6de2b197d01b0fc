// The job family beyond the cached VEX_ConcreteJob: completed jobs and the
// job associations.
#include "providers/registry/PluginFamilies.h"
#include "providers/storage/JobAssociations.h"
#include "providers/storage/VEX_CompletedJob.h"

namespace vex::cim::fwf {

namespace {

const PluginFactoryEntry kJobs[] = {
    {"vex_completedjob", &makePlugin<VEX_CompletedJob>},
    {"vex_affectedjobelement", &makePlugin<VEX_AffectedJobElement>},
    {"vex_owningjobelement", &makePlugin<VEX_OwningJobElement>},
};

}  // namespace

const PluginFactoryList kJobFactories = factoryList(kJobs);

}  // namespace vex::cim::fwf
