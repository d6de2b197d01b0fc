#include "sim/ops/SpecCheck.h"

#include "sim/Layout.h"
#include "sim/Lookup.h"

#include <storlib/Names.h>
#include <storlib/RaidLevel.h>

#include <algorithm>
#include <set>

namespace storlib::sim::ops {
namespace {

uint32_t memberLimit(const AdapterData& a, RaidLevel level) {
    switch (level) {
    case RaidLevel::Raid0: return a.maxRaid0Members;
    case RaidLevel::Raid5: return a.maxRaid5Members;
    case RaidLevel::Raid6: return a.maxRaid6Members;
    case RaidLevel::Raid10: return a.maxRaid10Members;
    case RaidLevel::Raid1E: return a.maxRaid1EMembers;
    case RaidLevel::Raid50: return a.maxRaid50Members;
    case RaidLevel::Raid60: return a.maxRaid60Members;
    default: return a.maxLDMembers;
    }
}

bool isPowerOfTwo(uint32_t v) { return v && (v & (v - 1)) == 0; }

const ChunkRec* currentChunk(const LdRec* current, const DriveRec& d) {
    if (!current) return nullptr;
    for (const ChunkRec& k : current->members)
        if (k.channel == d.channel && k.device == d.device) return &k;
    return nullptr;
}

Ret checkNewMember(ControllerRec& c, const DriveRec& d) {
    DriveState s = d.hd.state;
    if (s == DriveState::Ready || s == DriveState::Online) {
        if (d.hd.fastTierAssigned)
            return refuse(RetStatus::InvalidState, driveName(d) + " belongs to the fast tier pool");
        if (hasRunningTask(c, Addr::ANY, d.channel, d.device) && s == DriveState::Ready)
            return refuse(RetStatus::Busy, driveName(d) + " has a task running");
        return Ret::success();
    }
    const char* why = s == DriveState::HotSpare ? "is a hot spare"
                      : s == DriveState::JBOD   ? "is a JBOD"
                      : s == DriveState::Raw    ? "is not initialized"
                                                : nullptr;
    return refuse(RetStatus::InvalidState, driveName(d) + " " + (why ? why : std::string("is ") + toString(s)));
}

Ret noSpace(ControllerRec& c, const DriveRec& d) {
    auto lds = ldsUsingDrive(c, d);
    if (!lds.empty())
        return refuse(RetStatus::NoSpace,
                      driveName(d) + " is already a member of " + ldName(*lds.front()) + " and has no free space");
    return refuse(RetStatus::NoSpace, driveName(d) + " has not enough free space");
}

// Space available for the chunk on this drive: from its (requested or
// current) start to the end of that free extent, or the largest free extent.
uint64_t available(ControllerRec& c, const DriveRec& d, const ChunkSpec& cs, const ChunkRec* cur, uint32_t self,
                   uint64_t& start) {
    start = cs.startMB != ChunkSpec::AUTO ? cs.startMB : cur ? cur->startMB : ChunkSpec::AUTO;
    if (start == ChunkSpec::AUTO) return largestFree(c, d, self);
    for (const Extent& e : freeExtents(c, d, self))
        if (start >= e.startMB && start < e.startMB + e.sizeMB) return e.startMB + e.sizeMB - start;
    return 0;
}

}  // namespace

Ret checkSpecShape(const ControllerRec& c, const LogicalDriveSpec& spec, uint32_t& legs) {
    const RaidLevelRule* rule = findRaidLevelRule(spec.raidLevel);
    if (!rule)
        return refuse(RetStatus::NotSupported, std::string(toString(spec.raidLevel)) + " is not supported by the controller");
    legs = spec.legs ? spec.legs : rule->minLegs;
    auto n = static_cast<uint32_t>(spec.chunks.size());
    if (const char* why = checkRaidMembers(spec.raidLevel, n, legs))
        return refuse(RetStatus::InvalidArgument, std::string(rule->name) + " with " + std::to_string(n) +
                                                      " members: " + why);
    if (n > memberLimit(c.ad, spec.raidLevel))
        return refuse(RetStatus::LimitReached, std::string(rule->name) + " allows at most " +
                                                   std::to_string(memberLimit(c.ad, spec.raidLevel)) + " members");
    if (!isPowerOfTwo(spec.stripeSizeKB) || spec.stripeSizeKB < c.ad.minStripeSizeKB ||
        spec.stripeSizeKB > c.ad.maxStripeSizeKB)
        return refuse(RetStatus::InvalidArgument, "stripe size " + std::to_string(spec.stripeSizeKB) +
                                                      " KB: must be a power of two from " + std::to_string(c.ad.minStripeSizeKB) +
                                                      " to " + std::to_string(c.ad.maxStripeSizeKB) + " KB");
    if (spec.name.size() > 64) return refuse(RetStatus::InvalidArgument, "the name is longer than 64 characters");
    for (char ch : spec.name)
        if (static_cast<unsigned char>(ch) < 0x20 || ch == 0x7f)
            return refuse(RetStatus::InvalidArgument, "the name contains control characters");
    return Ret::success();
}

Ret planLayout(ControllerRec& c, const LogicalDriveSpec& spec, uint32_t self, const LdRec* current, Layout& out) {
    if (Ret r = checkSpecShape(c, spec, out.legs); !r) return r;
    uint32_t adapter = spec.chunks.front().drive.getAdapterID();
    std::set<std::pair<uint32_t, uint32_t>> seen;
    std::vector<DriveRec*> drives;
    std::vector<uint64_t> starts, caps;
    for (const ChunkSpec& cs : spec.chunks) {
        if (cs.drive.getAdapterID() != adapter)
            return refuse(RetStatus::InvalidArgument, "all members must be on one controller");
        DriveRec* d = findDrive(c, cs.drive.getChannelID(), cs.drive.getDeviceID());
        if (!d) return refuse(RetStatus::NotFound, "no drive " + std::to_string(cs.drive.getChannelID()) + ":" +
                                                        std::to_string(cs.drive.getDeviceID()));
        if (!seen.insert({d->channel, d->device}).second)
            return refuse(RetStatus::InvalidArgument, driveName(*d) + " is given twice");
        const ChunkRec* cur = currentChunk(current, *d);
        if (!cur)
            if (Ret r = checkNewMember(c, *d); !r) return r;
        uint64_t start = 0;
        uint64_t cap = available(c, *d, cs, cur, self, start);
        if (cs.sizeMB) cap = std::min(cap, cs.sizeMB);
        if (cap == 0) return noSpace(c, *d);
        drives.push_back(d);
        starts.push_back(start);
        caps.push_back(cap);
    }
    uint64_t chunk = *std::min_element(caps.begin(), caps.end());
    if (spec.dataSizeMB) {
        uint64_t per = raidDataCapacityMB(spec.raidLevel, static_cast<uint32_t>(drives.size()), 1, out.legs);
        uint64_t need = (spec.dataSizeMB + per - 1) / per;
        for (size_t i = 0; i < drives.size(); ++i)
            if (caps[i] < need) return noSpace(c, *drives[i]);
        chunk = need;
    }
    out.chunkMB = chunk;
    out.chunks.clear();
    for (size_t i = 0; i < drives.size(); ++i) {
        uint64_t start = starts[i] != ChunkSpec::AUTO ? starts[i] : firstFit(c, *drives[i], chunk, self);
        if (start == ~0ull || !isFreeRange(c, *drives[i], start, chunk, self)) return noSpace(c, *drives[i]);
        out.chunks.push_back({drives[i]->channel, drives[i]->device, start, chunk, ChunkState::Ok});
    }
    return Ret::success();
}

}  // namespace storlib::sim::ops
