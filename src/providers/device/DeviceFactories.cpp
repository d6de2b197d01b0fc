// The device families: the host, the registered profiles and the provider
// software, and the device classes served straight from the object cache.
#include "providers/device/CachedDeviceClasses.h"
#include "providers/device/VEX_ApplicationSoftwareIdentity.h"
#include "providers/device/VEX_ElementConformsToProfile.h"
#include "providers/device/VEX_HostComputerSystem.h"
#include "providers/device/VEX_HostComputerSystemPackage.h"
#include "providers/device/VEX_HostPhysicalPackage.h"
#include "providers/device/VEX_RegProfileElementSoftwareIdentity.h"
#include "providers/device/VEX_RegisteredProfile.h"
#include "providers/device/VEX_RegisteredSubProfile.h"
#include "providers/device/VEX_SubProfileRequiresProfile.h"
#include "providers/device/SystemConformsToProfile.h"
#include "providers/registry/PluginFamilies.h"

namespace vex::cim::fwf {

namespace {

// clang-format off
const PluginFactoryEntry kHostProfile[] = {
    {"vex_hostcomputersystemconformstoprofile", &makePlugin<VEX_HostComputerSystemConformsToProfile>},
    {"vex_elementconformstoprofile", &makePlugin<VEX_ElementConformsToProfile>},
    {"vex_registeredprofile", &makePlugin<VEX_RegisteredProfile>},
    {"vex_registeredsubprofile", &makePlugin<VEX_RegisteredSubProfile>},
    {"vex_subprofilerequiresprofile", &makePlugin<VEX_SubProfileRequiresProfile>},
    {"vex_hostcomputersystem", &makePlugin<VEX_HostComputerSystem>},
    {"vex_hostphysicalpackage", &makePlugin<VEX_HostPhysicalPackage>},
    {"vex_hostcomputersystempackage", &makePlugin<VEX_HostComputerSystemPackage>},
    {"vex_applicationsoftwareidentity", &makePlugin<VEX_ApplicationSoftwareIdentity>},
    {"vex_regprofileelementsoftwareidentity", &makePlugin<VEX_RegProfileElementSoftwareIdentity>},
    {"vex_controllercomputersystemconformstoprofile", &makePlugin<VEX_ControllerComputerSystemConformsToProfile>},
};

const PluginFactoryEntry kCachedDevice[] = {
    {"vex_controllerview", &makePlugin<VEXControllerComputerSystemView>},
    {"vex_diskdrive", &makePlugin<VEXDiskDriveClass>},
    {"vex_enclosurechassis", &makePlugin<VEXChasis>},
    {"vex_initiatorsasphy", &makePlugin<VEXInitiatorSASPhy>},
    {"vex_sasinitiatorport", &makePlugin<VEXSASInitiatorPort>},
    {"vex_controllercomputersystem", &makePlugin<VEXControllerComputerSystem>},
    {"vex_portcontroller", &makePlugin<VEXPortController>},
    {"vex_alarmdevice", &makePlugin<VEXAlarmDevice>},
    {"vex_card", &makePlugin<VEXCard>},
    {"vex_product", &makePlugin<VEXProduct>},
    {"vex_scsiprotocolcontroller", &makePlugin<VEXSCSIProtocolController>},
    {"vex_battery", &makePlugin<VEXBattery>},
    {"vex_diskdriveview", &makePlugin<VEXDiskDriveView>},
    {"vex_datargetport", &makePlugin<VEXDATargetPort>},
    {"vex_seselement", &makePlugin<VEXSESElement>},
};
// clang-format on

}  // namespace

const PluginFactoryList kHostProfileFactories = factoryList(kHostProfile);
const PluginFactoryList kCachedDeviceFactories = factoryList(kCachedDevice);

}  // namespace vex::cim::fwf
