#include "controller/DistinctInstances.h"

#include "controller/CacheKeyMatch.h"
#include "controller/KeyValueHash.h"

namespace vex::cim::fwf::cache {

namespace {

std::vector<const CIMProperty*> keyProperties(const CachedInstance& instance) {
    std::vector<const CIMProperty*> keys;
    for (const CIMProperty& property : instance.properties()) {
        if (property.isKey()) {
            keys.push_back(&property);
        }
    }
    return keys;
}

bool sameNames(const std::vector<std::string>& names, const std::vector<const CIMProperty*>& keys) {
    if (names.size() != keys.size()) {
        return false;
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] != keys[i]->getName()) {
            return false;
        }
    }
    return true;
}

// The hash a probe with these key properties is looked up by.
std::size_t probeHash(const std::vector<const CIMProperty*>& keys) {
    std::size_t seed = 0;
    for (const CIMProperty* key : keys) {
        seed = combineHash(seed, hashKeyValue(*key));
    }
    return seed;
}

// The hash under which a probe with these key names finds stored.
std::size_t storedHash(const CachedInstance& stored, const std::vector<std::string>& names) {
    std::size_t seed = 0;
    for (const std::string& name : names) {
        const CIMProperty* found = stored.find(name);
        seed = combineHash(seed, found ? hashKeyValue(*found) : kMissingPropertyHash);
    }
    return seed;
}

}  // namespace

DistinctInstances::DistinctInstances(std::size_t expected) {
    m_kept.reserve(expected);
}

bool DistinctInstances::offer(const CachedInstance& candidate) {
    const std::vector<const CIMProperty*> keys = keyProperties(candidate);
    Index& index = indexFor(keys);
    const auto range = index.positions.equal_range(probeHash(keys));
    for (auto it = range.first; it != range.second; ++it) {
        if (sameIdentity(candidate, m_kept[it->second])) {
            return false;
        }
    }
    m_kept.push_back(candidate);
    for (Index& each : m_indexes) {
        addToIndex(each, m_kept.size() - 1);
    }
    return true;
}

std::vector<CachedInstance> DistinctInstances::take() {
    m_indexes.clear();
    return std::move(m_kept);
}

DistinctInstances::Index& DistinctInstances::indexFor(const std::vector<const CIMProperty*>& keys) {
    for (Index& index : m_indexes) {
        if (sameNames(index.keyNames, keys)) {
            return index;
        }
    }
    Index& index = m_indexes.emplace_back();
    for (const CIMProperty* key : keys) {
        index.keyNames.push_back(key->getName());
    }
    index.positions.reserve(m_kept.capacity());
    for (std::size_t position = 0; position < m_kept.size(); ++position) {
        addToIndex(index, position);
    }
    return index;
}

void DistinctInstances::addToIndex(Index& index, std::size_t position) {
    index.positions.emplace(storedHash(m_kept[position], index.keyNames), position);
}

}  // namespace vex::cim::fwf::cache
