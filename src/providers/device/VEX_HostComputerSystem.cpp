#include "providers/device/VEX_HostComputerSystem.h"

#include "framework/PropertyBuilders.h"
#include "providers/device/HostIdentity.h"

namespace vex::cim::fwf {

namespace {

// Values of CIM_ComputerSystem and CIM_ManagedSystemElement used here.
constexpr unsigned short kNotDedicated = 0;          // Dedicated: a general-purpose host
constexpr unsigned short kStatusOK = 2;              // OperationalStatus
constexpr unsigned short kHealthOK = 5;              // HealthState
constexpr unsigned short kEnabled = 2;               // EnabledState

}  // namespace

// The name is the host name, so NameFormat is "IP" (a host name or address).
void VEX_HostComputerSystem::buildInstances(const CIMObjectPath& request,
                                            std::vector<CIMInstance>& out) {
    const std::string name = hostName();
    CIMInstance host;
    host.setPath(CIMObjectPath(request.getHostName(), request.getNameSpace(), kClassName, {}));
    host.addCimKeyBinding(stringProperty("CreationClassName", kClassName, true));
    host.addCimKeyBinding(stringProperty("Name", name, true));
    host.addProperty(stringProperty("NameFormat", "IP"));
    host.addProperty(stringProperty("ElementName", name));
    host.addProperty(stringProperty("Description", operatingSystemDescription()));
    host.addProperty(uint16ArrayProperty("Dedicated", {kNotDedicated}));
    host.addProperty(uint16ArrayProperty("OperationalStatus", {kStatusOK}));
    host.addProperty(uint16Property("HealthState", kHealthOK));
    host.addProperty(uint16Property("EnabledState", kEnabled));
    out.push_back(std::move(host));
}

}  // namespace vex::cim::fwf
