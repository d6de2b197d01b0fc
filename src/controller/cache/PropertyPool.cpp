#include "controller/cache/PropertyPool.h"

#include <functional>
#include <type_traits>

#include "controller/KeyValueHash.h"
#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf::cache {

namespace {

template <typename T>
inline constexpr bool kExactlyComparable =
    !detail::kIsOneOf<T, float, double, CIMObjectPath, CIMInstance>;

// Calls f(T*) once for every element type a property has a slot for.
template <typename F>
void forEachSlotType(F&& f) {
    f(static_cast<bool*>(nullptr));
    f(static_cast<signed char*>(nullptr));
    f(static_cast<unsigned char*>(nullptr));
    f(static_cast<short*>(nullptr));
    f(static_cast<unsigned short*>(nullptr));
    f(static_cast<int*>(nullptr));
    f(static_cast<unsigned int*>(nullptr));
    f(static_cast<long long*>(nullptr));
    f(static_cast<unsigned long long*>(nullptr));
    f(static_cast<float*>(nullptr));
    f(static_cast<double*>(nullptr));
    f(static_cast<std::string*>(nullptr));
    f(static_cast<CIMObjectPath*>(nullptr));
    f(static_cast<CIMInstance*>(nullptr));
}

// True when the property carries an exactly comparable value in the slot of
// its tag and nothing in any other slot; secondFlag receives that slot's
// second flag and hash the identity hash (name, type, both property flags,
// the second flag and the elements).
bool shareable(const CIMProperty& property, bool& secondFlag, std::size_t& hash) {
    bool plain = true;
    const bool known = detail::withElementType(property.getType(), [&](auto* tag) {
        using T = std::remove_pointer_t<decltype(tag)>;
        if constexpr (kExactlyComparable<T>) {
            const CIMValue<T> value = property.getValueAs<T>();
            plain = !value.getFirstFlag();
            secondFlag = value.getSecondFlag();
            hash = combineHash(std::hash<std::string>()(property.getName()), property.getType());
            for (const T& element : value.getValues()) {
                hash = combineHash(hash, std::hash<T>()(element));
            }
            hash = combineHash(hash, (property.isKey() ? 1U : 0U) | (property.isViewKey() ? 2U : 0U) |
                                         (secondFlag ? 4U : 0U));
        } else {
            plain = false;
        }
        forEachSlotType([&](auto* other) {
            using U = std::remove_pointer_t<decltype(other)>;
            if constexpr (!std::is_same_v<T, U>) {
                const CIMValue<U> value = property.getValueAs<U>();
                plain = plain && value.isEmpty() && !value.getFirstFlag() && !value.getSecondFlag();
            }
        });
    });
    return known && plain;
}

bool sameIdentity(const PooledProperty& entry, const CIMProperty& property, bool secondFlag) {
    return entry.secondFlag == secondFlag && entry.property.isKey() == property.isKey() &&
           entry.property.isViewKey() == property.isViewKey() && entry.property.equals(property);
}

}  // namespace

PropertyPool& PropertyPool::instance() {
    static PropertyPool* const pool = new PropertyPool;
    return *pool;
}

PropertyHandle PropertyPool::findOrAdd(Candidate& candidate) {
    if (candidate.shareable) {
        const auto range = m_shared.equal_range(candidate.hash);
        for (auto it = range.first; it != range.second; ++it) {
            if (sameIdentity(*it->second, *candidate.property, candidate.secondFlag)) {
                ++it->second->uses;
                return it->second;
            }
        }
    }
    auto* entry = new PooledProperty{std::move(*candidate.property), candidate.hash, 1,
                                     candidate.secondFlag, candidate.shareable};
    ++m_entries;
    if (entry->shared) {
        m_shared.emplace(entry->hash, entry);
    }
    return entry;
}

void PropertyPool::acquire(std::vector<CIMProperty>& properties,
                           std::vector<PropertyHandle>& handles) {
    // Hashing and the slot checks need no lock.
    std::vector<Candidate> candidates;
    candidates.reserve(properties.size());
    for (CIMProperty& property : properties) {
        Candidate candidate{&property, 0, false, false};
        candidate.shareable = shareable(property, candidate.secondFlag, candidate.hash);
        candidates.push_back(candidate);
    }
    handles.reserve(handles.size() + candidates.size());
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (Candidate& candidate : candidates) {
        handles.push_back(findOrAdd(candidate));
    }
}

void PropertyPool::retain(const PropertyHandle* handles, std::size_t count) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (std::size_t i = 0; i < count; ++i) {
        ++const_cast<PooledProperty*>(handles[i])->uses;
    }
}

void PropertyPool::forget(PooledProperty* entry) {
    if (entry->shared) {
        const auto range = m_shared.equal_range(entry->hash);
        for (auto it = range.first; it != range.second; ++it) {
            if (it->second == entry) {
                m_shared.erase(it);
                break;
            }
        }
    }
    --m_entries;
}

void PropertyPool::release(const PropertyHandle* handles, std::size_t count) {
    std::vector<PooledProperty*> unused;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (std::size_t i = 0; i < count; ++i) {
            auto* entry = const_cast<PooledProperty*>(handles[i]);
            if (--entry->uses == 0) {
                forget(entry);
                unused.push_back(entry);
            }
        }
    }
    for (PooledProperty* entry : unused) {
        delete entry;  // freed outside the lock
    }
}

const CIMInstance* PropertyPool::address(const CIMInstance& source) {
    std::string key = source.getHostName();
    key += '\0';
    key += source.getNameSpace();
    key += '\0';
    key += source.getClassName();
    const std::lock_guard<std::mutex> lock(m_mutex);
    auto found = m_addresses.find(key);
    if (found == m_addresses.end()) {
        auto address = std::make_unique<CIMInstance>();
        address->setPath(CIMObjectPath(source.getHostName(), source.getNameSpace(),
                                       source.getClassName(), {}));
        found = m_addresses.emplace(std::move(key), std::move(address)).first;
    }
    return found->second.get();
}

std::size_t PropertyPool::entryCount() const {
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_entries;
}

}  // namespace vex::cim::fwf::cache
