// CachedInstance: how the cache keeps one instance.
//
// A stored instance never changes. It is a shared handle to a record that
// holds its address (host, namespace and class name, shared by all instances
// of the class) and one pointer per property and per key into the property
// pool (cache/PropertyPool.h), where equal properties are kept once. Copying
// a CachedInstance copies the handle; a list of them can be shared by both
// repositories and by readers still working on an older list. A change makes
// a new instance (withChanges).
//
// toInstance() gives back an instance equal to the one stored: same address,
// same key list, same properties in the same order.
#ifndef VEX_CONTROLLER_CACHEDINSTANCE_H
#define VEX_CONTROLLER_CACHEDINSTANCE_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "controller/cache/PropertyPool.h"
#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf::cache {

// The properties (or keys) of a stored instance, walked in place.
class PropertyRange {
public:
    class iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = CIMProperty;
        using difference_type = std::ptrdiff_t;
        using pointer = const CIMProperty*;
        using reference = const CIMProperty&;

        explicit iterator(const PropertyHandle* at) : m_at(at) {}
        reference operator*() const { return (*m_at)->property; }
        pointer operator->() const { return &(*m_at)->property; }
        iterator& operator++() {
            ++m_at;
            return *this;
        }
        bool operator==(const iterator& other) const { return m_at == other.m_at; }
        bool operator!=(const iterator& other) const { return m_at != other.m_at; }

    private:
        const PropertyHandle* m_at;
    };

    PropertyRange(const PropertyHandle* begin, std::size_t count) : m_begin(begin), m_count(count) {}
    iterator begin() const { return iterator(m_begin); }
    iterator end() const { return iterator(m_begin + m_count); }
    std::size_t size() const { return m_count; }
    const CIMProperty& operator[](std::size_t i) const { return m_begin[i]->property; }

private:
    const PropertyHandle* m_begin;
    std::size_t m_count;
};

class CachedInstance {
public:
    explicit CachedInstance(const CIMInstance& instance);

    // A full copy of the stored instance.
    CIMInstance toInstance() const;

    PropertyRange properties() const;
    PropertyRange keys() const;

    // The first property of exactly this name, or null (as
    // CIMInstance::getPropertyByName).
    const CIMProperty* find(const std::string& name) const;
    // Its position among the properties, or npos.
    std::size_t indexOf(const std::string& name) const;
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    // This instance with the property at each given position replaced.
    CachedInstance withChanges(std::vector<std::pair<std::size_t, CIMProperty>> changes) const;

private:
    struct Record;
    explicit CachedInstance(std::shared_ptr<const Record> record) : m_record(std::move(record)) {}

    std::shared_ptr<const Record> m_record;
};

std::vector<CachedInstance> toCached(const std::vector<CIMInstance>& instances);
// Appends a full copy of every stored instance to out.
void appendInstances(const std::vector<CachedInstance>& stored, std::vector<CIMInstance>& out);

}  // namespace vex::cim::fwf::cache

#endif
