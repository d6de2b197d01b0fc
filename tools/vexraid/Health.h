// The verdict of `vexraid health` in the monitoring-plugin convention
// (Nagios, Icinga, Zabbix): OK, WARNING, CRITICAL or UNKNOWN, one line
// naming what is wrong, performance data after "|", and the exit code
// 0 to 3. Which condition of which kind of object is a warning and which
// is critical is the table kLevels in Health.cpp.
#ifndef VEXRAID_HEALTH_H
#define VEXRAID_HEALTH_H

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

#include "RaidState.h"

namespace vexraid {

enum class Level { Ok = 0, Warning = 1, Critical = 2, Unknown = 3 };

// "OK", "WARNING", "CRITICAL", "UNKNOWN"
const char* levelWord(Level level);

struct HealthOptions {
    double warnTemp = 80;   // a temperature at or above this is a warning (Celsius)
    double critTemp = 95;   // ... and at or above this critical
    std::vector<std::string> ignore;  // kinds ("battery") or classes ("VEX_Battery") left out of the verdict
    bool requireSpare = false;        // every redundant volume needs a spare, even on a controller without any
};

struct Problem {
    Level level = Level::Ok;
    Kind kind = Kind::Drive;
    std::string id;
    std::string controller;
    std::string condition;  // "failed", "rebuilding", "no_spare", "temperature_warning", ...
    std::string text;       // "drive 0_0_3 failed"
};

struct Verdict {
    Level level = Level::Ok;
    std::vector<Problem> problems;  // in report order: by kind, then as read
    std::string summary;            // "RAID CRITICAL - volume Data degraded (rebuilding 37%), drive 0_0_3 failed"
    std::string perfdata;           // "drives_ok=15 drives_rebuilding=1 ... 'temp_vexController_0'=45;80;95"
};

// Throws std::invalid_argument for an --ignore word that names no kind and
// no class the state is read from.
void checkIgnoreWords(const std::vector<std::string>& words);

Verdict judge(const RaidState& state, const HealthOptions& options);

// A verdict when the state could not be read at all.
Verdict unknownVerdict(const std::string& reason);

// "<summary> | <perfdata>" (without "|" when there is no performance data).
std::string verdictLine(const Verdict& verdict);
// {"status": "CRITICAL", "exitCode": 2, "summary": ..., "problems": [...], "perfdata": {...}}
nlohmann::json verdictJson(const Verdict& verdict, const RaidState* state);

}  // namespace vexraid

#endif
