// Controller-wide operations: rescan, statistics, logs, alarm, modes, link rate.
#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"

#include <storlib/Names.h>

#include <algorithm>
#include <sstream>

namespace storlib::sim::ops {
namespace {

std::string xmlEscape(const std::string& s) {
    std::string out;
    for (char ch : s) {
        switch (ch) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        case '\'': out += "&apos;"; break;
        default: out += ch;
        }
    }
    return out;
}

std::string csvField(const std::string& s) {
    std::string out = "\"";
    for (char ch : s) out += ch == '"' ? std::string("\"\"") : std::string(1, ch);
    return out + "\"";
}

void eventLog(const ControllerRec& c, std::string& xml, std::string& csv) {
    std::ostringstream x, v;
    x << "<ControllerLog type=\"event\">";
    v << "sequence,time,type,detail1,detail2,detail3,description\n";
    for (const StorEventData& e : c.events) {
        if (e.sequence <= c.logStartSequence) continue;
        x << "<Event sequence=\"" << e.sequence << "\" time=\"" << e.time << "\" type=\"" << e.type
          << "\" description=\"" << xmlEscape(e.description) << "\"/>";
        v << e.sequence << "," << e.time << "," << e.type << "," << e.detail1 << "," << e.detail2 << ","
          << e.detail3 << "," << csvField(e.description) << "\n";
    }
    x << "</ControllerLog>";
    xml = x.str();
    csv = v.str();
}

void deviceLog(const ControllerRec& c, std::string& xml, std::string& csv) {
    std::ostringstream x, v;
    x << "<ControllerLog type=\"device\">";
    v << "channel,device,mediumErrors,hardwareErrors,parityErrors,linkFailures,abortedCommands\n";
    for (const DriveRec& d : c.drives) {
        x << "<Drive channel=\"" << d.channel << "\" device=\"" << d.device << "\" mediumErrors=\""
          << d.hd.mediumErrors << "\" hardwareErrors=\"" << d.hd.hardwareErrors << "\"/>";
        v << d.channel << "," << d.device << "," << d.hd.mediumErrors << "," << d.hd.hardwareErrors << ","
          << d.hd.parityErrors << "," << d.hd.linkFailures << "," << d.hd.abortedCommands << "\n";
    }
    x << "</ControllerLog>";
    xml = x.str();
    csv = v.str();
}

void statisticsLog(const ControllerRec& c, double now, std::string& xml, std::string& csv) {
    double since = c.ad.statisticsEnabled ? std::max(0.0, now - static_cast<double>(c.ad.statisticsResetTime)) : 0;
    std::ostringstream x, v;
    x << "<ControllerLog type=\"statistics\" enabled=\"" << (c.ad.statisticsEnabled ? "true" : "false")
      << "\" seconds=\"" << static_cast<uint64_t>(since) << "\"/>";
    v << "enabled,seconds\n" << (c.ad.statisticsEnabled ? 1 : 0) << "," << static_cast<uint64_t>(since) << "\n";
    xml = x.str();
    csv = v.str();
}

}  // namespace

Ret rescan(Model& m, uint32_t adapter) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    // Missing drives that no logical drive refers to any more are forgotten.
    auto gone = [&](const DriveRec& d) {
        return d.hd.state == DriveState::Missing && ldsUsingDrive(*c, d).empty();
    };
    size_t before = c->drives.size();
    c->drives.erase(std::remove_if(c->drives.begin(), c->drives.end(), gone), c->drives.end());
    auto forgotten = static_cast<uint32_t>(before - c->drives.size());
    emit(m, *c, EventType::Info, EventTarget::none(),
         "Rescan complete: " + std::to_string(c->drives.size()) + " drives", 1, forgotten);
    if (forgotten) emit(m, *c, EventType::ConfigChange, EventTarget::none(), "missing drives removed", 0, 0, 4);
    reconcile(m, *c);
    return Ret::success();
}

Ret setStatistics(Model& m, uint32_t adapter, bool enable) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    if (enable && !c->ad.statisticsEnabled) c->ad.statisticsResetTime = static_cast<int64_t>(m.now);
    c->ad.statisticsEnabled = enable;
    emit(m, *c, EventType::Statistics, EventTarget::none(),
         enable ? "statistics collection enabled" : "statistics collection disabled", enable ? 1 : 0);
    return Ret::success();
}

Ret resetStatistics(Model& m, uint32_t adapter) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    c->ad.statisticsResetTime = static_cast<int64_t>(m.now);
    for (DriveRec& d : c->drives)
        d.hd.mediumErrors = d.hd.hardwareErrors = d.hd.parityErrors = d.hd.linkFailures = d.hd.abortedCommands = 0;
    emit(m, *c, EventType::Statistics, EventTarget::none(), "statistics counters reset", 2);
    return Ret::success();
}

Ret controllerLog(Model& m, uint32_t adapter, LogType type, std::string& xml, std::string& csv) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    switch (type) {
    case LogType::Event: eventLog(*c, xml, csv); break;
    case LogType::Device: deviceLog(*c, xml, csv); break;
    case LogType::Statistics: statisticsLog(*c, m.now, xml, csv); break;
    default: return refuse(RetStatus::InvalidArgument, "unknown log type");
    }
    return Ret::success();
}

Ret clearLog(Model& m, uint32_t adapter, LogType type) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    if (type == LogType::Event) c->logStartSequence = c->nextSequence - 1;
    else if (type == LogType::Device) return resetStatistics(m, adapter);
    else if (type != LogType::Statistics) return refuse(RetStatus::InvalidArgument, "unknown log type");
    emit(m, *c, EventType::LogCleared, EventTarget::none(), std::string(toString(type)) + " log cleared",
         static_cast<uint32_t>(type));
    return Ret::success();
}

Ret setAlarm(Model& m, uint32_t adapter, AlarmState state) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    if (!c->ad.alarmPresent) return refuse(RetStatus::NotSupported, "the controller has no alarm");
    c->ad.alarmState = state;
    emit(m, *c, EventType::Alarm, EventTarget::none(), std::string("alarm ") + toString(state),
         static_cast<uint32_t>(state), c->ad.alarmSounding);
    reconcile(m, *c);
    return Ret::success();
}

Ret setFunctionalMode(Model& m, uint32_t adapter, FunctionalMode mode) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    if (mode == FunctionalMode::HBA && !c->logicalDrives.empty())
        return refuse(RetStatus::InvalidState, "delete every logical drive before switching to HBA mode");
    c->ad.functionalMode = mode;
    emit(m, *c, EventType::ControllerSetting, EventTarget::none(), std::string("functional mode ") + toString(mode),
         2, static_cast<uint32_t>(mode));
    emit(m, *c, EventType::ConfigChange, EventTarget::none(), "functional mode changed", 0, 0, 4);
    return Ret::success();
}

Ret setLinkRate(Model& m, uint32_t adapter, LinkRate rate) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    if (rate != LinkRate::Rate1_5G && rate != LinkRate::Rate3G && rate != LinkRate::Rate6G && rate != LinkRate::Rate12G)
        return refuse(RetStatus::InvalidArgument, "the link rate must be 1.5, 3, 6 or 12 Gbit/s");
    c->ad.globalMaxSASPhyLinkRate = rate;
    for (SASPhyData& p : c->phys) {
        p.programmedMaxLinkRate = std::min(rate, p.hardwareMaxLinkRate);
        if (p.negotiatedLinkRate > p.programmedMaxLinkRate) p.negotiatedLinkRate = p.programmedMaxLinkRate;
    }
    for (DriveRec& d : c->drives)
        if (d.dev.negotiatedLinkRate > rate) d.dev.negotiatedLinkRate = rate;
    emit(m, *c, EventType::PhyLink, EventTarget::none(), std::string("maximum SAS link rate ") + toString(rate),
         static_cast<uint32_t>(rate));
    return Ret::success();
}

Ret setDriveCachePolicy(Model& m, uint32_t adapter, DriveWriteCachePolicy policy) {
    ControllerRec* c = nullptr;
    if (Ret r = resolveController(m, adapter, c); !r) return r;
    c->ad.globalDriveWriteCachePolicy = policy;
    c->ad.sasWriteCachePolicy = policy;
    c->ad.sataWriteCachePolicy = policy;
    if (policy != DriveWriteCachePolicy::DriveDefault)
        for (DriveRec& d : c->drives) d.hd.writeCacheEnabled = policy == DriveWriteCachePolicy::Enabled;
    emit(m, *c, EventType::ControllerSetting, EventTarget::none(),
         std::string("drive write cache policy ") + toString(policy), 3, static_cast<uint32_t>(policy));
    return Ret::success();
}

}  // namespace storlib::sim::ops
