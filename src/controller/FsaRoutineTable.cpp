// The routine table: every extrinsic-method routine by name, in the order
// the interface has always listed them, with its refresh flag (ask for a
// cache refresh after success). The routines themselves live in
// controller/routines/.
#include "controller/VexFSAInterface.h"
#include "controller/routines/Routines.h"

namespace vex::cim::fwf {

namespace {

// "getRoutineList": all routine names as "Routine_List".
unsigned int getSupportedRoutines(const CIMObjectPath&, const CIMMethodParam&, CIMMethodParam& out) {
    std::vector<std::string> names;
    VexFSAInterface::getInstance()->FSAGetSupportedRoutines(names);
    out.addArgument(CIMProperty("Routine_List", CIMValue<std::string>(std::move(names), false, false), false,
                                CIM_STRING_ARRAY, false));
    return FSAIF_SUCCESS;
}

// The routines that are accepted and do nothing.
unsigned int FsaifExNoOperation(const CIMObjectPath&, const CIMMethodParam&, CIMMethodParam&) {
    return FSAIF_SUCCESS;
}

struct RoutineEntry {
    const char* name;
    FsaRoutineFunction function;
    bool refresh;
};

constexpr bool REFRESH = true;

const RoutineEntry kRoutines[] = {
    {"getRoutineList", getSupportedRoutines, false},
    {"GetPartition", FsaifExGetPDChunk, false},
    {"GetVDPartition", FsaifExGetVDChunk, false},
    {"Rescan", FsaifExRescan, REFRESH},
    {"SetAdvStat", FsaifExSetAdvancedStats, REFRESH},
    {"ResetAdvStat", FsaifExResetAdvancedStats, REFRESH},
    {"AssignSpares", FsaifExAssignSpare, false},
    {"UnassignSpares", FsaifExUnassignSpare, false},
    {"CheckParityConsistency", FsaifExCheckParityConsistency, false},
    {"RepairParity", FsaifExRepairParity, false},
    {"CreateVD", FsaifExCreateVD, false},
    {"DeleteVD", FsaifExDeleteVD, false},
    {"ForceOffline", FsaifExForceOffline, false},
    {"InitializePD", FsaifExInitPD, false},
    {"UninitializePD", FsaifExUninitializePD, false},
    {"StartPDTask", FsaifExStartPDTask, false},
    {"SetPDWriteCacheMode", FsaifExSetPDWriteCacheMode, REFRESH},
    {"VerifyVD", FsaifExVerifyVD, false},
    {"ModifyVD", FsaifExModifyVD, false},
    {"InitVD", FsaifExInitVD, false},
    {"CreateJBOD", FsaifExCreateJBOD, false},
    {"DeleteJBOD", FsaifExDeleteJBOD, false},
    {"SecureErase", FsaifExSecureErase, false},
    {"GetFeatutreList", FsaifExGetFeatureList, false},
    {"SetDefLDTaskPriority", FsaifExSetDefTaskPrio, REFRESH},
    {"SetAlarmState", FsaifExSetAlarmState, REFRESH},
    {"LocatePhysicalDisk", FsaifExLocatePhysicalDisk, false},
    {"LocateVirtualDisk", FsaifExLocateVirtualDisk, false},
    {"LocateEnclosure", FsaifExLocateEnclosure, false},
    {"schedule", FsaifExSchedule, false},
    {"GetPerformanceModeParams", FsaifExGetPerfModeParams, false},
    {"protectHardDriveSet", FsaifExProtectHardDriveSet, false},
    {"upgradeSATADriveMicrocode", FsaifExFlashSATADriveMicrocode, REFRESH},
    {"upgradeSASDriveMicrocode", FsaifExFlashSasHarddrive, REFRESH},
    {"ClearControllerLog", FsaifExClearControllerLog, false},
    {"VerifyUser", FsaifExVerifyUser, false},
    {"GetXmlConfig", FsaifExGetXmlConfig, false},
    {"AddDriveToFastTierPool", FsaifExAddDrivetoFastTierPool, false},
    {"RemoveDriveFromFastTierPool", FsaifExRemoveDrivetoFastTierPool, false},
    {"ClearFastTierPool", FsaifExClearFastTierPool, false},
    {"HasFastTierDirtyData", FsaifExHasFastTierDirtyData, false},
    {"SetFastTierFetchRate", FsaifExSetFastTierFetchRate, false},
    {"SetFastTierDirtyPageThreshold", FsaifExSetFastTierDirtyPageThreshold, false},
    {"SetFastTierWrite", FsaifExSetFastTierWrite, false},
    {"setFastTierBgCheck", FsaifExSetFastTierBgCheck, false},
    {"StartFastTierCoherency", FsaifExStartFastTierCoherencyCheck, false},
    {"setFastTierRWFactor", FsaifExSetFastTierRWFactor, false},
    {"setFastTierWriteDisableAll", FsaifExSetFastTierWriteDisableAll, false},
    {"getMaxNumFastTierAssignedDrives", FsaifExGetMaxNumFastTierAssignedDrives, false},
    {"getNumFastTierAssignedDrives", FsaifExGetNumFastTierAssignedDrives, false},
    {"forceOnline", FsaifExForceOnlineLogicalDrive, false},
    {"SaveConfig", FsaifExSaveConfig, false},
    {"ClearConfig", FsaifExClearConfig, false},
    {"RestoreConfig", FsaifExRestoreConfig, false},
    {"SetFunctionalMode", FsaifExSetFunctionalMode, false},
    {"UninitializeHardDriveSet", FsaifExUninitializeHardDriveSet, false},
    {"createFile", FsaifExCreateFile, false},
    {"createSequencedFiles", FsaifExCreateSequencedFiles, false},
    {"deleteFile", FsaifExDeleteFile, false},
    {"appendFile", FsaifExAppendFile, false},
    {"readFile", FsaifExReadFile, false},
    {"listDirectory", FsaifExNoOperation, false},
    {"InstallOrUpgradeFirmware", FsaifExInstallOrUpgradeFirmware, false},
    {"CreateSetting", FsaifExCreateSetting, false},
    {"GetAvailableExtents", FsaifExGetAvailableExtents, false},
    {"GetSupportedSizes", FsaifExNoOperation, false},
    {"GetSupportedSizeRange", FsaifExNoOperation, false},
    {"CreateOrModifyStoragePool", FsaifExCreateOrModifyStoragePool, false},
    {"DeleteStoragePool", FsaifExDeleteStoragePool, false},
    {"CreateOrModifyElementFromStoragePool", FsaifExNoOperation, false},
    {"ReturnToStoragePool", FsaifExNoOperation, false},
    {"CreateOrModifyElementFromElements", FsaifExNoOperation, false},
    {"RequestStateChange", FsaifExJobRequestedStateChange, false},
    {"GetAdvanceStat", FsaifExGetControllerLog, false},
    {"setGlobalPhysicalDevicesWriteCachePolicy", FsaifExSetGlobalPhysicalDevicesWriteCachePolicy, false},
    {"setGlobalMaxSASPhyLinkRate", FsaifExSetGlobalMaxSASPhyLinkRate, false},
};

static_assert(sizeof kRoutines / sizeof kRoutines[0] == 76, "the interface has 76 routines");

}  // namespace

void VexFSAInterface::initializeRoutineList() {
    for (const RoutineEntry& entry : kRoutines) {
        m_routines.emplace(entry.name, routineInfo{entry.function, entry.refresh});
    }
}

}  // namespace vex::cim::fwf
