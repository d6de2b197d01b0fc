// Enumerations of the StorLib object model. Numeric values are part of the
// interface: they are what the controller firmware reports.
#pragma once
#include <cstdint>

namespace storlib {

enum class RaidLevel : uint32_t {
    Raid0 = 0, Raid1 = 1, Raid1E = 2, Raid5 = 5, Raid5E = 6, Raid5EE = 7, Raid00 = 8,
    Raid10 = 9, Raid1E0 = 10, Raid50 = 11, Raid5E0 = 12, SpannedVolume = 13,
    RaidVolume = 14, SimpleVolume = 15, Raid6 = 16, Raid60 = 17,
    Invalid = 0x7fffffff,
};

// State of a hard drive. Failed is 4.
enum class DriveState : uint32_t {
    Ready = 0,       // initialised, holds no logical drive data
    Online = 1,      // member of one or more logical drives
    HotSpare = 2,    // global or dedicated spare
    Rebuilding = 3,  // target of a running rebuild
    Failed = 4,
    Offline = 5,     // taken offline by request
    JBOD = 6,        // exposed to the host as a plain disk
    Missing = 7,     // was configured, is not present any more
    Raw = 8,         // uninitialised: carries no controller metadata
};

enum class SpareType : uint32_t { None = 0, Global = 1, Dedicated = 2 };

// State of a logical drive: its health, or the task that dominates it.
enum class LogicalDriveState : uint32_t {
    Optimal = 0, Degraded = 1, Failed = 2, Building = 3, Rebuilding = 4, Verifying = 5,
    Migrating = 6,
};

enum class ChunkState : uint32_t { Ok = 0, Failed = 1, Missing = 2, Rebuilding = 3, Free = 4 };

enum class InterfaceType : uint32_t { Unknown = 0, SAS = 1, SATA = 2, NVMe = 3 };
enum class MediaType : uint32_t { HDD = 0, SSD = 1 };

// SCSI peripheral device type of a physical device.
enum class DeviceType : uint32_t { Disk = 0, Tape = 1, Processor = 3, CDROM = 5, Enclosure = 13, Unknown = 31 };

enum class TaskType : uint32_t {
    Build = 1,          // build redundancy of a new logical drive
    Clear = 2,          // zero a new logical drive
    Rebuild = 3,        // rebuild a degraded logical drive onto a drive
    Verify = 4,         // check parity/mirror consistency
    VerifyFix = 5,      // check and repair parity/mirror consistency
    DriveVerify = 6,    // media verify of one drive
    DriveClear = 7,     // zero one drive
    SecureErase = 8,    // cryptographic erase of one drive
    CopyBack = 9,
    FastTierCoherency = 10,
    Migrate = 16,       // RAID level migration or capacity expansion
};

enum class TaskState : uint32_t { Running = 0, Completed = 2, Failed = 3, Aborted = 4 };
enum class TaskPriority : uint32_t { High = 1, Medium = 2, Low = 3 };

enum class InitMethod : uint32_t { Build = 0, Clear = 1, Quick = 2, Skip = 3 };
enum class ReadCacheMode : uint32_t { Off = 0, On = 1 };
enum class WriteCacheMode : uint32_t { WriteThrough = 0, WriteBack = 1, WriteBackWhenProtected = 2 };

enum class AlarmState : uint32_t { Disabled = 0, Enabled = 1, Silenced = 2 };
enum class FunctionalMode : uint32_t { RAID = 0, HBA = 1, Mixed = 2 };
enum class PerformanceMode : uint32_t { Dynamic = 0, OLTP = 1, BigBlock = 2, UserDefined = 3 };

enum class BatteryStatus : uint32_t { Ok = 0, Charging = 1, Low = 2, Failed = 3, Missing = 4, NeedsRecondition = 5 };

// SAS negotiated/programmed link rates, as coded in SMP/SES.
enum class LinkRate : uint32_t { Unknown = 0, Disabled = 1, Rate1_5G = 8, Rate3G = 9, Rate6G = 10, Rate12G = 11 };

enum class DriveWriteCachePolicy : uint32_t { DriveDefault = 0, Enabled = 1, Disabled = 2 };

// SES-2 element type codes and element status codes.
enum class SESElementType : uint32_t { DeviceSlot = 1, PowerSupply = 2, Cooling = 3, TemperatureSensor = 4, ArrayDeviceSlot = 0x17 };
enum class SESStatus : uint32_t { Unsupported = 0, OK = 1, Critical = 2, NonCritical = 3, Unrecoverable = 4, NotInstalled = 5, Unknown = 6, NotAvailable = 7 };

enum class LogType : uint32_t { Event = 0, Statistics = 1, Device = 2 };

}  // namespace storlib
