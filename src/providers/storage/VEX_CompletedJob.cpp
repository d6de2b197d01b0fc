#include "providers/storage/VEX_CompletedJob.h"

#include <algorithm>


namespace vex::cim::fwf {

namespace {

std::string jobIdOf(const _CompletedJob& job) {
    const CIMValue<std::string> id = job[CJ_INSTANCE_ID].getStringValue();
    return id.isEmpty() ? std::string() : id.getValues()[0];
}

CIMInstance instanceOf(const _CompletedJob& job, const CIMObjectPath& request) {
    CIMInstance instance;
    instance.setPath(CIMObjectPath(request.getHostName(), request.getNameSpace(),
                                   VEX_CompletedJob::kClassName, {}));
    for (std::size_t slot = 0; slot < CJ_PROPERTY_COUNT; ++slot) {
        CIMProperty property = job.properties[slot];
        if (property.getName().empty()) {
            continue;  // the job did not carry it
        }
        if (slot == CJ_INSTANCE_ID) {
            property.setKey(true);
            instance.addCimKeyBinding(std::move(property));
        } else {
            property.setKey(false);
            instance.addProperty(std::move(property));
        }
    }
    return instance;
}

}  // namespace

// A controller numbers its tasks anew: a later job of the same identity
// replaces the earlier record, so that every record keeps its own path.
void VEX_CompletedJob::pushCompletedJobObject(_CompletedJob job) {
    const std::string id = jobIdOf(job);
    std::lock_guard<std::mutex> lock(m_mutex);
    m_jobs.erase(std::remove_if(m_jobs.begin(), m_jobs.end(),
                                [&](const _CompletedJob& kept) { return jobIdOf(kept) == id; }),
                 m_jobs.end());
    m_jobs.push_back(std::move(job));
}

void VEX_CompletedJob::popCompletedJobObject(std::string jobId) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_jobs.erase(std::remove_if(m_jobs.begin(), m_jobs.end(),
                                [&](const _CompletedJob& job) { return jobIdOf(job) == jobId; }),
                 m_jobs.end());
}

void VEX_CompletedJob::buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) {
    std::vector<_CompletedJob> jobs;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        jobs = m_jobs;
    }
    for (const _CompletedJob& job : jobs) {
        if (!job[CJ_INSTANCE_ID].getName().empty()) {
            out.push_back(instanceOf(job, request));
        }
    }
}

}  // namespace vex::cim::fwf
