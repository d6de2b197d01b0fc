#include "providers/device/VEX_HostComputerSystemConformsToProfile.h"

#include "framework/PropertyBuilders.h"
#include "providers/device/ProviderProfiles.h"
#include "providers/device/VEX_HostComputerSystem.h"
#include "providers/device/VEX_RegisteredProfile.h"

namespace vex::cim::fwf {

bool VEX_HostComputerSystemConformsToProfile::MatchInstances(CIMInstance& antecedent,
                                                             CIMInstance& /*dependent*/,
                                                             std::vector<CIMProperty>& /*extra*/) {
    return stringValueOf(antecedent, "InstanceID") == profileInstanceID(providerProfile());
}

std::string VEX_HostComputerSystemConformsToProfile::getAntecedent() {
    return VEX_RegisteredProfile::kClassName;
}

std::string VEX_HostComputerSystemConformsToProfile::getDependent() {
    return VEX_HostComputerSystem::kClassName;
}

std::string VEX_HostComputerSystemConformsToProfile::getAntecedentPropertyName() {
    return "ConformantStandard";
}

std::string VEX_HostComputerSystemConformsToProfile::getDependentPropertyName() {
    return "ManagedElement";
}

}  // namespace vex::cim::fwf
