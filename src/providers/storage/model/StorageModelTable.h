// The storage model classes computed from the object cache, as one table.
// Each row is one CIM class and the function that builds all its instances
// from the cache records (StorageLayout.h); the plug-in classes are one line
// each over the template of framework/DerivedInstancePlugin.h.
#ifndef VEX_PROVIDERS_STORAGE_MODEL_STORAGEMODELTABLE_H
#define VEX_PROVIDERS_STORAGE_MODEL_STORAGEMODELTABLE_H

#include <cstddef>
#include <vector>

#include "providers/storage/model/ModelInstances.h"
#include "providers/storage/model/StorageLayout.h"

namespace vex::cim::fwf::storage {

using BuildFn = void (*)(CacheRecords& records, ModelSink& sink);

struct DerivedClassRow {
    const char* className;
    BuildFn build;
    bool hasMethods;  // extrinsic methods, run as controller routines
};

// Pools and their capabilities (PoolModel.cpp).
void buildPrimordialPools(CacheRecords& records, ModelSink& sink);
void buildPrimordialPoolViews(CacheRecords& records, ModelSink& sink);
void buildPrimordialCapabilities(CacheRecords& records, ModelSink& sink);
void buildConcreteCapabilities(CacheRecords& records, ModelSink& sink);
// Extents (ExtentModel.cpp).
void buildConcreteExtents(CacheRecords& records, ModelSink& sink);
void buildRemainingExtents(CacheRecords& records, ModelSink& sink);
void buildCompositeExtents(CacheRecords& records, ModelSink& sink);
// Spares (SpareModel.cpp).
void buildDedicatedSets(CacheRecords& records, ModelSink& sink);
void buildGlobalSets(CacheRecords& records, ModelSink& sink);
void buildFailOverCollections(CacheRecords& records, ModelSink& sink);
// Settings (SettingModel.cpp).
void buildConcreteFixedSettings(CacheRecords& records, ModelSink& sink);
void buildVolumeSettings(CacheRecords& records, ModelSink& sink);

enum DerivedClassId : std::size_t {
    kPrimordialStoragePool,
    kPrimordialStoragePoolView,
    kConcreteStorageExtent,
    kRemainingStorageExtent,
    kCompositeExtent,
    kPrimordialStoragePoolCapabilities,
    kConcreteStoragePoolCapabilities,
    kConcreteFixedStorageSettings,
    kVolumeStorageSetting,
    kDedicatedStorageRedundancySet,
    kGlobalStorageRedundancySet,
    kFailOverStorageExtentsCollection,
    kDerivedClassCount
};

// clang-format off
inline constexpr DerivedClassRow kDerivedClasses[kDerivedClassCount] = {
    {"VEX_PrimordialStoragePool",             &buildPrimordialPools,        false},
    {"VEX_PrimordialStoragePoolView",         &buildPrimordialPoolViews,    false},
    {"VEX_ConcreteStorageExtent",             &buildConcreteExtents,        false},
    {"VEX_RemainingStorageExtent",            &buildRemainingExtents,       false},
    {"VEX_CompositeExtent",                   &buildCompositeExtents,       false},
    {"VEX_PrimordialStoragePoolCapabilities", &buildPrimordialCapabilities, true},
    {"VEX_ConcreteStoragePoolCapabilities",   &buildConcreteCapabilities,   true},
    {"VEX_ConcreteFixedStorageSettings",      &buildConcreteFixedSettings,  false},
    {"VEX_VolumeStorageSetting",              &buildVolumeSettings,         false},
    {"VEX_DedicatedStorageRedundancySet",     &buildDedicatedSets,          false},
    {"VEX_GlobalStorageRedundancySet",        &buildGlobalSets,             false},
    {"VEX_FailOverStorageExtentsCollection",  &buildFailOverCollections,    false},
};
// clang-format on

// Identifier suffixes of the computed InstanceIDs ("<owner>_<suffix>").
inline constexpr const char* kCapabilitiesSuffix = "Capabilities";
inline constexpr const char* kDedicatedSparesSuffix = "DedicatedSpares";
inline constexpr const char* kGlobalSparesSuffix = "GlobalSpares";
inline constexpr const char* kFailOverSuffix = "FailOver";

}  // namespace vex::cim::fwf::storage

#endif
