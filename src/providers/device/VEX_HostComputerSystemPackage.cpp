#include "providers/device/VEX_HostComputerSystemPackage.h"

#include "framework/PropertyBuilders.h"
#include "providers/device/VEX_HostComputerSystem.h"
#include "providers/device/VEX_HostPhysicalPackage.h"

namespace vex::cim::fwf {

bool VEX_HostComputerSystemPackage::MatchInstances(CIMInstance& antecedent,
                                                   CIMInstance& dependent,
                                                   std::vector<CIMProperty>& /*extra*/) {
    return stringValueOf(antecedent, "Tag") == stringValueOf(dependent, "Name");
}

std::string VEX_HostComputerSystemPackage::getAntecedent() {
    return VEX_HostPhysicalPackage::kClassName;
}

std::string VEX_HostComputerSystemPackage::getDependent() {
    return VEX_HostComputerSystem::kClassName;
}

std::string VEX_HostComputerSystemPackage::getAntecedentPropertyName() { return "Antecedent"; }

std::string VEX_HostComputerSystemPackage::getDependentPropertyName() { return "Dependent"; }

}  // namespace vex::cim::fwf
