// InstanceRepository: the instances and instance names the broker answers a
// provider's enumerateInstanceNames / enumerateInstances up-calls from,
// per namespace and class (both case-insensitive). An up-call for a class
// also returns the registered instances of its subclasses, as the class
// hierarchy tells. Thread-safe.
#ifndef CMPIHOST_INSTANCEREPOSITORY_H
#define CMPIHOST_INSTANCEREPOSITORY_H

#include <cmpidt.h>

#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "cmpihost/Instance.h"
#include "cmpihost/ObjectPath.h"

namespace cmpihost {

class InstanceRepository {
public:
    // Namespace and class come from the instance's path.
    void addInstance(Instance instance);
    // An instance name only; enumerateInstances then yields an instance
    // whose properties are its keys.
    void addPath(ObjectPath path);
    // Up-calls for this namespace and class fail with rc.
    void setFailure(const std::string& nameSpace, const std::string& className, CMPIrc rc);
    void clear();

    using IsA = std::function<bool(const std::string& cls, const std::string& ancestor)>;
    // The instances of className and (by isA) its subclasses in nameSpace,
    // or the failure registered for exactly that class.
    std::vector<Instance> find(const std::string& nameSpace, const std::string& className,
                               const IsA& isA, CMPIrc& rc) const;

private:
    struct Entry {
        std::vector<Instance> instances;
        std::optional<CMPIrc> failure;
    };
    static std::string keyOf(const std::string& nameSpace, const std::string& className);

    mutable std::mutex m_mutex;
    std::map<std::string, Entry> m_entries;  // "ns\nclass" (lower case) -> entry
};

}  // namespace cmpihost

#endif
