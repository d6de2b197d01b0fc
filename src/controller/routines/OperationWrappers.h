// The controller wrappers behind the storage routines: one StorLib call
// each, with the drive, logical drive or controller it acts on. 0 on
// success, 6 when the controller refused (its Ret says why), 3 when the
// library threw; 21 is thrown when there is no library handle.
#ifndef VEX_CONTROLLER_ROUTINES_OPERATIONWRAPPERS_H
#define VEX_CONTROLLER_ROUTINES_OPERATIONWRAPPERS_H

#include <string>
#include <vector>

#include <storlib/LogicalDriveSpec.h>
#include <storlib/Ret.h>

#include "controller/routines/RoutineInput.h"

namespace vex::cim::fwf {

storlib::Addr driveAddr(const _pdiskIdf& drive);
storlib::Addr logicalDriveAddr(const _vdiskIdf& logicalDrive);

// Physical drives.
unsigned int fsaifInitializeHardDrive(const _pdiskIdf& drive, storlib::Ret& ret);
unsigned int fsaifUninitializeHardDriveSet(const std::vector<_pdiskIdf>& drives, storlib::Ret& ret);
unsigned int fsaifDownHardDrive(const _pdiskIdf& drive, storlib::Ret& ret);
unsigned int fsaifStartHardDriveTask(const _pdiskIdf& drive, unsigned int task, storlib::Ret& ret);
unsigned int fsaifPDiskSetWriteCacheEnable(const _pdiskIdf& drive, bool enable, storlib::Ret& ret);
unsigned int fsaifPDiskSecureErase(const _pdiskIdf& drive, const std::string& password, storlib::Ret& ret);
unsigned int fsaifCreateJBOD(const _pdiskIdf& drive, storlib::Ret& ret);
unsigned int fsaifDeleteJBOD(const _pdiskIdf& drive, storlib::Ret& ret);
unsigned int fsaifAddDriveToFastTierPool(const _pdiskIdf& drive, storlib::Ret& ret);
unsigned int fsaifRemoveDriveFromFastTierPool(const _pdiskIdf& drive, storlib::Ret& ret);
unsigned int fsaifLocateDevice(const storlib::Addr& driveOrLogicalDrive, bool on, storlib::Ret& ret);
unsigned int afaifBlinkEnclosure(const storlib::Addr& enclosure, bool on, storlib::Ret& ret);
unsigned int fsaifProtectHardDriveSet(int controller, const std::vector<_pdiskIdf>& drives, bool allDrives,
                                      bool protect, storlib::Ret& ret);
unsigned int flashSATADriveMicrocode(const std::vector<_pdiskIdf>& drives, const std::string& image,
                                     unsigned int packetSize, unsigned int mode, storlib::Ret& ret);
unsigned int fsaifFlashSasHarddrive(const std::vector<_pdiskIdf>& drives, const std::string& image,
                                    unsigned int packetSize, unsigned int mode, storlib::Ret& ret);

// Logical drives.
unsigned int fsaifCreateLogicalDrive(const storlib::LogicalDriveSpec& spec, storlib::Ret& ret,
                                     std::uint32_t* newId = nullptr);
unsigned int fsaifModifyLogicalDrive(const _vdiskIdf& logicalDrive, const storlib::LogicalDriveSpec& target,
                                     storlib::Ret& ret);
unsigned int fsaifDeleteLogicalDrive(const _vdiskIdf& logicalDrive, storlib::Ret& ret);
unsigned int fsaifInitializeLogicalDrive(const _vdiskIdf& logicalDrive, unsigned int method,
                                         unsigned int priority, storlib::Ret& ret);
unsigned int fsaifSynchronizeLogicalDrive(const _vdiskIdf& logicalDrive, bool fix, storlib::Ret& ret);
unsigned int fsaifRebuildLogicalDrive(const _vdiskIdf& logicalDrive, const _pdiskIdf& drive, storlib::Ret& ret);
unsigned int fsaifSetLDState(const _vdiskIdf& logicalDrive, unsigned int state, unsigned int command,
                             unsigned int options, storlib::Ret& ret);
unsigned int fsaifSetFastTierBgCheck(const _vdiskIdf& logicalDrive, bool enable, storlib::Ret& ret);

// Spares.
unsigned int fsaifAssignGlobalSpare(const _pdiskIdf& drive, storlib::Ret& ret);
unsigned int fsaifAssignDedicatedSpare(const _pdiskIdf& drive, const _vdiskIdf& logicalDrive, storlib::Ret& ret);
unsigned int fsaifUnassignSpare(const _pdiskIdf& drive, storlib::Ret& ret);

// Tasks.
unsigned int FsaifSetTaskPriority(int controller, unsigned long long task, unsigned int priority, storlib::Ret& ret);
unsigned int FsaifAbortTask(int controller, unsigned long long task, storlib::Ret& ret);

// Controllers.
unsigned int RescanDeviceBus(int controller, storlib::Ret& ret);
unsigned int fsaifSetStatisticDataCollectionMode(int controller, bool enable, storlib::Ret& ret);
unsigned int fsaifResetStatisticsCounters(int controller, storlib::Ret& ret);
unsigned int FsaifGetControllerLog(int controller, unsigned int type, std::string& xml, std::string& csv,
                                   storlib::Ret& ret);
unsigned int fsaifClearControllerLog(int controller, unsigned int type, storlib::Ret& ret);
unsigned int FsaifSetDefaultLDTaskPriority(int controller, unsigned int priority, bool applyToRunning,
                                           storlib::Ret& ret);
unsigned int manageAlarmStatus(int controller, unsigned int state, storlib::Ret& ret);
unsigned int fsaifSetFunctionalMode(int controller, unsigned int mode, storlib::Ret& ret);
unsigned int fsaifSaveConfig(int controller, std::string& config, storlib::Ret& ret);
unsigned int fsaifPlayConfig(int controller, const std::string& config, bool force, bool matchBySlot,
                             storlib::Ret& ret);
unsigned int FsaifResetConfig(int controller, storlib::Ret& ret);
unsigned int fsaifUpgradeControllerFirmware(int controller, const std::string& image, storlib::Ret& ret);

// Fast tier.
unsigned int fsaifSetFastTierWrite(int controller, bool enable, storlib::Ret& ret);
unsigned int fsaifSetFastTierFetchRate(int controller, unsigned int rate, storlib::Ret& ret);
unsigned int fsaifSetFastTierDirtyPageThreshold(int controller, unsigned int percent, storlib::Ret& ret);
unsigned int fsaifSetFastTierRWFactor(int controller, unsigned int readFactor, unsigned int writeFactor,
                                      storlib::Ret& ret);
unsigned int fsaifSetFastTierWriteDisableAll(int controller, bool disable, storlib::Ret& ret);
unsigned int fsaifStartFastTierCoherencyCheck(int controller, storlib::Ret& ret);
unsigned int fsaifClearFastTierPool(int controller, storlib::Ret& ret);
unsigned int fsaifHasFastTierDirtyData(int controller, bool& dirty, storlib::Ret& ret);

}  // namespace vex::cim::fwf

#endif
