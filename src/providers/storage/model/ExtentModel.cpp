// The extents of the storage model: each member chunk of a logical drive and
// each spare drive as a concrete extent, the free space of the drives that
// count as remaining extents, each logical drive's chunks together as a
// composite extent.
#include <algorithm>

#include "framework/PropertyBuilders.h"
#include "providers/storage/model/StorageModelTable.h"

namespace vex::cim::fwf::storage {

namespace {

// CIM_ManagedSystemElement.OperationalStatus and CIM_StorageExtent.ExtentStatus.
constexpr unsigned short kOk = 2, kError = 6, kInService = 11, kLostCommunication = 13;
constexpr unsigned short kExtentNone = 2, kExtentBroken = 3, kExtentRebuild = 11;

std::string extentId(const DriveLayout& drive, const ChunkLayout& chunk) {
    return drive.id + "_" + std::to_string(chunk.startMB);
}

void sizeProperties(CIMInstance& extent, std::uint64_t blockSize, std::uint64_t blocks) {
    putU64(extent, "BlockSize", blockSize);
    putU64(extent, "NumberOfBlocks", blocks);
    putU64(extent, "ConsumableBlocks", blocks);
    putBool(extent, "Primordial", false);
}

void chunkStatus(const ChunkLayout& chunk, CIMInstance& extent) {
    switch (chunk.state) {
    case 1:  // failed
        putU16s(extent, "ExtentStatus", {kExtentBroken});
        putU16s(extent, "OperationalStatus", {kError});
        break;
    case 2:  // missing
        putU16s(extent, "ExtentStatus", {kExtentBroken});
        putU16s(extent, "OperationalStatus", {kLostCommunication});
        break;
    case 3:  // rebuilding
        putU16s(extent, "ExtentStatus", {kExtentRebuild});
        putU16s(extent, "OperationalStatus", {kOk, kInService});
        break;
    default:
        putU16s(extent, "ExtentStatus", {kExtentNone});
        putU16s(extent, "OperationalStatus", {kOk});
        break;
    }
}

void addChunkExtent(const ControllerLayout& c, const DriveLayout& drive, const ChunkLayout& chunk,
                    ModelSink& sink) {
    unsigned short redundancy = 0;
    for (const PoolLayout& pool : c.pools) {
        redundancy = pool.id == chunk.pool ? pool.packageRedundancy : redundancy;
    }
    CIMInstance& extent = sink.add();
    deviceKeys(extent, c.system, sink.className(), extentId(drive, chunk));
    put(extent, "ElementName", "Chunk " + std::to_string(chunk.member) + " of " + chunk.pool);
    sizeProperties(extent, drive.blockSize, chunk.sizeMB * kMiB / drive.blockSize);
    chunkStatus(chunk, extent);
    put(extent, "DriveDeviceID", drive.id);
    put(extent, "PoolInstanceID", chunk.pool);
    putU64(extent, "StartingBlock", chunk.startMB * kMiB / drive.blockSize);
    putU16(extent, "PackageRedundancy", redundancy);
    putU16(extent, "SpareType", 0);
}

// A spare drive is one extent of its whole capacity, the extent a failed
// member is rebuilt onto.
void addSpareExtent(const ControllerLayout& c, const DriveLayout& drive, ModelSink& sink) {
    CIMInstance& extent = sink.add();
    deviceKeys(extent, c.system, sink.className(), drive.id + "_Spare");
    put(extent, "ElementName", "Spare " + drive.id);
    sizeProperties(extent, drive.blockSize, drive.blocks);
    putU16s(extent, "ExtentStatus", {kExtentNone});
    putU16s(extent, "OperationalStatus", drive.operationalStatus);
    put(extent, "DriveDeviceID", drive.id);
    putU64(extent, "StartingBlock", 0);
    putU16(extent, "SpareType", static_cast<unsigned short>(drive.spare));
    put(extent, "DedicatedTo", drive.dedicatedTo);
}

}  // namespace

void buildConcreteExtents(CacheRecords& records, ModelSink& sink) {
    for (const ControllerLayout& c : layoutOf(records)) {
        for (const DriveLayout& drive : c.drives) {
            for (const ChunkLayout& chunk : drive.chunks) {
                if (!chunk.isFree()) {
                    addChunkExtent(c, drive, chunk, sink);
                }
            }
            if (drive.spare != Spare::None) {
                addSpareExtent(c, drive, sink);
            }
        }
    }
}

void buildRemainingExtents(CacheRecords& records, ModelSink& sink) {
    for (const ControllerLayout& c : layoutOf(records)) {
        for (const DriveLayout& drive : c.drives) {
            for (const ChunkLayout& chunk : drive.chunks) {
                if (!drive.counts || !chunk.isFree()) {
                    continue;
                }
                CIMInstance& extent = sink.add();
                deviceKeys(extent, c.system, sink.className(), extentId(drive, chunk));
                put(extent, "ElementName", "Free space on " + drive.id);
                sizeProperties(extent, drive.blockSize, chunk.sizeMB * kMiB / drive.blockSize);
                putU16s(extent, "ExtentStatus", {kExtentNone});
                putU16s(extent, "OperationalStatus", {kOk});
                put(extent, "DriveDeviceID", drive.id);
                putU64(extent, "StartingBlock", chunk.startMB * kMiB / drive.blockSize);
            }
        }
    }
}

// One per logical drive: its data capacity striped over its member chunks.
void buildCompositeExtents(CacheRecords& records, ModelSink& sink) {
    for (const ControllerLayout& c : layoutOf(records)) {
        for (const PoolLayout& pool : c.pools) {
            const CIMInstance& record = *pool.record;
            const std::uint64_t blockSize = std::max<std::uint64_t>(numberOf(record, "SPBlockSize"), 1);
            CIMInstance& extent = sink.add();
            deviceKeys(extent, c.system, sink.className(), pool.id);
            put(extent, "ElementName", stringValueOf(record, "SPElementName"));
            sizeProperties(extent, blockSize, numberOf(record, "SPTotalManagedSpace") / blockSize);
            putU16s(extent, "ExtentStatus", {kExtentNone});
            std::vector<unsigned short> status;
            for (std::uint64_t s : numbersOf(record, "SPOperationalStatus")) {
                status.push_back(static_cast<unsigned short>(s));
            }
            putU16s(extent, "OperationalStatus", status);
            putU64(extent, "ExtentStripeLength", stringsOf(record, "CEDriveID").size());
            putU64(extent, "ExtentInterleaveDepth", numberOf(record, "SPStripeSize") * 1024 / blockSize);
            putBool(extent, "IsConcatenated", false);
        }
    }
}

}  // namespace vex::cim::fwf::storage
