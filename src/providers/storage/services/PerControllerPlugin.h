// PerControllerPlugin: the base of the service and capability classes that
// have one instance per controller, computed from the controllers in the
// object cache on each request. A subclass fills the instance of one
// controller; the base finds the controllers and answers the instance a
// request path names.
#ifndef VEX_PROVIDERS_STORAGE_SERVICES_PERCONTROLLERPLUGIN_H
#define VEX_PROVIDERS_STORAGE_SERVICES_PERCONTROLLERPLUGIN_H

#include <string>
#include <vector>

#include "framework/ComputedInstanceProviderPlugin.h"

namespace vex::cim::fwf {

// The controllers of the served cache: number and system name, in cache
// order. Throws CIMException 1 ("Failed to retrieve objects of <class>")
// when the cache cannot be reached.
struct CachedController {
    int number;
    std::string systemName;
};
std::vector<CachedController> cachedControllers(const char* className);

class PerControllerPlugin : public ComputedInstanceProviderPlugin {
public:
    explicit PerControllerPlugin(const char* className) : m_className(className) {}

    void getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) override;

protected:
    void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) override;
    // Adds keys and properties of the controller's instance.
    virtual void fill(const CachedController& controller, CIMInstance& instance) = 0;

    const char* m_className;
};

}  // namespace vex::cim::fwf

#endif
