#include "controller/CimNames.h"
#include "controller/FsaifWrappers.h"
#include "controller/PropertySettings.h"
#include "controller/PropertyValues.h"
#include "controller/SettingGroups.h"
#include "controller/VexCacheManager.h"

namespace vex::cim::fwf {

namespace {

using fsamap::SettingGroup;
using fsamap::SettingValues;
using fsamap::kSettingAborted;
using fsamap::kSettingRefused;

struct LogicalDriveTarget {
    int controller;
    int logicalDrive;
};

using Group = SettingGroup<LogicalDriveTarget>;

unsigned int u32(unsigned long long value) { return static_cast<unsigned int>(value); }

unsigned int setCache(const LogicalDriveTarget& t, const SettingValues& v, storlib::Ret& ret) {
    const auto readMode = v.number("SPReadCacheMode");
    const auto writeMode = readMode ? v.number("SPWriteCacheMode") : std::nullopt;
    if (!writeMode) {
        return kSettingAborted;
    }
    return fsaifSetLDCache(t.controller, t.logicalDrive, u32(*readMode), u32(*writeMode), ret);
}

unsigned int setFastTier(const LogicalDriveTarget& t, const SettingValues& v, storlib::Ret& ret) {
    const CIMProperty* sent = v.changed("SPIsAFastTier3");
    if (sent != nullptr && !fsamap::flagOf(*sent)) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for isfasttier3");
        return kSettingRefused;
    }
    const auto preferred = v.number("SPPreferredFastTierSetting");
    const auto isFastTier3 = preferred ? v.flag("SPIsAFastTier3") : std::nullopt;
    if (!isFastTier3) {
        return kSettingAborted;
    }
    return fsaifSetFastTierPreferredCache(t.controller, t.logicalDrive, u32(*preferred), *isFastTier3, ret);
}

unsigned int setFastTierWriteCache(const LogicalDriveTarget& t, const SettingValues& v, storlib::Ret& ret) {
    if (v.changed("SPFastTierWriteCachePolicySetting") == nullptr) {
        TkzLogMsg(TKZ_LOG_WARN, "Preferred Write Back Policy not supplied");
    }
    const auto preferred = v.number("SPPreferredFastTierWriteCacheSetting");
    const auto policy = preferred ? v.number("SPFastTierWriteCachePolicySetting") : std::nullopt;
    if (!policy) {
        return kSettingAborted;
    }
    return fsaifSetPreferredFastTierWriteCache(t.controller, t.logicalDrive, u32(*preferred), u32(*policy), ret);
}

unsigned int setName(const LogicalDriveTarget& t, const SettingValues& v, storlib::Ret& ret) {
    const auto name = v.text("SPElementName");
    return name ? fsaifChangeLDName(t.controller, t.logicalDrive, *name, ret) : kSettingAborted;
}

unsigned int setPowerManagement(const LogicalDriveTarget& t, const SettingValues& v, storlib::Ret& ret) {
    const auto enabled = v.flag("SPPowerEnabled");
    return enabled ? fsaifSetPMEnabled(t.controller, t.logicalDrive, *enabled, ret) : kSettingAborted;
}

unsigned int setPowerTimers(const LogicalDriveTarget& t, const SettingValues& v, storlib::Ret& ret) {
    const auto off = v.number("SPPowerOfftimer");
    const auto reduce = off ? v.number("SPReduceRPMtimer") : std::nullopt;
    const auto verify = reduce ? v.number("SPVerifytimer") : std::nullopt;
    if (!verify) {
        return kSettingAborted;
    }
    return fsaifSetPMTimers(t.controller, t.logicalDrive, u32(*off), u32(*reduce), u32(*verify), ret);
}

const Group kLogicalDriveSettings[] = {
    {{"SPWriteCacheMode", "SPReadCacheMode"}, "fsaifSetLDCache", setCache},
    {{"SPPreferredFastTierSetting", "SPIsAFastTier3"}, "fsaifSetFastTierPreferredCache", setFastTier},
    {{"SPPreferredFastTierWriteCacheSetting", "SPFastTierWriteCachePolicySetting"},
     "fsaifSetPreferredFastTierWriteCache", setFastTierWriteCache},
    {{"SPElementName"}, "fsaifChangeLDName", setName},
    {{"SPPowerEnabled"}, "fsaifSetPMEnabled", setPowerManagement},
    {{"SPPowerOfftimer", "SPReduceRPMtimer", "SPVerifytimer"}, "fsaifSetPMTimers", setPowerTimers},
};

// The pool instance as cached (a concrete pool, or one routed to type 5).
std::vector<CIMInstance> storedPool(VexCacheManager& cache, const std::string& instanceId) {
    const std::vector<CIMProperty> key = {
        CIMProperty("SPInstanceID", CIMValue<std::string>(instanceId), true, CIM_STRING, true)};
    std::vector<CIMInstance> stored;
    for (_eVEXObjectType type : {VEX_OBJ_CONCRETE_POOL, VEX_OBJ_SSP_POOL}) {
        if (cache.getRepositoryObject(type, "", key, false, stored) == 0 && !stored.empty()) {
            break;
        }
    }
    return stored;
}

}  // namespace

unsigned int setLogicalDiskProperties(const std::vector<CIMProperty>& keys,
                                      const std::vector<CIMProperty>& changes) {
    const CIMProperty* key = fsamap::findProperty(keys, "SPInstanceID");
    const std::optional<std::string> instanceId = key != nullptr ? fsamap::textOf(*key) : std::nullopt;
    if (!instanceId) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to get Instance ID, Can not continue");
        return FSAIF_INVALID_OBJECT_REF;
    }
    LogicalDriveTarget target{0, 0};
    if (!fsamap::parseLogicalDriveId(*instanceId, target.controller, target.logicalDrive)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Storage Pool Instance Key not found");
        return FSAIF_INVALID_OBJECT_REF;
    }
    VexCacheManager* cache = VexCacheManager::getInstance(true);
    if (cache == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to retrieve cache handle");
        return FSAIF_CACHE_ACCESS_FAILED;
    }
    const std::vector<CIMInstance> stored = storedPool(*cache, *instanceId);
    const SettingValues values(changes, stored.empty() ? nullptr : &stored.front());
    return fsamap::applySettingGroups(kLogicalDriveSettings, target, values);
}

}  // namespace vex::cim::fwf
