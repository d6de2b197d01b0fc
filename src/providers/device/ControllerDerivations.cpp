// The classes derived from a controller's record: its driver, firmware and
// BIOS, its performance mode settings, its SCSI target endpoint (the host
// side), one SCSI and one ATA initiator endpoint per SAS connector (the
// drive side), and the capabilities of its views.
#include "providers/device/DerivedRecords.h"
#include "providers/device/DeviceDerivations.h"

namespace vex::cim::fwf::derived {

namespace {

// CIM_SCSIProtocolEndpoint.ConnectionType 8: SAS; Role 2: Initiator, 3: Target.
constexpr unsigned short kConnectionSAS = 8;
constexpr unsigned short kRoleInitiator = 2;
constexpr unsigned short kRoleTarget = 3;
// CIM_ProtocolEndpoint.ProtocolIFType 1: Other (described by OtherTypeDescription).
constexpr unsigned short kProtocolOther = 1;
constexpr unsigned short kStatusOK = 2;

// The software identity whose InstanceID ends in suffix ("_Driver"...);
// none when the controller did not report its version.
void softwareIdentity(const CIMInstance& controller, const std::string& suffix, const char* kind, Out& out) {
    const std::size_t count = elementCount(controller, "SIInstanceID");
    for (std::size_t i = 0; i < count; ++i) {
        const std::string id = elementText(controller, "SIInstanceID", i);
        if (id.size() < suffix.size() || id.compare(id.size() - suffix.size(), suffix.size(), suffix) != 0 ||
            !known(elementText(controller, "SIVersionString", i))) {
            continue;
        }
        CIMInstance identity;
        addKey(identity, "InstanceID", id);
        if (const std::optional<long long> classification = elementNumber(controller, "SIClassifications", i)) {
            addUint16s(identity, "Classifications", {static_cast<unsigned short>(*classification)});
        }
        addText(identity, "ElementName", textOf(controller, "CSElementName") + " " + kind);
        copyElementAs(controller, "SIManufacturer", i, "Manufacturer", identity);
        copyElementAs(controller, "SIVersionString", i, "VersionString", identity);
        copyElementAs(controller, "SIRevisionNumber", i, "RevisionNumber", identity);
        addBoolean(identity, "IsEntity", true);
        out.push_back(std::move(identity));
    }
}

// The keys of an element hosted by the controller system.
void hostedKeys(const CIMInstance& controller, const char* className, const std::string& name, CIMInstance& out) {
    copyAs(controller, "CSCreationClassName", "SystemCreationClassName", out, kKey);
    copyAs(controller, "CSName", "SystemName", out, kKey);
    addKey(out, "CreationClassName", className);
    addKey(out, "Name", name);
}

// One endpoint per SAS connector, named as the connector.
void initiatorEndpoints(const CIMInstance& controller, const char* className, const char* protocol, bool scsi,
                        Out& out) {
    if (!controller.getPropertyByName("CSName")) {
        return;
    }
    const std::size_t count = elementCount(controller, "SPDeviceID");
    for (std::size_t i = 0; i < count; ++i) {
        CIMInstance endpoint;
        hostedKeys(controller, className, elementText(controller, "SPDeviceID", i), endpoint);
        addText(endpoint, "ElementName", elementText(controller, "SPName", i) + " " + protocol + " initiator");
        addUint16(endpoint, "ProtocolIFType", kProtocolOther);
        addText(endpoint, "OtherTypeDescription", protocol);
        if (scsi) {
            addUint16(endpoint, "ConnectionType", kConnectionSAS);
            addUint16(endpoint, "Role", kRoleInitiator);
        }
        addUint16s(endpoint, "OperationalStatus", {kStatusOK});
        out.push_back(std::move(endpoint));
    }
}

}  // namespace

void driverIdentity(const CIMInstance& controller, Out& out) {
    softwareIdentity(controller, "_Driver", "Driver", out);
}

void firmwareIdentity(const CIMInstance& controller, Out& out) {
    softwareIdentity(controller, "_Firmware", "Firmware", out);
}

void biosIdentity(const CIMInstance& controller, Out& out) {
    softwareIdentity(controller, "_BIOS", "BIOS", out);
}

// The performance mode of a controller that reported one.
void perfModeProps(const CIMInstance& controller, Out& out) {
    if (!controller.getPropertyByName("CSPerfMode")) {
        return;
    }
    CIMInstance settings;
    addKey(settings, "InstanceID", textOf(controller, "CSControllerNumber") + "_PerfMode");
    addText(settings, "ElementName", textOf(controller, "CSElementName") + " performance mode");
    copyAs(controller, "CSPerfMode", "PerfMode", settings);
    copyAs(controller, "CSSuppPerfMode", "SupportedPerfModes", settings);
    out.push_back(std::move(settings));
}

// The host-side endpoint, behind the controller's target port.
void targetEndpoint(const CIMInstance& controller, Out& out) {
    if (!controller.getPropertyByName("DADeviceID") || !controller.getPropertyByName("CSName")) {
        return;
    }
    CIMInstance endpoint;
    hostedKeys(controller, "VEX_TargetSCSIProtocolEndpoint", textOf(controller, "CSName") + "_Target", endpoint);
    addText(endpoint, "ElementName", textOf(controller, "CSElementName") + " SCSI target");
    addUint16(endpoint, "ProtocolIFType", kProtocolOther);
    addText(endpoint, "OtherTypeDescription", "SCSI");
    addUint16(endpoint, "Role", kRoleTarget);
    if (!copyAs(controller, "PCOperationalStatus", "OperationalStatus", endpoint)) {
        addUint16s(endpoint, "OperationalStatus", {kStatusOK});
    }
    out.push_back(std::move(endpoint));
}

void initiatorSCSIEndpoints(const CIMInstance& controller, Out& out) {
    initiatorEndpoints(controller, "VEX_InitiatorSCSIProtocolEndpoint", "SCSI", true, out);
}

void initiatorATAEndpoints(const CIMInstance& controller, Out& out) {
    initiatorEndpoints(controller, "VEX_InitiatorATAProtocolEndpoint", "ATA", false, out);
}

// The view classes a client may ask for instead of walking the associations.
void viewCapabilities(const CIMInstance& controller, Out& out) {
    if (!controller.getPropertyByName("CSControllerNumber")) {
        return;
    }
    CIMInstance capabilities;
    addKey(capabilities, "InstanceID", textOf(controller, "CSControllerNumber") + "_ViewCapabilities");
    addText(capabilities, "ElementName", textOf(controller, "CSElementName") + " views");
    addTexts(capabilities, "ClassesSupported",
             {"VEX_ControllerView", "VEX_DiskDriveView", "VEX_StorageVolumeView", "VEX_ConcreteStoragePoolView",
              "VEX_PrimordialStoragePoolView", "VEX_SourceStoragePoolView"});
    out.push_back(std::move(capabilities));
}

}  // namespace vex::cim::fwf::derived
