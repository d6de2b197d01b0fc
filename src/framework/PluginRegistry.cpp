// The registry table. Rows are in registration order: the ten always
// registered first, then every other class from the controller system's
// conformance association to the event indication. A row gets its factory
// when its plug-in class is written; until then it stays nullptr and the class
// is not served.
#include "framework/PluginRegistry.h"

#include <new>

#include "providers/device/CachedDeviceClasses.h"
#include "providers/device/VEX_ApplicationSoftwareIdentity.h"
#include "providers/device/VEX_ElementConformsToProfile.h"
#include "providers/device/VEX_HostComputerSystem.h"
#include "providers/device/VEX_HostComputerSystemConformsToProfile.h"
#include "providers/device/VEX_HostComputerSystemPackage.h"
#include "providers/device/VEX_HostPhysicalPackage.h"
#include "providers/device/VEX_RegProfileElementSoftwareIdentity.h"
#include "providers/device/VEX_RegisteredProfile.h"
#include "providers/device/VEX_RegisteredSubProfile.h"
#include "providers/device/VEX_SubProfileRequiresProfile.h"
#include "providers/storage/CachedStorageClasses.h"
#include "providers/storage/VEX_ConcreteJob.h"

namespace vex::cim::fwf {

namespace {

template <typename Plugin>
AbstractProviderPlugin* make() {
    return new (std::nothrow) Plugin();
}

constexpr PluginGroup kAssociation = PluginGroup::Association;
constexpr PluginGroup kCached = PluginGroup::CachedInstance;
constexpr PluginGroup kMethod = PluginGroup::Method;
constexpr PluginGroup kInstance = PluginGroup::Instance;
constexpr unsigned int kImpl = kServedInImplementation;
constexpr unsigned int kInterop = kServedInInterop;
constexpr unsigned int kBoth = kServedInBoth;

// clang-format off
const PluginRegistration kRegistry[] = {
    // Always registered: the host, the registered profiles and the provider software.
    {"vex_hostcomputersystemconformstoprofile", kAssociation, kInterop, &make<VEX_HostComputerSystemConformsToProfile>},
    {"vex_elementconformstoprofile", kAssociation, kInterop, &make<VEX_ElementConformsToProfile>},
    {"vex_registeredprofile", kInstance, kInterop, &make<VEX_RegisteredProfile>},
    {"vex_registeredsubprofile", kInstance, kInterop, &make<VEX_RegisteredSubProfile>},
    {"vex_subprofilerequiresprofile", kAssociation, kInterop, &make<VEX_SubProfileRequiresProfile>},
    {"vex_hostcomputersystem", kInstance, kBoth, &make<VEX_HostComputerSystem>},
    {"vex_hostphysicalpackage", kInstance, kBoth, &make<VEX_HostPhysicalPackage>},
    {"vex_hostcomputersystempackage", kAssociation, kBoth, &make<VEX_HostComputerSystemPackage>},
    {"vex_applicationsoftwareidentity", kInstance, kImpl, &make<VEX_ApplicationSoftwareIdentity>},
    {"vex_regprofileelementsoftwareidentity", kAssociation, kImpl, &make<VEX_RegProfileElementSoftwareIdentity>},
    // Associations.
    {"vex_controllercomputersystemconformstoprofile", kAssociation, kInterop, nullptr},
    {"vex_bioselementsoftwareidentity", kAssociation, kImpl, nullptr},
    {"vex_driverelementsoftwareidentity", kAssociation, kImpl, nullptr},
    {"vex_firmwareelementsoftwareidentity", kAssociation, kImpl, nullptr},
    {"vex_installedsoftwareidentity", kAssociation, kImpl, nullptr},
    {"vex_diskdriveviewsystemdeviceview", kAssociation, kImpl, nullptr},
    {"vex_csbaseinstance", kAssociation, kImpl, nullptr},
    {"vex_systemcomponent", kAssociation, kImpl, nullptr},
    {"vex_diskdriveviewsystemdeviceviewview", kAssociation, kImpl, nullptr},
    {"vex_volumeviewsystemdeviceviewview", kAssociation, kImpl, nullptr},
    {"vex_hostedstoragepoolview", kAssociation, kImpl, nullptr},
    {"vex_volumeviewsystemdeviceview", kAssociation, kImpl, nullptr},
    {"vex_concretestoragepoolfasttierdby", kAssociation, kImpl, nullptr},
    {"vex_containerview", kAssociation, kImpl, nullptr},
    {"vex_svbaseinstance", kAssociation, kImpl, nullptr},
    {"vex_pspbaseinstance", kAssociation, kImpl, nullptr},
    {"vex_cspbaseinstance", kAssociation, kImpl, nullptr},
    {"vex_ddbaseinstance", kAssociation, kImpl, nullptr},
    {"vex_viewelementcapabilities", kAssociation, kImpl, nullptr},
    {"vex_concretepooltovolumeallocatedfromstoragepoolviewview", kAssociation, kImpl, nullptr},
    {"vex_associatedalarm", kAssociation, kImpl, nullptr},
    {"vex_logicalidentity", kAssociation, kImpl, nullptr},
    {"vex_alarmsystemdevice", kAssociation, kImpl, nullptr},
    {"vex_cardphysicalcomponent", kAssociation, kImpl, nullptr},
    {"vex_computersystempackage", kAssociation, kImpl, nullptr},
    {"vex_controlledby", kAssociation, kImpl, nullptr},
    {"vex_realizes", kAssociation, kImpl, nullptr},
    {"vex_portcontrollersystemdevice", kAssociation, kImpl, nullptr},
    {"vex_protocolcontrollersystemdevice", kAssociation, kImpl, nullptr},
    {"vex_scsisapavailableforelement", kAssociation, kImpl, nullptr},
    {"vex_scsiprotocolcontrollerforunit", kAssociation, kImpl, nullptr},
    {"vex_dedicatedmemberofcollection", kAssociation, kImpl, nullptr},
    {"vex_dedicatedhostedcollection", kAssociation, kImpl, nullptr},
    {"vex_dedicatedisspare", kAssociation, kImpl, nullptr},
    {"vex_globalstorageredundancycollection", kAssociation, kImpl, nullptr},
    {"vex_globalisspare", kAssociation, kImpl, nullptr},
    {"vex_hostedspareconfigurationservice", kAssociation, kImpl, nullptr},
    {"vex_storagevolumeconcretedependency", kAssociation, kImpl, nullptr},
    {"vex_concretepoolconcretedependency", kAssociation, kImpl, nullptr},
    {"vex_compositeextentsystemdevice", kAssociation, kImpl, nullptr},
    {"vex_globalmemberofcollection", kAssociation, kImpl, nullptr},
    {"vex_targetscsidevicesapimplementation", kAssociation, kImpl, nullptr},
    {"vex_datargetportsystemdevice", kAssociation, kImpl, nullptr},
    {"vex_targetscsiprotocolhostedaccesspoint", kAssociation, kImpl, nullptr},
    {"vex_failovermemberofcollection", kAssociation, kImpl, nullptr},
    {"vex_failoverhostedcollection", kAssociation, kImpl, nullptr},
    {"vex_spareconfcapelementcapabilities", kAssociation, kImpl, nullptr},
    {"vex_enclosuresystempackage", kAssociation, kImpl, nullptr},
    {"vex_seselementrealizes", kAssociation, kImpl, nullptr},
    {"vex_enclosureconnectoronpackage", kAssociation, kImpl, nullptr},
    {"vex_enclosurefanrealizes", kAssociation, kImpl, nullptr},
    {"vex_enclosurefansystemdevice", kAssociation, kImpl, nullptr},
    {"vex_enclosurepowersupplyrealizes", kAssociation, kImpl, nullptr},
    {"vex_enclosurepowersupplysystemdevice", kAssociation, kImpl, nullptr},
    {"vex_enclosuresensorrealizes", kAssociation, kImpl, nullptr},
    {"vex_enclosuresensorsystemdevice", kAssociation, kImpl, nullptr},
    {"vex_enclosurepackageinconnector", kAssociation, kImpl, nullptr},
    {"vex_controllervolumesystemdevice", kAssociation, kImpl, nullptr},
    {"vex_primordialsettingsassociatedtocapabilities", kAssociation, kImpl, nullptr},
    {"vex_concretepoolallocatedfromprimordialpool", kAssociation, kImpl, nullptr},
    {"vex_storagevolumeallocatedfromconcretepool", kAssociation, kImpl, nullptr},
    {"vex_primordialpoolelementcapabilities", kAssociation, kImpl, nullptr},
    {"vex_concretepoolelementcapabilities", kAssociation, kImpl, nullptr},
    {"vex_storageconfigurationserviceelementcapabilities", kAssociation, kImpl, nullptr},
    {"vex_storageconfigurationservicehostedservice", kAssociation, kImpl, nullptr},
    {"vex_hostedconcretestoragepool", kAssociation, kImpl, nullptr},
    {"vex_hostedprimordialstoragepool", kAssociation, kImpl, nullptr},
    {"vex_volumeelementsettingdata", kAssociation, kImpl, nullptr},
    {"vex_primordialsettingsgeneratedfromcapabilities", kAssociation, kImpl, nullptr},
    {"vex_concretesettingsassociatedtocapabilities", kAssociation, kImpl, nullptr},
    {"vex_concretesettingsgeneratedfromcapabilities", kAssociation, kImpl, nullptr},
    {"vex_affectedjobelement", kAssociation, kImpl, nullptr},
    {"vex_owningjobelement", kAssociation, kImpl, nullptr},
    {"vex_diskdrivesystemdevice", kAssociation, kImpl, nullptr},
    {"vex_diskdriveataportsystemdevice", kAssociation, kImpl, nullptr},
    {"vex_diskdrivesasportsystemdevice", kAssociation, kImpl, nullptr},
    {"vex_diskdriveelementsoftwareidentity", kAssociation, kImpl, nullptr},
    {"vex_mediapresent", kAssociation, kImpl, nullptr},
    {"vex_associatedcomponentextent", kAssociation, kImpl, nullptr},
    {"vex_associatedremainingextent", kAssociation, kImpl, nullptr},
    {"vex_concretecomponent", kAssociation, kImpl, nullptr},
    {"vex_primordialassociatedcomponentextent", kAssociation, kImpl, nullptr},
    {"vex_primordialtoconcretebasedon", kAssociation, kImpl, nullptr},
    {"vex_volumetocompositeextentbasedon", kAssociation, kImpl, nullptr},
    {"vex_primordialtoremainingbasedon", kAssociation, kImpl, nullptr},
    {"vex_initiatorataprotocolhostedaccesspoint", kAssociation, kImpl, nullptr},
    {"vex_initiatoratascsibindsto", kAssociation, kImpl, nullptr},
    {"vex_initiatorscsidevicesapimplementation", kAssociation, kImpl, nullptr},
    {"vex_initiatorscsiprotocolhostedaccesspoint", kAssociation, kImpl, nullptr},
    {"vex_sasinitiatorphyconcretecomponent", kAssociation, kImpl, nullptr},
    {"vex_sasinitiatorportsystemdevice", kAssociation, kImpl, nullptr},
    {"vex_sasphysystemdevice", kAssociation, kImpl, nullptr},
    {"vex_associatedbattery", kAssociation, kImpl, nullptr},
    {"vex_batterysystemdevice", kAssociation, kImpl, nullptr},
    {"vex_parenttochildpoolviewview", kAssociation, kImpl, nullptr},
    {"vex_satasapavailableforelement", kAssociation, kImpl, nullptr},
    {"vex_sassapavailableforelement", kAssociation, kImpl, nullptr},
    {"vex_scsidevicesapimplementation", kAssociation, kImpl, nullptr},
    {"vex_satadevicesapimplementation", kAssociation, kImpl, nullptr},
    {"vex_container", kAssociation, kImpl, nullptr},
    // Other instance classes.
    {"vex_driversoftwareidentity", kInstance, kImpl, nullptr},
    {"vex_firmwaresoftwareidentity", kInstance, kImpl, nullptr},
    {"vex_biossoftwareidentity", kInstance, kImpl, nullptr},
    {"vex_controllerview", kInstance, kImpl, &make<VEXControllerComputerSystemView>},
    {"vex_primordialstoragepoolview", kInstance, kImpl, nullptr},
    {"vex_viewcapabilities", kInstance, kImpl, nullptr},
    {"vex_dedicatedstorageredundancyset", kInstance, kImpl, nullptr},
    {"vex_globalstorageredundancyset", kInstance, kImpl, nullptr},
    {"vex_concretestorageextent", kInstance, kImpl, nullptr},
    {"vex_remainingstorageextent", kInstance, kImpl, nullptr},
    {"vex_compositeextent", kInstance, kImpl, nullptr},
    {"vex_targetscsiprotocolendpoint", kInstance, kImpl, nullptr},
    {"vex_failoverstorageextentscollection", kInstance, kImpl, nullptr},
    {"vex_spareconfigurationcapabilities", kInstance, kImpl, nullptr},
    {"vex_diskdrive", kInstance, kImpl, &make<VEXDiskDriveClass>},
    {"vex_diskdriveataport", kInstance, kImpl, nullptr},
    {"vex_diskdriveataprotocolendpoint", kInstance, kImpl, nullptr},
    {"vex_diskdrivephysicalpackage", kInstance, kImpl, nullptr},
    {"vex_diskdrivesasport", kInstance, kImpl, nullptr},
    {"vex_diskdrivescsiprotocolendpoint", kInstance, kImpl, nullptr},
    {"vex_enclosurechassis", kInstance, kImpl, &make<VEXChasis>},
    {"vex_enclosurefan", kInstance, kImpl, nullptr},
    {"vex_enclosurepowersupply", kInstance, kImpl, nullptr},
    {"vex_enclosuresensor", kInstance, kImpl, nullptr},
    {"vex_enclosurediskdriveslot", kInstance, kImpl, nullptr},
    {"vex_perfmodeprops", kInstance, kImpl, nullptr},
    {"vex_primordialstoragepool", kInstance, kImpl, nullptr},
    {"vex_primordialstoragepoolcapabilities", kInstance, kImpl, nullptr},
    {"vex_storageconfigurationcapabilities", kInstance, kImpl, nullptr},
    {"vex_concretestoragepoolcapabilities", kInstance, kImpl, nullptr},
    {"vex_storageconfigurationservice", kInstance, kImpl, nullptr},
    {"vex_volumestoragesetting", kInstance, kImpl, nullptr},
    {"vex_concretefixedstoragesettings", kInstance, kImpl, nullptr},
    {"vex_completedjob", kInstance, kImpl, nullptr},
    {"vex_diskdrivesoftwareidentity", kInstance, kImpl, nullptr},
    {"vex_initiatorsasphy", kInstance, kImpl, &make<VEXInitiatorSASPhy>},
    {"vex_sasinitiatorport", kInstance, kImpl, &make<VEXSASInitiatorPort>},
    {"vex_initiatorataprotocolendpoint", kInstance, kImpl, nullptr},
    {"vex_initiatorscsiprotocolendpoint", kInstance, kImpl, nullptr},
    // Classes with extrinsic methods (all but the spare configuration service are also cached).
    {"vex_controllercomputersystem", kMethod, kBoth, &make<VEXControllerComputerSystem>},
    {"vex_portcontroller", kMethod, kImpl, &make<VEXPortController>},
    {"vex_alarmdevice", kMethod, kImpl, &make<VEXAlarmDevice>},
    {"vex_card", kMethod, kImpl, &make<VEXCard>},
    {"vex_product", kMethod, kImpl, &make<VEXProduct>},
    {"vex_scsiprotocolcontroller", kMethod, kImpl, &make<VEXSCSIProtocolController>},
    {"vex_spareconfigurationservice", kMethod, kImpl, nullptr},
    {"vex_battery", kMethod, kImpl, &make<VEXBattery>},
    // Cached instance classes.
    {"vex_diskdriveview", kCached, kImpl, &make<VEXDiskDriveView>},
    {"vex_storagevolumeview", kCached, kImpl, &make<VEXStorageVolumeView>},
    {"vex_concretestoragepoolview", kCached, kImpl, &make<VEXConcreteStoragePoolView>},
    {"vex_primordialstorageextent", kCached, kImpl, &make<VEXPrimordialStorageExtent>},
    {"vex_datargetport", kCached, kImpl, &make<VEXDATargetPort>},
    {"vex_seselement", kCached, kImpl, &make<VEXSESElement>},
    {"vex_storagevolume", kCached, kImpl, &make<VEX_StorageVolume>},
    {"vex_concretestoragepool", kCached, kImpl, &make<VEX_ConcreteStoragePool>},
    {"vex_primordialfixedstoragesettings", kCached, kImpl, &make<VEX_PrimordialFixedStorageSettings>},
    {"vex_primordialgeneratedstoragesettings", kCached, kImpl, &make<VEX_PrimordialGeneratedStorageSettings>},
    {"vex_concretegeneratedstoragesettings", kCached, kImpl, &make<VEX_ConcreteGeneratedStorageSettings>},
    {"vex_concretejob", kCached, kImpl, &make<VEX_ConcreteJob>},
    {"vex_sourcestoragepoolview", kCached, kImpl, &make<VEXSourceStoragePoolView>},
    {"vex_eventindication", kCached, kImpl, &make<VEX_EventIndication>},
};
// clang-format on

}  // namespace

const PluginRegistration* pluginRegistrations() { return kRegistry; }

std::size_t pluginRegistrationCount() { return sizeof kRegistry / sizeof kRegistry[0]; }

}  // namespace vex::cim::fwf
