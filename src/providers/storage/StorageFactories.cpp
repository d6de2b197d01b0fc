// The storage classes served straight from the object cache, and the job.
#include "providers/registry/PluginFamilies.h"
#include "providers/storage/CachedStorageClasses.h"
#include "providers/storage/VEX_ConcreteJob.h"

namespace vex::cim::fwf {

namespace {

// clang-format off
const PluginFactoryEntry kCachedStorage[] = {
    {"vex_storagevolumeview", &makePlugin<VEXStorageVolumeView>},
    {"vex_concretestoragepoolview", &makePlugin<VEXConcreteStoragePoolView>},
    {"vex_primordialstorageextent", &makePlugin<VEXPrimordialStorageExtent>},
    {"vex_storagevolume", &makePlugin<VEX_StorageVolume>},
    {"vex_concretestoragepool", &makePlugin<VEX_ConcreteStoragePool>},
    {"vex_primordialfixedstoragesettings", &makePlugin<VEX_PrimordialFixedStorageSettings>},
    {"vex_primordialgeneratedstoragesettings", &makePlugin<VEX_PrimordialGeneratedStorageSettings>},
    {"vex_concretegeneratedstoragesettings", &makePlugin<VEX_ConcreteGeneratedStorageSettings>},
    {"vex_concretejob", &makePlugin<VEX_ConcreteJob>},
    {"vex_sourcestoragepoolview", &makePlugin<VEXSourceStoragePoolView>},
    {"vex_eventindication", &makePlugin<VEX_EventIndication>},
};
// clang-format on

}  // namespace

const PluginFactoryList kCachedStorageFactories = factoryList(kCachedStorage);

}  // namespace vex::cim::fwf
