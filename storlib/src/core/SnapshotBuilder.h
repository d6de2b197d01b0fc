// Turns the model into the immutable object tree consumers read.
#pragma once
#include "sim/Model.h"

#include <storlib/Chunk.h>
#include <storlib/SystemConfig.h>

#include <map>
#include <vector>

#include <memory>

namespace storlib::detail {

class SnapshotBuilder {
public:
    static std::shared_ptr<const SystemConfig> build(const sim::Model& m, uint64_t generation);

private:
    explicit SnapshotBuilder(const sim::Model& m) : m_(m) {}
    template <class T, class... A> T* add(RaidObject* parent, A&&... args);
    void adapter(const sim::ControllerRec& c, uint32_t index);
    void channel(RaidObject* parent, const sim::ControllerRec& c, const sim::ChannelRec& ch, uint32_t index);
    void drive(RaidObject* parent, const sim::ControllerRec& c, const sim::DriveRec& d, uint32_t index);
    void enclosure(RaidObject* parent, const sim::ControllerRec& c, const sim::EnclosureRec& e, uint32_t index);
    void logicalDrive(RaidObject* parent, const sim::ControllerRec& c, const sim::LdRec& ld, uint32_t index);
    void extras(RaidObject* parent, const sim::ControllerRec& c, uint32_t index);

    const sim::Model& m_;
    std::shared_ptr<SystemConfig> root_;
    // Chunks of the current controller's logical drives, by (channel, device).
    std::map<std::pair<uint32_t, uint32_t>, std::vector<ChunkData>> chunks_;
};

}  // namespace storlib::detail
