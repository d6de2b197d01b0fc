// The associations of the storage and spare configuration services: each
// links a controller system to its service or capabilities, or a service to
// its capabilities, by the controller they belong to.
#ifndef VEX_PROVIDERS_STORAGE_SERVICEASSOCIATIONS_H
#define VEX_PROVIDERS_STORAGE_SERVICEASSOCIATIONS_H

#include <cstddef>
#include <string>
#include <vector>

#include "framework/AssociationRow.h"
#include "framework/CIMInstance.h"
#include "framework/TableAssociation.h"

namespace vex::cim::fwf {

// The controller number an instance belongs to, as its one join key: from
// "SystemName" (services), else the trailing number of "InstanceID"
// (capabilities), else "Name" (the controller system itself).
void controllerOfInstance(const CIMInstance& instance, std::vector<std::string>& keys);

enum ServiceRow : std::size_t {
    kStorageServiceHostedService,
    kStorageServiceElementCapabilities,
    kHostedSpareService,
    kSpareCapabilities,
};

inline constexpr EndKey kByController{nullptr, controllerOfInstance};

// clang-format off
inline constexpr AssociationRow kServiceRows[] = {
    {"VEX_StorageConfigurationServiceHostedService", "VEX_ControllerComputerSystem",
     "VEX_StorageConfigurationService", "Antecedent", "Dependent", {"Name", nullptr}, {"SystemName", nullptr}, nullptr},
    {"VEX_StorageConfigurationServiceElementCapabilities", "VEX_StorageConfigurationService",
     "VEX_StorageConfigurationCapabilities", "ManagedElement", "Capabilities", kByController, kByController, nullptr},
    {"VEX_HostedSpareConfigurationService", "VEX_ControllerComputerSystem",
     "VEX_SpareConfigurationService", "Antecedent", "Dependent", {"Name", nullptr}, {"SystemName", nullptr}, nullptr},
    {"VEX_SpareConfCapElementCapabilities", "VEX_ControllerComputerSystem",
     "VEX_SpareConfigurationCapabilities", "ManagedElement", "Capabilities", kByController, kByController, nullptr},
};
// clang-format on

class VEX_StorageConfigurationServiceHostedService final
    : public RowAssociation<kServiceRows, kStorageServiceHostedService> {};
class VEX_StorageConfigurationServiceElementCapabilities final
    : public RowAssociation<kServiceRows, kStorageServiceElementCapabilities> {};
class VEXHostedSpareConfigurationService final : public RowAssociation<kServiceRows, kHostedSpareService> {};
class VEXSpareConfCapElementCapabilities final : public RowAssociation<kServiceRows, kSpareCapabilities> {};

}  // namespace vex::cim::fwf

#endif
