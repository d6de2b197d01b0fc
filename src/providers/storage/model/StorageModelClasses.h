// The storage model classes computed from the object cache: one line each
// over DerivedInstancePlugin (rows of StorageModelTable.h).
#ifndef VEX_PROVIDERS_STORAGE_MODEL_STORAGEMODELCLASSES_H
#define VEX_PROVIDERS_STORAGE_MODEL_STORAGEMODELCLASSES_H

#include "providers/storage/model/DerivedInstancePlugin.h"

namespace vex::cim::fwf::storage {

// clang-format off
class VEX_PrimordialStoragePool final : public DerivedInstancePlugin<kPrimordialStoragePool> {};
class VEX_PrimordialStoragePoolView final : public DerivedInstancePlugin<kPrimordialStoragePoolView> {};
class VEX_ConcreteStorageExtent final : public DerivedInstancePlugin<kConcreteStorageExtent> {};
class VEX_RemainingStorageExtent final : public DerivedInstancePlugin<kRemainingStorageExtent> {};
class VEX_CompositeExtent final : public DerivedInstancePlugin<kCompositeExtent> {};
class VEX_PrimordialStoragePoolCapabilities final : public DerivedInstancePlugin<kPrimordialStoragePoolCapabilities> {};
class VEX_ConcreteStoragePoolCapabilities final : public DerivedInstancePlugin<kConcreteStoragePoolCapabilities> {};
class VEX_ConcreteFixedStorageSettings final : public DerivedInstancePlugin<kConcreteFixedStorageSettings> {};
class VEX_VolumeStorageSetting final : public DerivedInstancePlugin<kVolumeStorageSetting> {};
class VEX_DedicatedStorageRedundancySet final : public DerivedInstancePlugin<kDedicatedStorageRedundancySet> {};
class VEX_GlobalStorageRedundancySet final : public DerivedInstancePlugin<kGlobalStorageRedundancySet> {};
class VEX_FailOverStorageExtentsCollection final : public DerivedInstancePlugin<kFailOverStorageExtentsCollection> {};
// clang-format on

}  // namespace vex::cim::fwf::storage

#endif
