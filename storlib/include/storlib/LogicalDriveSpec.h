// LogicalDriveSpec and ChunkSpec: what to build when creating or changing a logical drive.
#pragma once
#include <storlib/Addr.h>
#include <storlib/Types.h>

#include <cstdint>
#include <string>
#include <vector>

namespace storlib {

// One member of a logical drive: a drive and where on it.
struct ChunkSpec {
    static constexpr uint64_t AUTO = ~0ull;
    Addr drive;                 // controller, channel, device
    uint64_t startMB = AUTO;    // AUTO: the first free extent large enough
    uint64_t sizeMB = 0;        // 0: as large as the logical drive needs / allows

    ChunkSpec() = default;
    explicit ChunkSpec(const Addr& d, uint64_t start = AUTO, uint64_t size = 0)
        : drive(d), startMB(start), sizeMB(size) {}
};

// A logical drive to create, or the target of a migration / expansion.
// Chunks are members in order; for RAID 10 consecutive pairs mirror each
// other, for RAID 50/60 the chunks are split into `legs` equal sub-arrays.
struct LogicalDriveSpec {
    RaidLevel raidLevel = RaidLevel::Raid5;
    std::vector<ChunkSpec> chunks;
    uint64_t dataSizeMB = 0;    // 0: the largest size the chunks allow
    uint32_t stripeSizeKB = 256;
    uint32_t legs = 0;          // 0: the controller chooses (RAID 50/60: 2)
    std::string name;           // empty: the controller names it "Device N"
    ReadCacheMode readCache = ReadCacheMode::On;
    WriteCacheMode writeCache = WriteCacheMode::WriteBackWhenProtected;
    InitMethod initMethod = InitMethod::Build;
    TaskPriority taskPriority = TaskPriority::High;
    bool isFastTier3 = false;
    uint32_t fastTierSetting = 0;
};

}  // namespace storlib
