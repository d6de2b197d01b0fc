#include "providers/device/SystemConformsToProfile.h"

#include "framework/PropertyBuilders.h"
#include "providers/device/ProviderProfiles.h"
#include "providers/device/VEX_HostComputerSystem.h"
#include "providers/device/VEX_RegisteredProfile.h"

namespace vex::cim::fwf {

SystemConformsToProfile::SystemConformsToProfile(const char* systemClass)
    : FixedEndsAssociation({VEX_RegisteredProfile::kClassName, systemClass,
                            "ConformantStandard", "ManagedElement"}) {}

// Every system of the class conforms to the provider's own profile; the
// profile instances are built in the interop namespace, so the reference
// carries it.
bool SystemConformsToProfile::MatchInstances(CIMInstance& antecedent, CIMInstance& /*dependent*/,
                                             std::vector<CIMProperty>& /*extra*/) {
    return stringValueOf(antecedent, "InstanceID") == profileInstanceID(providerProfile());
}

VEX_HostComputerSystemConformsToProfile::VEX_HostComputerSystemConformsToProfile()
    : SystemConformsToProfile(VEX_HostComputerSystem::kClassName) {}

VEX_ControllerComputerSystemConformsToProfile::VEX_ControllerComputerSystemConformsToProfile()
    : SystemConformsToProfile("VEX_ControllerComputerSystem") {}

}  // namespace vex::cim::fwf
