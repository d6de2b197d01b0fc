// The device association plug-ins, one line each over their row of
// kDeviceAssociations.
#ifndef VEX_PROVIDERS_DEVICE_DEVICEASSOCIATIONCLASSES_H
#define VEX_PROVIDERS_DEVICE_DEVICEASSOCIATIONCLASSES_H

#include "framework/TableAssociation.h"
#include "providers/device/DeviceAssociations.h"

namespace vex::cim::fwf {

class VEXAlarmSystemDevice final : public RowAssociation<deviceassoc::kRows, kAlarmSystemDevice> {};
class VEXAssociatedAlarm final : public RowAssociation<deviceassoc::kRows, kAssociatedAlarm> {};
class VEXAssociatedBattery final : public RowAssociation<deviceassoc::kRows, kAssociatedBattery> {};
class VEXBatterySystemDevice final : public RowAssociation<deviceassoc::kRows, kBatterySystemDevice> {};
class VEXBiosElementSoftwareIdentity final : public RowAssociation<deviceassoc::kRows, kBiosElementSoftwareIdentity> {};
class VEXCSBaseInstance final : public RowAssociation<deviceassoc::kRows, kCSBaseInstance> {};
class VEXCSPBaseInstance final : public RowAssociation<deviceassoc::kRows, kCSPBaseInstance> {};
class VEXCardPhysicalComponent final : public RowAssociation<deviceassoc::kRows, kCardPhysicalComponent> {};
class VEXComputerSystemPackage final : public RowAssociation<deviceassoc::kRows, kComputerSystemPackage> {};
class VEXContainerView final : public RowAssociation<deviceassoc::kRows, kContainerView> {};
class VEXControlledBy final : public RowAssociation<deviceassoc::kRows, kControlledBy> {};
class VEXDDBaseInstance final : public RowAssociation<deviceassoc::kRows, kDDBaseInstance> {};
class VEXDiskDriveViewSystemDeviceView final : public RowAssociation<deviceassoc::kRows, kDiskDriveViewSystemDeviceView> {};
class VEXDiskDriveViewSystemDeviceViewView final : public RowAssociation<deviceassoc::kRows, kDiskDriveViewSystemDeviceViewView> {};
class VEXDriverElementSoftwareIdentity final : public RowAssociation<deviceassoc::kRows, kDriverElementSoftwareIdentity> {};
class VEXEnclosureConnectorOnPackage final : public RowAssociation<deviceassoc::kRows, kEnclosureConnectorOnPackage> {};
class VEXEnclosureFanRealizes final : public RowAssociation<deviceassoc::kRows, kEnclosureFanRealizes> {};
class VEXEnclosureFanSystemDevice final : public RowAssociation<deviceassoc::kRows, kEnclosureFanSystemDevice> {};
class VEXEnclosurePackageInConnector final : public RowAssociation<deviceassoc::kRows, kEnclosurePackageInConnector> {};
class VEXEnclosurePowerSupplyRealizes final : public RowAssociation<deviceassoc::kRows, kEnclosurePowerSupplyRealizes> {};
class VEXEnclosurePowerSupplySystemDevice final : public RowAssociation<deviceassoc::kRows, kEnclosurePowerSupplySystemDevice> {};
class VEXEnclosureSensorRealizes final : public RowAssociation<deviceassoc::kRows, kEnclosureSensorRealizes> {};
class VEXEnclosureSensorSystemDevice final : public RowAssociation<deviceassoc::kRows, kEnclosureSensorSystemDevice> {};
class VEXEnclosureSystemPackage final : public RowAssociation<deviceassoc::kRows, kEnclosureSystemPackage> {};
class VEXFirmwareElementSoftwareIdentity final : public RowAssociation<deviceassoc::kRows, kFirmwareElementSoftwareIdentity> {};
class VEXInitiatorATAProtocolHostedAccessPoint final : public RowAssociation<deviceassoc::kRows, kInitiatorATAProtocolHostedAccessPoint> {};
class VEXInitiatorATASCSIBindsTo final : public RowAssociation<deviceassoc::kRows, kInitiatorATASCSIBindsTo> {};
class VEXInitiatorSCSIDeviceSAPImplementation final : public RowAssociation<deviceassoc::kRows, kInitiatorSCSIDeviceSAPImplementation> {};
class VEXInitiatorSCSIProtocolHostedAccessPoint final : public RowAssociation<deviceassoc::kRows, kInitiatorSCSIProtocolHostedAccessPoint> {};
class VEXInstalledSoftwareIdentity final : public RowAssociation<deviceassoc::kRows, kInstalledSoftwareIdentity> {};
class VEXLogicalIdentity final : public RowAssociation<deviceassoc::kRows, kLogicalIdentity> {};
class VEXPSPBaseInstance final : public RowAssociation<deviceassoc::kRows, kPSPBaseInstance> {};
class VEXPortControllerSystemDevice final : public RowAssociation<deviceassoc::kRows, kPortControllerSystemDevice> {};
class VEXProtocolControllerSystemDevice final : public RowAssociation<deviceassoc::kRows, kProtocolControllerSystemDevice> {};
class VEXRealizes final : public RowAssociation<deviceassoc::kRows, kRealizes> {};
class VEXSASInitiatorPortSystemDevice final : public RowAssociation<deviceassoc::kRows, kSASInitiatorPortSystemDevice> {};
class VEXSASPhySystemDevice final : public RowAssociation<deviceassoc::kRows, kSASPhySystemDevice> {};
class VEXSCSISAPAvailableForElement final : public RowAssociation<deviceassoc::kRows, kSCSISAPAvailableForElement> {};
class VEXSESElementRealizes final : public RowAssociation<deviceassoc::kRows, kSESElementRealizes> {};
class VEXSVBaseInstance final : public RowAssociation<deviceassoc::kRows, kSVBaseInstance> {};
class VEXSystemComponent final : public RowAssociation<deviceassoc::kRows, kSystemComponent> {};
class VEXViewElementCapabilities final : public RowAssociation<deviceassoc::kRows, kViewElementCapabilities> {};
class VEX_Container final : public RowAssociation<deviceassoc::kRows, kContainer> {};
class VEX_DATargetPortSystemDevice final : public RowAssociation<deviceassoc::kRows, kDATargetPortSystemDevice> {};
class VEX_DiskDriveATAPortSystemDevice final : public RowAssociation<deviceassoc::kRows, kDiskDriveATAPortSystemDevice> {};
class VEX_DiskDriveElementSoftwareIdentity final : public RowAssociation<deviceassoc::kRows, kDiskDriveElementSoftwareIdentity> {};
class VEX_DiskDriveSASPortSystemDevice final : public RowAssociation<deviceassoc::kRows, kDiskDriveSASPortSystemDevice> {};
class VEX_DiskDriveSystemDevice final : public RowAssociation<deviceassoc::kRows, kDiskDriveSystemDevice> {};
class VEX_SASSAPAvailableForElement final : public RowAssociation<deviceassoc::kRows, kSASSAPAvailableForElement> {};
class VEX_SATADeviceSAPImplementation final : public RowAssociation<deviceassoc::kRows, kSATADeviceSAPImplementation> {};
class VEX_SATASAPAvailableForElement final : public RowAssociation<deviceassoc::kRows, kSATASAPAvailableForElement> {};
class VEX_SCSIDeviceSAPImplementation final : public RowAssociation<deviceassoc::kRows, kSCSIDeviceSAPImplementation> {};
class VEX_TargetSCSIDeviceSAPImplementation final : public RowAssociation<deviceassoc::kRows, kTargetSCSIDeviceSAPImplementation> {};
class VEX_TargetSCSIProtocolHostedAccessPoint final : public RowAssociation<deviceassoc::kRows, kTargetSCSIProtocolHostedAccessPoint> {};

}  // namespace vex::cim::fwf

#endif
