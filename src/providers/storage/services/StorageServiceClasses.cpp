#include "providers/storage/services/StorageServiceClasses.h"

#include <cstring>

#include "controller/CimNames.h"
#include "controller/VexFSAInterface.h"
#include "controller/routines/Routines.h"
#include "framework/PropertyBuilders.h"
#include "platform/Tkz.h"
#include "providers/storage/ControllerMethod.h"

namespace vex::cim::fwf {

namespace {

constexpr unsigned short kStatusOK = 2;  // OperationalStatus
constexpr unsigned short kEnabled = 2;   // EnabledState
constexpr unsigned int kNoInterface = 5;
constexpr unsigned int kThrew = 8;

// The SMI-S value lists of the storage configuration capabilities:
// asynchronous actions (pool creation, pool modification, element creation,
// element modification, replica modification, replica attachment),
// synchronous actions (pool deletion, element return), element types
// (storage volume, storage extent), pool features (InExtents, single
// InPool), element features (extent and volume creation and modification,
// single InPool), copy types (asynchronous) and the initial replication
// state (initialized).
const std::vector<unsigned short> kAsynchronousActions = {2, 4, 5, 7, 8, 9};
const std::vector<unsigned short> kSynchronousActions = {3, 6};
const std::vector<unsigned short> kElementTypes = {2, 3};
const std::vector<unsigned short> kPoolFeatures = {2, 3};
const std::vector<unsigned short> kElementFeatures = {2, 3, 4, 5, 6};
const std::vector<unsigned short> kCopyTypes = {2};
constexpr unsigned short kInitialReplicationState = 2;
// Spare types: 2 global, 3 dedicated.
const std::vector<unsigned short> kSpareTypes = {2, 3};

const char* const kStorageMethods[] = {"CreateOrModifyStoragePool", "DeleteStoragePool",
                                       "CreateOrModifyElementFromStoragePool", "ReturnToStoragePool",
                                       "CreateOrModifyElementFromElements"};
const char* const kSpareMethods[] = {"AssignSpares", "UnassignSpares", "CheckParityConsistency", "RepairParity"};

template <std::size_t N>
bool oneOf(const std::string& name, const char* const (&names)[N]) {
    for (const char* candidate : names) {
        if (name == candidate) {
            return true;
        }
    }
    return false;
}

void serviceKeys(const CachedController& c, const char* className, const char* namePrefix, CIMInstance& instance) {
    instance.addCimKeyBinding(stringProperty("SystemCreationClassName", fsamap::kControllerSystemClass, true));
    instance.addCimKeyBinding(stringProperty("SystemName", c.systemName, true));
    instance.addCimKeyBinding(stringProperty("CreationClassName", className, true));
    instance.addCimKeyBinding(stringProperty("Name", namePrefix + std::to_string(c.number), true));
    instance.addProperty(stringProperty("ElementName", namePrefix + std::to_string(c.number)));
    instance.addProperty(uint16ArrayProperty("OperationalStatus", {kStatusOK}));
    instance.addProperty(uint16Property("EnabledState", kEnabled));
}

// RebuildStorageExtent is no routine of the table: it runs under the same
// locks as execute.
unsigned int rebuild(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out) {
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    if (fsa == nullptr) {
        return kNoInterface;
    }
    fsa->lockEventMutex();
    TkzMutexLock(VexFSAInterface::getStorlibGuard());
    unsigned int result = kThrew;
    try {
        result = FsaifExRebuildStorageExtent(path, in, out);
    } catch (...) {
        result = kThrew;
    }
    TkzMutexUnlock(VexFSAInterface::getStorlibGuard());
    fsa->unlockEventMutex();
    return result;
}

}  // namespace

void VEX_StorageConfigurationService::fill(const CachedController& c, CIMInstance& instance) {
    serviceKeys(c, kClassName, "StorageConfigurationService_", instance);
}

unsigned int VEX_StorageConfigurationService::invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                                                           const CIMMethodParam& in, CIMMethodParam& out) {
    TkzLogMsg(TKZ_LOG_DEBUG, "Entering VEX_StorageConfigurationService::invokeMethod");
    if (!oneOf(methodName, kStorageMethods)) {
        TkzLogMsg(TKZ_LOG_DEBUG, "Exiting VEX_StorageConfigurationService::invokeMethod");
        return 0;
    }
    return invokeControllerRoutine(path, methodName, in, out);
}

void VEX_StorageConfigurationCapabilities::fill(const CachedController& c, CIMInstance& instance) {
    const std::string id = "StorageConfigurationCapabilities_" + std::to_string(c.number);
    instance.addCimKeyBinding(stringProperty("InstanceID", id, true));
    instance.addProperty(stringProperty("ElementName", id));
    instance.addProperty(uint16ArrayProperty("SupportedAsynchronousActions", kAsynchronousActions));
    instance.addProperty(uint16ArrayProperty("SupportedSynchronousActions", kSynchronousActions));
    instance.addProperty(uint16ArrayProperty("SupportedStorageElementTypes", kElementTypes));
    instance.addProperty(uint16ArrayProperty("SupportedStoragePoolFeatures", kPoolFeatures));
    instance.addProperty(uint16ArrayProperty("SupportedStorageElementFeatures", kElementFeatures));
    instance.addProperty(uint16ArrayProperty("SupportedCopyTypes", kCopyTypes));
    instance.addProperty(uint16Property("InitialReplicationState", kInitialReplicationState));
}

void VEX_SpareConfigurationService::fill(const CachedController& c, CIMInstance& instance) {
    serviceKeys(c, kClassName, "SpareConfigurationService_", instance);
}

unsigned int VEX_SpareConfigurationService::invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                                                         const CIMMethodParam& in, CIMMethodParam& out) {
    if (oneOf(methodName, kSpareMethods)) {
        return invokeControllerRoutine(path, methodName, in, out);
    }
    if (methodName == "RebuildStorageExtent") {
        const unsigned int result = rebuild(path, in, out);
        if (result != 0) {
            TkzLogMsg(TKZ_LOG_ERROR, "%s :: Method %s failed on %s.", "invokeMethod", methodName.c_str(),
                      path.getClassName().c_str());
        }
        return result;
    }
    TkzLogMsg(TKZ_LOG_ERROR, "%s :: Method %s not supported on %s.", "invokeMethod", methodName.c_str(),
              path.getClassName().c_str());
    return CIM_METHOD_NOT_SUPPORTED;
}

void VEX_SpareConfigurationCapabilities::fill(const CachedController& c, CIMInstance& instance) {
    const std::string id = "SpareConfigurationCapabilities_" + std::to_string(c.number);
    instance.addCimKeyBinding(stringProperty("InstanceID", id, true));
    instance.addProperty(stringProperty("ElementName", id));
    instance.addProperty(uint16ArrayProperty("SupportedSpareTypes", kSpareTypes));
}

}  // namespace vex::cim::fwf
