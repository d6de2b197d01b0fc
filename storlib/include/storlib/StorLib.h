// StorLib: the controller-management library handle. Opening it reaches every
// controller of the host; all reads and all operations go through it.
#pragma once
#include <storlib/Addr.h>
#include <storlib/Export.h>
#include <storlib/LogicalDriveSpec.h>
#include <storlib/Ret.h>
#include <storlib/StorEvent.h>
#include <storlib/SystemConfig.h>
#include <storlib/Types.h>

#include <memory>
#include <optional>
#include <string>

namespace storlib {
namespace detail { class Core; }

// Where the library finds the controllers. fromEnvironment() reads:
//   STORVEX_SYSTEM       system description file (JSON); unset: the built-in demo system
//   STORVEX_STATE_DIR    directory of the persistent controller state; unset: /tmp/storvex-<uid>
//   STORVEX_TIME_SCALE   controller seconds per wall-clock second; 0: the clock moves only on request
//   STORVEX_EVENT_QUEUE  events kept per controller (default 1024)
struct STORLIB_API Options {
    std::string systemFile;
    std::string stateDir;
    std::optional<double> timeScale;
    uint32_t eventQueueSize = 1024;

    static Options fromEnvironment();
};

// Thread-safe: calls may come from several threads; each is atomic. Several
// processes may open the same state directory; a change made by one is seen
// by the others on their next call.
class STORLIB_API StorLib {
public:
    StorLib();
    ~StorLib();
    StorLib(const StorLib&) = delete;
    StorLib& operator=(const StorLib&) = delete;

    Ret open();                       // with Options::fromEnvironment()
    Ret open(const Options& options);
    void close();
    bool isOpen() const;

    // ---- reading -------------------------------------------------------
    Ret getControllerCount(unsigned long& count);
    unsigned long getNumAdapters();
    // The whole system, all controllers with all their objects, as of now.
    // Null when the library is not open or the state cannot be read
    // (getLastError() tells why). Cheap when nothing changed since the last call.
    std::shared_ptr<const SystemConfig> getSystemConfig();
    std::shared_ptr<const SystemConfig> getRoot() { return getSystemConfig(); }
    // Events of one controller that this handle has not fetched yet, oldest first.
    Ret getEvents(uint32_t adapter, StorEventCollection& out);
    // The last maxCount events of one controller, whether fetched or not.
    Ret getEventHistory(uint32_t adapter, size_t maxCount, StorEventCollection& out);
    Ret getLastError() const;

    // ---- hard drives -----------------------------------------------------
    Ret initializeHardDrives(const AddrCollection& drives);
    Ret uninitializeHardDrives(const AddrCollection& drives);
    Ret downHardDrive(const Addr& drive);                 // force offline
    Ret upHardDrive(const Addr& drive);                   // bring an offline/failed drive back
    Ret startHardDriveTask(const Addr& drive, TaskType task);  // DriveVerify, DriveClear
    Ret setHardDriveWriteCache(const Addr& drive, bool enable);
    Ret secureEraseHardDrive(const Addr& drive, const std::string& password);
    Ret createJBOD(const Addr& drive);
    Ret deleteJBOD(const Addr& drive);
    Ret locateDevice(const Addr& driveOrLogicalDrive, bool on);
    Ret blinkEnclosure(const Addr& enclosure, bool on);
    Ret protectHardDrives(uint32_t adapter, const AddrCollection& drives, bool allDrives, bool protect);
    Ret flashSATADriveMicrocode(const AddrCollection& drives, const std::string& imagePath, uint32_t packetSize, uint32_t mode);
    Ret flashSASDriveFirmware(const AddrCollection& drives, const std::string& imagePath, uint32_t packetSize, uint32_t mode);
    Ret addDriveToFastTierPool(const Addr& drive);
    Ret removeDriveFromFastTierPool(const Addr& drive);

    // ---- logical drives ----------------------------------------------------
    Ret createLogicalDrive(const LogicalDriveSpec& spec, uint32_t* newId = nullptr);
    Ret modifyLogicalDrive(const Addr& logicalDrive, const LogicalDriveSpec& target);  // migration / expansion
    Ret deleteLogicalDrive(const Addr& logicalDrive);
    Ret initializeLogicalDrive(const Addr& logicalDrive, InitMethod method, TaskPriority priority);
    Ret verifyLogicalDrive(const Addr& logicalDrive, bool fix);   // parity check, or check and repair
    Ret rebuildLogicalDrive(const Addr& logicalDrive, const Addr& drive);
    Ret setLogicalDriveState(const Addr& logicalDrive, LogicalDriveState target, uint32_t command, uint32_t options);
    Ret setLogicalDriveCache(const Addr& logicalDrive, ReadCacheMode read, WriteCacheMode write);
    Ret setLogicalDriveName(const Addr& logicalDrive, const std::string& name);
    Ret setLogicalDriveFastTier(const Addr& logicalDrive, uint32_t preferred, bool isFastTier3);
    Ret setLogicalDriveFastTierWriteCache(const Addr& logicalDrive, uint32_t preferred, uint32_t policy);
    Ret setLogicalDrivePowerManagement(const Addr& logicalDrive, bool enabled);
    Ret setLogicalDrivePowerTimers(const Addr& logicalDrive, uint32_t offMin, uint32_t reduceRpmMin, uint32_t verifyHours);
    Ret setFastTierBgCheck(const Addr& logicalDrive, bool enable);

    // ---- spares --------------------------------------------------------
    Ret assignGlobalSpare(const Addr& drive);
    Ret assignDedicatedSpare(const Addr& drive, const Addr& logicalDrive);
    Ret unassignSpare(const Addr& drive);

    // ---- tasks (address: controller + task id as extended component) ----
    Ret setTaskPriority(const Addr& task, TaskPriority priority);
    Ret abortTask(const Addr& task);
    Ret setDefaultTaskPriority(uint32_t adapter, TaskPriority priority, bool applyToRunning);

    // ---- controller --------------------------------------------------------
    Ret rescan(uint32_t adapter);
    Ret setStatisticsCollection(uint32_t adapter, bool enable);
    Ret resetStatisticsCounters(uint32_t adapter);
    Ret getControllerLog(uint32_t adapter, LogType type, std::string& xml, std::string& csv);
    Ret clearControllerLog(uint32_t adapter, LogType type);
    Ret setAlarmState(uint32_t adapter, AlarmState state);
    Ret setFunctionalMode(uint32_t adapter, FunctionalMode mode);
    Ret setGlobalMaxSASPhyLinkRate(uint32_t adapter, LinkRate rate);
    Ret setGlobalPhysicalDevicesWriteCachePolicy(uint32_t adapter, DriveWriteCachePolicy policy);
    Ret setAutomaticFailover(uint32_t adapter, bool enable);
    Ret setStayAwakePeriod(uint32_t adapter, bool mainEnabled, uint32_t startHour, uint32_t stopHour, uint32_t days);
    Ret setCopyBack(uint32_t adapter, bool enable);
    Ret setPerformanceMode(uint32_t adapter, PerformanceMode mode);
    Ret setNCQ(uint32_t adapter, bool enable);
    Ret setBackgroundConsistencyCheck(uint32_t adapter, bool enable);
    Ret setBackgroundConsistencyCheckPeriod(uint32_t adapter, uint32_t days);
    Ret setSpinUpLimits(uint32_t adapter, uint32_t internalLimit, uint32_t externalLimit);
    Ret saveConfig(uint32_t adapter, std::string& config);
    Ret playConfig(uint32_t adapter, const std::string& config, bool force, bool matchBySlot);
    Ret resetConfig(uint32_t adapter);
    Ret upgradeControllerFirmware(uint32_t adapter, const std::string& imagePath);

    // ---- fast tier (SSD read/write cache) ------------------------------
    Ret setFastTierWrite(uint32_t adapter, bool enable);
    Ret setFastTierFetchRate(uint32_t adapter, uint32_t rate);
    Ret setFastTierDirtyPageThreshold(uint32_t adapter, uint32_t percent);
    Ret setFastTierRWFactor(uint32_t adapter, uint32_t readFactor, uint32_t writeFactor);
    Ret setFastTierWriteDisableAll(uint32_t adapter, bool disable);
    Ret startFastTierCoherencyCheck(uint32_t adapter);
    Ret clearFastTierPool(uint32_t adapter);
    Ret hasFastTierDirtyData(uint32_t adapter, bool& dirty);

    detail::Core* core() const noexcept { return core_.get(); }

private:
    std::shared_ptr<detail::Core> core_;
};

}  // namespace storlib
