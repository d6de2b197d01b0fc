// The device classes derived from cached records, as one table: the class,
// the cache object type it reads and the function that maps one record to
// the class's instances (DeviceDerivations.h).
#ifndef VEX_PROVIDERS_DEVICE_DEVICEINSTANCETABLE_H
#define VEX_PROVIDERS_DEVICE_DEVICEINSTANCETABLE_H

#include <cstddef>

#include "providers/device/DerivedInstancePlugin.h"
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
class VEX_DriverSoftwareIdentity final : public DerivedClassPlugin<kDeviceInstances, kDriverSoftwareIdentity> {};
class VEX_FirmwareSoftwareIdentity final : public DerivedClassPlugin<kDeviceInstances, kFirmwareSoftwareIdentity> {};
class VEX_BiosSoftwareIdentity final : public DerivedClassPlugin<kDeviceInstances, kBiosSoftwareIdentity> {};
class VEX_PerfModeProps final : public DerivedClassPlugin<kDeviceInstances, kPerfModeProps> {};
class VEX_TargetSCSIProtocolEndpoint final : public DerivedClassPlugin<kDeviceInstances, kTargetSCSIProtocolEndpoint> {};
class VEX_InitiatorSCSIProtocolEndpoint final : public DerivedClassPlugin<kDeviceInstances, kInitiatorSCSIProtocolEndpoint> {};
class VEX_InitiatorATAProtocolEndpoint final : public DerivedClassPlugin<kDeviceInstances, kInitiatorATAProtocolEndpoint> {};
class VEX_ViewCapabilities final : public DerivedClassPlugin<kDeviceInstances, kViewCapabilities> {};
class VEX_DiskDrivePhysicalPackage final : public DerivedClassPlugin<kDeviceInstances, kDiskDrivePhysicalPackage> {};
class VEX_DiskDriveSoftwareIdentity final : public DerivedClassPlugin<kDeviceInstances, kDiskDriveSoftwareIdentity> {};
class VEX_DiskDriveSASPort final : public DerivedClassPlugin<kDeviceInstances, kDiskDriveSASPort> {};
class VEX_DiskDriveATAPort final : public DerivedClassPlugin<kDeviceInstances, kDiskDriveATAPort> {};
class VEX_DiskDriveSCSIProtocolEndpoint final : public DerivedClassPlugin<kDeviceInstances, kDiskDriveSCSIProtocolEndpoint> {};
class VEX_DiskDriveATAProtocolEndpoint final : public DerivedClassPlugin<kDeviceInstances, kDiskDriveATAProtocolEndpoint> {};
class VEX_EnclosureFan final : public DerivedClassPlugin<kDeviceInstances, kEnclosureFan> {};
class VEX_EnclosurePowerSupply final : public DerivedClassPlugin<kDeviceInstances, kEnclosurePowerSupply> {};
class VEX_EnclosureSensor final : public DerivedClassPlugin<kDeviceInstances, kEnclosureSensor> {};
class VEX_EnclosureDiskDriveSlot final : public DerivedClassPlugin<kDeviceInstances, kEnclosureDiskDriveSlot> {};

}  // namespace vex::cim::fwf

#endif
