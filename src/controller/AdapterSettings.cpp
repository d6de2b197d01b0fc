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

struct AdapterTarget {
    int controller;
};

using Group = SettingGroup<AdapterTarget>;

template <unsigned int (*Wrapper)(int, bool, storlib::Ret&)>
unsigned int setFlag(const char* name, const AdapterTarget& t, const SettingValues& v, storlib::Ret& ret) {
    const auto value = v.flag(name);
    return value ? Wrapper(t.controller, *value, ret) : kSettingAborted;
}

template <unsigned int (*Wrapper)(int, unsigned int, storlib::Ret&)>
unsigned int setNumber(const char* name, const AdapterTarget& t, const SettingValues& v, storlib::Ret& ret) {
    const auto value = v.number(name);
    return value ? Wrapper(t.controller, static_cast<unsigned int>(*value), ret) : kSettingAborted;
}

unsigned int setStayAwake(const AdapterTarget& t, const SettingValues& v, storlib::Ret& ret) {
    const auto enabled = v.flag("CSStayAwakeMainEnabled");
    const auto start = enabled ? v.number("CSStayAwakeStart") : std::nullopt;
    const auto stop = start ? v.number("CSStayAwakeStop") : std::nullopt;
    const auto days = stop ? v.number("CSStayAwakeEnabledDays") : std::nullopt;
    if (!days) {
        return kSettingAborted;
    }
    return fsaifSetPMStayAwakePeriod(t.controller, *enabled, static_cast<unsigned int>(*start),
                                     static_cast<unsigned int>(*stop), static_cast<unsigned int>(*days), ret);
}

unsigned int setSpinUp(const AdapterTarget& t, const SettingValues& v, storlib::Ret& ret) {
    const auto internalLimit = v.number("CSInternalSpinUpLimit");
    const auto externalLimit = internalLimit ? v.number("CSExtSpinUpLimit") : std::nullopt;
    if (!externalLimit) {
        return kSettingAborted;
    }
    return fsaifSetPMSpinUpLimits(t.controller, static_cast<unsigned int>(*internalLimit),
                                  static_cast<unsigned int>(*externalLimit), ret);
}

const Group kAdapterSettings[] = {
    {{"CSAutomaticFailOver"}, "fsaifSetAutomaticFailOver",
     [](const AdapterTarget& t, const SettingValues& v, storlib::Ret& r) {
         return setFlag<fsaifSetAutomaticFailOver>("CSAutomaticFailOver", t, v, r);
     }},
    {{"CSStayAwakeMainEnabled", "CSStayAwakeStart", "CSStayAwakeStop", "CSStayAwakeEnabledDays"},
     "fsaifSetPMStayAwakePeriod", setStayAwake},
    {{"CSCopyBack"}, "fsaifSetCopyBack",
     [](const AdapterTarget& t, const SettingValues& v, storlib::Ret& r) {
         return setFlag<fsaifSetCopyBack>("CSCopyBack", t, v, r);
     }},
    {{"CSPerfMode"}, "fsaifSetPerformanceMode",
     [](const AdapterTarget& t, const SettingValues& v, storlib::Ret& r) {
         return setNumber<fsaifSetPerformanceMode>("CSPerfMode", t, v, r);
     }},
    {{"CSNCQStatus"}, "fsaifSetSataNCQ",
     [](const AdapterTarget& t, const SettingValues& v, storlib::Ret& r) {
         return setFlag<fsaifSetSataNCQ>("CSNCQStatus", t, v, r);
     }},
    {{"CSBackgroundConsistencyCheck"}, "fsaifBgConsistencyCheck",
     [](const AdapterTarget& t, const SettingValues& v, storlib::Ret& r) {
         return setFlag<fsaifBgConsistencyCheck>("CSBackgroundConsistencyCheck", t, v, r);
     }},
    {{"CSBackgroundConsistencyCheckPeriod"}, "fsaifBgConsistencyCheckRate",
     [](const AdapterTarget& t, const SettingValues& v, storlib::Ret& r) {
         return setNumber<fsaifBgConsistencyCheckRate>("CSBackgroundConsistencyCheckPeriod", t, v, r);
     }},
    {{"CSInternalSpinUpLimit", "CSExtSpinUpLimit"}, "fsaifSetPMSpinUpLimits", setSpinUp},
    {{"CSGlobalPhysicalDevicesWriteCachePolicy"}, "fsaifSetGlobalPhysicalDevicesWriteCachePolicy",
     [](const AdapterTarget& t, const SettingValues& v, storlib::Ret& r) {
         return setNumber<fsaifSetGlobalPhysicalDevicesWriteCachePolicy>("CSGlobalPhysicalDevicesWriteCachePolicy",
                                                                          t, v, r);
     }},
    {{"CSGlobalMaxSASPhyLinkRate"}, "fsaifSetGlobalMaxSASPhyLinkRate",
     [](const AdapterTarget& t, const SettingValues& v, storlib::Ret& r) {
         return setNumber<fsaifSetGlobalMaxSASPhyLinkRate>("CSGlobalMaxSASPhyLinkRate", t, v, r);
     }},
};

// The controller's instance as cached, for values the client did not send.
std::vector<CIMInstance> storedController(VexCacheManager& cache, const std::string& systemName) {
    std::vector<CIMInstance> stored;
    const std::vector<CIMProperty> key = {
        CIMProperty("CSName", CIMValue<std::string>(systemName), true, CIM_STRING, true)};
    cache.getRepositoryObject(VEX_OBJ_CONTROLLER, "", key, false, stored);
    return stored;
}

}  // namespace

unsigned int setAdapterProperties(const std::vector<CIMProperty>& keys, const std::vector<CIMProperty>& changes) {
    const CIMProperty* name = fsamap::findProperty(keys, "CSName");
    const std::optional<std::string> systemName = name != nullptr ? fsamap::textOf(*name) : std::nullopt;
    AdapterTarget target{0};
    if (!systemName || !fsamap::parseControllerSystemName(*systemName, target.controller)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to get Controller Name, Can not continue");
        return FSAIF_INVALID_OBJECT_REF;
    }
    VexCacheManager* cache = VexCacheManager::getInstance(true);
    if (cache == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to retrieve cache handle");
        return FSAIF_CACHE_ACCESS_FAILED;
    }
    const std::vector<CIMInstance> stored = storedController(*cache, *systemName);
    const SettingValues values(changes, stored.empty() ? nullptr : &stored.front());
    return fsamap::applySettingGroups(kAdapterSettings, target, values);
}

}  // namespace vex::cim::fwf
