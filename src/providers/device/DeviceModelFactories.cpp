// The device model family: the device classes derived from cached records
// and the device, host and view associations.
#include "providers/device/DeviceAssociationClasses.h"
#include "providers/device/DeviceInstanceTable.h"
#include "providers/registry/PluginFamilies.h"

namespace vex::cim::fwf {

namespace {

// clang-format off
const PluginFactoryEntry kDeviceModel[] = {
    {"vex_driversoftwareidentity", &makePlugin<VEX_DriverSoftwareIdentity>},
    {"vex_firmwaresoftwareidentity", &makePlugin<VEX_FirmwareSoftwareIdentity>},
    {"vex_biossoftwareidentity", &makePlugin<VEX_BiosSoftwareIdentity>},
    {"vex_perfmodeprops", &makePlugin<VEX_PerfModeProps>},
    {"vex_targetscsiprotocolendpoint", &makePlugin<VEX_TargetSCSIProtocolEndpoint>},
    {"vex_initiatorscsiprotocolendpoint", &makePlugin<VEX_InitiatorSCSIProtocolEndpoint>},
    {"vex_initiatorataprotocolendpoint", &makePlugin<VEX_InitiatorATAProtocolEndpoint>},
    {"vex_viewcapabilities", &makePlugin<VEX_ViewCapabilities>},
    {"vex_diskdrivephysicalpackage", &makePlugin<VEX_DiskDrivePhysicalPackage>},
    {"vex_diskdrivesoftwareidentity", &makePlugin<VEX_DiskDriveSoftwareIdentity>},
    {"vex_diskdrivesasport", &makePlugin<VEX_DiskDriveSASPort>},
    {"vex_diskdriveataport", &makePlugin<VEX_DiskDriveATAPort>},
    {"vex_diskdrivescsiprotocolendpoint", &makePlugin<VEX_DiskDriveSCSIProtocolEndpoint>},
    {"vex_diskdriveataprotocolendpoint", &makePlugin<VEX_DiskDriveATAProtocolEndpoint>},
    {"vex_enclosurefan", &makePlugin<VEX_EnclosureFan>},
    {"vex_enclosurepowersupply", &makePlugin<VEX_EnclosurePowerSupply>},
    {"vex_enclosuresensor", &makePlugin<VEX_EnclosureSensor>},
    {"vex_enclosurediskdriveslot", &makePlugin<VEX_EnclosureDiskDriveSlot>},
    {"vex_alarmsystemdevice", &makePlugin<VEXAlarmSystemDevice>},
    {"vex_associatedalarm", &makePlugin<VEXAssociatedAlarm>},
    {"vex_associatedbattery", &makePlugin<VEXAssociatedBattery>},
    {"vex_batterysystemdevice", &makePlugin<VEXBatterySystemDevice>},
    {"vex_bioselementsoftwareidentity", &makePlugin<VEXBiosElementSoftwareIdentity>},
    {"vex_csbaseinstance", &makePlugin<VEXCSBaseInstance>},
    {"vex_cspbaseinstance", &makePlugin<VEXCSPBaseInstance>},
    {"vex_cardphysicalcomponent", &makePlugin<VEXCardPhysicalComponent>},
    {"vex_computersystempackage", &makePlugin<VEXComputerSystemPackage>},
    {"vex_containerview", &makePlugin<VEXContainerView>},
    {"vex_controlledby", &makePlugin<VEXControlledBy>},
    {"vex_ddbaseinstance", &makePlugin<VEXDDBaseInstance>},
    {"vex_diskdriveviewsystemdeviceview", &makePlugin<VEXDiskDriveViewSystemDeviceView>},
    {"vex_diskdriveviewsystemdeviceviewview", &makePlugin<VEXDiskDriveViewSystemDeviceViewView>},
    {"vex_driverelementsoftwareidentity", &makePlugin<VEXDriverElementSoftwareIdentity>},
    {"vex_enclosureconnectoronpackage", &makePlugin<VEXEnclosureConnectorOnPackage>},
    {"vex_enclosurefanrealizes", &makePlugin<VEXEnclosureFanRealizes>},
    {"vex_enclosurefansystemdevice", &makePlugin<VEXEnclosureFanSystemDevice>},
    {"vex_enclosurepackageinconnector", &makePlugin<VEXEnclosurePackageInConnector>},
    {"vex_enclosurepowersupplyrealizes", &makePlugin<VEXEnclosurePowerSupplyRealizes>},
    {"vex_enclosurepowersupplysystemdevice", &makePlugin<VEXEnclosurePowerSupplySystemDevice>},
    {"vex_enclosuresensorrealizes", &makePlugin<VEXEnclosureSensorRealizes>},
    {"vex_enclosuresensorsystemdevice", &makePlugin<VEXEnclosureSensorSystemDevice>},
    {"vex_enclosuresystempackage", &makePlugin<VEXEnclosureSystemPackage>},
    {"vex_firmwareelementsoftwareidentity", &makePlugin<VEXFirmwareElementSoftwareIdentity>},
    {"vex_initiatorataprotocolhostedaccesspoint", &makePlugin<VEXInitiatorATAProtocolHostedAccessPoint>},
    {"vex_initiatoratascsibindsto", &makePlugin<VEXInitiatorATASCSIBindsTo>},
    {"vex_initiatorscsidevicesapimplementation", &makePlugin<VEXInitiatorSCSIDeviceSAPImplementation>},
    {"vex_initiatorscsiprotocolhostedaccesspoint", &makePlugin<VEXInitiatorSCSIProtocolHostedAccessPoint>},
    {"vex_installedsoftwareidentity", &makePlugin<VEXInstalledSoftwareIdentity>},
    {"vex_logicalidentity", &makePlugin<VEXLogicalIdentity>},
    {"vex_pspbaseinstance", &makePlugin<VEXPSPBaseInstance>},
    {"vex_portcontrollersystemdevice", &makePlugin<VEXPortControllerSystemDevice>},
    {"vex_protocolcontrollersystemdevice", &makePlugin<VEXProtocolControllerSystemDevice>},
    {"vex_realizes", &makePlugin<VEXRealizes>},
    {"vex_sasinitiatorportsystemdevice", &makePlugin<VEXSASInitiatorPortSystemDevice>},
    {"vex_sasphysystemdevice", &makePlugin<VEXSASPhySystemDevice>},
    {"vex_scsisapavailableforelement", &makePlugin<VEXSCSISAPAvailableForElement>},
    {"vex_seselementrealizes", &makePlugin<VEXSESElementRealizes>},
    {"vex_svbaseinstance", &makePlugin<VEXSVBaseInstance>},
    {"vex_systemcomponent", &makePlugin<VEXSystemComponent>},
    {"vex_viewelementcapabilities", &makePlugin<VEXViewElementCapabilities>},
    {"vex_container", &makePlugin<VEX_Container>},
    {"vex_datargetportsystemdevice", &makePlugin<VEX_DATargetPortSystemDevice>},
    {"vex_diskdriveataportsystemdevice", &makePlugin<VEX_DiskDriveATAPortSystemDevice>},
    {"vex_diskdriveelementsoftwareidentity", &makePlugin<VEX_DiskDriveElementSoftwareIdentity>},
    {"vex_diskdrivesasportsystemdevice", &makePlugin<VEX_DiskDriveSASPortSystemDevice>},
    {"vex_diskdrivesystemdevice", &makePlugin<VEX_DiskDriveSystemDevice>},
    {"vex_sassapavailableforelement", &makePlugin<VEX_SASSAPAvailableForElement>},
    {"vex_satadevicesapimplementation", &makePlugin<VEX_SATADeviceSAPImplementation>},
    {"vex_satasapavailableforelement", &makePlugin<VEX_SATASAPAvailableForElement>},
    {"vex_scsidevicesapimplementation", &makePlugin<VEX_SCSIDeviceSAPImplementation>},
    {"vex_targetscsidevicesapimplementation", &makePlugin<VEX_TargetSCSIDeviceSAPImplementation>},
    {"vex_targetscsiprotocolhostedaccesspoint", &makePlugin<VEX_TargetSCSIProtocolHostedAccessPoint>},
};
// clang-format on

}  // namespace

const PluginFactoryList kDeviceModelFactories = factoryList(kDeviceModel);

}  // namespace vex::cim::fwf
