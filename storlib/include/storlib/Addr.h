// Addr: where an object lives on a controller; AddrCollection: several of them.
#pragma once
#include <storlib/Export.h>

#include <cstdint>
#include <string>
#include <vector>

namespace storlib {

// An address has five components, in this order: controller (adapter) index,
// channel, device, logical drive and a 64-bit extended identifier (a task id,
// an enclosure element, a chunk's start). A component that does not apply
// holds ANY (ANY64 for the extended one); an address with only the controller
// set designates the controller itself.
class STORLIB_API Addr {
public:
    static constexpr uint32_t ANY = 0x7fffffffu;
    static constexpr uint64_t ANY64 = 0x7fffffffffffffffull;

    Addr() = default;
    explicit Addr(uint32_t adapter, uint32_t channel = ANY, uint32_t device = ANY,
                  uint32_t logicalDrive = ANY, uint64_t extended = ANY64)
        : adapter_(adapter), channel_(channel), device_(device), logicalDrive_(logicalDrive),
          extended_(extended) {}

    static Addr controller(uint32_t adapter) { return Addr(adapter); }
    static Addr device(uint32_t adapter, uint32_t channel, uint32_t device) {
        return Addr(adapter, channel, device);
    }
    static Addr logicalDrive(uint32_t adapter, uint32_t id) { return Addr(adapter, ANY, ANY, id); }

    uint32_t getAdapterID() const noexcept { return adapter_; }
    uint32_t getChannelID() const noexcept { return channel_; }
    uint32_t getDeviceID() const noexcept { return device_; }
    uint32_t getLogicalDriveID() const noexcept { return logicalDrive_; }
    uint64_t getExtendedID() const noexcept { return extended_; }

    // The five components in order, written in decimal and joined by '_'.
    std::string toString() const;

    bool operator==(const Addr& o) const noexcept {
        return adapter_ == o.adapter_ && channel_ == o.channel_ && device_ == o.device_ &&
               logicalDrive_ == o.logicalDrive_ && extended_ == o.extended_;
    }
    bool operator!=(const Addr& o) const noexcept { return !(*this == o); }

private:
    uint32_t adapter_ = ANY;
    uint32_t channel_ = ANY;
    uint32_t device_ = ANY;
    uint32_t logicalDrive_ = ANY;
    uint64_t extended_ = ANY64;
};

// A list of addresses, for operations that act on several drives at once.
class STORLIB_API AddrCollection {
public:
    AddrCollection() = default;
    AddrCollection(std::initializer_list<Addr> list) : items_(list) {}
    void add(const Addr& a) { items_.push_back(a); }
    size_t size() const noexcept { return items_.size(); }
    bool empty() const noexcept { return items_.empty(); }
    const Addr& elementAt(size_t i) const { return items_.at(i); }
    std::vector<Addr>::const_iterator begin() const noexcept { return items_.begin(); }
    std::vector<Addr>::const_iterator end() const noexcept { return items_.end(); }

private:
    std::vector<Addr> items_;
};

}  // namespace storlib
