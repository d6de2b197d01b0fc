// VEX_ConcreteJob: the running controller tasks, one cache instance (object
// type 12) each. A member of the cached class family with three additions:
// "RequestStateChange" goes to the controller routine of that name, a job's
// change events map to its own key, and a job that leaves the cache is kept
// as a VEX_CompletedJob record before its deletion is indicated.
#ifndef VEX_PROVIDERS_STORAGE_VEX_CONCRETEJOB_H
#define VEX_PROVIDERS_STORAGE_VEX_CONCRETEJOB_H

#include <string>
#include <vector>

#include "providers/storage/CachedClassPlugin.h"

namespace vex::cim::fwf {

class VEX_ConcreteJob : public CachedClassPlugin<kConcreteJob> {
public:
    // 0 when the state change succeeded, 3 otherwise and for any other method.
    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                              const CIMMethodParam& in, CIMMethodParam& out) override;
    // The job's "InstanceID"; nonzero when the event does not name it.
    int getKeysFromEventKeys(std::vector<CIMProperty>& eventKeys,
                             std::vector<CIMProperty>& classKeys) override;
    void EventNotify(_eVEXObjectType objectType, _eVEXEventType eventType, std::string timeStamp,
                     std::vector<CIMProperty>& keys, std::vector<CIMProperty>& changed) override;

    // Keeps the job's last state as a completed-job record.
    static void pushCompletedJobObjects(const std::vector<CIMProperty>& properties);
};

}  // namespace vex::cim::fwf

#endif
