// The storage model: pools, extents, capabilities, settings and spares
// computed from the object cache, and every storage association.
#include "providers/registry/PluginFamilies.h"
#include "providers/storage/StorageAssociationClasses.h"
#include "providers/storage/model/StorageModelClasses.h"

namespace vex::cim::fwf {

namespace {

using namespace storage;

// clang-format off
const PluginFactoryEntry kStorageModel[] = {
    {"vex_primordialstoragepool", &makePlugin<VEX_PrimordialStoragePool>},
    {"vex_primordialstoragepoolview", &makePlugin<VEX_PrimordialStoragePoolView>},
    {"vex_concretestorageextent", &makePlugin<VEX_ConcreteStorageExtent>},
    {"vex_remainingstorageextent", &makePlugin<VEX_RemainingStorageExtent>},
    {"vex_compositeextent", &makePlugin<VEX_CompositeExtent>},
    {"vex_primordialstoragepoolcapabilities", &makePlugin<VEX_PrimordialStoragePoolCapabilities>},
    {"vex_concretestoragepoolcapabilities", &makePlugin<VEX_ConcreteStoragePoolCapabilities>},
    {"vex_concretefixedstoragesettings", &makePlugin<VEX_ConcreteFixedStorageSettings>},
    {"vex_volumestoragesetting", &makePlugin<VEX_VolumeStorageSetting>},
    {"vex_dedicatedstorageredundancyset", &makePlugin<VEX_DedicatedStorageRedundancySet>},
    {"vex_globalstorageredundancyset", &makePlugin<VEX_GlobalStorageRedundancySet>},
    {"vex_failoverstorageextentscollection", &makePlugin<VEX_FailOverStorageExtentsCollection>},
    {"vex_compositeextentsystemdevice", &makePlugin<VEXCompositeExtentSystemDevice>},
    {"vex_concretecomponent", &makePlugin<VEXConcreteComponent>},
    {"vex_concretepoolconcretedependency", &makePlugin<VEXConcretePoolConcreteDependency>},
    {"vex_dedicatedhostedcollection", &makePlugin<VEXDedicatedHostedCollection>},
    {"vex_dedicatedisspare", &makePlugin<VEXDedicatedIsSpare>},
    {"vex_dedicatedmemberofcollection", &makePlugin<VEXDedicatedMemberOfCollection>},
    {"vex_failoverhostedcollection", &makePlugin<VEXFailOverHostedCollection>},
    {"vex_failovermemberofcollection", &makePlugin<VEXFailOverMemberOfCollection>},
    {"vex_globalisspare", &makePlugin<VEXGlobalIsSpare>},
    {"vex_globalmemberofcollection", &makePlugin<VEXGlobalMemberOfCollection>},
    {"vex_globalstorageredundancycollection", &makePlugin<VEXGlobalStorageRedundancyCollection>},
    {"vex_hostedstoragepoolview", &makePlugin<VEXHostedStoragePoolView>},
    {"vex_parenttochildpoolviewview", &makePlugin<VEXParentToChildPoolViewView>},
    {"vex_primordialtoconcretebasedon", &makePlugin<VEXPrimordialToConcreteBasedOn>},
    {"vex_primordialtoremainingbasedon", &makePlugin<VEXPrimordialToRemainingBasedOn>},
    {"vex_sasinitiatorphyconcretecomponent", &makePlugin<VEXSASInitiatorPhyConcreteComponent>},
    {"vex_scsiprotocolcontrollerforunit", &makePlugin<VEXSCSIProtocolControllerForUnit>},
    {"vex_storagevolumeconcretedependency", &makePlugin<VEXStorageVolumeConcreteDependency>},
    {"vex_volumetocompositeextentbasedon", &makePlugin<VEXVolumeToCompositeExtentBasedOn>},
    {"vex_volumeviewsystemdeviceview", &makePlugin<VEXVolumeViewSystemDeviceView>},
    {"vex_volumeviewsystemdeviceviewview", &makePlugin<VEXVolumeViewSystemDeviceViewView>},
    {"vex_associatedcomponentextent", &makePlugin<VEX_AssociatedComponentExtent>},
    {"vex_associatedremainingextent", &makePlugin<VEX_AssociatedRemainingExtent>},
    {"vex_concretecomponentview", &makePlugin<VEX_ConcreteComponentView>},
    {"vex_concretepoolallocatedfromprimordialpool", &makePlugin<VEX_ConcretePoolAllocatedFromPrimordialPool>},
    {"vex_concretepoolelementcapabilities", &makePlugin<VEX_ConcretePoolElementCapabilities>},
    {"vex_concretepooltovolumeallocatedfromstoragepoolviewview", &makePlugin<VEX_ConcretePoolToVolumeAllocatedFromStoragePoolViewView>},
    {"vex_concretesettingsassociatedtocapabilities", &makePlugin<VEX_ConcreteSettingsAssociatedToCapabilities>},
    {"vex_concretesettingsgeneratedfromcapabilities", &makePlugin<VEX_ConcreteSettingsGeneratedFromCapabilities>},
    {"vex_concretestoragepoolfasttierdby", &makePlugin<VEX_ConcreteStoragePoolFastTierdBy>},
    {"vex_controllervolumesystemdevice", &makePlugin<VEX_ControllerVolumeSystemDevice>},
    {"vex_hostedconcretestoragepool", &makePlugin<VEX_HostedConcreteStoragePool>},
    {"vex_hostedprimordialstoragepool", &makePlugin<VEX_HostedPrimordialStoragePool>},
    {"vex_mediapresent", &makePlugin<VEX_MediaPresent>},
    {"vex_primordialassociatedcomponentextent", &makePlugin<VEX_PrimordialAssociatedComponentExtent>},
    {"vex_primordialpoolelementcapabilities", &makePlugin<VEX_PrimordialPoolElementCapabilities>},
    {"vex_primordialpooltoconcretepoolallocatedfromstoragepoolviewview", &makePlugin<VEX_PrimordialPoolToConcretePoolAllocatedFromStoragePoolViewView>},
    {"vex_primordialsettingsassociatedtocapabilities", &makePlugin<VEX_PrimordialSettingsAssociatedToCapabilities>},
    {"vex_primordialsettingsgeneratedfromcapabilities", &makePlugin<VEX_PrimordialSettingsGeneratedFromCapabilities>},
    {"vex_storagevolumeallocatedfromconcretepool", &makePlugin<VEX_StorageVolumeAllocatedFromConcretePool>},
    {"vex_volumeelementsettingdata", &makePlugin<VEX_VolumeElementSettingData>},
};
// clang-format on

}  // namespace

const PluginFactoryList kStorageModelFactories = factoryList(kStorageModel);

}  // namespace vex::cim::fwf
