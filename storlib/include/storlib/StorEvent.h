// StorEvent: one entry of a controller's event queue; StorEventCollection: a batch of them.
#pragma once
#include <storlib/Addr.h>
#include <storlib/Export.h>

#include <cstdint>
#include <string>
#include <vector>

namespace storlib {

// Event types. Each event also carries three detail words; their meaning per type:
namespace EventType {
constexpr uint32_t Info = 0x1;                   // d1: 1 rescan done, 2 library note
constexpr uint32_t DriveState = 0x4;             // d1 new DriveState, d2 old DriveState
constexpr uint32_t LogicalDriveState = 0x8;      // d1 new LogicalDriveState, d2 old
constexpr uint32_t Locate = 0x10;                // d1 1 on, 0 off
constexpr uint32_t DriveAdded = 0x20;
constexpr uint32_t DriveRemoved = 0x40;
constexpr uint32_t SpareChange = 0x80;           // d1 1 global assigned, 2 dedicated assigned, 3 removed
constexpr uint32_t LogicalDriveProperty = 0x100; // d1 1 name, 2 cache, 3 power, 4 fast tier, 5 priority
constexpr uint32_t LogCleared = 0x200;
constexpr uint32_t Statistics = 0x400;           // d1 1 enabled, 0 disabled, 2 counters reset
constexpr uint32_t ControllerState = 0x1000;     // d1 new status, d2 old status
constexpr uint32_t ControllerSetting = 0x1001;   // d1 which setting
constexpr uint32_t Battery = 0x2000;             // d1 1 ok, 2 low, 3 failed, 4 missing, 5 charging, 6 charge level update
constexpr uint32_t DriveProperty = 0x4000;       // d1 1 write cache, 2 protect, 3 power, 4 smart, 5 fast tier
constexpr uint32_t ConfigChange = 0x8000;        // d3 0 none, 1 created, 2 deleted, 3 modified, 4 drives, 5 cosmetic, 6 restored/reset
constexpr uint32_t SmartWarning = 0x20000;
constexpr uint32_t LogicalDriveCache = 0x40000;
constexpr uint32_t DriveCounters = 0x80000;
constexpr uint32_t EnclosureStatus = 0x100000;   // d1 1 fan, 2 power supply, 3 slot, 4 enclosure, 5 temperature reading, d2 element index, d3 SESStatus
constexpr uint32_t Fan = 0x200000;
constexpr uint32_t PowerSupply = 0x400000;
constexpr uint32_t TemperatureAlarm = 0x40000b;  // d1 temperature, d2 threshold
constexpr uint32_t FastTier = 0x2000000;
constexpr uint32_t Firmware = 0x4000000;         // d1 1 controller, 2 drive
constexpr uint32_t Alarm = 0x8000000;            // d1 new AlarmState, d2 sounding
constexpr uint32_t Task = 0x10000000;            // d1 1 progress, 2 started, 3 completed, 4 failed/aborted; d2 TaskType; d3 percent
constexpr uint32_t PhyLink = 0x20000000;
constexpr uint32_t ConfigRestored = 0x2000000a;
}  // namespace EventType

struct StorEventData {
    uint64_t sequence = 0;  // increases by one per event of the controller
    int64_t time = 0;       // controller clock, seconds since the epoch
    uint32_t type = 0;
    uint32_t detail1 = 0, detail2 = 0, detail3 = 0;
    uint32_t channelID = Addr::ANY, deviceID = Addr::ANY, logicalDriveID = Addr::ANY;
    uint64_t extendedID = Addr::ANY64;
    std::string description;
};

class STORLIB_API StorEvent {
public:
    StorEvent(uint32_t adapter, StorEventData data) : adapter_(adapter), data_(std::move(data)) {}
    uint64_t getSequence() const noexcept { return data_.sequence; }
    int64_t getTime() const noexcept { return data_.time; }
    uint32_t getType() const noexcept { return data_.type; }
    // index 0, 1, 2: the first, second and third detail word.
    uint32_t getDetail(int index) const noexcept;
    Addr getAddr() const {
        return Addr(adapter_, data_.channelID, data_.deviceID, data_.logicalDriveID, data_.extendedID);
    }
    const std::string& getDescription() const noexcept { return data_.description; }
    const StorEventData& getData() const noexcept { return data_; }

private:
    uint32_t adapter_;
    StorEventData data_;
};

class STORLIB_API StorEventCollection {
public:
    size_t size() const noexcept { return items_.size(); }
    bool empty() const noexcept { return items_.empty(); }
    const StorEvent& elementAt(size_t i) const { return items_.at(i); }
    void add(StorEvent e) { items_.push_back(std::move(e)); }
    void clear() noexcept { items_.clear(); }
    std::vector<StorEvent>::const_iterator begin() const noexcept { return items_.begin(); }
    std::vector<StorEvent>::const_iterator end() const noexcept { return items_.end(); }

private:
    std::vector<StorEvent> items_;
};

}  // namespace storlib
