#include "events/CompletedJobRemover.h"

#include <cstdio>
#include <optional>

#include "framework/CIMNamespaces.h"
#include "framework/PluginsManager.h"
#include "framework/PropertyBuilders.h"

namespace vex::cim::fwf {

namespace {

constexpr long long kMicroseconds = 1000000;

// "yyyymmddhhmmss.mmmmmm" followed by the offset.
std::optional<CIMDateTime> momentOf(const std::string& datetime) {
    DateTime moment;
    char dot = 0;
    if (std::sscanf(datetime.c_str(), "%4u%2u%2u%2u%2u%2u%c%6u", &moment.year, &moment.month, &moment.day,
                    &moment.hour, &moment.minute, &moment.second, &dot, &moment.fraction) != 8 ||
        dot != '.' || moment.month < 1 || moment.month > 12) {
        return std::nullopt;
    }
    return CIMDateTime(moment);
}

std::vector<CIMInstance> instancesOf(PluginsManager& registry, const char* plugin, const char* className) {
    std::vector<CIMInstance> out;
    if (AbstractProviderPlugin* p = registry.getPlugin(plugin)) {
        CIMObjectPath all("", kImplementationNameSpace, className, {});
        p->enumerateInstances(all, out, false);
    }
    return out;
}

// Names only: enumerating the job instances would count as a client watching jobs.
std::set<std::string> listedJobs(PluginsManager& registry) {
    std::set<std::string> ids;
    AbstractProviderPlugin* jobs = registry.getPlugin("vex_concretejob");
    if (jobs == nullptr) {
        return ids;
    }
    std::vector<CIMObjectPath> paths;
    CIMObjectPath all("", kImplementationNameSpace, "VEX_ConcreteJob", {});
    jobs->enumerateInstanceNames(all, paths);
    for (const CIMObjectPath& path : paths) {
        for (const CIMProperty& key : path.getKeyBindings()) {
            if (key.getName() == "InstanceID" && !key.getStringValue().getValues().empty()) {
                ids.insert(key.getStringValue().getValues().front());
            }
        }
    }
    return ids;
}

}  // namespace

bool jobHasEnded(const std::string& jobStatus) {
    for (const char* ended : {"Completed", "Failed", "Finished", "Failure", "Preempted", "Terminated"}) {
        if (jobStatus == ended) {
            return true;
        }
    }
    return false;
}

std::vector<std::string> expiredCompletedJobs(const std::vector<CIMInstance>& records,
                                              const std::set<std::string>& listedJobs, const CIMDateTime& now) {
    std::vector<std::string> expired;
    for (const CIMInstance& record : records) {
        const std::string id = stringValueOf(record, "InstanceID");
        const std::optional<CIMDateTime> changed = momentOf(stringValueOf(record, "LastTimeOfModification"));
        if (id.empty() || listedJobs.count(id) != 0 || !jobHasEnded(stringValueOf(record, "JobStatus")) || !changed ||
            changed->getDateTimeStruct().year > now.getDateTimeStruct().year) {
            continue;
        }
        if (now.calculateTimeDifference(*changed) > kCompletedJobKeptSeconds * kMicroseconds) {
            expired.push_back(id);
        }
    }
    return expired;
}

std::size_t removeExpiredCompletedJobs() {
    PluginsManager* registry = PluginsManager::getInstance();
    AbstractProviderPlugin* completed = registry != nullptr ? registry->getPlugin("vex_completedjob") : nullptr;
    if (completed == nullptr) {
        return 0;
    }
    CIMDateTime now;
    now.getCurrentDateTime();
    const std::vector<std::string> expired =
        expiredCompletedJobs(instancesOf(*registry, "vex_completedjob", "VEX_CompletedJob"), listedJobs(*registry), now);
    for (const std::string& id : expired) {
        completed->popCompletedJobObject(id);
    }
    return expired.size();
}

}  // namespace vex::cim::fwf
