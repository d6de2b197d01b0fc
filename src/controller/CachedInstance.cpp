#include "controller/CachedInstance.h"

#include <algorithm>

namespace vex::cim::fwf::cache {

// Properties first, then keys, in one array of pool handles.
struct CachedInstance::Record {
    const CIMInstance* address = nullptr;
    std::uint32_t propertyCount = 0;
    std::uint32_t keyCount = 0;
    // The properties begin with the keys, in their order (an instance built
    // with addCimKeyBinding first): the keys then go in once, into both lists.
    bool keysLead = false;
    std::unique_ptr<PropertyHandle[]> handles;

    void noteKeysLead() {
        keysLead = keyCount <= propertyCount &&
                   std::equal(handles.get(), handles.get() + keyCount, handles.get() + propertyCount);
    }

    Record() = default;
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;
    ~Record() { PropertyPool::instance().release(handles.get(), propertyCount + keyCount); }
};

CachedInstance::CachedInstance(const CIMInstance& instance) {
    PropertyPool& pool = PropertyPool::instance();
    std::vector<CIMProperty> values = instance.getPropertyList();
    const std::size_t propertyCount = values.size();
    for (CIMProperty& key : instance.getKeyPropertyList()) {
        values.push_back(std::move(key));
    }
    // Everything that can fail to allocate comes before the handles are counted.
    auto record = std::make_shared<Record>();
    record->address = pool.address(instance);
    record->handles.reset(new PropertyHandle[values.size()]);
    std::vector<PropertyHandle> handles;
    handles.reserve(values.size());
    pool.acquire(values, handles);
    std::copy(handles.begin(), handles.end(), record->handles.get());
    record->propertyCount = static_cast<std::uint32_t>(propertyCount);
    record->keyCount = static_cast<std::uint32_t>(handles.size() - propertyCount);
    record->noteKeysLead();
    m_record = std::move(record);
}

CIMInstance CachedInstance::toInstance() const {
    CIMInstance instance(*m_record->address);
    for (const CIMProperty& key : keys()) {
        instance.addCimKeyBinding(key);  // into both lists
    }
    std::size_t first = m_record->keyCount;
    if (!m_record->keysLead) {
        instance.removeAllProperties();  // the key list stays
        first = 0;
    }
    const PropertyRange all = properties();
    for (std::size_t i = first; i < all.size(); ++i) {
        instance.addProperty(all[i]);
    }
    return instance;
}

PropertyRange CachedInstance::properties() const {
    return PropertyRange(m_record->handles.get(), m_record->propertyCount);
}

PropertyRange CachedInstance::keys() const {
    return PropertyRange(m_record->handles.get() + m_record->propertyCount, m_record->keyCount);
}

std::size_t CachedInstance::indexOf(const std::string& name) const {
    const PropertyHandle* handles = m_record->handles.get();
    for (std::size_t i = 0; i < m_record->propertyCount; ++i) {
        if (handles[i]->property.getName() == name) {
            return i;
        }
    }
    return npos;
}

const CIMProperty* CachedInstance::find(const std::string& name) const {
    const std::size_t index = indexOf(name);
    return index == npos ? nullptr : &m_record->handles[index]->property;
}

CachedInstance CachedInstance::withChanges(
    std::vector<std::pair<std::size_t, CIMProperty>> changes) const {
    PropertyPool& pool = PropertyPool::instance();
    const std::size_t count = m_record->propertyCount + m_record->keyCount;
    auto record = std::make_shared<Record>();
    record->address = m_record->address;
    record->handles.reset(new PropertyHandle[count]);
    std::copy(m_record->handles.get(), m_record->handles.get() + count, record->handles.get());
    pool.retain(record->handles.get(), count);
    record->propertyCount = m_record->propertyCount;
    record->keyCount = m_record->keyCount;
    record->keysLead = false;  // decided once the changes are in
    std::vector<CIMProperty> values;
    values.reserve(changes.size());
    for (auto& change : changes) {
        values.push_back(std::move(change.second));
    }
    std::vector<PropertyHandle> fresh;
    pool.acquire(values, fresh);
    std::vector<PropertyHandle> replaced;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        PropertyHandle& slot = record->handles[changes[i].first];
        replaced.push_back(slot);
        slot = fresh[i];
    }
    pool.release(replaced.data(), replaced.size());
    record->noteKeysLead();
    return CachedInstance(std::move(record));
}

std::vector<CachedInstance> toCached(const std::vector<CIMInstance>& instances) {
    std::vector<CachedInstance> cached;
    cached.reserve(instances.size());
    for (const CIMInstance& instance : instances) {
        cached.emplace_back(instance);
    }
    return cached;
}

void appendInstances(const std::vector<CachedInstance>& stored, std::vector<CIMInstance>& out) {
    out.reserve(out.size() + stored.size());
    for (const CachedInstance& instance : stored) {
        out.push_back(instance.toInstance());
    }
}

}  // namespace vex::cim::fwf::cache
