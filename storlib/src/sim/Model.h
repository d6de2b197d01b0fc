// The simulated system: every controller with its drives, logical drives,
// enclosures, tasks and events. This is what the state file holds.
#pragma once
#include <storlib/Adapter.h>
#include <storlib/Battery.h>
#include <storlib/Channel.h>
#include <storlib/Chunk.h>
#include <storlib/Enclosure.h>
#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>
#include <storlib/Progress.h>
#include <storlib/SASConnector.h>
#include <storlib/SASPhy.h>
#include <storlib/SESElement.h>
#include <storlib/StorEvent.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace storlib::sim {

struct ChunkRec {
    uint32_t channel = 0, device = 0;
    uint64_t startMB = 0, sizeMB = 0;
    ChunkState state = ChunkState::Ok;
};

struct DriveRec {
    uint32_t channel = 0, device = 0;
    PhysicalDeviceData dev;
    HardDriveData hd;
    DriveState pulledFrom = DriveState::Ready;  // state before the drive went missing
};

struct LdRec {
    uint32_t id = 0;
    LogicalDriveData ld;
    std::vector<ChunkRec> members;
    // While a migration runs: the layout it produces.
    bool migrating = false;
    RaidLevel targetLevel = RaidLevel::Raid0;
    uint32_t targetLegs = 1;
    uint32_t targetStripeKB = 256;
    uint64_t targetDataMB = 0;
    std::vector<ChunkRec> target;
};

struct FanRec { SESElementData el; FanData d; };
struct PowerSupplyRec { SESElementData el; PowerSupplyData d; };
struct SensorRec { SESElementData el; TemperatureSensorData d; };
struct SlotRec { SESElementData el; SlotData d; };

struct EnclosureRec {
    uint32_t channel = 0, device = 0;
    PhysicalDeviceData dev;
    EnclosureData enc;
    SES2Data ses;
    std::vector<FanRec> fans;
    std::vector<PowerSupplyRec> powerSupplies;
    std::vector<SensorRec> temperatureSensors;
    std::vector<SlotRec> slots;
};

struct ChannelRec {
    uint32_t id = 0;
    ChannelData d;
};

struct TaskRec {
    ProgressData p;
    double workMB = 0;     // amount of work of the whole task
    double doneMB = 0;     // done at `anchor`
    double anchor = 0;     // controller time of the last rate change
    uint32_t lastStep = 0; // last 10 % step reported as an event
};

struct ControllerRec {
    uint32_t uid = 0;       // stable identity, also across removal
    bool present = true;
    AdapterData ad;
    std::vector<ChannelRec> channels;
    std::vector<DriveRec> drives;
    std::vector<LdRec> logicalDrives;
    std::vector<EnclosureRec> enclosures;
    std::optional<BatteryData> battery;
    std::vector<SASPhyData> phys;
    std::vector<SASConnectorData> connectors;
    std::vector<TaskRec> tasks;
    std::deque<StorEventData> events;
    uint64_t nextSequence = 1;
    uint64_t logStartSequence = 0;  // the controller log shows later events only
    uint32_t nextTaskId = 1;
};

struct ClockRec {
    double simAnchor = 0;   // controller time at wallAnchor
    double wallAnchor = 0;  // wall-clock time (seconds since the epoch)
    double scale = 1;       // controller seconds per wall second; 0: manual
};

struct Model {
    ClockRec clock;
    std::vector<ControllerRec> controllers;
    uint32_t eventQueueSize = 1024;
    // Not persisted: controller time of the operation in progress.
    double now = 0;
};

}  // namespace storlib::sim
