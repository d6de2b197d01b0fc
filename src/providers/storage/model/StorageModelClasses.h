// The storage model classes computed from the object cache: one line each
// over DerivedInstancePlugin (rows of StorageModelTable.h).
#ifndef VEX_PROVIDERS_STORAGE_MODEL_STORAGEMODELCLASSES_H
#define VEX_PROVIDERS_STORAGE_MODEL_STORAGEMODELCLASSES_H

#include "framework/DerivedInstancePlugin.h"
#include "providers/storage/model/ComputedModelClass.h"

namespace vex::cim::fwf::storage {

template <DerivedClassId Id>
using ModelClass = DerivedInstancePlugin<ComputedModelBase<Id>, kDerivedClasses, Id>;

// clang-format off
class VEX_PrimordialStoragePool final : public ModelClass<kPrimordialStoragePool> {};
class VEX_PrimordialStoragePoolView final : public ModelClass<kPrimordialStoragePoolView> {};
class VEX_ConcreteStorageExtent final : public ModelClass<kConcreteStorageExtent> {};
class VEX_RemainingStorageExtent final : public ModelClass<kRemainingStorageExtent> {};
class VEX_CompositeExtent final : public ModelClass<kCompositeExtent> {};
class VEX_PrimordialStoragePoolCapabilities final : public ModelClass<kPrimordialStoragePoolCapabilities> {};
class VEX_ConcreteStoragePoolCapabilities final : public ModelClass<kConcreteStoragePoolCapabilities> {};
class VEX_ConcreteFixedStorageSettings final : public ModelClass<kConcreteFixedStorageSettings> {};
class VEX_VolumeStorageSetting final : public ModelClass<kVolumeStorageSetting> {};
class VEX_DedicatedStorageRedundancySet final : public ModelClass<kDedicatedStorageRedundancySet> {};
class VEX_GlobalStorageRedundancySet final : public ModelClass<kGlobalStorageRedundancySet> {};
class VEX_FailOverStorageExtentsCollection final : public ModelClass<kFailOverStorageExtentsCollection> {};
// clang-format on

}  // namespace vex::cim::fwf::storage

#endif
