#include "framework/CIMInstance.h"

#include <stdexcept>

namespace vex::cim::fwf {

CIMInstance::CIMInstance() = default;

void CIMInstance::setPath(const CIMObjectPath& path) {
    m_hostName = path.getHostName();
    m_nameSpace = path.getNameSpace();
    m_className = path.getClassName();
}

CIMObjectPath CIMInstance::getPath() const {
    return CIMObjectPath(m_hostName, m_nameSpace, m_className, m_keyProperties);
}

void CIMInstance::addProperty(CIMProperty property) {
    m_properties.push_back(std::move(property));
}

void CIMInstance::addCimKeyBinding(CIMProperty property) {
    m_keyProperties.push_back(property);
    m_properties.push_back(std::move(property));
}

unsigned int CIMInstance::getPropertyCount() const {
    return static_cast<unsigned int>(m_properties.size());
}

CIMProperty CIMInstance::getProperty(unsigned int index) const {
    return m_properties.at(index);
}

CIMProperty* CIMInstance::getPropertyByName(const std::string& name) {
    for (CIMProperty& property : m_properties) {
        if (property.getName() == name) {
            return &property;
        }
    }
    return nullptr;
}

const CIMProperty* CIMInstance::getPropertyByName(const std::string& name) const {
    return const_cast<CIMInstance*>(this)->getPropertyByName(name);
}

void CIMInstance::removeAllProperties() {
    m_properties.clear();
}

}  // namespace vex::cim::fwf
