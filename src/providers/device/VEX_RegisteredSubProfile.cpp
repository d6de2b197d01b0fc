#include "providers/device/VEX_RegisteredSubProfile.h"

#include "providers/device/ProviderProfiles.h"

namespace vex::cim::fwf {

void VEX_RegisteredSubProfile::buildInstances(const CIMObjectPath& request,
                                              std::vector<CIMInstance>& out) {
    const RegisteredProfileRow* rows = providerSubProfiles();
    for (std::size_t i = 0; i < providerSubProfileCount(); ++i) {
        out.push_back(makeProfileInstance(rows[i], request, kClassName, kAdvertiseNot));
    }
}

}  // namespace vex::cim::fwf
