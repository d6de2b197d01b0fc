// The settings of existing storage: the fixed setting of each concrete pool
// and the setting of each volume, both from the storage setting the cache
// keeps for each logical drive (type 15). Settings of logical drives that no
// longer exist are left out.
#include <set>

#include "framework/PropertyBuilders.h"
#include "providers/storage/model/StorageModelTable.h"

namespace vex::cim::fwf::storage {

namespace {

std::set<std::string> identifiersIn(CacheRecords& records, _eVEXObjectType type, const char* name) {
    std::set<std::string> ids;
    for (const CIMInstance& record : records.of(type)) {
        ids.insert(stringValueOf(record, name));
    }
    return ids;
}

void settingsOf(CacheRecords& records, const std::set<std::string>& existing, const char* owner,
                const char* idPrefix, ModelSink& sink) {
    for (const CIMInstance& setting : records.of(VEX_OBJ_VOLUME_SETTING)) {
        const std::string id = stringValueOf(setting, owner);
        if (existing.count(id) == 0) {
            continue;
        }
        CIMInstance& out = sink.add();
        keyProperty(out, "InstanceID", idPrefix + id);
        copyAllBut(setting, "InstanceID", out);
    }
}

}  // namespace

void buildConcreteFixedSettings(CacheRecords& records, ModelSink& sink) {
    settingsOf(records, identifiersIn(records, VEX_OBJ_CONCRETE_POOL, "SPInstanceID"), "PoolInstanceID",
               "ConcreteFixedSetting_", sink);
}

void buildVolumeSettings(CacheRecords& records, ModelSink& sink) {
    settingsOf(records, identifiersIn(records, VEX_OBJ_STORAGE_VOLUME, "SVDeviceID"), "VolumeDeviceID",
               "VolumeStorageSetting_", sink);
}

}  // namespace vex::cim::fwf::storage
