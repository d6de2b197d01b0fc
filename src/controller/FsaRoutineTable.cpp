// The routine table: every extrinsic-method routine by name, in the order
// the interface has always listed them, with its refresh flag (ask for a
// cache refresh after success).
//
// A routine is registered once its body exists; an entry without a function
// is not registered, so execute answers it as an unknown routine (1) until
// the storage operations that implement it are built in.
#include "controller/VexFSAInterface.h"

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
    {"GetPartition", nullptr, false},
    {"GetVDPartition", nullptr, false},
    {"Rescan", nullptr, REFRESH},
    {"SetAdvStat", nullptr, REFRESH},
    {"ResetAdvStat", nullptr, REFRESH},
    {"AssignSpares", nullptr, false},
    {"UnassignSpares", nullptr, false},
    {"CheckParityConsistency", nullptr, false},
    {"RepairParity", nullptr, false},
    {"CreateVD", nullptr, false},
    {"DeleteVD", nullptr, false},
    {"ForceOffline", nullptr, false},
    {"InitializePD", nullptr, false},
    {"UninitializePD", nullptr, false},
    {"StartPDTask", nullptr, false},
    {"SetPDWriteCacheMode", nullptr, REFRESH},
    {"VerifyVD", nullptr, false},
    {"ModifyVD", nullptr, false},
    {"InitVD", nullptr, false},
    {"CreateJBOD", nullptr, false},
    {"DeleteJBOD", nullptr, false},
    {"SecureErase", nullptr, false},
    {"GetFeatutreList", nullptr, false},
    {"SetDefLDTaskPriority", nullptr, REFRESH},
    {"SetAlarmState", nullptr, REFRESH},
    {"LocatePhysicalDisk", nullptr, false},
    {"LocateVirtualDisk", nullptr, false},
    {"LocateEnclosure", nullptr, false},
    {"schedule", nullptr, false},
    {"GetPerformanceModeParams", nullptr, false},
    {"protectHardDriveSet", nullptr, false},
    {"upgradeSATADriveMicrocode", nullptr, REFRESH},
    {"upgradeSASDriveMicrocode", nullptr, REFRESH},
    {"ClearControllerLog", nullptr, false},
    {"VerifyUser", nullptr, false},
    {"GetXmlConfig", nullptr, false},
    {"AddDriveToFastTierPool", nullptr, false},
    {"RemoveDriveFromFastTierPool", nullptr, false},
    {"ClearFastTierPool", nullptr, false},
    {"HasFastTierDirtyData", nullptr, false},
    {"SetFastTierFetchRate", nullptr, false},
    {"SetFastTierDirtyPageThreshold", nullptr, false},
    {"SetFastTierWrite", nullptr, false},
    {"setFastTierBgCheck", nullptr, false},
    {"StartFastTierCoherency", nullptr, false},
    {"setFastTierRWFactor", nullptr, false},
    {"setFastTierWriteDisableAll", nullptr, false},
    {"getMaxNumFastTierAssignedDrives", nullptr, false},
    {"getNumFastTierAssignedDrives", nullptr, false},
    {"forceOnline", nullptr, false},
    {"SaveConfig", nullptr, false},
    {"ClearConfig", nullptr, false},
    {"RestoreConfig", nullptr, false},
    {"SetFunctionalMode", nullptr, false},
    {"UninitializeHardDriveSet", nullptr, false},
    {"createFile", nullptr, false},
    {"createSequencedFiles", nullptr, false},
    {"deleteFile", nullptr, false},
    {"appendFile", nullptr, false},
    {"readFile", nullptr, false},
    {"listDirectory", FsaifExNoOperation, false},
    {"InstallOrUpgradeFirmware", nullptr, false},
    {"CreateSetting", nullptr, false},
    {"GetAvailableExtents", nullptr, false},
    {"GetSupportedSizes", FsaifExNoOperation, false},
    {"GetSupportedSizeRange", FsaifExNoOperation, false},
    {"CreateOrModifyStoragePool", nullptr, false},
    {"DeleteStoragePool", nullptr, false},
    {"CreateOrModifyElementFromStoragePool", FsaifExNoOperation, false},
    {"ReturnToStoragePool", FsaifExNoOperation, false},
    {"CreateOrModifyElementFromElements", FsaifExNoOperation, false},
    {"RequestStateChange", nullptr, false},
    {"GetAdvanceStat", nullptr, false},
    {"setGlobalPhysicalDevicesWriteCachePolicy", nullptr, false},
    {"setGlobalMaxSASPhyLinkRate", nullptr, false},
};

static_assert(sizeof kRoutines / sizeof kRoutines[0] == 76, "the interface has 76 routines");

}  // namespace

void VexFSAInterface::initializeRoutineList() {
    for (const RoutineEntry& entry : kRoutines) {
        if (entry.function != nullptr) {
            m_routines.emplace(entry.name, routineInfo{entry.function, entry.refresh});
        }
    }
}

}  // namespace vex::cim::fwf
