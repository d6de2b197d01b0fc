#include "providers/device/VEX_RegisteredProfile.h"

#include "providers/device/ProviderProfiles.h"

namespace vex::cim::fwf {

void VEX_RegisteredProfile::buildInstances(const CIMObjectPath& request,
                                           std::vector<CIMInstance>& out) {
    out.push_back(makeProfileInstance(providerProfile(), request, kClassName, kAdvertiseSLP));
}

}  // namespace vex::cim::fwf
