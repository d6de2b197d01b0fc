// CIMObjectPath: which instance - host, namespace, class name and key
// bindings (properties with their key flag set, in the order added).
#ifndef VEX_FRAMEWORK_CIMOBJECTPATH_H
#define VEX_FRAMEWORK_CIMOBJECTPATH_H

#include <string>
#include <vector>

#include "framework/CIMProperty.h"

namespace vex::cim::fwf {

class CIMObjectPath {
public:
    CIMObjectPath();
    CIMObjectPath(std::string hostName, std::string nameSpace, std::string className,
                  std::vector<CIMProperty> keys);

    const std::string& getHostName() const { return m_hostName; }
    const std::string& getNameSpace() const { return m_nameSpace; }
    const std::string& getClassName() const { return m_className; }
    void setHostName(std::string hostName) { m_hostName = std::move(hostName); }
    void setNameSpace(std::string nameSpace) { m_nameSpace = std::move(nameSpace); }
    void setClassName(std::string className) { m_className = std::move(className); }

    // A copy of the key bindings.
    std::vector<CIMProperty> getKeyBindings() const { return m_keys; }
    // The keys read in place (valid while the path lives unchanged).
    const std::vector<CIMProperty>& keyBindings() const { return m_keys; }
    void setKeyBindings(std::vector<CIMProperty> keys) { m_keys = std::move(keys); }

    // Empties all four fields.
    void clearObjectPath();

    // Namespaces and class names equal ignoring case; every key of this path
    // has a key of the same (exact) name in the other that equals it. The host
    // is not compared: a path received with the object manager's host matches
    // one built locally with an empty host. Key order does not matter.
    bool operator==(const CIMObjectPath& other) const;
    bool operator!=(const CIMObjectPath& other) const { return !(*this == other); }

    // "//host/namespace:Class.Key1=\"v\",Ref=//...,Num=" for log lines and
    // messages. Only string and reference keys show their value.
    std::string toString() const;

private:
    const CIMProperty* findKey(const std::string& name) const;

    std::string m_hostName;
    std::string m_nameSpace;
    std::string m_className;
    std::vector<CIMProperty> m_keys;
};

}  // namespace vex::cim::fwf

#endif
