// The registry table: every CIM class the provider can serve, one row each,
// in registration order - the ten always registered first, then every other
// class from the controller system's conformance association to the event
// indication. The plug-in objects come from the families of plug-in classes
// (PluginFamilies.h), each of which lists the names it makes; a row no family
// makes is not served, and a request for its class is refused as an invalid
// class. This table is the composition of the provider: the framework knows
// only the PluginRegistration rows it hands out.
#include <cstring>
#include <string>

#include "framework/CommonFunctions.h"
#include "framework/PluginRegistry.h"
#include "providers/registry/PluginFamilies.h"

namespace vex::cim::fwf {

namespace {

struct PluginRow {
    const char* className;  // proper spelling; the plug-in name is its lower case
    PluginGroup group;
    unsigned int nameSpaces;
};


constexpr PluginGroup kAssociation = PluginGroup::Association;
constexpr PluginGroup kCached = PluginGroup::CachedInstance;
constexpr PluginGroup kMethod = PluginGroup::Method;
constexpr PluginGroup kInstance = PluginGroup::Instance;
constexpr unsigned int kImpl = kServedInImplementation;
constexpr unsigned int kInterop = kServedInInterop;
constexpr unsigned int kBoth = kServedInBoth;

// clang-format off
const PluginRow kRows[] = {
    // Always registered: the host, the registered profiles and the provider software.
    {"VEX_HostComputerSystemConformsToProfile", kAssociation, kInterop},
    {"VEX_ElementConformsToProfile", kAssociation, kInterop},
    {"VEX_RegisteredProfile", kInstance, kInterop},
    {"VEX_RegisteredSubProfile", kInstance, kInterop},
    {"VEX_SubProfileRequiresProfile", kAssociation, kInterop},
    {"VEX_HostComputerSystem", kInstance, kBoth},
    {"VEX_HostPhysicalPackage", kInstance, kBoth},
    {"VEX_HostComputerSystemPackage", kAssociation, kBoth},
    {"VEX_ApplicationSoftwareIdentity", kInstance, kImpl},
    {"VEX_RegProfileElementSoftwareIdentity", kAssociation, kImpl},
    // Associations.
    {"VEX_ControllerComputerSystemConformsToProfile", kAssociation, kInterop},
    {"VEX_BiosElementSoftwareIdentity", kAssociation, kImpl},
    {"VEX_DriverElementSoftwareIdentity", kAssociation, kImpl},
    {"VEX_FirmwareElementSoftwareIdentity", kAssociation, kImpl},
    {"VEX_InstalledSoftwareIdentity", kAssociation, kImpl},
    {"VEX_DiskDriveViewSystemDeviceView", kAssociation, kImpl},
    {"VEX_CSBaseInstance", kAssociation, kImpl},
    {"VEX_SystemComponent", kAssociation, kImpl},
    {"VEX_DiskDriveViewSystemDeviceViewView", kAssociation, kImpl},
    {"VEX_VolumeViewSystemDeviceViewView", kAssociation, kImpl},
    {"VEX_HostedStoragePoolView", kAssociation, kImpl},
    {"VEX_VolumeViewSystemDeviceView", kAssociation, kImpl},
    {"VEX_ConcreteStoragePoolFastTierdBy", kAssociation, kImpl},
    {"VEX_ContainerView", kAssociation, kImpl},
    {"VEX_SVBaseInstance", kAssociation, kImpl},
    {"VEX_PSPBaseInstance", kAssociation, kImpl},
    {"VEX_CSPBaseInstance", kAssociation, kImpl},
    {"VEX_DDBaseInstance", kAssociation, kImpl},
    {"VEX_ViewElementCapabilities", kAssociation, kImpl},
    {"VEX_ConcretePoolToVolumeAllocatedFromStoragePoolViewView", kAssociation, kImpl},
    {"VEX_AssociatedAlarm", kAssociation, kImpl},
    {"VEX_LogicalIdentity", kAssociation, kImpl},
    {"VEX_AlarmSystemDevice", kAssociation, kImpl},
    {"VEX_CardPhysicalComponent", kAssociation, kImpl},
    {"VEX_ComputerSystemPackage", kAssociation, kImpl},
    {"VEX_ControlledBy", kAssociation, kImpl},
    {"VEX_Realizes", kAssociation, kImpl},
    {"VEX_PortControllerSystemDevice", kAssociation, kImpl},
    {"VEX_ProtocolControllerSystemDevice", kAssociation, kImpl},
    {"VEX_SCSISAPAvailableForElement", kAssociation, kImpl},
    {"VEX_SCSIProtocolControllerForUnit", kAssociation, kImpl},
    {"VEX_DedicatedMemberOfCollection", kAssociation, kImpl},
    {"VEX_DedicatedHostedCollection", kAssociation, kImpl},
    {"VEX_DedicatedIsSpare", kAssociation, kImpl},
    {"VEX_GlobalStorageRedundancyCollection", kAssociation, kImpl},
    {"VEX_GlobalIsSpare", kAssociation, kImpl},
    {"VEX_HostedSpareConfigurationService", kAssociation, kImpl},
    {"VEX_StorageVolumeConcreteDependency", kAssociation, kImpl},
    {"VEX_ConcretePoolConcreteDependency", kAssociation, kImpl},
    {"VEX_CompositeExtentSystemDevice", kAssociation, kImpl},
    {"VEX_GlobalMemberOfCollection", kAssociation, kImpl},
    {"VEX_TargetSCSIDeviceSAPImplementation", kAssociation, kImpl},
    {"VEX_DATargetPortSystemDevice", kAssociation, kImpl},
    {"VEX_TargetSCSIProtocolHostedAccessPoint", kAssociation, kImpl},
    {"VEX_FailOverMemberOfCollection", kAssociation, kImpl},
    {"VEX_FailOverHostedCollection", kAssociation, kImpl},
    {"VEX_SpareConfCapElementCapabilities", kAssociation, kImpl},
    {"VEX_EnclosureSystemPackage", kAssociation, kImpl},
    {"VEX_SESElementRealizes", kAssociation, kImpl},
    {"VEX_EnclosureConnectorOnPackage", kAssociation, kImpl},
    {"VEX_EnclosureFanRealizes", kAssociation, kImpl},
    {"VEX_EnclosureFanSystemDevice", kAssociation, kImpl},
    {"VEX_EnclosurePowerSupplyRealizes", kAssociation, kImpl},
    {"VEX_EnclosurePowerSupplySystemDevice", kAssociation, kImpl},
    {"VEX_EnclosureSensorRealizes", kAssociation, kImpl},
    {"VEX_EnclosureSensorSystemDevice", kAssociation, kImpl},
    {"VEX_EnclosurePackageInConnector", kAssociation, kImpl},
    {"VEX_ControllerVolumeSystemDevice", kAssociation, kImpl},
    {"VEX_PrimordialSettingsAssociatedToCapabilities", kAssociation, kImpl},
    {"VEX_ConcretePoolAllocatedFromPrimordialPool", kAssociation, kImpl},
    {"VEX_StorageVolumeAllocatedFromConcretePool", kAssociation, kImpl},
    {"VEX_PrimordialPoolElementCapabilities", kAssociation, kImpl},
    {"VEX_ConcretePoolElementCapabilities", kAssociation, kImpl},
    {"VEX_StorageConfigurationServiceElementCapabilities", kAssociation, kImpl},
    {"VEX_StorageConfigurationServiceHostedService", kAssociation, kImpl},
    {"VEX_HostedConcreteStoragePool", kAssociation, kImpl},
    {"VEX_HostedPrimordialStoragePool", kAssociation, kImpl},
    {"VEX_VolumeElementSettingData", kAssociation, kImpl},
    {"VEX_PrimordialSettingsGeneratedFromCapabilities", kAssociation, kImpl},
    {"VEX_ConcreteSettingsAssociatedToCapabilities", kAssociation, kImpl},
    {"VEX_ConcreteSettingsGeneratedFromCapabilities", kAssociation, kImpl},
    {"VEX_AffectedJobElement", kAssociation, kImpl},
    {"VEX_OwningJobElement", kAssociation, kImpl},
    {"VEX_DiskDriveSystemDevice", kAssociation, kImpl},
    {"VEX_DiskDriveATAPortSystemDevice", kAssociation, kImpl},
    {"VEX_DiskDriveSASPortSystemDevice", kAssociation, kImpl},
    {"VEX_DiskDriveElementSoftwareIdentity", kAssociation, kImpl},
    {"VEX_MediaPresent", kAssociation, kImpl},
    {"VEX_AssociatedComponentExtent", kAssociation, kImpl},
    {"VEX_AssociatedRemainingExtent", kAssociation, kImpl},
    {"VEX_ConcreteComponent", kAssociation, kImpl},
    {"VEX_PrimordialAssociatedComponentExtent", kAssociation, kImpl},
    {"VEX_PrimordialToConcreteBasedOn", kAssociation, kImpl},
    {"VEX_VolumeToCompositeExtentBasedOn", kAssociation, kImpl},
    {"VEX_PrimordialToRemainingBasedOn", kAssociation, kImpl},
    {"VEX_InitiatorATAProtocolHostedAccessPoint", kAssociation, kImpl},
    {"VEX_InitiatorATASCSIBindsTo", kAssociation, kImpl},
    {"VEX_InitiatorSCSIDeviceSAPImplementation", kAssociation, kImpl},
    {"VEX_InitiatorSCSIProtocolHostedAccessPoint", kAssociation, kImpl},
    {"VEX_SASInitiatorPhyConcreteComponent", kAssociation, kImpl},
    {"VEX_SASInitiatorPortSystemDevice", kAssociation, kImpl},
    {"VEX_SASPhySystemDevice", kAssociation, kImpl},
    {"VEX_AssociatedBattery", kAssociation, kImpl},
    {"VEX_BatterySystemDevice", kAssociation, kImpl},
    {"VEX_ParentToChildPoolViewView", kAssociation, kImpl},
    {"VEX_SATASAPAvailableForElement", kAssociation, kImpl},
    {"VEX_SASSAPAvailableForElement", kAssociation, kImpl},
    {"VEX_SCSIDeviceSAPImplementation", kAssociation, kImpl},
    {"VEX_SATADeviceSAPImplementation", kAssociation, kImpl},
    {"VEX_Container", kAssociation, kImpl},
    {"VEX_ConcreteComponentView", kAssociation, kImpl},
    {"VEX_PrimordialPoolToConcretePoolAllocatedFromStoragePoolViewView", kAssociation, kImpl},
    // Other instance classes.
    {"VEX_DriverSoftwareIdentity", kInstance, kImpl},
    {"VEX_FirmwareSoftwareIdentity", kInstance, kImpl},
    {"VEX_BiosSoftwareIdentity", kInstance, kImpl},
    {"VEX_ControllerView", kInstance, kImpl},
    {"VEX_PrimordialStoragePoolView", kInstance, kImpl},
    {"VEX_ViewCapabilities", kInstance, kImpl},
    {"VEX_DedicatedStorageRedundancySet", kInstance, kImpl},
    {"VEX_GlobalStorageRedundancySet", kInstance, kImpl},
    {"VEX_ConcreteStorageExtent", kInstance, kImpl},
    {"VEX_RemainingStorageExtent", kInstance, kImpl},
    {"VEX_CompositeExtent", kInstance, kImpl},
    {"VEX_TargetSCSIProtocolEndpoint", kInstance, kImpl},
    {"VEX_FailOverStorageExtentsCollection", kInstance, kImpl},
    {"VEX_SpareConfigurationCapabilities", kInstance, kImpl},
    {"VEX_DiskDrive", kInstance, kImpl},
    {"VEX_DiskDriveATAPort", kInstance, kImpl},
    {"VEX_DiskDriveATAProtocolEndpoint", kInstance, kImpl},
    {"VEX_DiskDrivePhysicalPackage", kInstance, kImpl},
    {"VEX_DiskDriveSASPort", kInstance, kImpl},
    {"VEX_DiskDriveSCSIProtocolEndpoint", kInstance, kImpl},
    {"VEX_EnclosureChassis", kInstance, kImpl},
    {"VEX_EnclosureFan", kInstance, kImpl},
    {"VEX_EnclosurePowerSupply", kInstance, kImpl},
    {"VEX_EnclosureSensor", kInstance, kImpl},
    {"VEX_EnclosureDiskDriveSlot", kInstance, kImpl},
    {"VEX_PerfModeProps", kInstance, kImpl},
    {"VEX_PrimordialStoragePool", kInstance, kImpl},
    {"VEX_PrimordialStoragePoolCapabilities", kInstance, kImpl},
    {"VEX_StorageConfigurationCapabilities", kInstance, kImpl},
    {"VEX_ConcreteStoragePoolCapabilities", kInstance, kImpl},
    {"VEX_StorageConfigurationService", kInstance, kImpl},
    {"VEX_VolumeStorageSetting", kInstance, kImpl},
    {"VEX_ConcreteFixedStorageSettings", kInstance, kImpl},
    {"VEX_CompletedJob", kInstance, kImpl},
    {"VEX_DiskDriveSoftwareIdentity", kInstance, kImpl},
    {"VEX_InitiatorSASPhy", kInstance, kImpl},
    {"VEX_SASInitiatorPort", kInstance, kImpl},
    {"VEX_InitiatorATAProtocolEndpoint", kInstance, kImpl},
    {"VEX_InitiatorSCSIProtocolEndpoint", kInstance, kImpl},
    // Classes with extrinsic methods (all but the spare configuration service are also cached).
    {"VEX_ControllerComputerSystem", kMethod, kBoth},
    {"VEX_PortController", kMethod, kImpl},
    {"VEX_AlarmDevice", kMethod, kImpl},
    {"VEX_Card", kMethod, kImpl},
    {"VEX_Product", kMethod, kImpl},
    {"VEX_SCSIProtocolController", kMethod, kImpl},
    {"VEX_SpareConfigurationService", kMethod, kImpl},
    {"VEX_Battery", kMethod, kImpl},
    // Cached instance classes.
    {"VEX_DiskDriveView", kCached, kImpl},
    {"VEX_StorageVolumeView", kCached, kImpl},
    {"VEX_ConcreteStoragePoolView", kCached, kImpl},
    {"VEX_PrimordialStorageExtent", kCached, kImpl},
    {"VEX_DATargetPort", kCached, kImpl},
    {"VEX_SESElement", kCached, kImpl},
    {"VEX_StorageVolume", kCached, kImpl},
    {"VEX_ConcreteStoragePool", kCached, kImpl},
    {"VEX_PrimordialFixedStorageSettings", kCached, kImpl},
    {"VEX_PrimordialGeneratedStorageSettings", kCached, kImpl},
    {"VEX_ConcreteGeneratedStorageSettings", kCached, kImpl},
    {"VEX_ConcreteJob", kCached, kImpl},
    {"VEX_SourceStoragePoolView", kCached, kImpl},
    {"VEX_EventIndication", kCached, kImpl},
};
// clang-format on

constexpr std::size_t kRowCount = sizeof kRows / sizeof kRows[0];

// The factory of a plug-in name, from whichever family makes it.
PluginFactory factoryFor(const char* name) {
    for (const PluginFactoryList* family : kFamilies) {
        for (std::size_t i = 0; i < family->count; ++i) {
            if (std::strcmp(family->entries[i].name, name) == 0) {
                return family->entries[i].factory;
            }
        }
    }
    return nullptr;
}

struct ResolvedTable {
    std::string names[kRowCount];
    PluginRegistration rows[kRowCount];
    ResolvedTable() {
        for (std::size_t i = 0; i < kRowCount; ++i) {
            names[i] = CommonFunctions::toLower(kRows[i].className);
            const char* name = names[i].c_str();
            rows[i] = {name, kRows[i].className, kRows[i].group, kRows[i].nameSpaces,
                       factoryFor(name)};
        }
    }
};

const ResolvedTable& resolved() {
    static const ResolvedTable table;
    return table;
}

}  // namespace

const PluginRegistration* pluginRegistrations() { return resolved().rows; }

std::size_t pluginRegistrationCount() { return kRowCount; }

}  // namespace vex::cim::fwf
