// SystemConfig: the root of a configuration snapshot of all controllers.
#pragma once
#include <storlib/Adapter.h>
#include <storlib/RaidObject.h>

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

namespace storlib {

struct AddrHash {
    size_t operator()(const Addr& a) const noexcept;
};

// A snapshot is immutable. Every object reached from it (adapters, drives,
// logical drives, chunks, elements, tasks) stays valid while the snapshot is
// held; taking a new snapshot never changes an old one.
class STORLIB_API SystemConfig : public RaidObject {
    STORLIB_OBJECT_CLASS(SystemConfig, RaidObject)
public:
    SystemConfig();
    ~SystemConfig() override;

    size_t getAdapterCount() const noexcept { return getChildren().size(); }
    const Adapter* getAdapter(size_t index) const;
    // Controller clock at the moment of the snapshot, seconds since the epoch.
    int64_t getTime() const noexcept { return time_; }
    // Changes whenever the configuration or a task's progress changes.
    uint64_t getGeneration() const noexcept { return generation_; }

private:
    friend class detail::SnapshotBuilder;
    friend class RaidObject;
    std::vector<std::unique_ptr<RaidObject>> arena_;
    std::unordered_map<Addr, const RaidObject*, AddrHash> index_;
    int64_t time_ = 0;
    uint64_t generation_ = 0;
};

}  // namespace storlib
