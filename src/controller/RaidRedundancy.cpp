#include "controller/RaidRedundancy.h"

#include <storlib/RaidLevel.h>

namespace vex::cim::fwf::fsamap {

Redundancy redundancyOf(const storlib::LogicalDrive& logicalDrive) {
    Redundancy redundancy;
    const unsigned legs = logicalDrive.getLegs() > 0 ? logicalDrive.getLegs() : 1;
    redundancy.stripeLength = logicalDrive.getMemberCount() / legs;
    if (const storlib::RaidLevelRule* rule = storlib::findRaidLevelRule(logicalDrive.getRaidLevel())) {
        redundancy.dataRedundancy = rule->mirrored ? 2 : 1;
        redundancy.packageRedundancy = rule->redundancyPerLeg;
        redundancy.parity = rule->parityPerLeg > 0;
    }
    return redundancy;
}

}  // namespace vex::cim::fwf::fsamap
