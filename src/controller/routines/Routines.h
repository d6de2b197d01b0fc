// The storage routines of the routine table, by function name. Each takes the
// target object path and the input arguments, writes its output arguments and
// answers an _FSAIF_Return code.
#ifndef VEX_CONTROLLER_ROUTINES_ROUTINES_H
#define VEX_CONTROLLER_ROUTINES_ROUTINES_H

#include "framework/CIMMethodParam.h"
#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf {

unsigned int FsaifExGetPDChunk(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExGetVDChunk(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExRescan(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetAdvancedStats(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExResetAdvancedStats(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExAssignSpare(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExUnassignSpare(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExCheckParityConsistency(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExRepairParity(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExRebuildStorageExtent(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExCreateVD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExDeleteVD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExForceOffline(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExInitPD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExUninitializePD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExStartPDTask(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetPDWriteCacheMode(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExVerifyVD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExModifyVD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExInitVD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExCreateJBOD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExDeleteJBOD(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSecureErase(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExGetFeatureList(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetDefTaskPrio(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetAlarmState(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExLocatePhysicalDisk(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExLocateVirtualDisk(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExLocateEnclosure(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSchedule(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExGetPerfModeParams(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExProtectHardDriveSet(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExFlashSATADriveMicrocode(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExFlashSasHarddrive(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExClearControllerLog(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExVerifyUser(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExGetXmlConfig(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExAddDrivetoFastTierPool(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExRemoveDrivetoFastTierPool(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExClearFastTierPool(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExHasFastTierDirtyData(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetFastTierFetchRate(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetFastTierDirtyPageThreshold(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetFastTierWrite(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetFastTierBgCheck(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExStartFastTierCoherencyCheck(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetFastTierRWFactor(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetFastTierWriteDisableAll(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExGetMaxNumFastTierAssignedDrives(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExGetNumFastTierAssignedDrives(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExForceOnlineLogicalDrive(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSaveConfig(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExClearConfig(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExRestoreConfig(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetFunctionalMode(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExUninitializeHardDriveSet(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExCreateFile(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExCreateSequencedFiles(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExDeleteFile(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExAppendFile(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExReadFile(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExInstallOrUpgradeFirmware(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExCreateSetting(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExGetAvailableExtents(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExCreateOrModifyStoragePool(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExDeleteStoragePool(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExJobRequestedStateChange(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExGetControllerLog(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetGlobalPhysicalDevicesWriteCachePolicy(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);
unsigned int FsaifExSetGlobalMaxSASPhyLinkRate(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam& out);

}  // namespace vex::cim::fwf

#endif
