#include "controller/CacheKeyMatch.h"

namespace vex::cim::fwf::cache {

bool sameIdentity(const CachedInstance& probe, const CachedInstance& stored) {
    for (const CIMProperty& property : probe.properties()) {
        if (!property.isKey()) {
            continue;
        }
        const CIMProperty* found = stored.find(property.getName());
        if (found == nullptr || !found->equals(property)) {
            return false;
        }
    }
    return true;
}

bool matchesKeys(const std::vector<CIMProperty>& keys, const CachedInstance& stored) {
    for (const CIMProperty& key : keys) {
        const CIMProperty* found = stored.find(key.getName());
        if (found == nullptr || !found->equals(key)) {
            return false;
        }
    }
    return true;
}

bool matchesViewKeys(const std::vector<CIMProperty>& keys,
                     const std::vector<std::string>& storedNames, const CachedInstance& stored) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const CIMProperty* found = stored.find(storedNames[i]);
        if (found == nullptr || !found->subclassEqualsViewclass(keys[i])) {
            return false;
        }
    }
    return true;
}

}  // namespace vex::cim::fwf::cache
