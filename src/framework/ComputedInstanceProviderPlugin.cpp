#include "framework/ComputedInstanceProviderPlugin.h"

namespace vex::cim::fwf {

void ComputedInstanceProviderPlugin::getKeyAttributes(CIMInstance& source,
                                                      std::vector<CIMProperty>& keys) {
    std::vector<CIMProperty> found = source.getKeyPropertyList();
    keys.insert(keys.end(), found.begin(), found.end());
}

void ComputedInstanceProviderPlugin::getNonKeyAttributes(CIMInstance& source,
                                                         std::vector<CIMProperty>& others) {
    for (CIMProperty& property : source.getPropertyList()) {
        if (!property.isKey()) {
            others.push_back(std::move(property));
        }
    }
}

// A class path (no keys) keeps every instance; an instance path only the one
// whose keys it names, in any key order.
void ComputedInstanceProviderPlugin::getRepositoryObjects(CIMObjectPath& path,
                                                          std::vector<CIMInstance>& out) {
    std::vector<CIMInstance> all;
    buildInstances(path, all);
    for (CIMInstance& instance : all) {
        if (path == instance.getPath()) {
            out.push_back(std::move(instance));
        }
    }
}

}  // namespace vex::cim::fwf
