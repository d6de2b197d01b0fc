// The classes derived from a physical drive's record: its package, its
// firmware, its ports (SAS or ATA by the drive's interface) and one protocol
// endpoint per port. Records of devices that are not hard drives (the
// enclosure services devices) yield none of them.
#include "providers/device/DerivedRecords.h"
#include "providers/device/DeviceDerivations.h"

namespace vex::cim::fwf::derived {

namespace {

// The library's state of a drive that is no longer present.
constexpr long long kDriveMissing = 7;
// CIM_SoftwareIdentity.Classifications 10: Firmware.
constexpr unsigned short kFirmware = 10;
constexpr unsigned short kProtocolOther = 1;
constexpr unsigned short kConnectionSAS = 8;
constexpr unsigned short kRoleTarget = 3;

bool isDrive(const CIMInstance& device) { return device.getPropertyByName("DDConfigurationStatus") != nullptr; }

// One port per element of the drive's port arrays whose class is className.
void ports(const CIMInstance& device, const std::string& className, Out& out) {
    if (!isDrive(device)) {
        return;
    }
    const std::size_t count = elementCount(device, "LPDeviceID");
    for (std::size_t i = 0; i < count; ++i) {
        if (elementText(device, "LPCreationClassName", i) != className) {
            continue;
        }
        CIMInstance port;
        copyElementAs(device, "LPSystemCreationClassName", i, "SystemCreationClassName", port, kKey);
        copyElementAs(device, "LPSystemName", i, "SystemName", port, kKey);
        copyElementAs(device, "LPCreationClassName", i, "CreationClassName", port, kKey);
        copyElementAs(device, "LPDeviceID", i, "DeviceID", port, kKey);
        addText(port, "ElementName", textOf(device, "DDName") + " port " + std::to_string(i));
        copyElementAs(device, "LPPermanentAddress", i, "PermanentAddress", port);
        copyElementAs(device, "LPAttachedDeviceType", i, "AttachedDeviceType", port);
        copyElementAs(device, "LPAttachedSASAddress", i, "AttachedSASAddress", port);
        copyElementAs(device, "LPPortType", i, "PortType", port);
        copyElementAs(device, "LPNegotiatedSpeedType", i, "NegotiatedSpeedType", port);
        copyElementAs(device, "LPSpeed", i, "Speed", port);
        out.push_back(std::move(port));
    }
}

// One endpoint per port of class portClass, named as the port; its health
// is the drive's.
void endpoints(const CIMInstance& device, const std::string& portClass, const char* className, bool scsi,
               Out& out) {
    if (!isDrive(device)) {
        return;
    }
    const std::size_t count = elementCount(device, "LPDeviceID");
    for (std::size_t i = 0; i < count; ++i) {
        if (elementText(device, "LPCreationClassName", i) != portClass) {
            continue;
        }
        CIMInstance endpoint;
        copyElementAs(device, "LPSystemCreationClassName", i, "SystemCreationClassName", endpoint, kKey);
        copyElementAs(device, "LPSystemName", i, "SystemName", endpoint, kKey);
        addKey(endpoint, "CreationClassName", className);
        copyElementAs(device, "LPDeviceID", i, "Name", endpoint, kKey);
        addText(endpoint, "ElementName", textOf(device, "DDName") + (scsi ? " SCSI target" : " ATA device"));
        addUint16(endpoint, "ProtocolIFType", kProtocolOther);
        addText(endpoint, "OtherTypeDescription", scsi ? "SCSI" : "ATA");
        if (scsi) {
            addUint16(endpoint, "ConnectionType", kConnectionSAS);
            addUint16(endpoint, "Role", kRoleTarget);
        }
        copyAs(device, "DDOperationalStatus", "OperationalStatus", endpoint);
        out.push_back(std::move(endpoint));
    }
}

}  // namespace

// The package of a drive that is present, with where it sits: the chassis
// tag of its enclosure and its bay there, when it is in one.
void drivePackage(const CIMInstance& device, Out& out) {
    if (!isDrive(device) || numberOf(device, "DDConfigurationStatus") == kDriveMissing) {
        return;
    }
    CIMInstance package;
    copyAs(device, "PPCreationClassName", "CreationClassName", package, kKey);
    copyAs(device, "PPTag", "Tag", package, kKey);
    addText(package, "ElementName", textOf(device, "DDName"));
    copyAs(device, "PPManufacturer", "Manufacturer", package);
    copyAs(device, "PPModel", "Model", package);
    copyAs(device, "PPSerialNumber", "SerialNumber", package);
    copyAs(device, "PPPartNumber", "PartNumber", package);
    copyAs(device, "PPPackageType", "PackageType", package);
    const std::string chassis = textOf(device, "DDEnclosureTagID");
    const std::optional<long long> bay = numberOf(device, "DDSlotNo");
    if (known(chassis) && bay && *bay >= 0) {
        addText(package, "ChassisTag", chassis);
        addUint32(package, "BayNumber", static_cast<unsigned int>(*bay));
    }
    out.push_back(std::move(package));
}

// The firmware of a drive that reported its revision.
void driveFirmware(const CIMInstance& device, Out& out) {
    if (!isDrive(device) || !known(textOf(device, "SIVersionString"))) {
        return;
    }
    CIMInstance identity;
    copyAs(device, "SIInstanceID", "InstanceID", identity, kKey);
    addUint16s(identity, "Classifications", {kFirmware});
    addText(identity, "ElementName", textOf(device, "DDName") + " firmware");
    copyAs(device, "SIManufacturer", "Manufacturer", identity);
    copyAs(device, "SIVersionString", "VersionString", identity);
    copyAs(device, "SIBuildNumber", "BuildNumber", identity);
    copyAs(device, "SIMajorVersion", "MajorVersion", identity);
    copyAs(device, "SIMinorVersion", "MinorVersion", identity);
    copyAs(device, "SIRevisionNumber", "RevisionNumber", identity);
    addBoolean(identity, "IsEntity", true);
    out.push_back(std::move(identity));
}

void driveSASPorts(const CIMInstance& device, Out& out) { ports(device, "VEX_DiskDriveSASPort", out); }

void driveATAPorts(const CIMInstance& device, Out& out) { ports(device, "VEX_DiskDriveATAPort", out); }

void driveSCSIEndpoints(const CIMInstance& device, Out& out) {
    endpoints(device, "VEX_DiskDriveSASPort", "VEX_DiskDriveSCSIProtocolEndpoint", true, out);
}

void driveATAEndpoints(const CIMInstance& device, Out& out) {
    endpoints(device, "VEX_DiskDriveATAPort", "VEX_DiskDriveATAProtocolEndpoint", false, out);
}

}  // namespace vex::cim::fwf::derived
