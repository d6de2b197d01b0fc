// VEX_ApplicationSoftwareIdentity: this provider's own software,
// "vexRAIDProvider15" with the version it was built as.
#ifndef VEX_PROVIDERS_DEVICE_VEX_APPLICATIONSOFTWAREIDENTITY_H
#define VEX_PROVIDERS_DEVICE_VEX_APPLICATIONSOFTWAREIDENTITY_H

#include <vector>

#include "framework/ComputedInstanceProviderPlugin.h"

namespace vex::cim::fwf {

class VEX_ApplicationSoftwareIdentity : public ComputedInstanceProviderPlugin {
public:
    static constexpr const char* kClassName = "VEX_ApplicationSoftwareIdentity";

protected:
    void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) override;
};

}  // namespace vex::cim::fwf

#endif
