// The storage and spare configuration services, their capabilities and
// their associations.
#include "providers/registry/PluginFamilies.h"
#include "providers/storage/ServiceAssociations.h"
#include "providers/storage/services/StorageServiceClasses.h"

namespace vex::cim::fwf {

namespace {

// clang-format off
const PluginFactoryEntry kServices[] = {
    {"vex_storageconfigurationservice", &makePlugin<VEX_StorageConfigurationService>},
    {"vex_storageconfigurationcapabilities", &makePlugin<VEX_StorageConfigurationCapabilities>},
    {"vex_spareconfigurationservice", &makePlugin<VEX_SpareConfigurationService>},
    {"vex_spareconfigurationcapabilities", &makePlugin<VEX_SpareConfigurationCapabilities>},
    {"vex_storageconfigurationservicehostedservice", &makePlugin<VEX_StorageConfigurationServiceHostedService>},
    {"vex_storageconfigurationserviceelementcapabilities", &makePlugin<VEX_StorageConfigurationServiceElementCapabilities>},
    {"vex_hostedspareconfigurationservice", &makePlugin<VEXHostedSpareConfigurationService>},
    {"vex_spareconfcapelementcapabilities", &makePlugin<VEXSpareConfCapElementCapabilities>},
};
// clang-format on

}  // namespace

const PluginFactoryList kServiceFactories = factoryList(kServices);

}  // namespace vex::cim::fwf
