#include "providers/device/VEX_ApplicationSoftwareIdentity.h"

#include "framework/PropertyBuilders.h"

#ifndef VEX_PROVIDER_VERSION
#error "VEX_PROVIDER_VERSION (and _MAJOR, _MINOR, _PATCH) come from the build"
#endif

namespace vex::cim::fwf {

namespace {

constexpr const char* kProviderName = "vexRAIDProvider15";
// CIM_SoftwareIdentity.Classifications: a CIM provider is instrumentation.
constexpr unsigned short kInstrumentation = 5;

}  // namespace

void VEX_ApplicationSoftwareIdentity::buildInstances(const CIMObjectPath& request,
                                                     std::vector<CIMInstance>& out) {
    CIMInstance software;
    software.setPath(CIMObjectPath(request.getHostName(), request.getNameSpace(), kClassName, {}));
    software.addCimKeyBinding(
        stringProperty("InstanceID", std::string("VEX+") + kProviderName, true));
    software.addProperty(stringProperty("Name", kProviderName));
    software.addProperty(stringProperty("ElementName", kProviderName));
    software.addProperty(stringProperty("VersionString", VEX_PROVIDER_VERSION));
    software.addProperty(uint16Property("MajorVersion", VEX_PROVIDER_VERSION_MAJOR));
    software.addProperty(uint16Property("MinorVersion", VEX_PROVIDER_VERSION_MINOR));
    software.addProperty(uint16Property("RevisionNumber", VEX_PROVIDER_VERSION_PATCH));
    software.addProperty(uint16ArrayProperty("Classifications", {kInstrumentation}));
    software.addProperty(booleanProperty("IsEntity", true));
    out.push_back(std::move(software));
}

}  // namespace vex::cim::fwf
