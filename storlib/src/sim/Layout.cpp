#include "sim/Layout.h"

#include <storlib/RaidLevel.h>

#include <algorithm>

namespace storlib::sim {

std::vector<Extent> usedExtents(const ControllerRec& c, const DriveRec& d, uint32_t skipLd) {
    std::vector<Extent> out;
    auto add = [&](const LdRec& ld, const std::vector<ChunkRec>& chunks) {
        for (size_t i = 0; i < chunks.size(); ++i) {
            const ChunkRec& k = chunks[i];
            if (k.channel != d.channel || k.device != d.device) continue;
            auto same = std::find_if(out.begin(), out.end(), [&](const Extent& e) {
                return e.startMB == k.startMB && e.ldId == ld.id;
            });
            if (same == out.end()) out.push_back({k.startMB, k.sizeMB, ld.id, i});
            else same->sizeMB = std::max(same->sizeMB, k.sizeMB);  // a chunk grown by a migration
        }
    };
    for (const LdRec& ld : c.logicalDrives) {
        if (ld.id == skipLd) continue;
        add(ld, ld.members);
        add(ld, ld.target);
    }
    std::sort(out.begin(), out.end(), [](const Extent& a, const Extent& b) { return a.startMB < b.startMB; });
    return out;
}

std::vector<Extent> freeExtents(const ControllerRec& c, const DriveRec& d, uint32_t skipLd) {
    std::vector<Extent> out;
    uint64_t pos = 0;
    for (const Extent& u : usedExtents(c, d, skipLd)) {
        if (u.startMB > pos) out.push_back({pos, u.startMB - pos});
        pos = std::max(pos, u.startMB + u.sizeMB);
    }
    if (d.hd.sizeMB > pos) out.push_back({pos, d.hd.sizeMB - pos});
    return out;
}

uint64_t largestFree(const ControllerRec& c, const DriveRec& d, uint32_t skipLd) {
    uint64_t best = 0;
    for (const Extent& e : freeExtents(c, d, skipLd)) best = std::max(best, e.sizeMB);
    return best;
}

uint64_t firstFit(const ControllerRec& c, const DriveRec& d, uint64_t sizeMB, uint32_t skipLd) {
    for (const Extent& e : freeExtents(c, d, skipLd))
        if (e.sizeMB >= sizeMB) return e.startMB;
    return ~0ull;
}

bool isFreeRange(const ControllerRec& c, const DriveRec& d, uint64_t startMB, uint64_t sizeMB, uint32_t skipLd) {
    for (const Extent& e : freeExtents(c, d, skipLd))
        if (startMB >= e.startMB && startMB + sizeMB <= e.startMB + e.sizeMB) return true;
    return false;
}

void updateCapacity(LdRec& ld) {
    LogicalDriveData& l = ld.ld;
    uint64_t chunk = ld.members.empty() ? 0 : ld.members.front().sizeMB;
    for (const ChunkRec& k : ld.members) chunk = std::min(chunk, k.sizeMB);
    auto n = static_cast<uint32_t>(ld.members.size());
    l.memberCount = n;
    l.rawSizeMB = chunk * n;
    l.dataSizeMB = raidDataCapacityMB(l.raidLevel, n, chunk, l.legs);
    const RaidLevelRule* r = findRaidLevelRule(l.raidLevel);
    bool mirrored = r && r->mirrored;
    l.mirrorSpaceMB = mirrored ? l.rawSizeMB - l.dataSizeMB : 0;
    l.paritySpaceMB = mirrored ? 0 : l.rawSizeMB - l.dataSizeMB;
}

}  // namespace storlib::sim
