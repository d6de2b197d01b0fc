// DistinctInstances: builds one type's list the way repeated addObjInstance
// calls would - an instance is kept unless an instance kept before it has
// the same identity (the first one wins) - in time linear in the list.
//
// Comparing each instance with every kept one is quadratic: some 2 million
// comparisons for the 2048 drives of a large system. Instead the kept
// instances are indexed by a hash of their key values, and only the few of
// the same hash are compared exactly.
//
// The identity test is driven by the probe's key-flagged properties, so the
// hash of a kept instance depends on which key names it is asked for. One
// index is kept per distinct list of key names (a list of one type normally
// has exactly one); a kept instance is hashed under the names of each index,
// a property it lacks hashing as "missing".
#ifndef VEX_CONTROLLER_DISTINCTINSTANCES_H
#define VEX_CONTROLLER_DISTINCTINSTANCES_H

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "controller/CachedInstance.h"

namespace vex::cim::fwf::cache {

class DistinctInstances {
public:
    explicit DistinctInstances(std::size_t expected);

    // Keeps a copy of candidate unless a kept instance has its identity;
    // false when it was dropped.
    bool offer(const CachedInstance& candidate);

    // The kept instances, in the order offered.
    std::vector<CachedInstance> take();

private:
    struct Index {
        std::vector<std::string> keyNames;
        std::unordered_multimap<std::size_t, std::size_t> positions;  // hash -> kept index
    };

    Index& indexFor(const std::vector<const CIMProperty*>& keys);
    void addToIndex(Index& index, std::size_t position);

    std::vector<CachedInstance> m_kept;
    std::vector<Index> m_indexes;
};

}  // namespace vex::cim::fwf::cache

#endif
