#include "providers/device/DeviceAssociationKeys.h"

#include "framework/AssociationRow.h"
#include "framework/PropertyBuilders.h"
#include "providers/device/DerivedRecords.h"

namespace vex::cim::fwf::devicekeys {

namespace {

// Key texts made as plain property keys make them, so computed and plain
// keys meet.
std::string numberKey(const std::string& digits) {
    CIMInstance probe;
    probe.addProperty(CIMProperty("k", CIMValue<unsigned int>(static_cast<unsigned int>(std::stoul(digits))),
                                  false, CIM_UINT32, false));
    return keyText(probe, "k");
}

std::string stringKey(const std::string& value) {
    CIMInstance probe;
    probe.addProperty(stringProperty("k", value));
    return keyText(probe, "k");
}

std::string trailingNumber(const std::string& text) {
    std::size_t begin = text.size();
    while (begin > 0 && text[begin - 1] >= '0' && text[begin - 1] <= '9') {
        --begin;
    }
    return text.substr(begin);
}

void addNumber(const std::string& digits, Keys& keys) {
    if (!digits.empty() && digits.size() < 10) {
        keys.push_back(numberKey(digits));
    }
}

}  // namespace

void controllerOfInstanceID(const CIMInstance& instance, Keys& keys) {
    addNumber(derived::leadingNumber(stringValueOf(instance, "InstanceID")), keys);
}

void controllerOfTag(const CIMInstance& instance, Keys& keys) {
    addNumber(trailingNumber(stringValueOf(instance, "Tag")), keys);
}

void controllerOfSystemName(const CIMInstance& instance, Keys& keys) {
    addNumber(trailingNumber(stringValueOf(instance, "SystemName")), keys);
}

void controllerOfDriveView(const CIMInstance& instance, Keys& keys) {
    addNumber(trailingNumber(stringValueOf(instance, "DDSystemName")), keys);
}

void driveOfFirmware(const CIMInstance& instance, Keys& keys) {
    static const std::string kPrefix = "DiskFirmware_";
    const std::string id = stringValueOf(instance, "InstanceID");
    if (id.size() > kPrefix.size() && id.compare(0, kPrefix.size(), kPrefix) == 0) {
        keys.push_back(stringKey(id.substr(kPrefix.size())));
    }
}

void driveOfEndpoint(const CIMInstance& instance, Keys& keys) {
    const std::string name = stringValueOf(instance, "Name");
    const std::size_t last = name.rfind('_');
    if (last != std::string::npos && last > 0) {
        keys.push_back(stringKey(name.substr(0, last)));
    }
}

bool installedAndCurrent(const CIMInstance&, const CIMInstance&, std::vector<CIMProperty>& extra) {
    // CIM_ElementSoftwareIdentity.ElementSoftwareStatus 2: Current, 6: Installed.
    extra.push_back(uint16ArrayProperty("ElementSoftwareStatus", {2, 6}));
    return true;
}

bool locationInChassis(const CIMInstance&, const CIMInstance& package, std::vector<CIMProperty>& extra) {
    extra.push_back(stringProperty("LocationWithinContainer", "Bay " + derived::textOf(package, "BayNumber")));
    return true;
}

}  // namespace vex::cim::fwf::devicekeys
