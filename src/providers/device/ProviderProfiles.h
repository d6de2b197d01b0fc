// The registered profiles of this provider, as one table. The provider
// implements the SMI-S 1.5 "Host Hardware RAID Controller" profile and the
// subprofiles below; clients find them in the interop namespace.
#ifndef VEX_PROVIDERS_DEVICE_PROVIDERPROFILES_H
#define VEX_PROVIDERS_DEVICE_PROVIDERPROFILES_H

#include <cstddef>
#include <string>

#include "framework/CIMInstance.h"
#include "framework/ComputedInstanceProviderPlugin.h"

namespace vex::cim::fwf {

// Values of CIM_RegisteredProfile.RegisteredOrganization.
enum : unsigned short {
    kOrganizationDMTF = 2,
    kOrganizationSNIA = 11
};

// Values of CIM_RegisteredProfile.AdvertiseTypes.
enum : unsigned short {
    kAdvertiseNot = 2,  // "Not Advertised"
    kAdvertiseSLP = 3   // "SLP"
};

struct RegisteredProfileRow {
    unsigned short organization;   // RegisteredOrganization
    const char* organizationName;  // the organization in the InstanceID
    const char* name;              // RegisteredName
    const char* version;           // RegisteredVersion
};

// The provider's own (scoping) profile.
const RegisteredProfileRow& providerProfile();
// The subprofiles it implements, in the order they are reported.
const RegisteredProfileRow* providerSubProfiles();
std::size_t providerSubProfileCount();

// "SNIA+Host Hardware RAID Controller+1.5.0": organization, name and version
// joined with '+', the key form the object manager uses for its own profiles.
std::string profileInstanceID(const RegisteredProfileRow& row);

// A registered-profile instance of `className` for one row, addressed with
// the host of `request`, in the interop namespace where the profiles live
// (whatever namespace the request came through: an association of the
// implementation namespace points to the profile where it is).
CIMInstance makeProfileInstance(const RegisteredProfileRow& row, const CIMObjectPath& request,
                                const std::string& className, unsigned short advertise);

// The base of the profile classes: their instances live in the interop
// namespace whatever namespace a request names (an association of the
// implementation namespace fetches the profile it points to), so a request
// is answered as if it named that namespace.
class InteropComputedPlugin : public ComputedInstanceProviderPlugin {
public:
    void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                            bool flag) override;
    void enumerateInstanceNames(CIMObjectPath& classPath, std::vector<CIMObjectPath>& out) override;
    void getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) override;
};

}  // namespace vex::cim::fwf

#endif
