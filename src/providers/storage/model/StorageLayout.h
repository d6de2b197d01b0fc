// The storage layout of the controllers as the object cache holds it: per
// controller its drives, each drive's chunks (the member chunks of logical
// drives and the free space between them) and its pools. The storage model
// classes (pools, extents, spares) are computed from it, so that the
// capacities they report agree with one another:
//   primordial TotalManagedSpace = the capacity of the drives that count
//   (hard drives neither failed nor missing), RemainingManagedSpace = their
//   free chunks, and each pool's SpaceConsumed = its chunks on them.
#ifndef VEX_PROVIDERS_STORAGE_MODEL_STORAGELAYOUT_H
#define VEX_PROVIDERS_STORAGE_MODEL_STORAGELAYOUT_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/VexObjectType.h"

namespace vex::cim::fwf::storage {

// The cache lists one request reads, each read once (copies: nothing is held).
class CacheRecords {
public:
    const std::vector<CIMInstance>& of(_eVEXObjectType type);

private:
    std::map<int, std::vector<CIMInstance>> m_lists;
};

struct ChunkLayout {
    std::string pool;          // InstanceID of the pool; empty for free space
    std::uint64_t startMB = 0;
    std::uint64_t sizeMB = 0;
    unsigned state = 0;        // 0 ok, 1 failed, 2 missing, 3 rebuilding (used chunks)
    unsigned member = 0;       // position in the logical drive
    bool isFree() const { return pool.empty(); }
};

enum class Spare : unsigned { None = 0, Global = 1, Dedicated = 2 };

struct DriveLayout {
    std::string id;            // "c_ch_dev", the DeviceID of its primordial extent
    std::string system;        // "vexController_c"
    std::uint64_t blockSize = 512;
    std::uint64_t blocks = 0;
    bool counts = false;       // in the primordial pool: neither failed nor missing
    Spare spare = Spare::None;
    std::vector<std::string> dedicatedTo;  // pools a dedicated spare serves
    std::vector<ChunkLayout> chunks;       // used and free, by start
    std::vector<unsigned short> operationalStatus;
    std::uint64_t bytes() const { return blocks * blockSize; }
};

struct PoolLayout {
    std::string id;            // "c_ld"
    std::string system;
    const CIMInstance* record = nullptr;  // its record in type 4 or 5
    unsigned short packageRedundancy = 0;
};

struct ControllerLayout {
    std::string system;
    std::vector<DriveLayout> drives;
    std::vector<PoolLayout> pools;
    std::uint64_t totalBytes = 0;      // drives that count
    std::uint64_t remainingBytes = 0;  // their free chunks
    bool hasGlobalSpare() const;
};

// Every controller of the cache, in cache order; `records` must outlive the
// result (pools point into it).
std::vector<ControllerLayout> layoutOf(CacheRecords& records);

inline constexpr std::uint64_t kMiB = 1024ull * 1024ull;

// Reading cached values of any unsigned width ("" / 0 / empty when absent).
std::uint64_t numberOf(const CIMInstance& instance, const std::string& name);
std::vector<std::uint64_t> numbersOf(const CIMInstance& instance, const std::string& name);
std::vector<std::string> stringsOf(const CIMInstance& instance, const std::string& name);

// "vexController_c" of a "c_..." identifier; empty when it has no leading number.
std::string systemOfId(const std::string& id);
// The owner part of a "<owner>_<Suffix>" InstanceID, when it ends in "_" + suffix.
std::string ownerOf(const std::string& instanceId, const std::string& suffix);

}  // namespace vex::cim::fwf::storage

#endif
