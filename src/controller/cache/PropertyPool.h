// PropertyPool: the one store of the property values that cached instances
// hold, shared by both repositories and by every generation of them.
//
// Most properties of a large system repeat: the class names, the system
// name, status words, vendor and model texts, block sizes, the same
// operational status in every drive. An instance therefore keeps only
// pointers to pooled properties, and a property equal in every respect to a
// pooled one (name, type, both flags, value) is stored once. A rebuild that
// reads unchanged controllers finds the values of the generation being
// served already pooled and allocates next to nothing for them, and the copy
// of one repository into the other shares the same entries.
//
// Only properties whose value is exactly comparable are shared: integers,
// booleans, strings and datetimes carried in the slot of their own type
// tag. Anything else (reals, references, embedded instances, a value in
// another slot than the tag's) gets an entry of its own that is never
// looked up, so every read gives back precisely what was stored.
//
// Entries are counted; the last release frees one. All counting happens
// under the pool's mutex, taken once per instance, never per property.
// Entries are immutable while counted, so readers copy from them without
// any lock.
#ifndef VEX_CONTROLLER_CACHE_PROPERTYPOOL_H
#define VEX_CONTROLLER_CACHE_PROPERTYPOOL_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf::cache {

struct PooledProperty {
    CIMProperty property;
    std::size_t hash = 0;
    std::uint32_t uses = 0;   // under the pool mutex
    bool secondFlag = false;  // of the value slot, part of the identity
    bool shared = false;      // false: never looked up, owned by its users alone
};

using PropertyHandle = const PooledProperty*;

class PropertyPool {
public:
    // The process-wide pool. Never destroyed: repositories freed at unload
    // still release into it.
    static PropertyPool& instance();

    // Appends one counted handle per property of `properties`, in order.
    // The properties are moved from.
    void acquire(std::vector<CIMProperty>& properties, std::vector<PropertyHandle>& handles);
    // Counts each handle once more (an instance built from another's values).
    void retain(const PropertyHandle* handles, std::size_t count);
    // Gives back one count per handle; entries no longer used are freed.
    void release(const PropertyHandle* handles, std::size_t count);

    // An instance with the host, namespace and class name of `source` and
    // nothing else; equal addresses share one. Addresses are few (one per
    // class and namespace) and are kept for the life of the process.
    const CIMInstance* address(const CIMInstance& source);

    // Entries in use (shared and private), for the memory figures.
    std::size_t entryCount() const;

private:
    PropertyPool() = default;

    struct Candidate {
        CIMProperty* property;
        std::size_t hash;
        bool secondFlag;
        bool shareable;
    };

    PropertyHandle findOrAdd(Candidate& candidate);
    // Unlinks an entry whose last use went; the caller frees it.
    void forget(PooledProperty* entry);

    mutable std::mutex m_mutex;
    std::unordered_multimap<std::size_t, PooledProperty*> m_shared;
    std::size_t m_entries = 0;
    // By host, namespace and class name, joined with NUL characters.
    std::map<std::string, std::unique_ptr<const CIMInstance>> m_addresses;
};

}  // namespace vex::cim::fwf::cache

#endif
