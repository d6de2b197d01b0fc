// Controller settings and fast-tier settings, one table row per setting:
// name, number of values, allowed range, and how it is stored.
#include "sim/Events.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"

#include <algorithm>
#include <cstring>

namespace storlib::sim::ops {
namespace {

struct Setting {
    const char* name;
    size_t count;          // number of values
    uint32_t min, max;     // range of every value
    bool fastTier;         // needs a controller with fast tier
    void (*apply)(AdapterData&, const std::vector<uint32_t>&);
};

const Setting kSettings[] = {
    {"automaticFailover", 1, 0, 1, false, [](AdapterData& a, const auto& v) { a.automaticFailover = v[0]; }},
    {"copyBack", 1, 0, 1, false, [](AdapterData& a, const auto& v) { a.copyBackEnabled = v[0]; }},
    {"ncq", 1, 0, 1, false, [](AdapterData& a, const auto& v) { a.ncqEnabled = v[0]; }},
    {"performanceMode", 1, 0, 3, false,
     [](AdapterData& a, const auto& v) { a.performanceMode = static_cast<PerformanceMode>(v[0]); }},
    {"bgConsistencyCheck", 1, 0, 1, false, [](AdapterData& a, const auto& v) { a.bgConsistencyCheckEnabled = v[0]; }},
    {"bgConsistencyCheckPeriod", 1, 1, 365, false,
     [](AdapterData& a, const auto& v) { a.bgConsistencyCheckPeriodDays = v[0]; }},
    {"spinUpLimits", 2, 0, 32, false,
     [](AdapterData& a, const auto& v) { a.internalSpinUpLimit = v[0]; a.externalSpinUpLimit = v[1]; }},
    // main switch, start hour, stop hour, weekday bits
    {"stayAwake", 4, 0, 127, false,
     [](AdapterData& a, const auto& v) {
         a.stayAwakeMainEnabled = v[0];
         a.stayAwakeStartHour = v[1];
         a.stayAwakeStopHour = v[2];
         a.stayAwakeEnabledDays = v[3];
     }},
    {"write", 1, 0, 1, true, [](AdapterData& a, const auto& v) { a.fastTierWriteEnabled = v[0]; }},
    {"fetchRate", 1, 1, 10, true, [](AdapterData& a, const auto& v) { a.fastTierFetchRate = v[0]; }},
    {"dirtyPageThreshold", 1, 1, 100, true, [](AdapterData& a, const auto& v) { a.fastTierDirtyPageThreshold = v[0]; }},
    {"rwFactor", 2, 1, 16, true,
     [](AdapterData& a, const auto& v) { a.fastTierReadFactor = v[0]; a.fastTierWriteFactor = v[1]; }},
    {"writeDisableAll", 1, 0, 1, true, [](AdapterData& a, const auto& v) { a.fastTierWriteDisableAll = v[0]; }},
};

Ret checkValues(const Setting& s, const std::vector<uint32_t>& v) {
    if (v.size() != s.count)
        return refuse(RetStatus::InvalidArgument, std::string(s.name) + " takes " + std::to_string(s.count) + " values");
    bool stayAwake = std::strcmp(s.name, "stayAwake") == 0;
    for (size_t i = 0; i < v.size(); ++i) {
        uint32_t max = stayAwake && (i == 1 || i == 2) ? 23 : stayAwake && i == 0 ? 1 : s.max;
        if (v[i] < s.min || v[i] > max)
            return refuse(RetStatus::InvalidArgument, std::string(s.name) + ": value " + std::to_string(v[i]) +
                                                          " is outside " + std::to_string(s.min) + ".." + std::to_string(max));
    }
    return Ret::success();
}

Ret apply(Model& m, uint32_t adapter, const std::string& name, const std::vector<uint32_t>& values, bool fastTier) {
    const Setting* s = std::find_if(std::begin(kSettings), std::end(kSettings), [&](const Setting& x) {
        return name == x.name && x.fastTier == fastTier;
    });
    if (s == std::end(kSettings)) return refuse(RetStatus::InvalidArgument, "unknown setting " + name);
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    if (s->fastTier && !c->ad.supportsFastTier) return refuse(RetStatus::NotSupported, "the controller has no fast tier");
    if (Ret r = checkValues(*s, values); !r) return r;
    s->apply(c->ad, values);
    auto row = static_cast<uint32_t>(s - std::begin(kSettings));
    emit(m, *c, fastTier ? EventType::FastTier : EventType::ControllerSetting, EventTarget::none(),
         std::string(fastTier ? "fast tier " : "") + name + " changed", 0x10 + row, values.front());
    return Ret::success();
}

}  // namespace

Ret setSetting(Model& m, uint32_t adapter, const std::string& name, const std::vector<uint32_t>& values) {
    return apply(m, adapter, name, values, false);
}

Ret fastTierSetting(Model& m, uint32_t adapter, const std::string& name, const std::vector<uint32_t>& values) {
    return apply(m, adapter, name, values, true);
}

}  // namespace storlib::sim::ops
