// Names of enumeration values (one table per enumeration).
#include <storlib/Names.h>

#include <strings.h>

#include <string>
#include <utility>

namespace storlib {
namespace {

template <class E> struct NameTable;
#define STORLIB_NAMES(E, ...)                                                              \
    template <> struct NameTable<E> {                                                      \
        static constexpr std::pair<E, const char*> items[] = {__VA_ARGS__};                \
    };

STORLIB_NAMES(RaidLevel, {RaidLevel::Raid0, "RAID0"}, {RaidLevel::Raid1, "RAID1"},
    {RaidLevel::Raid1E, "RAID1E"}, {RaidLevel::Raid5, "RAID5"}, {RaidLevel::Raid5E, "RAID5E"},
    {RaidLevel::Raid5EE, "RAID5EE"}, {RaidLevel::Raid00, "RAID00"}, {RaidLevel::Raid10, "RAID10"},
    {RaidLevel::Raid1E0, "RAID1E0"}, {RaidLevel::Raid50, "RAID50"}, {RaidLevel::Raid5E0, "RAID5E0"},
    {RaidLevel::SpannedVolume, "SPANNEDVOLUME"}, {RaidLevel::RaidVolume, "RAIDVOLUME"},
    {RaidLevel::SimpleVolume, "SIMPLEVOLUME"}, {RaidLevel::Raid6, "RAID6"},
    {RaidLevel::Raid60, "RAID60"}, {RaidLevel::Invalid, "INVALID"})
STORLIB_NAMES(DriveState, {DriveState::Ready, "ready"}, {DriveState::Online, "online"},
    {DriveState::HotSpare, "hotspare"}, {DriveState::Rebuilding, "rebuilding"},
    {DriveState::Failed, "failed"}, {DriveState::Offline, "offline"}, {DriveState::JBOD, "jbod"},
    {DriveState::Missing, "missing"}, {DriveState::Raw, "raw"})
STORLIB_NAMES(SpareType, {SpareType::None, "none"}, {SpareType::Global, "global"},
    {SpareType::Dedicated, "dedicated"})
STORLIB_NAMES(LogicalDriveState, {LogicalDriveState::Optimal, "optimal"},
    {LogicalDriveState::Degraded, "degraded"}, {LogicalDriveState::Failed, "failed"},
    {LogicalDriveState::Building, "building"}, {LogicalDriveState::Rebuilding, "rebuilding"},
    {LogicalDriveState::Verifying, "verifying"}, {LogicalDriveState::Migrating, "migrating"})
STORLIB_NAMES(ChunkState, {ChunkState::Ok, "ok"}, {ChunkState::Failed, "failed"},
    {ChunkState::Missing, "missing"}, {ChunkState::Rebuilding, "rebuilding"}, {ChunkState::Free, "free"})
STORLIB_NAMES(InterfaceType, {InterfaceType::Unknown, "unknown"}, {InterfaceType::SAS, "SAS"},
    {InterfaceType::SATA, "SATA"}, {InterfaceType::NVMe, "NVMe"})
STORLIB_NAMES(MediaType, {MediaType::HDD, "HDD"}, {MediaType::SSD, "SSD"})
STORLIB_NAMES(DeviceType, {DeviceType::Disk, "disk"}, {DeviceType::Tape, "tape"},
    {DeviceType::Processor, "processor"}, {DeviceType::CDROM, "cdrom"},
    {DeviceType::Enclosure, "enclosure"}, {DeviceType::Unknown, "unknown"})
STORLIB_NAMES(TaskType, {TaskType::Build, "build"}, {TaskType::Clear, "clear"},
    {TaskType::Rebuild, "rebuild"}, {TaskType::Verify, "verify"}, {TaskType::VerifyFix, "verifyfix"},
    {TaskType::DriveVerify, "driveverify"}, {TaskType::DriveClear, "driveclear"},
    {TaskType::SecureErase, "secureerase"}, {TaskType::CopyBack, "copyback"},
    {TaskType::FastTierCoherency, "fasttiercoherency"}, {TaskType::Migrate, "migrate"})
STORLIB_NAMES(TaskState, {TaskState::Running, "running"}, {TaskState::Completed, "completed"},
    {TaskState::Failed, "failed"}, {TaskState::Aborted, "aborted"})
STORLIB_NAMES(TaskPriority, {TaskPriority::High, "high"}, {TaskPriority::Medium, "medium"},
    {TaskPriority::Low, "low"})
STORLIB_NAMES(InitMethod, {InitMethod::Build, "build"}, {InitMethod::Clear, "clear"},
    {InitMethod::Quick, "quick"}, {InitMethod::Skip, "skip"})
STORLIB_NAMES(ReadCacheMode, {ReadCacheMode::Off, "off"}, {ReadCacheMode::On, "on"})
STORLIB_NAMES(WriteCacheMode, {WriteCacheMode::WriteThrough, "writethrough"},
    {WriteCacheMode::WriteBack, "writeback"},
    {WriteCacheMode::WriteBackWhenProtected, "writebackwhenprotected"})
STORLIB_NAMES(AlarmState, {AlarmState::Disabled, "disabled"}, {AlarmState::Enabled, "enabled"},
    {AlarmState::Silenced, "silenced"})
STORLIB_NAMES(FunctionalMode, {FunctionalMode::RAID, "raid"}, {FunctionalMode::HBA, "hba"},
    {FunctionalMode::Mixed, "mixed"})
STORLIB_NAMES(PerformanceMode, {PerformanceMode::Dynamic, "dynamic"}, {PerformanceMode::OLTP, "oltp"},
    {PerformanceMode::BigBlock, "bigblock"}, {PerformanceMode::UserDefined, "userdefined"})
STORLIB_NAMES(BatteryStatus, {BatteryStatus::Ok, "ok"}, {BatteryStatus::Charging, "charging"},
    {BatteryStatus::Low, "low"}, {BatteryStatus::Failed, "failed"}, {BatteryStatus::Missing, "missing"},
    {BatteryStatus::NeedsRecondition, "needsrecondition"})
STORLIB_NAMES(LinkRate, {LinkRate::Unknown, "unknown"}, {LinkRate::Disabled, "disabled"},
    {LinkRate::Rate1_5G, "1.5G"}, {LinkRate::Rate3G, "3G"}, {LinkRate::Rate6G, "6G"},
    {LinkRate::Rate12G, "12G"})
STORLIB_NAMES(DriveWriteCachePolicy, {DriveWriteCachePolicy::DriveDefault, "drivedefault"},
    {DriveWriteCachePolicy::Enabled, "enabled"}, {DriveWriteCachePolicy::Disabled, "disabled"})
STORLIB_NAMES(SESElementType, {SESElementType::DeviceSlot, "deviceslot"},
    {SESElementType::PowerSupply, "powersupply"}, {SESElementType::Cooling, "cooling"},
    {SESElementType::TemperatureSensor, "temperaturesensor"},
    {SESElementType::ArrayDeviceSlot, "arraydeviceslot"})
STORLIB_NAMES(SESStatus, {SESStatus::Unsupported, "unsupported"}, {SESStatus::OK, "ok"},
    {SESStatus::Critical, "critical"}, {SESStatus::NonCritical, "noncritical"},
    {SESStatus::Unrecoverable, "unrecoverable"}, {SESStatus::NotInstalled, "notinstalled"},
    {SESStatus::Unknown, "unknown"}, {SESStatus::NotAvailable, "notavailable"})
STORLIB_NAMES(LogType, {LogType::Event, "event"}, {LogType::Statistics, "statistics"},
    {LogType::Device, "device"})

template <class E> const char* nameOf(E v) {
    for (const auto& [value, name] : NameTable<E>::items)
        if (value == v) return name;
    return "?";
}

template <class E> std::optional<E> valueOf(std::string_view text) {
    for (const auto& [value, name] : NameTable<E>::items)
        if (text.size() == std::char_traits<char>::length(name) &&
            strncasecmp(text.data(), name, text.size()) == 0)
            return value;
    return std::nullopt;
}

}  // namespace

#define STORLIB_NAME_FUNCTIONS(E)                                                          \
    const char* toString(E v) { return nameOf(v); }                                        \
    template <> std::optional<E> fromString<E>(std::string_view name) { return valueOf<E>(name); }

STORLIB_NAME_FUNCTIONS(RaidLevel)
STORLIB_NAME_FUNCTIONS(DriveState)
STORLIB_NAME_FUNCTIONS(SpareType)
STORLIB_NAME_FUNCTIONS(LogicalDriveState)
STORLIB_NAME_FUNCTIONS(ChunkState)
STORLIB_NAME_FUNCTIONS(InterfaceType)
STORLIB_NAME_FUNCTIONS(MediaType)
STORLIB_NAME_FUNCTIONS(DeviceType)
STORLIB_NAME_FUNCTIONS(TaskType)
STORLIB_NAME_FUNCTIONS(TaskState)
STORLIB_NAME_FUNCTIONS(TaskPriority)
STORLIB_NAME_FUNCTIONS(InitMethod)
STORLIB_NAME_FUNCTIONS(ReadCacheMode)
STORLIB_NAME_FUNCTIONS(WriteCacheMode)
STORLIB_NAME_FUNCTIONS(AlarmState)
STORLIB_NAME_FUNCTIONS(FunctionalMode)
STORLIB_NAME_FUNCTIONS(PerformanceMode)
STORLIB_NAME_FUNCTIONS(BatteryStatus)
STORLIB_NAME_FUNCTIONS(LinkRate)
STORLIB_NAME_FUNCTIONS(DriveWriteCachePolicy)
STORLIB_NAME_FUNCTIONS(SESElementType)
STORLIB_NAME_FUNCTIONS(SESStatus)
STORLIB_NAME_FUNCTIONS(LogType)

}  // namespace storlib
