#include "providers/device/VEX_HostPhysicalPackage.h"

#include "framework/PropertyBuilders.h"
#include "providers/device/HostIdentity.h"

namespace vex::cim::fwf {

namespace {

constexpr unsigned short kChassisFrame = 3;  // CIM_PhysicalPackage.PackageType

// The asset properties and the platform fields they come from.
struct AssetField {
    const char* property;
    const char* field;
};
const AssetField kAssetFields[] = {
    {"Manufacturer", "sys_vendor"},
    {"Model", "product_name"},
    {"SerialNumber", "product_serial"},
    {"Version", "product_version"},
};

}  // namespace

// One package per host, tagged with the host name (the association to the
// host system pairs them by it).
void VEX_HostPhysicalPackage::buildInstances(const CIMObjectPath& request,
                                             std::vector<CIMInstance>& out) {
    const std::string name = hostName();
    CIMInstance package;
    package.setPath(CIMObjectPath(request.getHostName(), request.getNameSpace(), kClassName, {}));
    package.addCimKeyBinding(stringProperty("CreationClassName", kClassName, true));
    package.addCimKeyBinding(stringProperty("Tag", name, true));
    package.addProperty(stringProperty("ElementName", name));
    package.addProperty(uint16Property("PackageType", kChassisFrame));
    for (const AssetField& asset : kAssetFields) {
        const std::string value = platformField(asset.field);
        if (!value.empty()) {
            package.addProperty(stringProperty(asset.property, value));
        }
    }
    out.push_back(std::move(package));
}

}  // namespace vex::cim::fwf
