// VEX_HostPhysicalPackage: the host's chassis, tagged with the
// host name, with the maker, model and serial number the platform firmware
// reports (where readable).
#ifndef VEX_PROVIDERS_DEVICE_VEX_HOSTPHYSICALPACKAGE_H
#define VEX_PROVIDERS_DEVICE_VEX_HOSTPHYSICALPACKAGE_H

#include <vector>

#include "framework/ComputedInstanceProviderPlugin.h"

namespace vex::cim::fwf {

class VEX_HostPhysicalPackage : public ComputedInstanceProviderPlugin {
public:
    static constexpr const char* kClassName = "VEX_HostPhysicalPackage";

protected:
    void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) override;
};

}  // namespace vex::cim::fwf

#endif
