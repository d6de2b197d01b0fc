// VEX_HostComputerSystemPackage: the host's chassis packages the
// host system (Antecedent: the physical package, Dependent: the system); the
// two are paired by the package's Tag, which is the system's Name.
#ifndef VEX_PROVIDERS_DEVICE_VEX_HOSTCOMPUTERSYSTEMPACKAGE_H
#define VEX_PROVIDERS_DEVICE_VEX_HOSTCOMPUTERSYSTEMPACKAGE_H

#include <string>
#include <vector>

#include "framework/FixedEndsAssociation.h"

namespace vex::cim::fwf {

class VEX_HostComputerSystemPackage : public FixedEndsAssociation {
public:
    static constexpr const char* kClassName = "VEX_HostComputerSystemPackage";

    VEX_HostComputerSystemPackage();

    bool MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                        std::vector<CIMProperty>& extra) override;
};

}  // namespace vex::cim::fwf

#endif
