// VEX_SubProfileRequiresProfile: every registered subprofile of
// the provider is scoped by its "Host Hardware RAID Controller" profile
// (Antecedent: the profile, Dependent: the subprofile).
#ifndef VEX_PROVIDERS_DEVICE_VEX_SUBPROFILEREQUIRESPROFILE_H
#define VEX_PROVIDERS_DEVICE_VEX_SUBPROFILEREQUIRESPROFILE_H

#include <string>
#include <vector>

#include "framework/AbstractAssociationProviderPlugin.h"

namespace vex::cim::fwf {

class VEX_SubProfileRequiresProfile : public AbstractAssociationProviderPlugin {
public:
    static constexpr const char* kClassName = "VEX_SubProfileRequiresProfile";

    bool MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                        std::vector<CIMProperty>& extra) override;
    std::string getAntecedent() override;
    std::string getDependent() override;
    std::string getAntecedentPropertyName() override;
    std::string getDependentPropertyName() override;
};

}  // namespace vex::cim::fwf

#endif
