// VEX_ElementConformsToProfile: the provider's autonomous
// profile conforms to the object manager's own "SMI-S" 1.5.0 profile
// (ConformantStandard: the object manager's PG_RegisteredProfile
// "SNIA+SMI-S+1.5.0", ManagedElement: the provider's registered profile).
// That end is not a class of this provider, so the instances are built here
// instead of from two enumerations; without the object manager's profile
// there are none.
#ifndef VEX_PROVIDERS_DEVICE_VEX_ELEMENTCONFORMSTOPROFILE_H
#define VEX_PROVIDERS_DEVICE_VEX_ELEMENTCONFORMSTOPROFILE_H

#include <string>
#include <vector>

#include "framework/FixedEndsAssociation.h"

namespace vex::cim::fwf {

class VEX_ElementConformsToProfile : public FixedEndsAssociation {
public:
    static constexpr const char* kClassName = "VEX_ElementConformsToProfile";

    VEX_ElementConformsToProfile();

    void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                            bool flag) override;
    bool MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                        std::vector<CIMProperty>& extra) override;
};

}  // namespace vex::cim::fwf

#endif
