#include "Health.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <set>
#include <stdexcept>

#include "RaidSources.h"

namespace vexraid {

namespace {

struct LevelRow {
    Kind kind;
    const char* condition;
    Level level;
    const char* text;  // what follows the object's name
};

// What each condition of each kind of object means for the verdict. A
// condition without a row is healthy. Temperatures are judged against the
// thresholds of the options (rows "temperature_warning" and
// "temperature_critical"); "no_spare" is a redundant volume that no spare
// would rebuild.
const LevelRow kLevels[] = {
    {Kind::Controller, "failed", Level::Critical, "failed"},
    {Kind::Controller, "temperature_critical", Level::Critical, "temperature"},
    {Kind::Controller, "temperature_warning", Level::Warning, "temperature"},
    {Kind::Volume, "failed", Level::Critical, "failed"},
    {Kind::Volume, "degraded", Level::Critical, "degraded"},
    {Kind::Volume, "rebuilding", Level::Warning, "degraded"},
    {Kind::Volume, "no_spare", Level::Warning, "has no spare"},
    {Kind::Drive, "failed", Level::Critical, "failed"},
    {Kind::Drive, "offline", Level::Critical, "offline"},
    {Kind::Drive, "missing", Level::Critical, "missing"},
    {Kind::Drive, "predictive_failure", Level::Warning, "predictive failure"},
    {Kind::Drive, "rebuilding", Level::Warning, "rebuilding"},
    {Kind::Battery, "failed", Level::Critical, "failed"},
    {Kind::Battery, "unknown", Level::Warning, "status unknown"},
    {Kind::Battery, "low", Level::Warning, "low"},
    {Kind::Battery, "charging", Level::Warning, "charging"},
    {Kind::Battery, "learning", Level::Warning, "learning"},
    {Kind::Battery, "temperature_critical", Level::Critical, "temperature"},
    {Kind::Battery, "temperature_warning", Level::Warning, "temperature"},
    {Kind::Enclosure, "lost", Level::Critical, "not responding"},
    {Kind::Fan, "critical", Level::Critical, "failed"},
    {Kind::Fan, "unrecoverable", Level::Critical, "failed"},
    {Kind::Fan, "noncritical", Level::Warning, "degraded"},
    {Kind::Fan, "not_installed", Level::Warning, "not installed"},
    {Kind::PowerSupply, "critical", Level::Critical, "failed"},
    {Kind::PowerSupply, "unrecoverable", Level::Critical, "failed"},
    {Kind::PowerSupply, "noncritical", Level::Warning, "degraded"},
    {Kind::PowerSupply, "not_installed", Level::Warning, "not installed"},
    {Kind::Sensor, "critical", Level::Critical, "over its critical threshold"},
    {Kind::Sensor, "unrecoverable", Level::Critical, "failed"},
    {Kind::Sensor, "noncritical", Level::Warning, "over its warning threshold"},
    {Kind::Element, "critical", Level::Critical, "failed"},
    {Kind::Element, "unrecoverable", Level::Critical, "failed"},
    {Kind::Element, "noncritical", Level::Warning, "degraded"},
};

const Kind kAllKinds[] = {Kind::Controller, Kind::Volume,      Kind::Drive,  Kind::Battery, Kind::Enclosure,
                          Kind::Fan,        Kind::PowerSupply, Kind::Sensor, Kind::Element};

const LevelRow* rowOf(Kind kind, const std::string& condition) {
    for (const LevelRow& row : kLevels) {
        if (row.kind == kind && condition == row.condition) return &row;
    }
    return nullptr;
}

std::string lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// "power supply", "power_supply", "power-supply" and the class name.
bool ignored(const RaidObject& o, const std::vector<std::string>& words) {
    std::string kind = kindWord(o.kind);
    for (const std::string& w : words) {
        std::string word = lower(w);
        std::replace(word.begin(), word.end(), '_', ' ');
        std::replace(word.begin(), word.end(), '-', ' ');
        if (word == kind || (kind == "power supply" && word == "psu") || lower(w) == lower(o.sourceClass)) return true;
    }
    return false;
}

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.15g", value);
    return text;
}

std::string percent(double ratio) { return number(std::round(ratio * 1000.0) / 10.0) + "%"; }

// The conditions of an object beyond its state: temperatures against the
// thresholds, a redundant volume without a spare.
std::vector<std::string> conditionsOf(const RaidObject& o, const RaidState& state, const HealthOptions& options) {
    std::vector<std::string> conditions{o.state};
    if (o.temperatureCelsius) {
        if (*o.temperatureCelsius >= options.critTemp) conditions.push_back("temperature_critical");
        else if (*o.temperatureCelsius >= options.warnTemp) conditions.push_back("temperature_warning");
    }
    if (o.kind == Kind::Volume && o.redundant && !o.spareProtected && o.state == "ok") {
        // A controller given spares is expected to keep every redundant
        // volume covered; one never given any is left alone unless asked.
        const bool controllerHasSpares = std::any_of(state.objects.begin(), state.objects.end(), [&](const RaidObject& x) {
            return x.controller == o.controller && (x.spare || (x.kind == Kind::Volume && x.spareProtected));
        });
        if (options.requireSpare || controllerHasSpares) conditions.push_back("no_spare");
    }
    return conditions;
}

std::string problemText(const RaidObject& o, const std::string& condition, const LevelRow& row) {
    std::string text = o.kind == Kind::Fan || o.kind == Kind::PowerSupply || o.kind == Kind::Sensor || o.kind == Kind::Element
                           ? o.name
                           : std::string(kindWord(o.kind)) + " " + o.name;
    text += std::string(" ") + row.text;
    if (condition.compare(0, 12, "temperature_") == 0 && o.temperatureCelsius) text += " " + number(*o.temperatureCelsius) + " C";
    if (o.kind == Kind::Volume && condition == "rebuilding") {
        text += " (rebuilding" + (o.rebuildRatio ? " " + percent(*o.rebuildRatio) : std::string()) + ")";
    }
    return text;
}

std::string perfLabel(const std::string& label) {
    if (label.find_first_of(" ='") == std::string::npos) return label;
    std::string quoted = "'";
    for (char c : label) quoted += c == '\'' ? std::string("''") : std::string(1, c);
    return quoted + "'";
}

std::string perfdataOf(const RaidState& state, const HealthOptions& options) {
    std::vector<std::string> items;
    for (Kind kind : {Kind::Drive, Kind::Volume}) {
        for (const std::string& s : kindStates(kind)) {
            const auto n = std::count_if(state.objects.begin(), state.objects.end(),
                                         [&](const RaidObject& o) { return o.kind == kind && o.state == s; });
            items.push_back(std::string(kindWord(kind)) + "s_" + s + "=" + std::to_string(n));
        }
    }
    for (const RaidObject& o : state.objects) {
        if (o.kind == Kind::Controller && o.temperatureCelsius) {
            items.push_back(perfLabel("temp_" + o.id) + "=" + number(*o.temperatureCelsius) + ";" + number(options.warnTemp) +
                            ";" + number(options.critTemp));
        }
    }
    for (const RaidObject& o : state.objects) {
        if (o.kind == Kind::Volume && o.rebuildRatio) {
            items.push_back(perfLabel("rebuild_" + o.name) + "=" + percent(*o.rebuildRatio) + ";;;0;100");
        }
    }
    std::string out;
    for (const std::string& item : items) out += (out.empty() ? "" : " ") + item;
    return out;
}

}  // namespace

const char* levelWord(Level level) {
    switch (level) {
    case Level::Ok: return "OK";
    case Level::Warning: return "WARNING";
    case Level::Critical: return "CRITICAL";
    default: return "UNKNOWN";
    }
}

void checkIgnoreWords(const std::vector<std::string>& words) {
    for (const std::string& w : words) {
        RaidObject probe;
        bool known = false;
        for (Kind kind : kAllKinds) {
            probe.kind = kind;
            known = known || ignored(probe, {w});
        }
        for (const RaidSource& source : raidSources()) known = known || lower(w) == lower(source.className);
        if (!known) throw std::invalid_argument("no such kind or class: " + w);
    }
}

Verdict judge(const RaidState& state, const HealthOptions& options) {
    Verdict v;
    for (Kind kind : kAllKinds) {
        for (const RaidObject& o : state.objects) {
            if (o.kind != kind || ignored(o, options.ignore)) continue;
            for (const std::string& condition : conditionsOf(o, state, options)) {
                const LevelRow* row = rowOf(o.kind, condition);
                if (row == nullptr || row->level == Level::Ok) continue;
                v.problems.push_back({row->level, o.kind, o.id, o.controller, condition, problemText(o, condition, *row)});
                v.level = std::max(v.level, row->level);
            }
        }
    }
    v.summary = std::string("RAID ") + levelWord(v.level) + " - ";
    if (v.problems.empty()) {
        v.summary += std::to_string(state.count(Kind::Controller)) + " controllers, " + std::to_string(state.count(Kind::Drive)) +
                     " drives, " + std::to_string(state.count(Kind::Volume)) + " volumes";
    } else {
        for (std::size_t i = 0; i < v.problems.size(); ++i) v.summary += (i ? ", " : "") + v.problems[i].text;
    }
    v.perfdata = perfdataOf(state, options);
    return v;
}

Verdict unknownVerdict(const std::string& reason) {
    Verdict v;
    v.level = Level::Unknown;
    std::string line = reason;
    std::replace(line.begin(), line.end(), '\n', ' ');
    std::replace(line.begin(), line.end(), '|', '/');  // "|" would start performance data
    v.summary = "RAID UNKNOWN - " + line;
    return v;
}

std::string verdictLine(const Verdict& verdict) {
    return verdict.perfdata.empty() ? verdict.summary : verdict.summary + " | " + verdict.perfdata;
}

nlohmann::json verdictJson(const Verdict& verdict, const RaidState* state) {
    nlohmann::json out = {{"status", levelWord(verdict.level)},
                          {"exitCode", static_cast<int>(verdict.level)},
                          {"summary", verdict.summary}};
    nlohmann::json problems = nlohmann::json::array();
    for (const Problem& p : verdict.problems) {
        problems.push_back({{"level", levelWord(p.level)}, {"kind", kindWord(p.kind)}, {"id", p.id},
                            {"controller", p.controller}, {"condition", p.condition}, {"text", p.text}});
    }
    out["problems"] = problems;
    if (state != nullptr) {
        out["counts"] = {{"controllers", state->count(Kind::Controller)},
                         {"drives", state->count(Kind::Drive)},
                         {"volumes", state->count(Kind::Volume)}};
        nlohmann::json objects = nlohmann::json::array();
        for (const RaidObject& o : state->objects) {
            nlohmann::json object = {{"kind", kindWord(o.kind)}, {"id", o.id}, {"name", o.name},
                                     {"controller", o.controller}, {"state", o.state}};
            if (o.temperatureCelsius) object["temperatureCelsius"] = *o.temperatureCelsius;
            if (o.rebuildRatio) object["rebuildRatio"] = *o.rebuildRatio;
            objects.push_back(object);
        }
        out["objects"] = objects;
    }
    out["perfdata"] = verdict.perfdata;
    return out;
}

}  // namespace vexraid
