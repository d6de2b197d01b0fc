#include "controller/routines/RaidLevelMath.h"

#include "framework/CommonFunctions.h"

namespace vex::cim::fwf::raidmath {

namespace {

struct LevelName {
    const char* name;
    std::uint32_t level;
};

constexpr LevelName kNames[] = {
    {"RAID0", 0},    {"RAID1", 1},    {"RAID1E", 2},   {"RAID5", 5},          {"RAID5E", 6},
    {"RAID5EE", 7},  {"RAID00", 8},   {"RAID10", 9},   {"RAID1E0", 10},       {"RAID50", 11},
    {"RAID5E0", 12}, {"SPANNEDVOLUME", 13}, {"RAIDVOLUME", 14}, {"SIMPLEVOLUME", 15}, {"RAID6", 16},
    {"RAID60", 17},
};

constexpr std::uint32_t kRaid6MinDrives = 4;
constexpr std::uint32_t kRaid6RSMinDrives = 5;
constexpr std::uint32_t kMaxParityGroupDrives = 32;
constexpr std::uint32_t kDefaultLegs = 2;

}  // namespace

std::uint32_t levelOfName(const std::string& name) {
    for (const LevelName& entry : kNames) {
        if (CommonFunctions::equalsIgnoreCase(name, entry.name)) {
            return entry.level;
        }
    }
    return kInvalidLevel;
}

Raid6Params raid6Params(std::uint32_t n, std::uint32_t level) {
    const std::uint32_t least = level == 18 ? kRaid6RSMinDrives : kRaid6MinDrives;
    if (n < least || n > kMaxParityGroupDrives) {
        return {};
    }
    return {n, 2, n - 2};
}

std::uint32_t minChunks(std::uint32_t level, std::uint32_t legs) {
    const std::uint32_t l = legs < kDefaultLegs ? kDefaultLegs : legs;
    switch (level) {
    case 0: case 1: case 8: return 2;
    case 2: case 5: case 6: return 3;
    case 7: case 9: case 10: case 16: return 4;
    case 18: return kRaid6RSMinDrives;
    case 11: case 12: return 3 * l;
    case 17: return 4 * l;
    case 13: case 14: case 15: return 1;
    default: return 2;
    }
}

std::uint32_t minimumDriveCount(std::uint32_t level) { return minChunks(level, kDefaultLegs); }

}  // namespace vex::cim::fwf::raidmath
