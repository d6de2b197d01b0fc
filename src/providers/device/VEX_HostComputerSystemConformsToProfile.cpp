#include "providers/device/VEX_HostComputerSystemConformsToProfile.h"

#include "framework/PropertyBuilders.h"
#include "providers/device/ProviderProfiles.h"
#include "providers/device/VEX_HostComputerSystem.h"
#include "providers/device/VEX_RegisteredProfile.h"

namespace vex::cim::fwf {

VEX_HostComputerSystemConformsToProfile::VEX_HostComputerSystemConformsToProfile()
    : FixedEndsAssociation({VEX_RegisteredProfile::kClassName,
                            VEX_HostComputerSystem::kClassName,
                            "ConformantStandard",
                            "ManagedElement"}) {}

bool VEX_HostComputerSystemConformsToProfile::MatchInstances(CIMInstance& antecedent,
                                                             CIMInstance& /*dependent*/,
                                                             std::vector<CIMProperty>& /*extra*/) {
    return stringValueOf(antecedent, "InstanceID") == profileInstanceID(providerProfile());
}

}  // namespace vex::cim::fwf
