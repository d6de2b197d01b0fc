// Settings of a logical drive: cache, name, power management, fast tier.
#include "sim/Events.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"

#include <storlib/Names.h>

namespace storlib::sim::ops {
namespace {

// Applies one setting: resolves the logical drive, lets `change` check and
// apply, and reports it as a property event with detail `what`.
template <class F> Ret changeLd(Model& m, const Addr& a, uint32_t what, uint32_t eventType, F&& change) {
    ControllerRec* c = nullptr;
    LdRec* ld = nullptr;
    if (Ret r = resolveLd(m, a, c, ld); !r) return r;
    std::string text;
    if (Ret r = change(*c, *ld, text); !r) return r;
    emit(m, *c, eventType, EventTarget::ld(*ld), ldName(*ld) + ": " + text, what);
    return Ret::success();
}

Ret needFastTier(const ControllerRec& c) {
    return c.ad.supportsFastTier ? Ret::success() : refuse(RetStatus::NotSupported, "the controller has no fast tier");
}

}  // namespace

Ret setLdCache(Model& m, const Addr& a, ReadCacheMode r, WriteCacheMode w) {
    return changeLd(m, a, 2, EventType::LogicalDriveCache, [&](ControllerRec&, LdRec& ld, std::string& text) {
        ld.ld.readCache = r;
        ld.ld.writeCache = w;
        text = std::string("read cache ") + toString(r) + ", write cache " + toString(w);
        return Ret::success();
    });
}

Ret setLdName(Model& m, const Addr& a, const std::string& name) {
    if (name.empty() || name.size() > 64) return refuse(RetStatus::InvalidArgument, "a name has 1 to 64 characters");
    for (char ch : name)
        if (static_cast<unsigned char>(ch) < 0x20 || ch == 0x7f)
            return refuse(RetStatus::InvalidArgument, "the name contains control characters");
    Ret r = changeLd(m, a, 1, EventType::LogicalDriveProperty, [&](ControllerRec&, LdRec& ld, std::string& text) {
        text = "renamed to " + name;
        ld.ld.name = name;
        return Ret::success();
    });
    if (r) {
        ControllerRec* c = findController(m, a.getAdapterID());
        emit(m, *c, EventType::ConfigChange, {Addr::ANY, Addr::ANY, a.getLogicalDriveID(), Addr::ANY64},
             "logical drive " + std::to_string(a.getLogicalDriveID()) + " renamed", 0, 0, 5);
    }
    return r;
}

Ret setLdFastTier(Model& m, const Addr& a, uint32_t preferred, bool isFastTier3) {
    return changeLd(m, a, 4, EventType::LogicalDriveProperty, [&](ControllerRec& c, LdRec& ld, std::string& text) {
        if (Ret r = needFastTier(c); !r) return r;
        if (preferred > 2) return refuse(RetStatus::InvalidArgument, "fast tier setting must be 0, 1 or 2");
        ld.ld.fastTierPreferred = preferred;
        ld.ld.fastTierSetting = preferred;
        ld.ld.isFastTier3 = isFastTier3;
        text = "fast tier setting " + std::to_string(preferred);
        return Ret::success();
    });
}

Ret setLdFastTierWriteCache(Model& m, const Addr& a, uint32_t preferred, uint32_t policy) {
    return changeLd(m, a, 4, EventType::LogicalDriveProperty, [&](ControllerRec& c, LdRec& ld, std::string& text) {
        if (Ret r = needFastTier(c); !r) return r;
        if (preferred > 2 || policy > 2) return refuse(RetStatus::InvalidArgument, "values must be 0, 1 or 2");
        ld.ld.fastTierWriteCachePreferred = preferred;
        ld.ld.fastTierWriteCacheSetting = preferred;
        ld.ld.fastTierWriteCachePolicy = policy;
        text = "fast tier write cache " + std::to_string(preferred) + ", policy " + std::to_string(policy);
        return Ret::success();
    });
}

Ret setLdPower(Model& m, const Addr& a, bool enabled) {
    return changeLd(m, a, 3, EventType::LogicalDriveProperty, [&](ControllerRec&, LdRec& ld, std::string& text) {
        ld.ld.powerManagementEnabled = enabled;
        text = enabled ? "power management enabled" : "power management disabled";
        return Ret::success();
    });
}

Ret setLdPowerTimers(Model& m, const Addr& a, uint32_t off, uint32_t rpm, uint32_t verify) {
    return changeLd(m, a, 3, EventType::LogicalDriveProperty, [&](ControllerRec&, LdRec& ld, std::string& text) {
        if (off && rpm && rpm > off)
            return refuse(RetStatus::InvalidArgument, "the slow-down timer must not exceed the power-off timer");
        ld.ld.powerOffTimerMin = off;
        ld.ld.reduceRpmTimerMin = rpm;
        ld.ld.verifyTimerHours = verify;
        text = "power timers set";
        return Ret::success();
    });
}

Ret setLdFastTierBgCheck(Model& m, const Addr& a, bool enable) {
    return changeLd(m, a, 4, EventType::LogicalDriveProperty, [&](ControllerRec& c, LdRec& ld, std::string& text) {
        if (Ret r = needFastTier(c); !r) return r;
        ld.ld.fastTierBgCheck = enable;
        text = enable ? "fast tier background check enabled" : "fast tier background check disabled";
        return Ret::success();
    });
}

}  // namespace storlib::sim::ops
