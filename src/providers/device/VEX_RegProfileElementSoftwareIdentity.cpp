#include "providers/device/VEX_RegProfileElementSoftwareIdentity.h"

#include "framework/CIMNamespaces.h"
#include "framework/PropertyBuilders.h"
#include "providers/device/VEX_ApplicationSoftwareIdentity.h"
#include "providers/device/VEX_RegisteredProfile.h"
#include "providers/device/VEX_RegisteredSubProfile.h"

namespace vex::cim::fwf {

VEX_RegProfileElementSoftwareIdentity::VEX_RegProfileElementSoftwareIdentity()
    : FixedEndsAssociation({VEX_ApplicationSoftwareIdentity::kClassName,
                            std::string(VEX_RegisteredProfile::kClassName) + "," + VEX_RegisteredSubProfile::kClassName,
                            "Antecedent",
                            "Dependent"}) {}

namespace {

// CIM_ElementSoftwareIdentity.ElementSoftwareStatus: the software is
// installed and is what runs now.
constexpr unsigned short kCurrent = 2;
constexpr unsigned short kInstalled = 6;

}  // namespace

// The provider software implements every profile it registers.
bool VEX_RegProfileElementSoftwareIdentity::MatchInstances(CIMInstance& /*antecedent*/,
                                                           CIMInstance& dependent,
                                                           std::vector<CIMProperty>& extra) {
    dependent.setPath(CIMObjectPath(dependent.getHostName(),
                                    interopNameSpaceFor(dependent.getNameSpace()),
                                    dependent.getClassName(), {}));
    extra.push_back(uint16ArrayProperty("ElementSoftwareStatus", {kCurrent, kInstalled}));
    return true;
}

}  // namespace vex::cim::fwf
