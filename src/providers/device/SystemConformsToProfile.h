// The systems that conform to the provider's "Host Hardware RAID Controller"
// profile: the host, and each RAID controller in it (ConformantStandard: the
// registered profile, in the interop namespace; ManagedElement: the system,
// where it is served). One rule, one row per system class.
#ifndef VEX_PROVIDERS_DEVICE_SYSTEMCONFORMSTOPROFILE_H
#define VEX_PROVIDERS_DEVICE_SYSTEMCONFORMSTOPROFILE_H

#include <string>
#include <vector>

#include "framework/FixedEndsAssociation.h"

namespace vex::cim::fwf {

class SystemConformsToProfile : public FixedEndsAssociation {
public:
    explicit SystemConformsToProfile(const char* systemClass);

    bool MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                        std::vector<CIMProperty>& extra) override;
};

class VEX_HostComputerSystemConformsToProfile final : public SystemConformsToProfile {
public:
    static constexpr const char* kClassName = "VEX_HostComputerSystemConformsToProfile";
    VEX_HostComputerSystemConformsToProfile();
};

class VEX_ControllerComputerSystemConformsToProfile final : public SystemConformsToProfile {
public:
    static constexpr const char* kClassName = "VEX_ControllerComputerSystemConformsToProfile";
    VEX_ControllerComputerSystemConformsToProfile();
};

}  // namespace vex::cim::fwf

#endif
