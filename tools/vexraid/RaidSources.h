// Where the monitored objects come from: one row per CIM class, read in
// the table's order (controllers first: the others name their controller
// by number, elements their enclosure by tag).
#ifndef VEXRAID_RAIDSOURCES_H
#define VEXRAID_RAIDSOURCES_H

#include <cmpihost/Instance.h>

#include <map>
#include <string>
#include <vector>

#include "RaidState.h"

namespace vexraid {

struct SourceContext {
    RaidState state;
    std::map<long long, std::string> controllerByNumber;  // 0 -> "vexController_0"
    std::map<std::string, std::string> enclosureByTag;     // "0_57663..." -> "0_0"
    std::map<std::string, std::string> enclosureController; // "0_0" -> "vexController_0"

    // The system name of controller number n ("vexController_<n>" when it
    // was not read: then it is missing and the state check says so).
    std::string controllerName(long long n) const;
};

struct RaidSource {
    const char* className;
    void (*read)(const cmpihost::Instance& instance, SourceContext& context);
};

const std::vector<RaidSource>& raidSources();

}  // namespace vexraid

#endif
