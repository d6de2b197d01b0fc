#include "CacheContent.h"

#include <vector>

namespace vex::cim::fwf::bench {

namespace {

CIMProperty text(const std::string& name, const std::string& value, bool key = false,
                 bool viewKey = false) {
    return CIMProperty(name, CIMValue<std::string>(value, false, false), key, CIM_STRING, viewKey);
}

template <typename T>
CIMProperty number(const std::string& name, T value, Primitive_DataType type) {
    return CIMProperty(name, CIMValue<T>(value, false, false), false, type, false);
}

CIMProperty codes(const std::string& name, std::vector<unsigned short> values) {
    return CIMProperty(name, CIMValue<unsigned short>(std::move(values), false, false), false,
                       CIM_UINT16_ARRAY, false);
}

// One view: its key, then a spread of strings, numbers and arrays.
void addView(CIMInstance& instance, const std::string& prefix, const std::string& id, int count) {
    instance.addProperty(text(prefix + "DeviceID", id, false, true));
    instance.addProperty(text(prefix + "ElementName", "Element " + id + " of " + prefix));
    instance.addProperty(codes(prefix + "OperationalStatus", {2, 32768}));
    for (int i = 3; i < count; ++i) {
        const std::string name = prefix + "Property" + std::to_string(i);
        switch (i % 4) {
        case 0: instance.addProperty(text(name, "value " + std::to_string(i))); break;
        case 1: instance.addProperty(number<unsigned short>(name, static_cast<unsigned short>(i), CIM_UINT16)); break;
        case 2: instance.addProperty(number<unsigned int>(name, static_cast<unsigned int>(i) * 1000u, CIM_UINT32)); break;
        default: instance.addProperty(number<unsigned long long>(name, 1ULL << 40, CIM_UINT64)); break;
        }
    }
}

void addKeys(CIMInstance& instance, const std::string& className, const std::string& id) {
    instance.addCimKeyBinding(text("CreationClassName", className, true));
    instance.addCimKeyBinding(text("DeviceID", id, true));
    instance.addCimKeyBinding(text("SystemCreationClassName", "VEX_ControllerComputerSystem", true));
    instance.addCimKeyBinding(text("SystemName", "controller-system-name", true));
}

}  // namespace

std::string driveId(int controller, int slot) {
    return std::to_string(controller) + "_" + std::to_string(slot);
}

CIMInstance makeDrive(int controller, int slot) {
    CIMInstance instance;
    const std::string id = driveId(controller, slot);
    addKeys(instance, "VEX_DiskDrive", id);
    for (const char* prefix : {"DD", "DV", "SP", "PE", "PP", "SI"}) {
        addView(instance, prefix, id, 13);  // 4 keys + 6 x 13 = 82 properties
    }
    return instance;
}

CIMInstance makeVolume(int controller, int index, const std::string& prefix) {
    CIMInstance instance;
    const std::string id = std::to_string(controller) + "_" + std::to_string(index);
    addKeys(instance, "VEX_StorageVolume", id);
    addView(instance, prefix, id, 28);
    addView(instance, prefix + "X", id, 28);  // 4 + 2 x 28 = 60 properties
    return instance;
}

ContentSize fillCache(int controllers) {
    VexCacheManager* served = VexCacheManager::getInstance(true);
    VexCacheManager::getInstance(false)->flushCache();
    served->flushCache();
    VexCacheManager::setSVexCacheRepoNewIsLatest(true);
    VexCacheManager::setSVexCacheRepoOldIsLatest(false);
    std::vector<CIMInstance> drives;
    std::vector<CIMInstance> volumes;
    std::vector<CIMInstance> pools;
    for (int c = 0; c < controllers; ++c) {
        for (int slot = 0; slot < kDrivesPerController; ++slot) {
            drives.push_back(makeDrive(c, slot));
        }
        for (int v = 0; v < kVolumesPerController; ++v) {
            volumes.push_back(makeVolume(c, v, "SV"));
            pools.push_back(makeVolume(c, v, "CP"));
        }
    }
    ContentSize size;
    for (const auto* list : {&drives, &volumes, &pools}) {
        size.instances += list->size();
        for (const CIMInstance& instance : *list) {
            size.properties += instance.getPropertyCount();
        }
    }
    served->swapObjectInstance(VEX_OBJ_PHYSICAL_DRIVE, drives);
    served->swapObjectInstance(VEX_OBJ_STORAGE_VOLUME, volumes);
    served->swapObjectInstance(VEX_OBJ_CONCRETE_POOL, pools);
    return size;
}

}  // namespace vex::cim::fwf::bench
