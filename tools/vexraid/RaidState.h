// The state of a host's RAID subsystem as the monitoring commands (health,
// metrics) see it: every controller, battery, drive, volume, enclosure and
// enclosure element with one state word, the figures worth graphing, and
// the running jobs. Read through the provider, from the same instances a
// CIM client sees; each kind of object comes from a row of a source table,
// so a newly served class is one more row.
#ifndef VEXRAID_RAIDSTATE_H
#define VEXRAID_RAIDSTATE_H

#include <cmpihost/Instance.h>

#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace vexraid {

// The kinds of monitored objects, in the order problems are reported.
enum class Kind { Controller, Volume, Drive, Battery, Enclosure, Fan, PowerSupply, Sensor, Element };

// "controller", "volume", "drive", "battery", "enclosure", "fan",
// "power supply", "sensor", "element".
const char* kindWord(Kind kind);
// The state words a kind can be in, first the healthy one ("ok").
const std::vector<std::string>& kindStates(Kind kind);

struct RaidObject {
    Kind kind = Kind::Drive;
    std::string sourceClass;  // the CIM class it was read from
    std::string id;           // "0_0_3", "vexController_0", "0_1", "0_0" (enclosure), "0_0_fan_1"
    std::string name;         // how a person names it: "0_0_3", "Data", "enclosure 0_0 fan 1"
    std::string controller;   // controller system name ("vexController_0"); "" if none
    std::string state = "ok"; // one of kindStates(kind)
    std::map<std::string, std::string> labels;  // extra metric labels (enclosure, model, raid level ...)
    std::optional<double> temperatureCelsius;
    std::optional<double> capacityBytes;
    std::optional<double> chargeRatio;           // batteries
    std::optional<double> rebuildRatio;          // volumes being rebuilt
    bool redundant = false;                      // volumes: RAID level with redundancy
    bool spareProtected = false;                 // volumes: a spare would take over
    bool spare = false;                          // drives: a hot spare
};

struct RaidJob {
    std::string id;          // "0_2"
    std::string controller;  // "vexController_0"
    std::string task;        // "rebuild", "verify", ...
    std::string target;      // "LogicalDrive:0_1"
    std::optional<double> progressRatio;
};

struct RaidState {
    std::vector<RaidObject> objects;  // in the order the sources were read
    std::vector<RaidJob> jobs;        // running jobs

    std::size_t count(Kind kind) const;
};

// The reading failed (provider answered an error, an object vanished while
// it was read): the state is unknown.
class StateUnknown : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Enumerates the instances of a class; returns nullopt when the provider
// does not serve the class, throws StateUnknown for any other failure.
using Enumerator = std::function<std::optional<std::vector<cmpihost::Instance>>(const std::string& className)>;

// Reads every source through enumerate and joins what belongs together
// (jobs to volumes, elements to enclosures). StateUnknown when nothing
// could be read consistently: no controller, or an object whose controller
// is gone (it vanished between two enumerations).
RaidState readRaidState(const Enumerator& enumerate);

}  // namespace vexraid

#endif
