// HardDrive: a disk drive (HDD or SSD) on a controller channel.
#pragma once
#include <storlib/PhysicalDevice.h>

namespace storlib {

#define STORLIB_HARD_DRIVE_PROPERTIES(X)                                                   \
    X(MediaType, mediaType, getMediaType, MediaType::HDD)                                  \
    X(uint64_t, sizeMB, getSizeMB, 0)                 /* raw capacity, MiB */              \
    X(uint32_t, blockSize, getBlockSize, 512)                                              \
    X(uint32_t, rpm, getRotationRate, 0)              /* 1 for non-rotating media */       \
    X(DriveState, state, getState, DriveState::Ready)                                      \
    X(SpareType, spareType, getSpareType, SpareType::None)                                 \
    X(std::vector<uint32_t>, dedicatedTo, getDedicatedLogicalDrives, {})                   \
    X(bool, writeCacheEnabled, isWriteCacheEnabled, false)                                 \
    X(bool, ncqEnabled, isNCQEnabled, true)                                                \
    X(uint32_t, powerState, getPowerState, 0)         /* 0 active, 1 idle, 2 standby */    \
    X(uint32_t, powerStatesSupported, getPowerStatesSupported, 7)  /* bit set */           \
    X(bool, ataSecuritySupported, isAtaSecuritySupported, false)                           \
    X(bool, fastTierCapable, isFastTierCapable, false)                                     \
    X(bool, fastTierAssigned, isFastTierAssigned, false)                                   \
    X(int32_t, enclosureIndex, getEnclosureIndex, -1) /* -1: not in an enclosure */        \
    X(int32_t, slot, getSlot, -1)                                                          \
    X(bool, locateActive, isLocateActive, false)                                           \
    X(bool, isProtected, isProtected, false)                                               \
    X(std::string, partNumber, getPartNumber, {})                                          \
    X(uint32_t, parityErrors, getParityErrors, 0)                                          \
    X(uint32_t, hardwareErrors, getHardwareErrors, 0)                                      \
    X(uint32_t, abortedCommands, getAbortedCommands, 0)                                    \
    X(uint32_t, linkFailures, getLinkFailures, 0)                                          \
    X(uint32_t, mediumErrors, getMediumErrors, 0)                                          \
    X(bool, pfaSupported, isPfaSupported, true)                                            \
    X(bool, pfaEnabled, isPfaEnabled, true)                                                \
    X(bool, smartError, hasSmartError, false)         /* predicted failure tripped */      \
    X(uint32_t, smartWarnings, getSmartWarnings, 0)                                        \
    X(int32_t, temperatureC, getTemperature, 30)                                           \
    X(uint32_t, powerOnHours, getPowerOnHours, 0)                                          \
    X(uint32_t, reallocatedSectors, getReallocatedSectors, 0)                              \
    X(uint64_t, usedMB, getUsedMB, 0)                 /* space in chunks of logical drives */ \
    X(uint64_t, freeMB, getFreeMB, 0)                                                      \
    X(uint64_t, largestFreeMB, getLargestFreeMB, 0)                                        \
    X(uint32_t, chunkCount, getChunkCount, 0)                                              \
    X(bool, taskRunning, isTaskRunning, false)

struct HardDriveData {
    STORLIB_HARD_DRIVE_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Children: "Chunk" objects for each used and each free extent of the drive.
class STORLIB_API HardDrive : public PhysicalDevice {
    STORLIB_OBJECT_CLASS(HardDrive, PhysicalDevice)
public:
    HardDrive(const Addr& addr, PhysicalDeviceData dev, HardDriveData data)
        : PhysicalDevice(addr, std::move(dev)), data_(std::move(data)) {}
    ~HardDrive() override;

    STORLIB_HARD_DRIVE_PROPERTIES(STORLIB_PROPERTY_GETTER)
    uint64_t getNumberOfBlocks() const noexcept { return data_.sizeMB * (1024 * 1024 / data_.blockSize); }
    bool isJBOD() const noexcept { return data_.state == DriveState::JBOD; }
    bool isSpare() const noexcept { return data_.spareType != SpareType::None; }
    const HardDriveData& getDriveData() const noexcept { return data_; }

private:
    HardDriveData data_;
};

}  // namespace storlib
