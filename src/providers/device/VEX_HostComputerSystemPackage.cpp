#include "providers/device/VEX_HostComputerSystemPackage.h"

#include "framework/PropertyBuilders.h"
#include "providers/device/VEX_HostComputerSystem.h"
#include "providers/device/VEX_HostPhysicalPackage.h"

namespace vex::cim::fwf {

VEX_HostComputerSystemPackage::VEX_HostComputerSystemPackage()
    : FixedEndsAssociation({VEX_HostPhysicalPackage::kClassName,
                            VEX_HostComputerSystem::kClassName,
                            "Antecedent",
                            "Dependent"}) {}

bool VEX_HostComputerSystemPackage::MatchInstances(CIMInstance& antecedent,
                                                   CIMInstance& dependent,
                                                   std::vector<CIMProperty>& /*extra*/) {
    return stringValueOf(antecedent, "Tag") == stringValueOf(dependent, "Name");
}

}  // namespace vex::cim::fwf
