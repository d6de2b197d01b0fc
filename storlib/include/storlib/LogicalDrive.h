// LogicalDrive: a RAID array presented to the host.
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>
#include <storlib/Types.h>

#include <string>

namespace storlib {

#define STORLIB_LOGICAL_DRIVE_PROPERTIES(X)                                                \
    X(std::string, name, getName, {})                                                      \
    X(RaidLevel, raidLevel, getRaidLevel, RaidLevel::Raid0)                                \
    X(LogicalDriveState, state, getState, LogicalDriveState::Optimal)                      \
    X(LogicalDriveState, substate, getSubstate, LogicalDriveState::Optimal) /* health */   \
    X(uint64_t, dataSizeMB, getDataSizeMB, 0)        /* capacity seen by the host */       \
    X(uint64_t, rawSizeMB, getRawSizeMB, 0)          /* all member chunks together */      \
    X(uint64_t, mirrorSpaceMB, getMirrorSpaceMB, 0)                                        \
    X(uint64_t, paritySpaceMB, getParitySpaceMB, 0)                                        \
    X(uint32_t, stripeSizeKB, getStripeSizeKB, 256)                                        \
    X(uint32_t, blockSize, getBlockSize, 512)                                              \
    X(uint32_t, legs, getLegs, 1)                    /* sub-arrays of RAID 50/60 */         \
    X(uint32_t, memberCount, getMemberCount, 0)                                            \
    X(uint32_t, serialNumber, getSerialNumber, 0)                                          \
    X(int64_t, creationTime, getCreationTime, 0)     /* seconds since the epoch */         \
    X(ReadCacheMode, readCache, getReadCacheMode, ReadCacheMode::On)                       \
    X(WriteCacheMode, writeCache, getWriteCacheMode, WriteCacheMode::WriteBackWhenProtected) \
    X(bool, writeCacheActive, isWriteCacheActive, false) /* write-back in effect now */    \
    X(TaskPriority, taskPriority, getTaskPriority, TaskPriority::Medium)                   \
    X(InterfaceType, interfaceType, getInterfaceType, InterfaceType::Unknown) /* Unknown when mixed */ \
    X(bool, mixedMedia, hasMixedMedia, false)                                              \
    X(bool, hotSpareProtected, isHotSpareProtected, false)                                 \
    X(uint32_t, badStripes, getBadStripes, 0)                                              \
    X(bool, initialized, isInitialized, true)                                              \
    X(bool, quickInitialized, isQuickInitialized, false)                                   \
    X(uint32_t, forceOnlineFlags, getForceOnlineFlags, 0)                                  \
    X(bool, hasPartition, hasPartition, false)                                             \
    X(std::string, mountPoint, getMountPoint, {})                                          \
    X(bool, bootDisk, isBootDisk, false)                                                   \
    X(uint32_t, raid5EEState, getRaid5EEState, 0)                                          \
    X(bool, extendedLba, hasExtendedLba, true)       /* exempt from the legacy size limit */ \
    X(bool, powerManagementEnabled, isPowerManagementEnabled, false)                       \
    X(uint32_t, powerState, getPowerState, 0)                                              \
    X(uint32_t, powerOffTimerMin, getPowerOffTimer, 0)                                     \
    X(uint32_t, reduceRpmTimerMin, getReduceRPMTimer, 0)                                   \
    X(uint32_t, verifyTimerHours, getVerifyTimer, 0)                                       \
    X(uint32_t, fastTierPreferred, getPreferredFastTierSetting, 0)                         \
    X(uint32_t, fastTierSetting, getFastTierSetting, 0)                                    \
    X(uint32_t, fastTierWriteCachePreferred, getPreferredFastTierWriteCacheSetting, 0)     \
    X(uint32_t, fastTierWriteCacheSetting, getFastTierWriteCacheSetting, 0)                \
    X(uint32_t, fastTierWriteCachePolicy, getFastTierWriteCachePolicy, 0)                  \
    X(bool, isFastTier3, isFastTier3, false)                                               \
    X(bool, fastTierWCProtected, isFastTierWCProtected, false)                             \
    X(bool, fastTierWCNoBattery, isFastTierWCNoBattery, false)                             \
    X(bool, fastTierWCNonRedundant, isFastTierWCNonRedundant, false)                       \
    X(bool, fastTierDirty, isFastTierDirty, false)                                         \
    X(bool, fastTierBgCheck, isFastTierBgCheckEnabled, false)                              \
    X(bool, locateActive, isLocateActive, false)

struct LogicalDriveData {
    STORLIB_LOGICAL_DRIVE_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Address: controller and logical drive id. Children: one "Chunk" per member,
// in member order.
class STORLIB_API LogicalDrive : public RaidObject {
    STORLIB_OBJECT_CLASS(LogicalDrive, RaidObject)
public:
    LogicalDrive(const Addr& addr, LogicalDriveData data) : RaidObject(addr), data_(std::move(data)) {}
    ~LogicalDrive() override;

    uint32_t getLogicalDriveID() const noexcept { return getAddr().getLogicalDriveID(); }
    STORLIB_LOGICAL_DRIVE_PROPERTIES(STORLIB_PROPERTY_GETTER)
    uint64_t getNumberOfBlocks() const noexcept { return data_.dataSizeMB * (1024 * 1024 / data_.blockSize); }
    const LogicalDriveData& getLogicalDriveData() const noexcept { return data_; }

private:
    LogicalDriveData data_;
};

}  // namespace storlib
