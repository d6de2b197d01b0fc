// The device classes derived from cached records, as one table: the class,
// the cache object type it reads and the function that maps one record to
// the class's instances (DeviceDerivations.h).
#ifndef VEX_PROVIDERS_DEVICE_DEVICEINSTANCETABLE_H
#define VEX_PROVIDERS_DEVICE_DEVICEINSTANCETABLE_H

#include <cstddef>

#include "framework/DerivedInstancePlugin.h"
#include "providers/device/CachedRecordClass.h"
#include "providers/device/DeviceDerivations.h"

namespace vex::cim::fwf {

enum DeviceInstanceId : std::size_t {
    kDriverSoftwareIdentity,
    kFirmwareSoftwareIdentity,
    kBiosSoftwareIdentity,
    kPerfModeProps,
    kTargetSCSIProtocolEndpoint,
    kInitiatorSCSIProtocolEndpoint,
    kInitiatorATAProtocolEndpoint,
    kViewCapabilities,
    kDiskDrivePhysicalPackage,
    kDiskDriveSoftwareIdentity,
    kDiskDriveSASPort,
    kDiskDriveATAPort,
    kDiskDriveSCSIProtocolEndpoint,
    kDiskDriveATAProtocolEndpoint,
    kEnclosureFan,
    kEnclosurePowerSupply,
    kEnclosureSensor,
    kEnclosureDiskDriveSlot,
    kDeviceInstanceCount
};

// clang-format off
inline constexpr DerivedInstanceRow kDeviceInstances[kDeviceInstanceCount] = {
    // class                                 record type              mapping
    {"VEX_DriverSoftwareIdentity",        VEX_OBJ_CONTROLLER,     &derived::driverIdentity},
    {"VEX_FirmwareSoftwareIdentity",      VEX_OBJ_CONTROLLER,     &derived::firmwareIdentity},
    {"VEX_BiosSoftwareIdentity",          VEX_OBJ_CONTROLLER,     &derived::biosIdentity},
    {"VEX_PerfModeProps",                 VEX_OBJ_CONTROLLER,     &derived::perfModeProps},
    {"VEX_TargetSCSIProtocolEndpoint",    VEX_OBJ_CONTROLLER,     &derived::targetEndpoint},
    {"VEX_InitiatorSCSIProtocolEndpoint", VEX_OBJ_CONTROLLER,     &derived::initiatorSCSIEndpoints},
    {"VEX_InitiatorATAProtocolEndpoint",  VEX_OBJ_CONTROLLER,     &derived::initiatorATAEndpoints},
    {"VEX_ViewCapabilities",              VEX_OBJ_CONTROLLER,     &derived::viewCapabilities},
    {"VEX_DiskDrivePhysicalPackage",      VEX_OBJ_PHYSICAL_DRIVE, &derived::drivePackage},
    {"VEX_DiskDriveSoftwareIdentity",     VEX_OBJ_PHYSICAL_DRIVE, &derived::driveFirmware},
    {"VEX_DiskDriveSASPort",              VEX_OBJ_PHYSICAL_DRIVE, &derived::driveSASPorts},
    {"VEX_DiskDriveATAPort",              VEX_OBJ_PHYSICAL_DRIVE, &derived::driveATAPorts},
    {"VEX_DiskDriveSCSIProtocolEndpoint", VEX_OBJ_PHYSICAL_DRIVE, &derived::driveSCSIEndpoints},
    {"VEX_DiskDriveATAProtocolEndpoint",  VEX_OBJ_PHYSICAL_DRIVE, &derived::driveATAEndpoints},
    {"VEX_EnclosureFan",                  VEX_OBJ_SES_ELEMENT,    &derived::enclosureFan},
    {"VEX_EnclosurePowerSupply",          VEX_OBJ_SES_ELEMENT,    &derived::enclosurePowerSupply},
    {"VEX_EnclosureSensor",               VEX_OBJ_SES_ELEMENT,    &derived::enclosureSensor},
    {"VEX_EnclosureDiskDriveSlot",        VEX_OBJ_SES_ELEMENT,    &derived::enclosureSlot},
};
// clang-format on

// The plug-in classes, one line each.
template <DeviceInstanceId Id>
using DeviceClass = DerivedInstancePlugin<CachedRecordClass, kDeviceInstances, Id>;

class VEX_DriverSoftwareIdentity final : public DeviceClass<kDriverSoftwareIdentity> {};
class VEX_FirmwareSoftwareIdentity final : public DeviceClass<kFirmwareSoftwareIdentity> {};
class VEX_BiosSoftwareIdentity final : public DeviceClass<kBiosSoftwareIdentity> {};
class VEX_PerfModeProps final : public DeviceClass<kPerfModeProps> {};
class VEX_TargetSCSIProtocolEndpoint final : public DeviceClass<kTargetSCSIProtocolEndpoint> {};
class VEX_InitiatorSCSIProtocolEndpoint final : public DeviceClass<kInitiatorSCSIProtocolEndpoint> {};
class VEX_InitiatorATAProtocolEndpoint final : public DeviceClass<kInitiatorATAProtocolEndpoint> {};
class VEX_ViewCapabilities final : public DeviceClass<kViewCapabilities> {};
class VEX_DiskDrivePhysicalPackage final : public DeviceClass<kDiskDrivePhysicalPackage> {};
class VEX_DiskDriveSoftwareIdentity final : public DeviceClass<kDiskDriveSoftwareIdentity> {};
class VEX_DiskDriveSASPort final : public DeviceClass<kDiskDriveSASPort> {};
class VEX_DiskDriveATAPort final : public DeviceClass<kDiskDriveATAPort> {};
class VEX_DiskDriveSCSIProtocolEndpoint final : public DeviceClass<kDiskDriveSCSIProtocolEndpoint> {};
class VEX_DiskDriveATAProtocolEndpoint final : public DeviceClass<kDiskDriveATAProtocolEndpoint> {};
class VEX_EnclosureFan final : public DeviceClass<kEnclosureFan> {};
class VEX_EnclosurePowerSupply final : public DeviceClass<kEnclosurePowerSupply> {};
class VEX_EnclosureSensor final : public DeviceClass<kEnclosureSensor> {};
class VEX_EnclosureDiskDriveSlot final : public DeviceClass<kEnclosureDiskDriveSlot> {};

}  // namespace vex::cim::fwf

#endif
