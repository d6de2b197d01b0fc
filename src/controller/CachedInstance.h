// CachedInstance: how the cache keeps one instance.
//
// CIMInstance hands out its properties only as copies (getProperty,
// getPropertyList), while the cache must look at every stored property on
// each lookup, view read and key comparison. So an instance is kept split:
// its address and key list in a CIMInstance without properties, and its
// properties in a vector the cache can walk in place. toInstance() gives
// back an instance equal to the one stored: same address, same key list,
// same properties in the same order.
#ifndef VEX_CONTROLLER_CACHEDINSTANCE_H
#define VEX_CONTROLLER_CACHEDINSTANCE_H

#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf::cache {

class CachedInstance {
public:
    explicit CachedInstance(const CIMInstance& instance);

    // A full copy of the stored instance.
    CIMInstance toInstance() const;

    const std::vector<CIMProperty>& properties() const { return m_properties; }

    // The first property of exactly this name, or null (as
    // CIMInstance::getPropertyByName).
    const CIMProperty* find(const std::string& name) const;
    CIMProperty* find(const std::string& name);

private:
    CIMInstance m_address;  // host, namespace, class name and key list; no properties
    std::vector<CIMProperty> m_properties;
};

std::vector<CachedInstance> toCached(const std::vector<CIMInstance>& instances);
// Appends a full copy of every stored instance to out.
void appendInstances(const std::vector<CachedInstance>& stored, std::vector<CIMInstance>& out);

}  // namespace vex::cim::fwf::cache

#endif
