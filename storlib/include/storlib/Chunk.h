// Chunk: a contiguous extent of one drive; a member of a logical drive or free space.
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>
#include <storlib/Types.h>

namespace storlib {

#define STORLIB_CHUNK_PROPERTIES(X)                                                        \
    X(uint32_t, channelID, getChannelID, 0)                                                \
    X(uint32_t, deviceID, getDeviceID, 0)                                                  \
    X(uint64_t, startMB, getStartMB, 0)                                                    \
    X(uint64_t, sizeMB, getSizeMB, 0)                                                      \
    X(ChunkState, state, getState, ChunkState::Ok)                                         \
    X(uint32_t, memberIndex, getMemberIndex, 0)   /* position in the logical drive */      \
    X(uint32_t, logicalDriveID, getLogicalDriveID, Addr::ANY)  /* ANY for free space */

struct ChunkData {
    STORLIB_CHUNK_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Address: controller, channel, device, logical drive (ANY when free) and the
// chunk's start in MiB as extended component.
class STORLIB_API Chunk : public RaidObject {
    STORLIB_OBJECT_CLASS(Chunk, RaidObject)
public:
    Chunk(const Addr& addr, ChunkData data) : RaidObject(addr), data_(data) {}
    ~Chunk() override;

    STORLIB_CHUNK_PROPERTIES(STORLIB_PROPERTY_GETTER)
    bool isFree() const noexcept { return data_.state == ChunkState::Free; }
    Addr getDriveAddr() const { return Addr(getAddr().getAdapterID(), data_.channelID, data_.deviceID); }
    const ChunkData& getChunkData() const noexcept { return data_; }

private:
    ChunkData data_;
};

}  // namespace storlib
