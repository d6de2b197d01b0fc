// The member chunks of a logical drive on its pool record, for the storage
// model (extents, spares and capacity): parallel arrays under "CE", one
// element per member chunk in member order, the dedicated spares of the
// logical drive, and "SPSpaceConsumed", the bytes its chunks take on drives
// that are neither failed nor missing.
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

const storlib::HardDrive* driveAt(const storlib::RaidObject& adapter, const storlib::Chunk& chunk) {
    for (const storlib::RaidObject* object : storlib::FilterCollection(adapter, storlib::HardDrive::kClassName)) {
        const auto* drive = object->as<storlib::HardDrive>();
        if (drive->getChannelID() == chunk.getChannelID() && drive->getDeviceID() == chunk.getDeviceID()) {
            return drive;
        }
    }
    return nullptr;
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

void insertPoolChunks(const LogicalDriveContext& logicalDrive, fsaCIMInstanceWrapper& pool) {
    std::vector<ChunkContext> chunks;
    for (const storlib::RaidObject* child : logicalDrive.logicalDrive->getChildren()) {
        if (const auto* chunk = child->as<storlib::Chunk>()) {
            chunks.push_back(ChunkContext{logicalDrive.controller, chunk});
        }
    }
    pool.addColumns(kChunks, chunks);
    const storlib::RaidObject* adapter = adapterOf(*logicalDrive.logicalDrive);
    unsigned long long consumed = 0;
    std::vector<std::string> spares;
    if (adapter != nullptr) {
        for (const ChunkContext& c : chunks) {
            consumed += counts(driveAt(*adapter, *c.chunk)) ? of(c).sizeMB * kMiB : 0;
        }
        spares = dedicatedSpares(logicalDrive, *adapter);
    }
    pool.fsaAddProp("CEDedicatedSpares", spares);
    pool.fsaAddProp("SPSpaceConsumed", consumed);
}

}  // namespace vex::cim::fwf::fsamap
