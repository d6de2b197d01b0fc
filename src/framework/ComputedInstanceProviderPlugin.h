// ComputedInstanceProviderPlugin: the base of instance plug-ins whose
// instances are computed on each request (the host, the registered profiles,
// the provider's software) instead of read from the object cache. A plug-in
// builds its complete instances, keys added with addCimKeyBinding; the base
// answers the three hooks from them: the instance a request path names (every
// instance for a class path), its key properties and its other properties.
#ifndef VEX_FRAMEWORK_COMPUTEDINSTANCEPROVIDERPLUGIN_H
#define VEX_FRAMEWORK_COMPUTEDINSTANCEPROVIDERPLUGIN_H

#include <vector>

#include "framework/AbstractInstanceProviderPlugin.h"

namespace vex::cim::fwf {

class ComputedInstanceProviderPlugin : public virtual AbstractInstanceProviderPlugin {
public:
    void getKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& keys) override;
    void getNonKeyAttributes(CIMInstance& source, std::vector<CIMProperty>& others) override;
    void getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) override;

protected:
    // Appends every instance of the class, addressed with the host and
    // namespace of `request` and the plug-in's own class name.
    virtual void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) = 0;
};

}  // namespace vex::cim::fwf

#endif
