// StorLibCreate: turns a request for a new logical drive into the
// LogicalDriveSpec the controller accepts. The request names the level and,
// optionally, the drives (with or without their extents), the size, the
// name, the stripe size and the legs; what it leaves open is chosen here:
//  - drives: the usable drives (ready or online, not spare, JBOD or in the
//    fast tier) with the largest free extent first, of one media type where
//    enough drives share it, taken in turn from each enclosure so that the
//    members spread over the enclosures (enclosure redundancy);
//  - legs: two for RAID 50 and 60 (spanned arrays) unless given;
//  - name: "<level>_<n>" with the next free number, when none is given;
//  - JBOD promotion: a simple volume asked for on a JBOD takes the whole
//    drive: the JBOD is released and the volume made on it, and should the
//    controller refuse the volume, the drive is made a JBOD again.
// A request that cannot be satisfied is refused before anything changes:
// 4 for a malformed one, 17 when there are not enough usable drives or the
// size exceeds what the drives allow.
#ifndef VEX_CONTROLLER_ROUTINES_STORLIBCREATE_H
#define VEX_CONTROLLER_ROUTINES_STORLIBCREATE_H

#include <cstdint>
#include <string>
#include <vector>

#include <storlib/Adapter.h>
#include <storlib/HardDrive.h>
#include <storlib/LogicalDriveSpec.h>
#include <storlib/Ret.h>

namespace vex::cim::fwf {

struct CreateRequest {
    int controller = 0;
    std::uint32_t level = 0;
    std::vector<storlib::ChunkSpec> chunks;  // empty: chosen here
    std::uint64_t dataSizeMB = 0;            // 0: as large as the chunks allow
    std::uint32_t stripeSizeKB = 0;          // 0: the controller's default (256 KB)
    std::uint32_t legs = 0;
    std::uint32_t memberCount = 0;           // with chosen drives: how many (0: the level's minimum)
    std::string name;
    bool isFastTier3 = false;
};

class StorLibCreate {
public:
    static StorLibCreate* getInstance();

    // Builds the logical drive spec against a controller of one snapshot; 0, 4 or 17.
    unsigned int buildLogicalDriveSpec(const storlib::Adapter& adapter, const CreateRequest& request,
                                       storlib::LogicalDriveSpec& spec);
    // Builds and hands it to the controller.
    unsigned int executeCreate(const storlib::Adapter& adapter, const CreateRequest& request, storlib::Ret& ret,
                               std::uint32_t* newId = nullptr);

    // The usable drives of a controller in the order findChunkSpace takes them.
    std::vector<storlib::ChunkSpec> findChunkSpace(const storlib::Adapter& adapter, std::uint32_t count) const;
    std::uint32_t setSpannedArrays(std::uint32_t level, std::uint32_t legs) const;
    // The JBOD a request promotes to a simple volume, or null.
    const storlib::HardDrive* findJBODPromoteChunkSpace(const storlib::Adapter& adapter,
                                                         const CreateRequest& request) const;
    std::string buildLogicalDriveName(const storlib::Adapter& adapter, std::uint32_t level) const;
    // The largest data size the chunks allow, in MB.
    std::uint64_t maxDataSizeMB(const storlib::Adapter& adapter, const storlib::LogicalDriveSpec& spec) const;

private:
    StorLibCreate() = default;

    unsigned int executeJBOD(const storlib::HardDrive& jbod, const storlib::LogicalDriveSpec& spec, storlib::Ret& ret,
                             std::uint32_t* newId);
};

}  // namespace vex::cim::fwf

#endif
