// VEX_RegisteredProfile: the provider's own registered profile,
// SNIA's "Host Hardware RAID Controller" 1.5.0, advertised through SLP.
#ifndef VEX_PROVIDERS_DEVICE_VEX_REGISTEREDPROFILE_H
#define VEX_PROVIDERS_DEVICE_VEX_REGISTEREDPROFILE_H

#include <vector>

#include "providers/device/ProviderProfiles.h"

namespace vex::cim::fwf {

class VEX_RegisteredProfile : public InteropComputedPlugin {
public:
    static constexpr const char* kClassName = "VEX_RegisteredProfile";

protected:
    void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) override;
};

}  // namespace vex::cim::fwf

#endif
