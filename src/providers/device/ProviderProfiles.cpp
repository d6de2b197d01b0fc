#include "providers/device/ProviderProfiles.h"

#include "framework/CIMNamespaces.h"
#include "framework/PropertyBuilders.h"

namespace vex::cim::fwf {

namespace {

const RegisteredProfileRow kProviderProfile = {kOrganizationSNIA, "SNIA",
                                               "Host Hardware RAID Controller", "1.5.0"};

// What the provider's classes model, each under its SMI-S 1.5 name: pools,
// volumes and the storage configuration service (Block Services), physical
// drives (Disk Drive Lite), the extents under the pools (Extent Composition),
// controller tasks as jobs (Job Control), cards and host packages (Physical
// Package), the software identities (Software) and the enclosures with their
// elements (Storage Enclosure). SMI-S defines no battery profile of its own;
// the controller's cache battery follows the DMTF Battery Profile (DSP1030),
// registered under its own organization and version.
const RegisteredProfileRow kSubProfiles[] = {
    {kOrganizationSNIA, "SNIA", "Block Services", "1.5.0"},
    {kOrganizationSNIA, "SNIA", "Disk Drive Lite", "1.5.0"},
    {kOrganizationSNIA, "SNIA", "Extent Composition", "1.5.0"},
    {kOrganizationSNIA, "SNIA", "Job Control", "1.5.0"},
    {kOrganizationSNIA, "SNIA", "Physical Package", "1.5.0"},
    {kOrganizationSNIA, "SNIA", "Software", "1.5.0"},
    {kOrganizationSNIA, "SNIA", "Storage Enclosure", "1.5.0"},
    {kOrganizationDMTF, "DMTF", "Battery", "1.0.0"},
};

}  // namespace

const RegisteredProfileRow& providerProfile() { return kProviderProfile; }

const RegisteredProfileRow* providerSubProfiles() { return kSubProfiles; }

std::size_t providerSubProfileCount() { return sizeof kSubProfiles / sizeof kSubProfiles[0]; }

std::string profileInstanceID(const RegisteredProfileRow& row) {
    return std::string(row.organizationName) + "+" + row.name + "+" + row.version;
}

CIMInstance makeProfileInstance(const RegisteredProfileRow& row, const CIMObjectPath& request,
                                const std::string& className, unsigned short advertise) {
    CIMInstance instance;
    instance.setPath(CIMObjectPath(request.getHostName(), interopNameSpaceFor(request.getNameSpace()),
                                   className, {}));
    instance.addCimKeyBinding(stringProperty("InstanceID", profileInstanceID(row), true));
    instance.addProperty(uint16Property("RegisteredOrganization", row.organization));
    instance.addProperty(stringProperty("RegisteredName", row.name));
    instance.addProperty(stringProperty("RegisteredVersion", row.version));
    instance.addProperty(uint16ArrayProperty("AdvertiseTypes", {advertise}));
    instance.addProperty(stringProperty("ElementName", row.name));
    return instance;
}

namespace {

CIMObjectPath atHome(const CIMObjectPath& request) {
    CIMObjectPath home = request;
    home.setNameSpace(interopNameSpaceFor(request.getNameSpace()));
    return home;
}

}  // namespace

void InteropComputedPlugin::enumerateInstances(CIMObjectPath& classPath,
                                               std::vector<CIMInstance>& out, bool flag) {
    CIMObjectPath home = atHome(classPath);
    ComputedInstanceProviderPlugin::enumerateInstances(home, out, flag);
}

void InteropComputedPlugin::enumerateInstanceNames(CIMObjectPath& classPath,
                                                   std::vector<CIMObjectPath>& out) {
    CIMObjectPath home = atHome(classPath);
    ComputedInstanceProviderPlugin::enumerateInstanceNames(home, out);
}

void InteropComputedPlugin::getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) {
    CIMObjectPath home = atHome(path);
    ComputedInstanceProviderPlugin::getCIMInstance(home, out);
}

}  // namespace vex::cim::fwf
