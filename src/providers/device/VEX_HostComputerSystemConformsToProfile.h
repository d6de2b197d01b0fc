// VEX_HostComputerSystemConformsToProfile: the host system conforms to the
// provider's "Host Hardware RAID Controller" profile (ConformantStandard: the
// registered profile, ManagedElement: the host system).
#ifndef VEX_PROVIDERS_DEVICE_VEX_HOSTCOMPUTERSYSTEMCONFORMSTOPROFILE_H
#define VEX_PROVIDERS_DEVICE_VEX_HOSTCOMPUTERSYSTEMCONFORMSTOPROFILE_H

#include <string>
#include <vector>

#include "framework/FixedEndsAssociation.h"

namespace vex::cim::fwf {

class VEX_HostComputerSystemConformsToProfile : public FixedEndsAssociation {
public:
    static constexpr const char* kClassName = "VEX_HostComputerSystemConformsToProfile";

    VEX_HostComputerSystemConformsToProfile();

    bool MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                        std::vector<CIMProperty>& extra) override;
};

}  // namespace vex::cim::fwf

#endif
