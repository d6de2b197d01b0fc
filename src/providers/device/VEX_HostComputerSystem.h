// VEX_HostComputerSystem: the host that the RAID controllers are
// installed in, named by its host name.
#ifndef VEX_PROVIDERS_DEVICE_VEX_HOSTCOMPUTERSYSTEM_H
#define VEX_PROVIDERS_DEVICE_VEX_HOSTCOMPUTERSYSTEM_H

#include <vector>

#include "framework/ComputedInstanceProviderPlugin.h"

namespace vex::cim::fwf {

class VEX_HostComputerSystem : public ComputedInstanceProviderPlugin {
public:
    static constexpr const char* kClassName = "VEX_HostComputerSystem";

protected:
    void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) override;
};

}  // namespace vex::cim::fwf

#endif
