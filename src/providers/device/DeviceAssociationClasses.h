// The device association plug-ins, one line each over their row of
// the device association table (deviceassoc::kRows).
#ifndef VEX_PROVIDERS_DEVICE_DEVICEASSOCIATIONCLASSES_H
#define VEX_PROVIDERS_DEVICE_DEVICEASSOCIATIONCLASSES_H

#include "framework/TableAssociation.h"
#include "providers/device/DeviceAssociations.h"

namespace vex::cim::fwf {

template <DeviceAssociationId Id>
using DeviceAssociation = RowAssociation<deviceassoc::kRows, Id>;

class VEXAlarmSystemDevice final : public DeviceAssociation<kAlarmSystemDevice> {};
class VEXAssociatedAlarm final : public DeviceAssociation<kAssociatedAlarm> {};
class VEXAssociatedBattery final : public DeviceAssociation<kAssociatedBattery> {};
class VEXBatterySystemDevice final : public DeviceAssociation<kBatterySystemDevice> {};
class VEXBiosElementSoftwareIdentity final : public DeviceAssociation<kBiosElementSoftwareIdentity> {};
class VEXCSBaseInstance final : public DeviceAssociation<kCSBaseInstance> {};
class VEXCSPBaseInstance final : public DeviceAssociation<kCSPBaseInstance> {};
class VEXCardPhysicalComponent final : public DeviceAssociation<kCardPhysicalComponent> {};
class VEXComputerSystemPackage final : public DeviceAssociation<kComputerSystemPackage> {};
class VEXContainerView final : public DeviceAssociation<kContainerView> {};
class VEXControlledBy final : public DeviceAssociation<kControlledBy> {};
class VEXDDBaseInstance final : public DeviceAssociation<kDDBaseInstance> {};
class VEXDiskDriveViewSystemDeviceView final : public DeviceAssociation<kDiskDriveViewSystemDeviceView> {};
class VEXDiskDriveViewSystemDeviceViewView final : public DeviceAssociation<kDiskDriveViewSystemDeviceViewView> {};
class VEXDriverElementSoftwareIdentity final : public DeviceAssociation<kDriverElementSoftwareIdentity> {};
class VEXEnclosureConnectorOnPackage final : public DeviceAssociation<kEnclosureConnectorOnPackage> {};
class VEXEnclosureFanRealizes final : public DeviceAssociation<kEnclosureFanRealizes> {};
class VEXEnclosureFanSystemDevice final : public DeviceAssociation<kEnclosureFanSystemDevice> {};
class VEXEnclosurePackageInConnector final : public DeviceAssociation<kEnclosurePackageInConnector> {};
class VEXEnclosurePowerSupplyRealizes final : public DeviceAssociation<kEnclosurePowerSupplyRealizes> {};
class VEXEnclosurePowerSupplySystemDevice final : public DeviceAssociation<kEnclosurePowerSupplySystemDevice> {};
class VEXEnclosureSensorRealizes final : public DeviceAssociation<kEnclosureSensorRealizes> {};
class VEXEnclosureSensorSystemDevice final : public DeviceAssociation<kEnclosureSensorSystemDevice> {};
class VEXEnclosureSystemPackage final : public DeviceAssociation<kEnclosureSystemPackage> {};
class VEXFirmwareElementSoftwareIdentity final : public DeviceAssociation<kFirmwareElementSoftwareIdentity> {};
class VEXInitiatorATAProtocolHostedAccessPoint final : public DeviceAssociation<kInitiatorATAProtocolHostedAccessPoint> {};
class VEXInitiatorATASCSIBindsTo final : public DeviceAssociation<kInitiatorATASCSIBindsTo> {};
class VEXInitiatorSCSIDeviceSAPImplementation final : public DeviceAssociation<kInitiatorSCSIDeviceSAPImplementation> {};
class VEXInitiatorSCSIProtocolHostedAccessPoint final : public DeviceAssociation<kInitiatorSCSIProtocolHostedAccessPoint> {};
class VEXInstalledSoftwareIdentity final : public DeviceAssociation<kInstalledSoftwareIdentity> {};
class VEXLogicalIdentity final : public DeviceAssociation<kLogicalIdentity> {};
class VEXPSPBaseInstance final : public DeviceAssociation<kPSPBaseInstance> {};
class VEXPortControllerSystemDevice final : public DeviceAssociation<kPortControllerSystemDevice> {};
class VEXProtocolControllerSystemDevice final : public DeviceAssociation<kProtocolControllerSystemDevice> {};
class VEXRealizes final : public DeviceAssociation<kRealizes> {};
class VEXSASInitiatorPortSystemDevice final : public DeviceAssociation<kSASInitiatorPortSystemDevice> {};
class VEXSASPhySystemDevice final : public DeviceAssociation<kSASPhySystemDevice> {};
class VEXSCSISAPAvailableForElement final : public DeviceAssociation<kSCSISAPAvailableForElement> {};
class VEXSESElementRealizes final : public DeviceAssociation<kSESElementRealizes> {};
class VEXSVBaseInstance final : public DeviceAssociation<kSVBaseInstance> {};
class VEXSystemComponent final : public DeviceAssociation<kSystemComponent> {};
class VEXViewElementCapabilities final : public DeviceAssociation<kViewElementCapabilities> {};
class VEX_Container final : public DeviceAssociation<kContainer> {};
class VEX_DATargetPortSystemDevice final : public DeviceAssociation<kDATargetPortSystemDevice> {};
class VEX_DiskDriveATAPortSystemDevice final : public DeviceAssociation<kDiskDriveATAPortSystemDevice> {};
class VEX_DiskDriveElementSoftwareIdentity final : public DeviceAssociation<kDiskDriveElementSoftwareIdentity> {};
class VEX_DiskDriveSASPortSystemDevice final : public DeviceAssociation<kDiskDriveSASPortSystemDevice> {};
class VEX_DiskDriveSystemDevice final : public DeviceAssociation<kDiskDriveSystemDevice> {};
class VEX_SASSAPAvailableForElement final : public DeviceAssociation<kSASSAPAvailableForElement> {};
class VEX_SATADeviceSAPImplementation final : public DeviceAssociation<kSATADeviceSAPImplementation> {};
class VEX_SATASAPAvailableForElement final : public DeviceAssociation<kSATASAPAvailableForElement> {};
class VEX_SCSIDeviceSAPImplementation final : public DeviceAssociation<kSCSIDeviceSAPImplementation> {};
class VEX_TargetSCSIDeviceSAPImplementation final : public DeviceAssociation<kTargetSCSIDeviceSAPImplementation> {};
class VEX_TargetSCSIProtocolHostedAccessPoint final : public DeviceAssociation<kTargetSCSIProtocolHostedAccessPoint> {};

}  // namespace vex::cim::fwf

#endif
