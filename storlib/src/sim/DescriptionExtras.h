// The parts of a description that are shorthand for fields of the model:
// spare lists, members given as "channel:device", members placed automatically.
#pragma once
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace storlib::sim {

using DriveRef = std::pair<uint32_t, uint32_t>;  // channel, device

struct LdExtras {
    std::vector<bool> autoStart;        // per member: the controller places it
    std::vector<DriveRef> dedicatedSpares;
    uint64_t dataSizeMB = 0;            // requested capacity, 0: as large as possible
};

struct ControllerExtras {
    std::vector<DriveRef> globalSpares;
    std::vector<LdExtras> lds;
};

struct DescriptionExtras {
    std::vector<ControllerExtras> controllers;
};

}  // namespace storlib::sim
