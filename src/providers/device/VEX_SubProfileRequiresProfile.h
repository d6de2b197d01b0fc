// VEX_SubProfileRequiresProfile: every registered subprofile of
// the provider is scoped by its "Host Hardware RAID Controller" profile
// (Antecedent: the profile, Dependent: the subprofile).
#ifndef VEX_PROVIDERS_DEVICE_VEX_SUBPROFILEREQUIRESPROFILE_H
#define VEX_PROVIDERS_DEVICE_VEX_SUBPROFILEREQUIRESPROFILE_H

#include <string>
#include <vector>

#include "framework/FixedEndsAssociation.h"

namespace vex::cim::fwf {

class VEX_SubProfileRequiresProfile : public FixedEndsAssociation {
public:
    static constexpr const char* kClassName = "VEX_SubProfileRequiresProfile";

    VEX_SubProfileRequiresProfile();

    bool MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                        std::vector<CIMProperty>& extra) override;
};

}  // namespace vex::cim::fwf

#endif
