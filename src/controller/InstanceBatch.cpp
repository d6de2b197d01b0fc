#include "controller/InstanceBatch.h"

#include "controller/KeyValueHash.h"
#include "controller/VexCacheManager.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

std::size_t keyHash(const cache::PropertyRange& keys) {
    std::size_t hash = 0;
    for (const CIMProperty& key : keys) {
        hash = cache::combineHash(hash, cache::hashKeyValue(key));
    }
    return hash;
}

// The cache's identity: every key of the candidate is in the stored one, equal.
bool sameKeys(const cache::PropertyRange& keys, const cache::CachedInstance& stored) {
    for (const CIMProperty& key : keys) {
        const CIMProperty* found = stored.find(key.getName());
        if (found == nullptr || !found->equals(key)) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool InstanceBatch::add(_eVEXObjectType type, const CIMInstance& instance) {
    TypeList& list = m_types[type];
    cache::CachedInstance cached(instance);
    const cache::PropertyRange keys = cached.keys();
    const std::size_t hash = keyHash(keys);
    const auto same = list.byKeys.equal_range(hash);
    for (auto it = same.first; it != same.second; ++it) {
        if (sameKeys(keys, list.instances[it->second])) {
            TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_ALREADY_EXIST--Device Type:: %d", static_cast<int>(type));
            return false;
        }
    }
    list.byKeys.emplace(hash, list.instances.size());
    list.instances.push_back(std::move(cached));
    return true;
}

void InstanceBatch::storeInto(VexCacheManager& cache) {
    for (auto& type : m_types) {
        cache.swapCachedInstances(type.first, type.second.instances);
    }
    m_types.clear();
}

std::size_t InstanceBatch::size(_eVEXObjectType type) const {
    const auto found = m_types.find(type);
    return found == m_types.end() ? 0 : found->second.instances.size();
}

}  // namespace vex::cim::fwf
