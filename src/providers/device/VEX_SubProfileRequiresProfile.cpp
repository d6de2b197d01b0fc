#include "providers/device/VEX_SubProfileRequiresProfile.h"

#include "framework/PropertyBuilders.h"
#include "providers/device/ProviderProfiles.h"
#include "providers/device/VEX_RegisteredProfile.h"
#include "providers/device/VEX_RegisteredSubProfile.h"

namespace vex::cim::fwf {

VEX_SubProfileRequiresProfile::VEX_SubProfileRequiresProfile()
    : FixedEndsAssociation({VEX_RegisteredProfile::kClassName,
                            VEX_RegisteredSubProfile::kClassName,
                            "Antecedent",
                            "Dependent"}) {}

bool VEX_SubProfileRequiresProfile::MatchInstances(CIMInstance& antecedent,
                                                   CIMInstance& /*dependent*/,
                                                   std::vector<CIMProperty>& /*extra*/) {
    return stringValueOf(antecedent, "InstanceID") == profileInstanceID(providerProfile());
}

}  // namespace vex::cim::fwf
