// The instances one cache build produces, collected per object type and
// stored with one swap per type when the build is complete.
//
// Adding them one by one to the cache compares each new instance with every
// instance of its type already stored, which grows with the square of the
// number of drives; here repeated keys are found through a hash of the key
// values. The result is the one repeated adds would give: instances keep the
// order they were added in, and of several with equal keys the first is kept
// and each later one is logged as the cache logs it.
//
// Instances are kept in the cache's own form from the start (their values
// in the property pool), so a build holds no second, full-size copy of the
// system while it runs: values equal to those of the generation being
// served are shared with it.
#ifndef VEX_CONTROLLER_INSTANCEBATCH_H
#define VEX_CONTROLLER_INSTANCEBATCH_H

#include <cstddef>
#include <map>
#include <unordered_map>
#include <vector>

#include "controller/CachedInstance.h"
#include "framework/CIMInstance.h"
#include "framework/VexObjectType.h"

namespace vex::cim::fwf {

class VexCacheManager;

class InstanceBatch {
public:
    // Keeps the instance unless one with equal key values was added to the
    // same type before; false when it was dropped.
    bool add(_eVEXObjectType type, const CIMInstance& instance);

    // Stores every type's list in the repository, in type order. The build
    // emptied these types before, so each list replaces nothing.
    void storeInto(VexCacheManager& cache);

    std::size_t size(_eVEXObjectType type) const;

private:
    struct TypeList {
        std::vector<cache::CachedInstance> instances;
        std::unordered_multimap<std::size_t, std::size_t> byKeys;  // key hash -> position
    };

    std::map<_eVEXObjectType, TypeList> m_types;
};

}  // namespace vex::cim::fwf

#endif
