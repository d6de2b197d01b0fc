// The member chunks of a logical drive on its pool record, for the storage
// model (extents, spares and capacity): parallel arrays under "CE", one
// element per member chunk in member order, the dedicated spares of the
// logical drive, and "SPSpaceConsumed", the bytes its chunks take on drives
// that are neither failed nor missing.
#include <algorithm>

#include <storlib/Chunk.h>

#include "controller/CimNames.h"
#include "controller/PoolMapping.h"

namespace vex::cim::fwf::fsamap {

namespace {

constexpr unsigned long long kMiB = 1024ull * 1024ull;

struct ChunkContext {
    int controller;
    const storlib::Chunk* chunk;
};

const storlib::ChunkData& of(const ChunkContext& c) { return c.chunk->getChunkData(); }

const PropertyRow<ChunkContext> kChunks[] = {
    {"CEDriveID", CIM_STRING_ARRAY, PLAIN,
     [](const ChunkContext& c) {
         return raw(driveDeviceId(c.controller, static_cast<int>(of(c).channelID), static_cast<int>(of(c).deviceID)));
     }},
    {"CEStartMB", CIM_UINT64_ARRAY, PLAIN, [](const ChunkContext& c) { return raw(of(c).startMB); }},
    {"CESizeMB", CIM_UINT64_ARRAY, PLAIN, [](const ChunkContext& c) { return raw(of(c).sizeMB); }},
    // 0 ok, 1 failed, 2 missing, 3 rebuilding
    {"CEState", CIM_UINT16_ARRAY, PLAIN, [](const ChunkContext& c) { return raw(of(c).state); }},
};

const storlib::RaidObject* adapterOf(const storlib::LogicalDrive& logicalDrive) {
    return logicalDrive.getParent();
}

bool counts(const storlib::HardDrive* drive) {
    return drive != nullptr && drive->getState() != storlib::DriveState::Failed &&
           drive->getState() != storlib::DriveState::Missing;
}

std::vector<std::string> dedicatedSpares(const LogicalDriveContext& l, const storlib::RaidObject& adapter) {
    std::vector<std::string> spares;
    const std::uint32_t id = l.logicalDrive->getLogicalDriveID();
    for (const storlib::RaidObject* object : storlib::FilterCollection(adapter, storlib::HardDrive::kClassName)) {
        const auto* drive = object->as<storlib::HardDrive>();
        for (std::uint32_t served : drive->getDedicatedLogicalDrives()) {
            if (served == id && drive->getSpareType() == storlib::SpareType::Dedicated) {
                spares.push_back(driveDeviceId(l.controller, static_cast<int>(drive->getChannelID()),
                                               static_cast<int>(drive->getDeviceID())));
            }
        }
    }
    return spares;
}

}  // namespace

// The chunks are read from the drives, which account for every extent they
// hold (also the chunks a migration is moving the logical drive onto).
void insertPoolChunks(const LogicalDriveContext& logicalDrive, fsaCIMInstanceWrapper& pool) {
    const storlib::RaidObject* adapter = adapterOf(*logicalDrive.logicalDrive);
    std::vector<ChunkContext> chunks;
    unsigned long long consumed = 0;
    std::vector<std::string> spares;
    if (adapter != nullptr) {
        const std::uint32_t id = logicalDrive.logicalDrive->getLogicalDriveID();
        for (const storlib::RaidObject* object : storlib::FilterCollection(*adapter, storlib::HardDrive::kClassName)) {
            const auto* drive = object->as<storlib::HardDrive>();
            for (const storlib::RaidObject* child : drive->getChildren()) {
                const auto* chunk = child->as<storlib::Chunk>();
                if (chunk != nullptr && !chunk->isFree() && chunk->getLogicalDriveID() == id) {
                    chunks.push_back(ChunkContext{logicalDrive.controller, chunk});
                    consumed += counts(drive) ? chunk->getSizeMB() * kMiB : 0;
                }
            }
        }
        std::stable_sort(chunks.begin(), chunks.end(), [](const ChunkContext& a, const ChunkContext& b) {
            return of(a).memberIndex < of(b).memberIndex;
        });
        spares = dedicatedSpares(logicalDrive, *adapter);
    }
    pool.addColumns(kChunks, chunks);
    pool.fsaAddProp("CEDedicatedSpares", spares);
    pool.fsaAddProp("SPSpaceConsumed", consumed);
}

}  // namespace vex::cim::fwf::fsamap
