#include "providers/storage/StorageAssociationClasses.h"

#include "framework/CIMException.h"
#include "framework/CommonFunctions.h"
#include "framework/FrameworkFacade.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf::storage {

namespace {

// CIM_ERR_INVALID_PARAMETER.
constexpr unsigned int kInvalidParameter = 4;

constexpr const char* kVolumeKeys[] = {"CreationClassName", "DeviceID", "SystemCreationClassName",
                                       "SystemName"};

bool hasVolumeKeys(const CIMObjectPath& volume) {
    const std::vector<CIMProperty> keys = volume.getKeyBindings();
    for (const char* name : kVolumeKeys) {
        bool found = false;
        for (const CIMProperty& key : keys) {
            found = found || CommonFunctions::equalsIgnoreCase(key.getName(), name);
        }
        if (!found) {
            return false;
        }
    }
    return true;
}

bool volumeExists(const CIMObjectPath& volume) {
    FrameworkFacade* facade = FrameworkFacade::getInstance();
    std::vector<CIMInstance> found;
    try {
        CIMObjectPath request = volume;
        if (facade != nullptr) {
            facade->getCIMInstance(request, found);
        }
    } catch (const CIMException&) {
        return false;
    }
    return !found.empty();
}

}  // namespace

void VEX_StorageVolumeAllocatedFromConcretePool::associators(CIMObjectPath& source, std::string& assocClass,
                                                             std::vector<CIMInstance>& out,
                                                             std::string& resultClass, std::string& role,
                                                             std::string& resultRole, const char** propertyList) {
    TkzTrace("Entering VEX_StorageVolumeAllocatedFromConcretePool::formAssocInstancesAndObjPaths");
    if (CommonFunctions::equalsIgnoreCase(source.getClassName(), row().second)) {
        if (!hasVolumeKeys(source)) {
            throw CIMException(kInvalidParameter, "Dependent ObjectPath Corrupted");
        }
        if (!volumeExists(source)) {
            throw CIMException(CIM_ERR_FAILED, "Mehtod call failed");
        }
    }
    StorageRow<kStorageVolumeAllocatedFromConcretePool>::associators(source, assocClass, out, resultClass, role,
                                                                     resultRole, propertyList);
    TkzTrace("Exiting VEX_StorageVolumeAllocatedFromConcretePool::formAssocInstancesAndObjPaths");
}

}  // namespace vex::cim::fwf::storage
