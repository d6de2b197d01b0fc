#include "framework/CIMObjectPath.h"

#include "framework/CommonFunctions.h"

namespace vex::cim::fwf {

CIMObjectPath::CIMObjectPath() = default;

CIMObjectPath::CIMObjectPath(std::string hostName, std::string nameSpace, std::string className,
                             std::vector<CIMProperty> keys)
    : m_hostName(std::move(hostName)),
      m_nameSpace(std::move(nameSpace)),
      m_className(std::move(className)),
      m_keys(std::move(keys)) {}

void CIMObjectPath::clearObjectPath() {
    m_hostName.clear();
    m_nameSpace.clear();
    m_className.clear();
    m_keys.clear();
}

const CIMProperty* CIMObjectPath::findKey(const std::string& name) const {
    for (const CIMProperty& key : m_keys) {
        if (key.getName() == name) {
            return &key;
        }
    }
    return nullptr;
}

bool CIMObjectPath::operator==(const CIMObjectPath& other) const {
    if (!CommonFunctions::equalsIgnoreCase(m_nameSpace, other.m_nameSpace) ||
        !CommonFunctions::equalsIgnoreCase(m_className, other.m_className)) {
        return false;
    }
    for (const CIMProperty& key : m_keys) {
        const CIMProperty* match = other.findKey(key.getName());
        if (match == nullptr || !key.equals(*match)) {
            return false;
        }
    }
    return true;
}

}  // namespace vex::cim::fwf
