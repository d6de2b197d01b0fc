// Names of enumeration values, as the controller tools print them. The same
// names are used in system description files.
#pragma once
#include <storlib/Export.h>
#include <storlib/Types.h>

#include <optional>
#include <string_view>

namespace storlib {

STORLIB_API const char* toString(RaidLevel v);
STORLIB_API const char* toString(DriveState v);
STORLIB_API const char* toString(SpareType v);
STORLIB_API const char* toString(LogicalDriveState v);
STORLIB_API const char* toString(ChunkState v);
STORLIB_API const char* toString(InterfaceType v);
STORLIB_API const char* toString(MediaType v);
STORLIB_API const char* toString(DeviceType v);
STORLIB_API const char* toString(TaskType v);
STORLIB_API const char* toString(TaskState v);
STORLIB_API const char* toString(TaskPriority v);
STORLIB_API const char* toString(InitMethod v);
STORLIB_API const char* toString(ReadCacheMode v);
STORLIB_API const char* toString(WriteCacheMode v);
STORLIB_API const char* toString(AlarmState v);
STORLIB_API const char* toString(FunctionalMode v);
STORLIB_API const char* toString(PerformanceMode v);
STORLIB_API const char* toString(BatteryStatus v);
STORLIB_API const char* toString(LinkRate v);
STORLIB_API const char* toString(DriveWriteCachePolicy v);
STORLIB_API const char* toString(SESElementType v);
STORLIB_API const char* toString(SESStatus v);
STORLIB_API const char* toString(LogType v);

// Parses a name written by toString (case-insensitive). RAID levels also
// accept the request names "RAID5EE", "SIMPLEVOLUME", ...
template <class E> std::optional<E> fromString(std::string_view name);
template <> STORLIB_API std::optional<RaidLevel> fromString<RaidLevel>(std::string_view name);
template <> STORLIB_API std::optional<DriveState> fromString<DriveState>(std::string_view name);
template <> STORLIB_API std::optional<SpareType> fromString<SpareType>(std::string_view name);
template <> STORLIB_API std::optional<LogicalDriveState> fromString<LogicalDriveState>(std::string_view name);
template <> STORLIB_API std::optional<ChunkState> fromString<ChunkState>(std::string_view name);
template <> STORLIB_API std::optional<InterfaceType> fromString<InterfaceType>(std::string_view name);
template <> STORLIB_API std::optional<MediaType> fromString<MediaType>(std::string_view name);
template <> STORLIB_API std::optional<DeviceType> fromString<DeviceType>(std::string_view name);
template <> STORLIB_API std::optional<TaskType> fromString<TaskType>(std::string_view name);
template <> STORLIB_API std::optional<TaskState> fromString<TaskState>(std::string_view name);
template <> STORLIB_API std::optional<TaskPriority> fromString<TaskPriority>(std::string_view name);
template <> STORLIB_API std::optional<InitMethod> fromString<InitMethod>(std::string_view name);
template <> STORLIB_API std::optional<ReadCacheMode> fromString<ReadCacheMode>(std::string_view name);
template <> STORLIB_API std::optional<WriteCacheMode> fromString<WriteCacheMode>(std::string_view name);
template <> STORLIB_API std::optional<AlarmState> fromString<AlarmState>(std::string_view name);
template <> STORLIB_API std::optional<FunctionalMode> fromString<FunctionalMode>(std::string_view name);
template <> STORLIB_API std::optional<PerformanceMode> fromString<PerformanceMode>(std::string_view name);
template <> STORLIB_API std::optional<BatteryStatus> fromString<BatteryStatus>(std::string_view name);
template <> STORLIB_API std::optional<LinkRate> fromString<LinkRate>(std::string_view name);
template <> STORLIB_API std::optional<DriveWriteCachePolicy> fromString<DriveWriteCachePolicy>(std::string_view name);
template <> STORLIB_API std::optional<SESElementType> fromString<SESElementType>(std::string_view name);
template <> STORLIB_API std::optional<SESStatus> fromString<SESStatus>(std::string_view name);
template <> STORLIB_API std::optional<LogType> fromString<LogType>(std::string_view name);

}  // namespace storlib
