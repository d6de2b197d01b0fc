// RAID level arithmetic shared by the logical drive spec builders: level
// names, member minimums and the RAID 6 geometry.
#ifndef VEX_CONTROLLER_ROUTINES_RAIDLEVELMATH_H
#define VEX_CONTROLLER_ROUTINES_RAIDLEVELMATH_H

#include <cstdint>
#include <string>

namespace vex::cim::fwf::raidmath {

constexpr std::uint32_t kInvalidLevel = 0x7fffffff;

// "RAID0" .. "RAID60", "SPANNEDVOLUME", "RAIDVOLUME", "SIMPLEVOLUME", matched
// without regard to case; kInvalidLevel for any other name.
std::uint32_t levelOfName(const std::string& name);

struct Raid6Params {
    std::uint32_t drives = 0;
    std::uint32_t parity = 0;
    std::uint32_t data = 0;
};

// The geometry of a RAID 6 of n drives (level 16, or 18 for the RS variant):
// n drives, two parity, n - 2 data; drives 0 when n is not a valid count.
Raid6Params raid6Params(std::uint32_t n, std::uint32_t level);

// Fewest members a logical drive of the level has (legs for RAID 50/60).
std::uint32_t minChunks(std::uint32_t level, std::uint32_t legs);
// Fewest drives the level needs on a controller (RAID 50/60 with two legs).
std::uint32_t minimumDriveCount(std::uint32_t level);

}  // namespace vex::cim::fwf::raidmath

#endif
