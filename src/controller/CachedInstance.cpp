#include "controller/CachedInstance.h"

namespace vex::cim::fwf::cache {

namespace {

// An instance with the address and key list of source and no properties.
CIMInstance addressOf(const CIMInstance& source) {
    CIMInstance address;
    address.setPath(source.getPath());
    for (CIMProperty& key : source.getKeyPropertyList()) {
        address.addCimKeyBinding(std::move(key));
    }
    address.removeAllProperties();  // the key list stays
    return address;
}

}  // namespace

CachedInstance::CachedInstance(const CIMInstance& instance)
    : m_address(addressOf(instance)), m_properties(instance.getPropertyList()) {}

CIMInstance CachedInstance::toInstance() const {
    CIMInstance instance(m_address);
    for (const CIMProperty& property : m_properties) {
        instance.addProperty(property);
    }
    return instance;
}

const CIMProperty* CachedInstance::find(const std::string& name) const {
    for (const CIMProperty& property : m_properties) {
        if (property.getName() == name) {
            return &property;
        }
    }
    return nullptr;
}

CIMProperty* CachedInstance::find(const std::string& name) {
    return const_cast<CIMProperty*>(static_cast<const CachedInstance&>(*this).find(name));
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
