// VEX_RegisteredSubProfile: one registered subprofile for each
// subprofile the provider implements (see ProviderProfiles.cpp); not advertised
// on their own.
#ifndef VEX_PROVIDERS_DEVICE_VEX_REGISTEREDSUBPROFILE_H
#define VEX_PROVIDERS_DEVICE_VEX_REGISTEREDSUBPROFILE_H

#include <vector>

#include "providers/device/ProviderProfiles.h"

namespace vex::cim::fwf {

class VEX_RegisteredSubProfile : public InteropComputedPlugin {
public:
    static constexpr const char* kClassName = "VEX_RegisteredSubProfile";

protected:
    void buildInstances(const CIMObjectPath& request, std::vector<CIMInstance>& out) override;
};

}  // namespace vex::cim::fwf

#endif
