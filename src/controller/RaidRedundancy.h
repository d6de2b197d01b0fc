// The redundancy a logical drive's RAID level gives, in the terms of the
// CIM storage settings and capabilities.
#ifndef VEX_CONTROLLER_RAIDREDUNDANCY_H
#define VEX_CONTROLLER_RAIDREDUNDANCY_H

#include <storlib/LogicalDrive.h>

namespace vex::cim::fwf::fsamap {

struct Redundancy {
    unsigned dataRedundancy = 1;     // copies of the data: 2 when mirrored
    unsigned packageRedundancy = 0;  // drives that may fail without loss of data
    unsigned stripeLength = 1;       // members per leg
    bool parity = false;             // parity is kept on the members
    bool noSinglePointOfFailure() const { return packageRedundancy > 0; }
};

Redundancy redundancyOf(const storlib::LogicalDrive& logicalDrive);

}  // namespace vex::cim::fwf::fsamap

#endif
