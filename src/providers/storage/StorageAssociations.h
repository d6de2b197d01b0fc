// The storage associations as one table: each row names its class, its two
// end classes and roles, the join key of each end (properties, or a key
// function of StorageAssociationKeys.cpp) and, where the association carries
// properties of its own, the link function that adds them.
#ifndef VEX_PROVIDERS_STORAGE_STORAGEASSOCIATIONS_H
#define VEX_PROVIDERS_STORAGE_STORAGEASSOCIATIONS_H

#include <cstddef>
#include <string>
#include <vector>

#include "framework/AssociationRow.h"

namespace vex::cim::fwf::storage {

// Computed join keys.
void poolSystemKey(const CIMInstance& pool, std::vector<std::string>& keys);          // InstanceID "c_ld"
void poolViewSystemKey(const CIMInstance& view, std::vector<std::string>& keys);      // SPInstanceID
void capabilitiesOwnerKey(const CIMInstance& caps, std::vector<std::string>& keys);   // "<owner>_Capabilities"
void dedicatedSetPoolKey(const CIMInstance& set, std::vector<std::string>& keys);
void dedicatedSetSystemKey(const CIMInstance& set, std::vector<std::string>& keys);
void globalSetSystemKey(const CIMInstance& set, std::vector<std::string>& keys);
void failOverSystemKey(const CIMInstance& collection, std::vector<std::string>& keys);
void dedicatedSpareKeys(const CIMInstance& extent, std::vector<std::string>& keys);   // pools it serves
void globalSpareKey(const CIMInstance& extent, std::vector<std::string>& keys);
void anySpareKey(const CIMInstance& extent, std::vector<std::string>& keys);
void protectedChunkKey(const CIMInstance& extent, std::vector<std::string>& keys);    // of a redundant pool
void countedExtentKey(const CIMInstance& extent, std::vector<std::string>& keys);     // in the primordial pool
void countedDriveViewKey(const CIMInstance& view, std::vector<std::string>& keys);
void settingSystemKey(const CIMInstance& setting, std::vector<std::string>& keys);
void portPhyKeys(const CIMInstance& port, std::vector<std::string>& keys);
void phyKey(const CIMInstance& phy, std::vector<std::string>& keys);
void fastTierKey(const CIMInstance& view, std::vector<std::string>& keys);
void fastTieredKey(const CIMInstance& view, std::vector<std::string>& keys);

// Properties of the association instances.
bool spareLink(const CIMInstance& extent, const CIMInstance& set, std::vector<CIMProperty>& extra);
bool basedOnLink(const CIMInstance& drive, const CIMInstance& extent, std::vector<CIMProperty>& extra);
bool volumeBasedOnLink(const CIMInstance& composite, const CIMInstance& volume, std::vector<CIMProperty>& extra);
bool unitLink(const CIMInstance& controller, const CIMInstance& volume, std::vector<CIMProperty>& extra);
bool primordialAllocationLink(const CIMInstance& primordial, const CIMInstance& pool,
                              std::vector<CIMProperty>& extra);
bool primordialViewAllocationLink(const CIMInstance& primordial, const CIMInstance& pool,
                                  std::vector<CIMProperty>& extra);
bool volumeAllocationLink(const CIMInstance& pool, const CIMInstance& volume, std::vector<CIMProperty>& extra);
bool volumeViewAllocationLink(const CIMInstance& pool, const CIMInstance& volume, std::vector<CIMProperty>& extra);
bool defaultSettingLink(const CIMInstance& caps, const CIMInstance& setting, std::vector<CIMProperty>& extra);
bool otherSettingLink(const CIMInstance& caps, const CIMInstance& setting, std::vector<CIMProperty>& extra);
bool currentSettingLink(const CIMInstance& volume, const CIMInstance& setting, std::vector<CIMProperty>& extra);

enum StorageAssociationId : std::size_t {
    kCompositeExtentSystemDevice,
    kConcreteComponent,
    kConcretePoolConcreteDependency,
    kDedicatedHostedCollection,
    kDedicatedIsSpare,
    kDedicatedMemberOfCollection,
    kFailOverHostedCollection,
    kFailOverMemberOfCollection,
    kGlobalIsSpare,
    kGlobalMemberOfCollection,
    kGlobalStorageRedundancyCollection,
    kHostedStoragePoolView,
    kParentToChildPoolViewView,
    kPrimordialToConcreteBasedOn,
    kPrimordialToRemainingBasedOn,
    kSASInitiatorPhyConcreteComponent,
    kSCSIProtocolControllerForUnit,
    kStorageVolumeConcreteDependency,
    kVolumeToCompositeExtentBasedOn,
    kVolumeViewSystemDeviceView,
    kVolumeViewSystemDeviceViewView,
    kAssociatedComponentExtent,
    kAssociatedRemainingExtent,
    kConcreteComponentView,
    kConcretePoolAllocatedFromPrimordialPool,
    kConcretePoolElementCapabilities,
    kConcretePoolToVolumeAllocatedFromStoragePoolViewView,
    kConcreteSettingsAssociatedToCapabilities,
    kConcreteSettingsGeneratedFromCapabilities,
    kConcreteStoragePoolFastTierdBy,
    kControllerVolumeSystemDevice,
    kHostedConcreteStoragePool,
    kHostedPrimordialStoragePool,
    kMediaPresent,
    kPrimordialAssociatedComponentExtent,
    kPrimordialPoolElementCapabilities,
    kPrimordialPoolToConcretePoolAllocatedFromStoragePoolViewView,
    kPrimordialSettingsAssociatedToCapabilities,
    kPrimordialSettingsGeneratedFromCapabilities,
    kStorageVolumeAllocatedFromConcretePool,
    kVolumeElementSettingData,
    kStorageAssociationCount
};

namespace rows {

constexpr const char* kController = "VEX_ControllerComputerSystem";
constexpr const char* kPool = "VEX_ConcreteStoragePool";
constexpr const char* kPoolView = "VEX_ConcreteStoragePoolView";
constexpr const char* kPrimordial = "VEX_PrimordialStoragePool";
constexpr const char* kPrimordialView = "VEX_PrimordialStoragePoolView";
constexpr const char* kChunk = "VEX_ConcreteStorageExtent";
constexpr const char* kFree = "VEX_RemainingStorageExtent";
constexpr const char* kComposite = "VEX_CompositeExtent";
constexpr const char* kDriveExtent = "VEX_PrimordialStorageExtent";
constexpr const char* kVolume = "VEX_StorageVolume";
constexpr const char* kVolumeView = "VEX_StorageVolumeView";
constexpr const char* kConcreteCaps = "VEX_ConcreteStoragePoolCapabilities";
constexpr const char* kPrimordialCaps = "VEX_PrimordialStoragePoolCapabilities";
constexpr const char* kDedicatedSet = "VEX_DedicatedStorageRedundancySet";
constexpr const char* kGlobalSet = "VEX_GlobalStorageRedundancySet";
constexpr const char* kFailOver = "VEX_FailOverStorageExtentsCollection";
constexpr const char* kGroup = "GroupComponent";
constexpr const char* kPart = "PartComponent";
constexpr const char* kAnt = "Antecedent";
constexpr const char* kDep = "Dependent";
constexpr const char* kCollection = "Collection";
constexpr const char* kMember = "Member";
constexpr const char* kElement = "ManagedElement";
constexpr const char* kCaps = "Capabilities";

constexpr EndKey by(const char* properties) { return EndKey{properties, nullptr}; }
constexpr EndKey fn(JoinKeysFn compute) { return EndKey{nullptr, compute}; }
constexpr EndKey kAny{};

// clang-format off
inline constexpr AssociationRow kTable[kStorageAssociationCount] = {
    {"VEX_CompositeExtentSystemDevice", kController, kComposite, kGroup, kPart, by("Name"), by("SystemName")},
    {"VEX_ConcreteComponent", kPool, kComposite, kGroup, kPart, by("InstanceID"), by("DeviceID")},
    {"VEX_ConcretePoolConcreteDependency", kChunk, kPool, kAnt, kDep, by("PoolInstanceID"), by("InstanceID")},
    {"VEX_DedicatedHostedCollection", kController, kDedicatedSet, kAnt, kDep, by("Name"), fn(dedicatedSetSystemKey)},
    {"VEX_DedicatedIsSpare", kChunk, kDedicatedSet, kAnt, kDep, fn(dedicatedSpareKeys), fn(dedicatedSetPoolKey), spareLink},
    {"VEX_DedicatedMemberOfCollection", kDedicatedSet, kChunk, kCollection, kMember, fn(dedicatedSetPoolKey), by("PoolInstanceID")},
    {"VEX_FailOverHostedCollection", kController, kFailOver, kAnt, kDep, by("Name"), fn(failOverSystemKey)},
    {"VEX_FailOverMemberOfCollection", kFailOver, kChunk, kCollection, kMember, fn(failOverSystemKey), fn(anySpareKey)},
    {"VEX_GlobalIsSpare", kChunk, kGlobalSet, kAnt, kDep, fn(globalSpareKey), fn(globalSetSystemKey), spareLink},
    {"VEX_GlobalMemberOfCollection", kGlobalSet, kChunk, kCollection, kMember, fn(globalSetSystemKey), fn(protectedChunkKey)},
    {"VEX_GlobalStorageRedundancyCollection", kController, kGlobalSet, kAnt, kDep, by("Name"), fn(globalSetSystemKey)},
    {"VEX_HostedStoragePoolView", kController, kPoolView, kGroup, kPart, by("Name"), fn(poolViewSystemKey)},
    {"VEX_ParentToChildPoolViewView", "VEX_SourceStoragePoolView", kPoolView, kAnt, kDep, by("SPInstanceID"), by("SPFSAVolMorphPartner")},
    {"VEX_PrimordialToConcreteBasedOn", kDriveExtent, kChunk, kAnt, kDep, by("DeviceID"), by("DriveDeviceID"), basedOnLink},
    {"VEX_PrimordialToRemainingBasedOn", kDriveExtent, kFree, kAnt, kDep, by("DeviceID"), by("DriveDeviceID"), basedOnLink},
    {"VEX_SASInitiatorPhyConcreteComponent", "VEX_SASInitiatorPort", "VEX_InitiatorSASPhy", kGroup, kPart, fn(portPhyKeys), fn(phyKey)},
    {"VEX_SCSIProtocolControllerForUnit", "VEX_SCSIProtocolController", kVolume, kAnt, kDep, by("SystemName"), by("SystemName"), unitLink},
    {"VEX_StorageVolumeConcreteDependency", kChunk, kVolume, kAnt, kDep, by("PoolInstanceID"), by("DeviceID")},
    {"VEX_VolumeToCompositeExtentBasedOn", kComposite, kVolume, kAnt, kDep, by("SystemName,DeviceID"), by("SystemName,DeviceID"), volumeBasedOnLink},
    {"VEX_VolumeViewSystemDeviceView", kController, kVolumeView, kGroup, kPart, by("Name"), by("SVSystemName")},
    {"VEX_VolumeViewSystemDeviceViewView", "VEX_ControllerView", kVolumeView, kGroup, kPart, by("CSName"), by("SVSystemName")},
    {"VEX_AssociatedComponentExtent", kPool, kChunk, kGroup, kPart, by("InstanceID"), by("PoolInstanceID")},
    {"VEX_AssociatedRemainingExtent", kPrimordial, kFree, kGroup, kPart, by("InstanceID"), by("SystemName")},
    {"VEX_ConcreteComponentView", kPrimordialView, "VEX_DiskDriveView", kGroup, kPart, by("SPInstanceID"), fn(countedDriveViewKey)},
    {"VEX_ConcretePoolAllocatedFromPrimordialPool", kPrimordial, kPool, kAnt, kDep, by("InstanceID"), fn(poolSystemKey), primordialAllocationLink},
    {"VEX_ConcretePoolElementCapabilities", kPool, kConcreteCaps, kElement, kCaps, by("InstanceID"), fn(capabilitiesOwnerKey)},
    {"VEX_ConcretePoolToVolumeAllocatedFromStoragePoolViewView", kPoolView, kVolumeView, kAnt, kDep, by("SPInstanceID"), by("SPInstanceID"), volumeViewAllocationLink},
    {"VEX_ConcreteSettingsAssociatedToCapabilities", kConcreteCaps, "VEX_ConcreteFixedStorageSettings", kAnt, kDep, fn(capabilitiesOwnerKey), by("PoolInstanceID"), defaultSettingLink},
    {"VEX_ConcreteSettingsGeneratedFromCapabilities", kConcreteCaps, "VEX_ConcreteGeneratedStorageSettings", kAnt, kDep, fn(capabilitiesOwnerKey), by("PoolInstanceID")},
    {"VEX_ConcreteStoragePoolFastTierdBy", kPoolView, kPoolView, "FastTierdBy", "FastTierd", fn(fastTierKey), fn(fastTieredKey)},
    {"VEX_ControllerVolumeSystemDevice", kController, kVolume, kGroup, kPart, by("Name"), by("SystemName")},
    {"VEX_HostedConcreteStoragePool", kController, kPool, kGroup, kPart, by("Name"), fn(poolSystemKey)},
    {"VEX_HostedPrimordialStoragePool", kController, kPrimordial, kGroup, kPart, by("Name"), by("InstanceID")},
    {"VEX_MediaPresent", "VEX_DiskDrive", kDriveExtent, kAnt, kDep, by("SystemName,DeviceID"), by("SystemName,DeviceID")},
    {"VEX_PrimordialAssociatedComponentExtent", kPrimordial, kDriveExtent, kGroup, kPart, by("InstanceID"), fn(countedExtentKey)},
    {"VEX_PrimordialPoolElementCapabilities", kPrimordial, kPrimordialCaps, kElement, kCaps, by("InstanceID"), fn(capabilitiesOwnerKey)},
    {"VEX_PrimordialPoolToConcretePoolAllocatedFromStoragePoolViewView", kPrimordialView, kPoolView, kAnt, kDep, by("SPInstanceID"), fn(poolViewSystemKey), primordialViewAllocationLink},
    {"VEX_PrimordialSettingsAssociatedToCapabilities", kPrimordialCaps, "VEX_PrimordialFixedStorageSettings", kAnt, kDep, fn(capabilitiesOwnerKey), fn(settingSystemKey), otherSettingLink},
    {"VEX_PrimordialSettingsGeneratedFromCapabilities", kPrimordialCaps, "VEX_PrimordialGeneratedStorageSettings", kAnt, kDep, fn(capabilitiesOwnerKey), fn(settingSystemKey)},
    {"VEX_StorageVolumeAllocatedFromConcretePool", kPool, kVolume, kAnt, kDep, by("InstanceID"), by("DeviceID"), volumeAllocationLink},
    {"VEX_VolumeElementSettingData", kVolume, "VEX_VolumeStorageSetting", kElement, "SettingData", by("DeviceID"), by("VolumeDeviceID"), currentSettingLink},
};
// clang-format on

}  // namespace rows

inline constexpr const AssociationRow* kStorageRows = rows::kTable;

}  // namespace vex::cim::fwf::storage

#endif
