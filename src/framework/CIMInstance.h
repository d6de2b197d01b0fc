// CIMInstance: an instance with its properties. It keeps its own address
// (host, namespace, class name) apart from its keys: keys reach an instance
// only through addCimKeyBinding, which puts them into both the property list
// and the key list, so a key shows both in the instance and in its path.
#ifndef VEX_FRAMEWORK_CIMINSTANCE_H
#define VEX_FRAMEWORK_CIMINSTANCE_H

#include <string>
#include <vector>

#include "framework/CIMObjectPath.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

class CIMInstance {
public:
    CIMInstance();

    // Takes host, namespace and class name from the path, never its keys.
    void setPath(const CIMObjectPath& path);
    // A new path from host, namespace, class name and a copy of the keys.
    CIMObjectPath getPath() const;

    // Room for that many properties (and as many keys at most).
    void reserveProperties(std::size_t count) { m_properties.reserve(count); }
    // Appends to the properties only.
    void addProperty(CIMProperty property);
    // Appends to the properties and to the keys.
    void addCimKeyBinding(CIMProperty property);

    const std::string& getHostName() const { return m_hostName; }
    const std::string& getNameSpace() const { return m_nameSpace; }
    const std::string& getClassName() const { return m_className; }

    unsigned int getPropertyCount() const;
    // A copy of property `index`; throws std::out_of_range past the end.
    CIMProperty getProperty(unsigned int index) const;
    std::vector<CIMProperty> getPropertyList() const { return m_properties; }
    std::vector<CIMProperty> getKeyPropertyList() const { return m_keyProperties; }
    // The same lists read in place (valid while the instance lives unchanged).
    const std::vector<CIMProperty>& properties() const { return m_properties; }
    const std::vector<CIMProperty>& keyProperties() const { return m_keyProperties; }

    // The first property of exactly this name (case-sensitive), or null. The
    // pointer is valid until the property list changes; changing the property
    // through it does not change the key list.
    CIMProperty* getPropertyByName(const std::string& name);
    const CIMProperty* getPropertyByName(const std::string& name) const;

    // Empties the property list; the keys (and so getPath) stay.
    void removeAllProperties();

private:
    std::string m_hostName;
    std::string m_nameSpace;
    std::string m_className;
    std::vector<CIMProperty> m_properties;
    std::vector<CIMProperty> m_keyProperties;
};

}  // namespace vex::cim::fwf

#endif
