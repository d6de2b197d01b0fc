// The storage classes served straight from the object cache: volumes, pools,
// primordial extents, storage settings and the event indication channel.
// Each is its row of kCachedClasses (CachedClassTable.h); VEX_ConcreteJob,
// which adds behaviour of its own, has its own header.
#ifndef VEX_PROVIDERS_STORAGE_CACHEDSTORAGECLASSES_H
#define VEX_PROVIDERS_STORAGE_CACHEDSTORAGECLASSES_H

#include "providers/storage/CachedClassPlugin.h"

namespace vex::cim::fwf {

class VEX_StorageVolume final : public CachedClassPlugin<kStorageVolume> {};
class VEXStorageVolumeView final : public CachedClassPlugin<kStorageVolumeView> {};
class VEX_ConcreteStoragePool final : public CachedClassPlugin<kConcreteStoragePool> {};
class VEXConcreteStoragePoolView final : public CachedClassPlugin<kConcreteStoragePoolView> {};
class VEXSourceStoragePoolView final : public CachedClassPlugin<kSourceStoragePoolView> {};
class VEXPrimordialStorageExtent final : public CachedClassPlugin<kPrimordialStorageExtent> {};
class VEX_EventIndication final : public CachedClassPlugin<kEventIndication> {};
class VEX_PrimordialFixedStorageSettings final : public CachedClassPlugin<kPrimordialFixedStorageSettings> {};
class VEX_PrimordialGeneratedStorageSettings final : public CachedClassPlugin<kPrimordialGeneratedStorageSettings> {};
class VEX_ConcreteGeneratedStorageSettings final : public CachedClassPlugin<kConcreteGeneratedStorageSettings> {};

}  // namespace vex::cim::fwf

#endif
