#include "providers/device/VEX_ElementConformsToProfile.h"

#include "framework/CIMException.h"
#include "framework/FrameworkFacade.h"
#include "framework/InteropProfilePaths.h"
#include "platform/Tkz.h"
#include "providers/device/VEX_RegisteredProfile.h"

namespace vex::cim::fwf {

VEX_ElementConformsToProfile::VEX_ElementConformsToProfile()
    : FixedEndsAssociation({"PG_RegisteredProfile",
                            VEX_RegisteredProfile::kClassName,
                            "ConformantStandard",
                            "ManagedElement"}) {}

using vex::cim::adap::cmpi::g_cimPGSMIS5RegProfObjPath;

void VEX_ElementConformsToProfile::enumerateInstances(CIMObjectPath& classPath,
                                                      std::vector<CIMInstance>& out,
                                                      bool /*flag*/) {
    TkzTrace("Entering VEX_ElementConformsToProfile::enumerateInstances()");
    const CIMObjectPath smis = g_cimPGSMIS5RegProfObjPath;
    FrameworkFacade* facade = FrameworkFacade::getInstance();
    if (!smis.getClassName().empty() && facade != nullptr) {
        CIMObjectPath profiles(classPath.getHostName(), classPath.getNameSpace(),
                               VEX_RegisteredProfile::kClassName, {});
        std::vector<CIMInstance> ours;
        facade->enumerateInstances(profiles, ours);
        for (const CIMInstance& profile : ours) {
            std::vector<CIMProperty> extra;
            out.push_back(makeAssociationInstance(classPath, smis, profile.getPath(), extra));
        }
    }
    TkzTrace("Exiting VEX_ElementConformsToProfile::enumerateInstances()");
}

// Not used: the instances are built by enumerateInstances above.
bool VEX_ElementConformsToProfile::MatchInstances(CIMInstance&, CIMInstance&,
                                                  std::vector<CIMProperty>&) {
    return true;
}

}  // namespace vex::cim::fwf
