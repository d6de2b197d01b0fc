// ArrayElementViewPlugin: the cached base for a class whose instances are
// stored as parallel arrays inside another class's cache instance (the SAS
// phys and ports of a controller). Each stored instance is taken apart into
// one instance per element, so that every instance has scalar keys; a get
// compares the request's keys with those of the elements.
#ifndef VEX_PROVIDERS_STORAGE_ARRAYELEMENTVIEWPLUGIN_H
#define VEX_PROVIDERS_STORAGE_ARRAYELEMENTVIEWPLUGIN_H

#include <vector>

#include "framework/AbstractCachedInstanceProviderPlugin.h"

namespace vex::cim::fwf {

class ArrayElementViewPlugin : public AbstractCachedInstanceProviderPlugin {
public:
    void getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) override;
    void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                            bool flag) override;
    void enumerateInstanceNames(CIMObjectPath& classPath,
                                std::vector<CIMObjectPath>& out) override;
};

}  // namespace vex::cim::fwf

#endif
