// A realistic large cache content for the benchmarks: per controller 256
// drives of ~80 properties (six views under their prefixes) and 64 volumes
// and 64 pools of ~60 properties.
#ifndef VEX_BENCH_CONTROLLER_CACHECONTENT_H
#define VEX_BENCH_CONTROLLER_CACHECONTENT_H

#include <cstddef>
#include <string>

#include "controller/VexCacheManager.h"

namespace vex::cim::fwf::bench {

inline constexpr int kDrivesPerController = 256;
inline constexpr int kVolumesPerController = 64;

CIMInstance makeDrive(int controller, int slot);
CIMInstance makeVolume(int controller, int index, const std::string& prefix);

struct ContentSize {
    std::size_t instances = 0;
    std::size_t properties = 0;
};

// Empties both repositories, makes the first the served and latest one and
// fills it for this many controllers (types 0, 2 and 4).
ContentSize fillCache(int controllers);

// The DeviceID key of a drive, as stored.
std::string driveId(int controller, int slot);

}  // namespace vex::cim::fwf::bench

#endif
