// Adapter: one RAID controller.
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>
#include <storlib/Types.h>

#include <string>
#include <vector>

namespace storlib {

// One capability of the controller (see Feature.h): 1 supported, 0 not
// supported, -1 supported by the hardware but not enabled.
struct FeatureEntry {
    uint32_t id = 0;
    int32_t value = 0;
};

#define STORLIB_ADAPTER_IDENTITY_PROPERTIES(X)                                             \
    X(uint32_t, status, getAdapterStatus, 0)            /* 0: usable */                    \
    X(std::string, model, getModel, {})                                                    \
    X(std::string, serialNumber, getSerialNumber, {})                                      \
    X(std::string, sku, getSKU, {})                                                        \
    X(std::string, hardwareRevision, getHardwareRevision, {})                              \
    X(std::string, wwn, getWWN, {})                                                        \
    X(std::string, firmwareVersion, getFirmwareVersion, {})                                \
    X(uint32_t, firmwareBuild, getFirmwareBuild, 0)                                        \
    X(std::string, biosVersion, getBiosVersion, {})                                        \
    X(std::string, driverVersion, getDeviceDriverVersion, {})                              \
    X(uint32_t, physicalSlot, getPhysicalSlot, 0)                                          \
    X(uint32_t, oemId, getOemId, 0)                                                        \
    X(bool, canBeFRUed, canBeFRUed, true)                                                  \
    X(uint32_t, pciVendorId, getPCIVendorID, 0x9005)                                       \
    X(uint32_t, pciDeviceId, getPCIDeviceID, 0x028f)                                       \
    X(uint32_t, pciSubVendorId, getPCISubSysVendorID, 0x9005)                              \
    X(uint32_t, pciSubDeviceId, getPCISubSysDeviceID, 0x0800)                              \
    X(std::string, hostBusType, getHostBusType, "PCIe")                                    \
    X(std::string, hostBusSpeed, getHostBusSpeed, "8.0 GT/s")                              \
    X(uint32_t, hostBusLinkWidth, getHostBusLinkWidth, 8)

#define STORLIB_ADAPTER_STATE_PROPERTIES(X)                                                \
    X(uint32_t, installedMemoryMB, getInstalledMemorySize, 4096)                           \
    X(uint32_t, cacheMemoryMB, getCacheMemorySize, 4096)                                   \
    X(int32_t, temperatureC, getTemperature, 45)                                           \
    X(int32_t, temperatureLowC, getTemperatureLowThreshold, 0)                             \
    X(int32_t, temperatureHighC, getTemperatureHighThreshold, 105)                         \
    X(bool, ncqEnabled, isNCQEnabled, true)                                                \
    X(TaskPriority, defaultTaskPriority, getDefaultTaskPriority, TaskPriority::High)       \
    X(PerformanceMode, performanceMode, getPerformanceMode, PerformanceMode::Dynamic)      \
    X(uint32_t, supportedPerformanceModes, getSupportedPerformanceModes, 0xf) /* bit per mode */ \
    X(FunctionalMode, functionalMode, getFunctionalMode, FunctionalMode::RAID)             \
    X(bool, stayAwakeActive, isStayAwakeActive, false)                                     \
    X(uint32_t, stayAwakeStartHour, getStayAwakeStart, 0)                                  \
    X(uint32_t, stayAwakeStopHour, getStayAwakeStop, 0)                                    \
    X(uint32_t, stayAwakeDaysSupported, getStayAwakeDaysSupported, 0x7f) /* bit per weekday */ \
    X(uint32_t, stayAwakeEnabledDays, getStayAwakeEnabledDays, 0)                          \
    X(bool, stayAwakeMainEnabled, isStayAwakeMainEnabled, false)                           \
    X(uint32_t, internalSpinUpLimit, getInternalSpinUpLimit, 0)                            \
    X(uint32_t, externalSpinUpLimit, getExternalSpinUpLimit, 0)                            \
    X(uint32_t, numDrives, getNumDrives, 0)                                                \
    X(DriveWriteCachePolicy, sasWriteCachePolicy, getSASWriteCacheMode, DriveWriteCachePolicy::DriveDefault) \
    X(DriveWriteCachePolicy, sataWriteCachePolicy, getSATAWriteCacheMode, DriveWriteCachePolicy::DriveDefault) \
    X(DriveWriteCachePolicy, globalDriveWriteCachePolicy, getGlobalPhysicalDevicesWriteCachePolicy, DriveWriteCachePolicy::DriveDefault) \
    X(LinkRate, globalMaxSASPhyLinkRate, getGlobalMaxSASPhyLinkRate, LinkRate::Rate12G)    \
    X(bool, automaticFailover, isAutomaticFailoverEnabled, true)                           \
    X(bool, copyBackEnabled, isCopyBackEnabled, false)                                     \
    X(bool, statisticsEnabled, isStatisticsCollectionEnabled, false)                       \
    X(int64_t, statisticsResetTime, getStatisticsResetTime, 0)                             \
    X(uint64_t, statReadCommands, getStatReadCommands, 0)                                  \
    X(uint64_t, statWriteCommands, getStatWriteCommands, 0)                                \
    X(uint64_t, statReadMB, getStatReadMB, 0)                                              \
    X(uint64_t, statWriteMB, getStatWriteMB, 0)                                            \
    X(bool, alarmPresent, isAlarmPresent, true)                                            \
    X(AlarmState, alarmState, getAlarmState, AlarmState::Enabled)                          \
    X(bool, alarmSounding, isAlarmSounding, false)                                         \
    X(bool, alarmVisible, isAlarmVisible, false)                                           \
    X(bool, alarmAudible, isAlarmAudible, true)                                            \
    X(bool, bgConsistencyCheckEnabled, isBackgroundConsistencyCheckEnabled, false)         \
    X(uint32_t, bgConsistencyCheckPeriodDays, getBackgroundConsistencyCheckPeriod, 30)     \
    X(uint32_t, taskRateMBps, getTaskRate, 400)         /* background task throughput */   \
    X(uint64_t, legacyLbaLimitMB, getLegacyLbaLimitMB, 2097152) /* 2 TiB */

#define STORLIB_ADAPTER_FASTTIER_PROPERTIES(X)                                             \
    X(bool, supportsFastTier, supportsFastTier, true)                                      \
    X(bool, fastTierBgCoherencyCheck, isFastTierBgCoherencyCheckEnabled, false)            \
    X(uint64_t, fastTierPoolSizeSupportedMB, getTierReadCachePoolSizeSupported, 1048576)   \
    X(uint32_t, numFastTierDrives, getNumFastTierDrives, 0)                                \
    X(uint32_t, maxFastTierDrives, getMaxFastTierDrives, 8)                                \
    X(uint64_t, fastTierPoolSizeMB, getTierReadCachePoolSize, 0)                           \
    X(uint32_t, fastTierFetchRate, getFastTierFetchRate, 2)                                \
    X(uint32_t, fastTierDirtyPageThreshold, getFastTierDirtyPageThreshold, 50)             \
    X(uint32_t, fastTierReadFactor, getFastTierReadFactor, 1)                              \
    X(uint32_t, fastTierWriteFactor, getFastTierWriteFactor, 1)                            \
    X(bool, fastTierWriteEnabled, isFastTierWriteEnabled, false)                           \
    X(bool, fastTierWriteDisableAll, isFastTierWriteDisabledForAll, false)                 \
    X(bool, fastTierDirty, isFastTierDirty, false)

#define STORLIB_ADAPTER_LIMIT_PROPERTIES(X)                                                \
    X(uint32_t, maxTopLevelLDs, getMaxTopLevelLDs, 64)                                     \
    X(uint32_t, maxLDMembers, getMaxLDMembers, 128)                                        \
    X(uint32_t, maxLogicalDrives, getMaxLogicalDrives, 64)                                 \
    X(uint32_t, maxArrays, getMaxArrays, 64)                                               \
    X(uint32_t, maxSpannedArrays, getMaxSpannedArrays, 8)                                  \
    X(uint32_t, maxChannels, getMaxChannels, 4)                                            \
    X(uint32_t, maxIDs, getMaxIDs, 256)                                                    \
    X(uint32_t, maxDevsPerArray, getMaxDevsPerArray, 128)                                  \
    X(uint32_t, maxControllers, getMaxControllers, 16)                                     \
    X(uint32_t, maxJBODs, getMaxJBODs, 256)                                                \
    X(uint32_t, maxConfiguredDrives, getMaxConfiguredDrives, 256)                          \
    X(uint32_t, maxGlobalSpares, getMaxGlobalSpares, 16)                                   \
    X(uint32_t, maxDedicatedSparesPerLD, getMaxDedicatedSparesPerLD, 8)                    \
    X(uint32_t, maxRaid0Members, getMaxRaid0Members, 128)                                  \
    X(uint32_t, maxRaid5Members, getMaxRaid5Members, 32)                                   \
    X(uint32_t, maxRaidVolumeMembers, getMaxRaidVolumeMembers, 8)                          \
    X(uint32_t, maxSpannedVolumeMembers, getMaxSpannedVolumeMembers, 8)                    \
    X(uint32_t, maxSnapshots, getMaxSnapshots, 0)                                          \
    X(uint32_t, maxStripeSizeKB, getMaxStripeSize, 1024)                                   \
    X(uint32_t, minStripeSizeKB, getMinStripeSize, 16)                                     \
    X(uint32_t, maxPhys, getMaxNumberOfPHYs, 16)                                           \
    X(uint32_t, maxSASPorts, getMaxSASPorts, 4)                                            \
    X(uint32_t, maxRaid6Members, getMaxRaid6Members, 32)                                   \
    X(uint32_t, maxRaid1EMembers, getMaxRaid1EMembers, 128)                                \
    X(uint32_t, maxRaid5EEMembers, getMaxRaid5EEMembers, 16)                               \
    X(uint32_t, maxRaid10Members, getMaxRaid10Members, 128)                                \
    X(uint32_t, maxRaid50Members, getMaxRaid50Members, 128)                                \
    X(uint32_t, maxRaid60Members, getMaxRaid60Members, 128)                                \
    X(uint32_t, maxRaid6MajorCycle, getMaxRaid6MajCycle, 16)                               \
    X(std::vector<std::string>, raid6RSDriveCounts, getRaid6RSDriveCounts, {})             \
    X(std::vector<std::string>, raid6DriveCounts, getRaid6DriveCounts, {})                 \
    X(uint32_t, maxSimpleVolumes, getMaxSimpleVolumes, 128)                                \
    X(std::vector<FeatureEntry>, features, getFeatures, {})

#define STORLIB_ADAPTER_PROPERTIES(X)                                                      \
    STORLIB_ADAPTER_IDENTITY_PROPERTIES(X)                                                 \
    STORLIB_ADAPTER_STATE_PROPERTIES(X)                                                    \
    STORLIB_ADAPTER_FASTTIER_PROPERTIES(X)                                                 \
    STORLIB_ADAPTER_LIMIT_PROPERTIES(X)

struct AdapterData {
    STORLIB_ADAPTER_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Address: the controller index only. Children, in this order: "Channel"
// (with the drives and enclosures), "LogicalDrive", "Battery" (when fitted),
// "SASPhy", "SASConnector", "Progress" (one per running task).
class STORLIB_API Adapter : public RaidObject {
    STORLIB_OBJECT_CLASS(Adapter, RaidObject)
public:
    Adapter(const Addr& addr, AdapterData data) : RaidObject(addr), data_(std::move(data)) {}
    ~Adapter() override;

    uint32_t getControllerID() const noexcept { return getAddr().getAdapterID(); }
    STORLIB_ADAPTER_PROPERTIES(STORLIB_PROPERTY_GETTER)

    // The feature query: 1 supported, 0 not supported, -1 not enabled.
    int getFeature(uint32_t featureId) const noexcept;
    const AdapterData& getAdapterData() const noexcept { return data_; }

private:
    AdapterData data_;
};

}  // namespace storlib
