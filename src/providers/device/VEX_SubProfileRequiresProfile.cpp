#include "providers/device/VEX_SubProfileRequiresProfile.h"

#include "framework/PropertyBuilders.h"
#include "providers/device/ProviderProfiles.h"
#include "providers/device/VEX_RegisteredProfile.h"
#include "providers/device/VEX_RegisteredSubProfile.h"

namespace vex::cim::fwf {

bool VEX_SubProfileRequiresProfile::MatchInstances(CIMInstance& antecedent,
                                                   CIMInstance& /*dependent*/,
                                                   std::vector<CIMProperty>& /*extra*/) {
    return stringValueOf(antecedent, "InstanceID") == profileInstanceID(providerProfile());
}

std::string VEX_SubProfileRequiresProfile::getAntecedent() {
    return VEX_RegisteredProfile::kClassName;
}

std::string VEX_SubProfileRequiresProfile::getDependent() {
    return VEX_RegisteredSubProfile::kClassName;
}

std::string VEX_SubProfileRequiresProfile::getAntecedentPropertyName() { return "Antecedent"; }

std::string VEX_SubProfileRequiresProfile::getDependentPropertyName() { return "Dependent"; }

}  // namespace vex::cim::fwf
