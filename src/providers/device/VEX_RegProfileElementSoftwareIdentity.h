// VEX_RegProfileElementSoftwareIdentity: the provider software
// implements each of the provider's registered profiles and subprofiles
// (Antecedent: the software identity, Dependent: the profile). The profiles
// live in the interop namespace, so the references to them point there.
#ifndef VEX_PROVIDERS_DEVICE_VEX_REGPROFILEELEMENTSOFTWAREIDENTITY_H
#define VEX_PROVIDERS_DEVICE_VEX_REGPROFILEELEMENTSOFTWAREIDENTITY_H

#include <string>
#include <vector>

#include "framework/FixedEndsAssociation.h"

namespace vex::cim::fwf {

class VEX_RegProfileElementSoftwareIdentity : public FixedEndsAssociation {
public:
    static constexpr const char* kClassName = "VEX_RegProfileElementSoftwareIdentity";

    VEX_RegProfileElementSoftwareIdentity();

    bool MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                        std::vector<CIMProperty>& extra) override;
};

}  // namespace vex::cim::fwf

#endif
