// VEX_CompletedJob: how the jobs that have left the cache ended. A job's last
// state is appended as a record when its deletion is reported (on the thread
// that delivers job events) and served, record by record, to request threads
// for the life of the loaded provider.
#ifndef VEX_PROVIDERS_STORAGE_VEX_COMPLETEDJOB_H
#define VEX_PROVIDERS_STORAGE_VEX_COMPLETEDJOB_H

#include <mutex>
#include <string>
#include <vector>

#include "framework/ComputedInstanceProviderPlugin.h"

namespace vex::cim::fwf {

class VEX_CompletedJob : public ComputedInstanceProviderPlugin {
public:
    static constexpr const char* kClassName = "VEX_CompletedJob";

    void pushCompletedJobObject(_CompletedJob job) override;
    // Forgets the records of one job.
    void popCompletedJobObject(std::string jobId) override;

protected:
    void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) override;

private:
    std::mutex m_mutex;  // appends and reads come from different threads
    std::vector<_CompletedJob> m_jobs;
};

}  // namespace vex::cim::fwf

#endif
