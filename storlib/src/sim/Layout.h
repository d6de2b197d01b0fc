// Space on drives: which extents are used by chunks and which are free.
#pragma once
#include "sim/Model.h"

#include <vector>

namespace storlib::sim {

struct Extent {
    uint64_t startMB = 0, sizeMB = 0;
    uint32_t ldId = Addr::ANY;  // owner, ANY when free
    size_t member = 0;          // member index in the owner
};

// Extents of the drive used by logical drives (members and migration
// targets), sorted by start; `skipLd` leaves one logical drive out.
std::vector<Extent> usedExtents(const ControllerRec& c, const DriveRec& d, uint32_t skipLd = Addr::ANY);
std::vector<Extent> freeExtents(const ControllerRec& c, const DriveRec& d, uint32_t skipLd = Addr::ANY);
uint64_t largestFree(const ControllerRec& c, const DriveRec& d, uint32_t skipLd = Addr::ANY);
// Start of the first free extent of at least sizeMB, or ~0 when none.
uint64_t firstFit(const ControllerRec& c, const DriveRec& d, uint64_t sizeMB, uint32_t skipLd = Addr::ANY);
bool isFreeRange(const ControllerRec& c, const DriveRec& d, uint64_t startMB, uint64_t sizeMB,
                 uint32_t skipLd = Addr::ANY);

// Recomputes data, raw, mirror and parity space and the member count of a
// logical drive from its members and level.
void updateCapacity(LdRec& ld);

}  // namespace storlib::sim
