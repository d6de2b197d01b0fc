// Generator of large system descriptions (for load tests and benchmarks).
#pragma once
#include <storlib/Export.h>

#include <cstdint>
#include <string>

namespace storlib {

struct GeneratorParams {
    uint32_t controllers = 8;
    uint32_t drivesPerController = 256;
    uint32_t volumesPerController = 64;
    uint32_t sparesPerController = 2;
    bool enclosures = true;       // one 24-slot enclosure per 24 drives
};

// A description in the same format as the files under storlib/systems/.
STORLIB_API std::string generateSystemDescription(const GeneratorParams& params);

}  // namespace storlib
