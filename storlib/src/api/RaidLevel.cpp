// The RAID levels the controller builds, as one rule table.
#include <storlib/RaidLevel.h>

namespace storlib {
namespace {

constexpr RaidLevelRule kRules[] = {
    // level                   name            min  max  leg  legs red par  mirror even
    {RaidLevel::Raid0,         "RAID0",          2, 128,   2,  1,  0,  0, false, false},
    {RaidLevel::Raid1,         "RAID1",          2,   2,   2,  1,  1,  0, true,  true},
    {RaidLevel::Raid1E,        "RAID1E",         3, 128,   3,  1,  1,  0, true,  false},
    {RaidLevel::Raid5,         "RAID5",          3,  32,   3,  1,  1,  1, false, false},
    {RaidLevel::Raid10,        "RAID10",         4, 128,   4,  1,  1,  0, true,  true},
    {RaidLevel::Raid50,        "RAID50",         6, 128,   3,  2,  1,  1, false, false},
    {RaidLevel::SimpleVolume,  "SIMPLEVOLUME",   1,   1,   1,  1,  0,  0, false, false},
    {RaidLevel::Raid6,         "RAID6",          4,  32,   4,  1,  2,  2, false, false},
    {RaidLevel::Raid60,        "RAID60",         8, 128,   4,  2,  2,  2, false, false},
};

}  // namespace

const RaidLevelRule* findRaidLevelRule(RaidLevel level) noexcept {
    for (const auto& r : kRules)
        if (r.level == level) return &r;
    return nullptr;
}

const char* checkRaidMembers(RaidLevel level, uint32_t members, uint32_t legs) noexcept {
    const RaidLevelRule* r = findRaidLevelRule(level);
    if (!r) return "the controller does not build this RAID level";
    if (members < r->minMembers) return "too few members for this RAID level";
    if (members > r->maxMembers) return "too many members for this RAID level";
    if (r->evenMembers && members % 2 != 0) return "this RAID level needs an even number of members";
    if (r->minLegs == 1) return legs <= 1 ? nullptr : "this RAID level has no legs";
    if (legs < r->minLegs) return "this RAID level needs at least two legs";
    if (members % legs != 0) return "the members do not divide evenly into the legs";
    if (members / legs < r->minLegMembers) return "too few members per leg for this RAID level";
    return nullptr;
}

uint64_t raidDataCapacityMB(RaidLevel level, uint32_t members, uint64_t chunkMB, uint32_t legs) noexcept {
    const RaidLevelRule* r = findRaidLevelRule(level);
    if (!r) return 0;
    if (r->minLegs == 1) legs = 1;
    if (legs == 0 || checkRaidMembers(level, members, legs)) return 0;
    if (r->mirrored) return static_cast<uint64_t>(members) * chunkMB / 2;
    uint64_t perLeg = members / legs;
    return static_cast<uint64_t>(legs) * (perLeg - r->parityPerLeg) * chunkMB;
}

}  // namespace storlib
