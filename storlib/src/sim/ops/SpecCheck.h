// Checking a LogicalDriveSpec against the controller and planning its chunks.
#pragma once
#include "sim/Model.h"

#include <storlib/LogicalDriveSpec.h>
#include <storlib/Ret.h>

#include <vector>

namespace storlib::sim::ops {

struct Layout {
    std::vector<ChunkRec> chunks;
    uint32_t legs = 1;
    uint64_t chunkMB = 0;
};

// Level, member count, legs, stripe size and name against the level rules
// and the controller's limits.
Ret checkSpecShape(const ControllerRec& c, const LogicalDriveSpec& spec, uint32_t& legs);

// Chooses where every chunk goes. `self` is the logical drive being changed
// (its own chunks count as free space), or ANY for a new one.
Ret planLayout(ControllerRec& c, const LogicalDriveSpec& spec, uint32_t self, const LdRec* current, Layout& out);

}  // namespace storlib::sim::ops
