// The RAID level rules of the controller: member counts, legs, fault tolerance, capacity.
#pragma once
#include <storlib/Export.h>
#include <storlib/Types.h>

#include <cstdint>

namespace storlib {

struct RaidLevelRule {
    RaidLevel level;
    const char* name;          // "RAID5"
    uint32_t minMembers;       // in total
    uint32_t maxMembers;
    uint32_t minLegMembers;    // members per leg (= minMembers for single-leg levels)
    uint32_t minLegs;          // 1, or 2 for RAID 50/60
    uint32_t redundancyPerLeg; // drives per leg that may fail (RAID 10: one per mirror pair)
    uint32_t parityPerLeg;     // chunks per leg that hold parity
    bool mirrored;             // data is written twice
    bool evenMembers;          // the member count must be even
};

// The rule of a level the controller can build, or null.
STORLIB_API const RaidLevelRule* findRaidLevelRule(RaidLevel level) noexcept;

// Data capacity of `members` chunks of chunkMB each at this level in `legs`
// sub-arrays, or 0 when the combination is not allowed.
STORLIB_API uint64_t raidDataCapacityMB(RaidLevel level, uint32_t members, uint64_t chunkMB, uint32_t legs = 1) noexcept;

// Why a member / leg count is not allowed, or null when it is.
STORLIB_API const char* checkRaidMembers(RaidLevel level, uint32_t members, uint32_t legs) noexcept;

}  // namespace storlib
