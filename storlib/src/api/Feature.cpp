// Capability identifiers: level migrations, capacity expansions and the rest.
#include <storlib/Feature.h>

#include <storlib/Names.h>

#include <cstdio>
#include <string>
#include <vector>

namespace storlib {
namespace {

struct Migration { uint32_t from, to, id; };

// RAID level migrations, by level value (0, 1, 5, 7 = RAID5EE, 9 = RAID10,
// 11 = RAID50, 15 = simple volume, 16 = RAID6, 17 = RAID60, 18 = RAID6 RS).
constexpr Migration kMigrations[] = {
    {0, 0, 31}, {0, 1, 32}, {0, 5, 33}, {0, 9, 34}, {0, 7, 35}, {0, 16, 36}, {0, 11, 37}, {0, 17, 38},
    {5, 5, 39}, {5, 0, 40}, {5, 1, 41}, {5, 9, 42}, {5, 7, 43}, {5, 16, 44}, {5, 11, 45}, {5, 17, 46},
    {5, 15, 47}, {5, 18, 214},
    {1, 1, 70}, {1, 0, 71}, {1, 5, 72}, {1, 9, 73}, {1, 7, 74}, {1, 16, 75}, {1, 15, 76}, {1, 11, 77},
    {1, 17, 78},
    {7, 7, 80}, {7, 0, 81}, {7, 5, 82}, {7, 1, 83}, {7, 9, 84}, {7, 16, 85},
    {9, 9, 90}, {9, 0, 91}, {9, 1, 92}, {9, 5, 93}, {9, 7, 94}, {9, 16, 95}, {9, 11, 96}, {9, 17, 97},
    {11, 11, 100}, {11, 0, 101}, {11, 5, 102}, {11, 9, 103}, {11, 16, 104}, {11, 17, 105}, {11, 1, 106},
    {16, 16, 110}, {16, 0, 111}, {16, 5, 112}, {16, 1, 113}, {16, 9, 114}, {16, 11, 115}, {16, 17, 116},
    {16, 7, 117}, {16, 18, 218},
    {17, 17, 120}, {17, 0, 121}, {17, 5, 122}, {17, 16, 123}, {17, 11, 124}, {17, 9, 125}, {17, 1, 126},
    {15, 1, 183}, {15, 0, 184}, {15, 15, 185},
    {18, 18, 200}, {18, 5, 201}, {18, 16, 202},
};

struct Expansion { uint32_t level, id; };
constexpr Expansion kExpansions[] = {
    {0, Feature::OCE_RAID0}, {1, Feature::OCE_RAID1}, {2, Feature::OCE_RAID1E}, {5, Feature::OCE_RAID5},
    {7, Feature::OCE_RAID5EE}, {9, Feature::OCE_RAID10}, {11, Feature::OCE_RAID50},
    {16, Feature::OCE_RAID6}, {17, Feature::OCE_RAID60}, {18, Feature::OCE_RAID6RS},
};

struct Named { uint32_t id; const char* name; };
constexpr Named kOthers[] = {
    {Feature::JBOD, "JBOD"}, {Feature::SecureErase, "SECURE_ERASE"}, {Feature::FastTier, "FAST_TIER"},
    {Feature::DriveFirmwareUpdate, "DRIVE_FIRMWARE_UPDATE"}, {Feature::PowerManagement, "POWER_MANAGEMENT"},
    {Feature::CopyBack, "COPY_BACK"}, {Feature::AutomaticFailover, "AUTOMATIC_FAILOVER"},
    {Feature::SpannedArrays, "SPANNED_ARRAYS"}, {Feature::BackgroundConsistencyCheck, "BACKGROUND_CONSISTENCY_CHECK"},
    {Feature::NCQ, "NCQ"}, {Feature::SaveRestoreConfig, "SAVE_RESTORE_CONFIG"},
};

std::string levelName(uint32_t v) {
    return v == 18 ? "RAID6RS" : toString(static_cast<RaidLevel>(v));
}

}  // namespace

uint32_t migrationFeature(RaidLevel from, RaidLevel to) noexcept {
    for (const auto& m : kMigrations)
        if (m.from == static_cast<uint32_t>(from) && m.to == static_cast<uint32_t>(to)) return m.id;
    return Feature::None;
}

uint32_t expansionFeature(RaidLevel level) noexcept {
    for (const auto& e : kExpansions)
        if (e.level == static_cast<uint32_t>(level)) return e.id;
    return Feature::None;
}

const char* featureName(uint32_t id) noexcept {
    // Built once: names of every identifier of the tables above.
    static const std::vector<std::pair<uint32_t, std::string>> names = [] {
        std::vector<std::pair<uint32_t, std::string>> v;
        for (const auto& m : kMigrations)
            v.emplace_back(m.id, "RLM_" + levelName(m.from) + "_" + levelName(m.to));
        for (const auto& e : kExpansions) v.emplace_back(e.id, "OCE_" + levelName(e.level));
        for (const auto& o : kOthers) v.emplace_back(o.id, o.name);
        return v;
    }();
    for (const auto& [i, n] : names)
        if (i == id) return n.c_str();
    return "";
}

}  // namespace storlib
