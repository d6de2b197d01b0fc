// The storage configuration service and the spare configuration service of
// each controller, and their capabilities.
#ifndef VEX_PROVIDERS_STORAGE_SERVICES_STORAGESERVICECLASSES_H
#define VEX_PROVIDERS_STORAGE_SERVICES_STORAGESERVICECLASSES_H

#include "framework/AbstractMethodProviderPlugin.h"
#include "providers/storage/services/PerControllerPlugin.h"

namespace vex::cim::fwf {

// Keys: Name "StorageConfigurationService_<n>", SystemName, CreationClassName,
// SystemCreationClassName. Methods: the five SMI-S pool and element methods,
// by exact name, through the routine table; any other name is answered 0.
class VEX_StorageConfigurationService final : public PerControllerPlugin, public AbstractMethodProviderPlugin {
public:
    static constexpr const char* kClassName = "VEX_StorageConfigurationService";
    VEX_StorageConfigurationService() : PerControllerPlugin(kClassName) {}
    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName, const CIMMethodParam& in,
                              CIMMethodParam& out) override;

protected:
    void fill(const CachedController& controller, CIMInstance& instance) override;
};

// Key: InstanceID "StorageConfigurationCapabilities_<n>".
class VEX_StorageConfigurationCapabilities final : public PerControllerPlugin {
public:
    static constexpr const char* kClassName = "VEX_StorageConfigurationCapabilities";
    VEX_StorageConfigurationCapabilities() : PerControllerPlugin(kClassName) {}

protected:
    void fill(const CachedController& controller, CIMInstance& instance) override;
};

// Keys as the storage configuration service, Name "SpareConfigurationService_<n>".
// Methods: AssignSpares, UnassignSpares, CheckParityConsistency, RepairParity
// through the routine table, RebuildStorageExtent under the same locks; any
// other name is not supported (7).
class VEX_SpareConfigurationService final : public PerControllerPlugin, public AbstractMethodProviderPlugin {
public:
    static constexpr const char* kClassName = "VEX_SpareConfigurationService";
    VEX_SpareConfigurationService() : PerControllerPlugin(kClassName) {}
    unsigned int invokeMethod(const CIMObjectPath& path, const std::string& methodName, const CIMMethodParam& in,
                              CIMMethodParam& out) override;

protected:
    void fill(const CachedController& controller, CIMInstance& instance) override;
};

// Key: InstanceID "SpareConfigurationCapabilities_<n>"; also carries the
// controller's "Name", by which it is linked to the controller system.
class VEX_SpareConfigurationCapabilities final : public PerControllerPlugin {
public:
    static constexpr const char* kClassName = "VEX_SpareConfigurationCapabilities";
    VEX_SpareConfigurationCapabilities() : PerControllerPlugin(kClassName) {}

protected:
    void fill(const CachedController& controller, CIMInstance& instance) override;
};

}  // namespace vex::cim::fwf

#endif
