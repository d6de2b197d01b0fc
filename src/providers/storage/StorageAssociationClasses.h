// The storage association plug-ins: one line each over the rows of
// StorageAssociations.h. The volume-to-pool allocation checks the volume it
// is followed from before the join.
#ifndef VEX_PROVIDERS_STORAGE_STORAGEASSOCIATIONCLASSES_H
#define VEX_PROVIDERS_STORAGE_STORAGEASSOCIATIONCLASSES_H

#include <string>
#include <vector>

#include "framework/TableAssociation.h"
#include "providers/storage/StorageAssociations.h"

namespace vex::cim::fwf::storage {

template <StorageAssociationId Id>
using StorageRow = RowAssociation<kStorageRows, Id>;

// clang-format off
class VEXCompositeExtentSystemDevice final : public StorageRow<kCompositeExtentSystemDevice> {};
class VEXConcreteComponent final : public StorageRow<kConcreteComponent> {};
class VEXConcretePoolConcreteDependency final : public StorageRow<kConcretePoolConcreteDependency> {};
class VEXDedicatedHostedCollection final : public StorageRow<kDedicatedHostedCollection> {};
class VEXDedicatedIsSpare final : public StorageRow<kDedicatedIsSpare> {};
class VEXDedicatedMemberOfCollection final : public StorageRow<kDedicatedMemberOfCollection> {};
class VEXFailOverHostedCollection final : public StorageRow<kFailOverHostedCollection> {};
class VEXFailOverMemberOfCollection final : public StorageRow<kFailOverMemberOfCollection> {};
class VEXGlobalIsSpare final : public StorageRow<kGlobalIsSpare> {};
class VEXGlobalMemberOfCollection final : public StorageRow<kGlobalMemberOfCollection> {};
class VEXGlobalStorageRedundancyCollection final : public StorageRow<kGlobalStorageRedundancyCollection> {};
class VEXHostedStoragePoolView final : public StorageRow<kHostedStoragePoolView> {};
class VEXParentToChildPoolViewView final : public StorageRow<kParentToChildPoolViewView> {};
class VEXPrimordialToConcreteBasedOn final : public StorageRow<kPrimordialToConcreteBasedOn> {};
class VEXPrimordialToRemainingBasedOn final : public StorageRow<kPrimordialToRemainingBasedOn> {};
class VEXSASInitiatorPhyConcreteComponent final : public StorageRow<kSASInitiatorPhyConcreteComponent> {};
class VEXSCSIProtocolControllerForUnit final : public StorageRow<kSCSIProtocolControllerForUnit> {};
class VEXStorageVolumeConcreteDependency final : public StorageRow<kStorageVolumeConcreteDependency> {};
class VEXVolumeToCompositeExtentBasedOn final : public StorageRow<kVolumeToCompositeExtentBasedOn> {};
class VEXVolumeViewSystemDeviceView final : public StorageRow<kVolumeViewSystemDeviceView> {};
class VEXVolumeViewSystemDeviceViewView final : public StorageRow<kVolumeViewSystemDeviceViewView> {};
class VEX_AssociatedComponentExtent final : public StorageRow<kAssociatedComponentExtent> {};
class VEX_AssociatedRemainingExtent final : public StorageRow<kAssociatedRemainingExtent> {};
class VEX_ConcreteComponentView final : public StorageRow<kConcreteComponentView> {};
class VEX_ConcretePoolAllocatedFromPrimordialPool final : public StorageRow<kConcretePoolAllocatedFromPrimordialPool> {};
class VEX_ConcretePoolElementCapabilities final : public StorageRow<kConcretePoolElementCapabilities> {};
class VEX_ConcretePoolToVolumeAllocatedFromStoragePoolViewView final : public StorageRow<kConcretePoolToVolumeAllocatedFromStoragePoolViewView> {};
class VEX_ConcreteSettingsAssociatedToCapabilities final : public StorageRow<kConcreteSettingsAssociatedToCapabilities> {};
class VEX_ConcreteSettingsGeneratedFromCapabilities final : public StorageRow<kConcreteSettingsGeneratedFromCapabilities> {};
class VEX_ConcreteStoragePoolFastTierdBy final : public StorageRow<kConcreteStoragePoolFastTierdBy> {};
class VEX_ControllerVolumeSystemDevice final : public StorageRow<kControllerVolumeSystemDevice> {};
class VEX_HostedConcreteStoragePool final : public StorageRow<kHostedConcreteStoragePool> {};
class VEX_HostedPrimordialStoragePool final : public StorageRow<kHostedPrimordialStoragePool> {};
class VEX_MediaPresent final : public StorageRow<kMediaPresent> {};
class VEX_PrimordialAssociatedComponentExtent final : public StorageRow<kPrimordialAssociatedComponentExtent> {};
class VEX_PrimordialPoolElementCapabilities final : public StorageRow<kPrimordialPoolElementCapabilities> {};
class VEX_PrimordialPoolToConcretePoolAllocatedFromStoragePoolViewView final : public StorageRow<kPrimordialPoolToConcretePoolAllocatedFromStoragePoolViewView> {};
class VEX_PrimordialSettingsAssociatedToCapabilities final : public StorageRow<kPrimordialSettingsAssociatedToCapabilities> {};
class VEX_PrimordialSettingsGeneratedFromCapabilities final : public StorageRow<kPrimordialSettingsGeneratedFromCapabilities> {};
class VEX_VolumeElementSettingData final : public StorageRow<kVolumeElementSettingData> {};
// clang-format on

// Followed from a volume, the volume's keys must all be there ("Dependent
// ObjectPath Corrupted") and the volume must exist (code 1, "Mehtod call
// failed").
class VEX_StorageVolumeAllocatedFromConcretePool final : public StorageRow<kStorageVolumeAllocatedFromConcretePool> {
public:
    void associators(CIMObjectPath& source, std::string& assocClass, std::vector<CIMInstance>& out,
                     std::string& resultClass, std::string& role, std::string& resultRole,
                     const char** propertyList) override;
};

}  // namespace vex::cim::fwf::storage

#endif
