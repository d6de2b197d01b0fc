// The controller-wide routines: rescan, statistics, logs, task priority,
// alarm, functional mode, link rate, drive write-cache policy, the saved
// configuration and the fast tier.
#include <storlib/HardDrive.h>

#include "controller/routines/ControllerSnapshot.h"
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/RoutineRunner.h"
#include "controller/routines/Routines.h"
#include "controller/FsaifReturn.h"
#include "controller/FsaifWrappers.h"

namespace vex::cim::fwf {

namespace {

using namespace routine;
using storlib::Ret;

constexpr unsigned long long kLowestPriority = 3;
constexpr unsigned long long kLastLogType = 2;       // LogType: event, statistics, device
constexpr unsigned long long kLastAlarmState = 2;    // disabled, enabled, silenced
constexpr unsigned long long kLastFunctionalMode = 2;
constexpr unsigned long long kLastWriteCachePolicy = 2;
constexpr unsigned long long kPercent = 100;

// "FsaStat": the controller's status word of the request (0: done).
unsigned int withStatus(unsigned int result, const Ret& r, CIMMethodParam& out) {
    putNumber(out, "FsaStat", static_cast<unsigned int>(r.getStatusCode()));
    return result;
}

const RoutineSpec kRescan{"FsaifExRescan", TargetKind::Controller, {}, [](const Target& t, const Values&, Ret& r, CIMMethodParam&) {
    return RescanDeviceBus(t.controller, r);
}};

const RoutineSpec kSetAdvancedStats{
    "FsaifExSetAdvancedStats", TargetKind::Controller, {needFlag("bEnable", "bEnable not present at all")},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam& out) {
        return withStatus(fsaifSetStatisticDataCollectionMode(t.controller, v.flag(0), r), r, out);
    },
    nullptr, "FsaifExSetAdvancedStats exits with Failure"};

const RoutineSpec kResetAdvancedStats{
    "FsaifExResetAdvancedStats", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam& out) {
        return withStatus(fsaifResetStatisticsCounters(t.controller, r), r, out);
    }};

const RoutineSpec kGetControllerLog{
    "FsaifExGetControllerLog", TargetKind::Controller, {needNumber("LogType", "No valid data for Log Type", kLastLogType)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam& out) {
        std::string xml;
        std::string csv;
        const unsigned int result = FsaifGetControllerLog(t.controller, static_cast<unsigned int>(v.number[0]), xml, csv, r);
        if (result == 0) {
            putText(out, "LogXMLBuffer", xml);
            putNumber(out, "LogXMLSize", static_cast<unsigned int>(xml.size()));
            putText(out, "LogCSVBuffer", csv);
            putNumber(out, "LogCSVSize", static_cast<unsigned int>(csv.size()));
        }
        return withStatus(result, r, out);
    }};

const RoutineSpec kClearControllerLog{
    "FsaifExClearControllerLog", TargetKind::Controller, {needNumber("LogType", "No valid data for Log Type", kLastLogType)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam& out) {
        return withStatus(fsaifClearControllerLog(t.controller, static_cast<unsigned int>(v.number[0]), r), r, out);
    }};

const RoutineSpec kSetDefTaskPrio{
    "FsaifExSetDefTaskPrio", TargetKind::Controller,
    {needNumber("priority", "No valid data for priority", kLowestPriority, 1), maybeFlag("bApplyToRunningTasks", false)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return FsaifSetDefaultLDTaskPriority(t.controller, static_cast<unsigned int>(v.number[0]), v.flag(1), r);
    }};

const RoutineSpec kSetAlarmState{
    "FsaifExSetAlarmState", TargetKind::Controller, {needNumber("AlarmState", "No valid data for Alarm State", kLastAlarmState)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return manageAlarmStatus(t.controller, static_cast<unsigned int>(v.number[0]), r);
    }};

const RoutineSpec kSetFunctionalMode{
    "FsaifExSetFunctionalMode", TargetKind::Controller,
    {needNumber("FunctionalModeType", "No valid data for Functional Mode", kLastFunctionalMode)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifSetFunctionalMode(t.controller, static_cast<unsigned int>(v.number[0]), r);
    }};

const RoutineSpec kSetMaxLinkRate{
    "FsaifExSetGlobalMaxSASPhyLinkRate", TargetKind::Controller,
    {needNumber("GlobalMaxSASPhyLinkRate", "No valid data for GlobalMaxSASPhyLinkRate", 0xffffffffull)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifSetGlobalMaxSASPhyLinkRate(t.controller, static_cast<unsigned int>(v.number[0]), r);
    }};

const RoutineSpec kSetDriveWriteCachePolicy{
    "FsaifExSetGlobalPhysicalDevicesWriteCachePolicy", TargetKind::Controller,
    {needNumber("GlobalPhysicalDevicesWriteCachePolicy", "No valid data for GlobalPhysicalDevicesWriteCachePolicy",
                kLastWriteCachePolicy)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifSetGlobalPhysicalDevicesWriteCachePolicy(t.controller, static_cast<unsigned int>(v.number[0]), r);
    }};

const RoutineSpec kSaveConfig{
    "FsaifExSaveConfig", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam& out) {
        std::string config;
        const unsigned int result = fsaifSaveConfig(t.controller, config, r);
        if (result == 0) {
            putText(out, "SavedConfiguration", config);
        }
        return result;
    },
    nullptr, "fsaifSaveConfig failed"};

const RoutineSpec kRestoreConfig{
    "FsaifExRestoreConfig", TargetKind::Controller,
    {needText("Configuration", "No valid data for Configuration"), maybeFlag("ForceOption", false),
     maybeFlag("SlotIDFlag", false)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifPlayConfig(t.controller, v.text[0], v.flag(1), v.flag(2), r);
    },
    "Returning success from fsaifPlayConfig", "Failed to execute fsaifPlayConfig"};

const RoutineSpec kClearConfig{"FsaifExClearConfig", TargetKind::Controller, {}, [](const Target& t, const Values&, Ret& r, CIMMethodParam&) {
    return FsaifResetConfig(t.controller, r);
}};

const RoutineSpec kSetFastTierWrite{
    "FsaifExSetFastTierWrite", TargetKind::Controller,
    {needFlag("enableWriteFastTiering", "No valid data for enableWriteFastTiering")},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) { return fsaifSetFastTierWrite(t.controller, v.flag(0), r); }};

const RoutineSpec kSetFastTierFetchRate{
    "FsaifExSetFastTierFetchRate", TargetKind::Controller, {needNumber("FetchRate", "No valid data for FetchRate", 0xffffffffull)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifSetFastTierFetchRate(t.controller, static_cast<unsigned int>(v.number[0]), r);
    }};

const RoutineSpec kSetFastTierThreshold{
    "FsaifExSetFastTierDirtyPageThreshold", TargetKind::Controller,
    {needNumber("Threshold", "No valid data for Threshold", kPercent)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifSetFastTierDirtyPageThreshold(t.controller, static_cast<unsigned int>(v.number[0]), r);
    }};

const RoutineSpec kSetFastTierRWFactor{
    "FsaifExSetFastTierRWFactor", TargetKind::Controller,
    {needNumber("readFactor", "No valid data for readFactor", 0xffffffffull),
     needNumber("writeFactor", "No valid data for writeFactor", 0xffffffffull)},
    [](const Target& t, const Values& v, Ret& r, CIMMethodParam&) {
        return fsaifSetFastTierRWFactor(t.controller, static_cast<unsigned int>(v.number[0]),
                                        static_cast<unsigned int>(v.number[1]), r);
    }};

const RoutineSpec kSetFastTierWriteDisableAll{
    "FsaifExSetFastTierWriteDisableAll", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam&) { return fsaifSetFastTierWriteDisableAll(t.controller, true, r); }};

const RoutineSpec kStartFastTierCoherency{
    "FsaifExStartFastTierCoherencyCheck", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam&) { return fsaifStartFastTierCoherencyCheck(t.controller, r); }};

const RoutineSpec kClearFastTierPool{
    "FsaifExClearFastTierPool", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam&) { return fsaifClearFastTierPool(t.controller, r); }};

const RoutineSpec kHasFastTierDirtyData{
    "FsaifExHasFastTierDirtyData", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret& r, CIMMethodParam& out) {
        bool dirty = false;
        const unsigned int result = fsaifHasFastTierDirtyData(t.controller, dirty, r);
        if (result == 0) {
            putFlag(out, "DirtyDataStatus", dirty);
        }
        return result;
    }};

// Reads of the controller itself: 18 when there is no such controller.
template <typename Read>
unsigned int readAdapter(int controller, Read&& read) {
    const auto config = snapshot();
    const storlib::Adapter* adapter = config ? adapterOf(*config, controller) : nullptr;
    if (adapter == nullptr) {
        return FSAIF_DEVICE_NOT_FOUND;
    }
    read(*adapter);
    return FSAIF_SUCCESS;
}

const RoutineSpec kNumFastTierDrives{
    "FsaifExGetNumFastTierAssignedDrives", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret&, CIMMethodParam& out) {
        return readAdapter(t.controller, [&](const storlib::Adapter& a) {
            unsigned int assigned = 0;
            for (const storlib::RaidObject* o : storlib::FilterCollection(a, storlib::HardDrive::kClassName)) {
                assigned += o->as<storlib::HardDrive>()->isFastTierAssigned() ? 1 : 0;
            }
            putNumber(out, "numDrives", assigned);
        });
    }};

const RoutineSpec kMaxFastTierDrives{
    "FsaifExGetMaxNumFastTierAssignedDrives", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret&, CIMMethodParam& out) {
        return readAdapter(t.controller,
                           [&](const storlib::Adapter& a) { putNumber(out, "maxNumDrives", a.getMaxFastTierDrives()); });
    }};

// The capability list and the performance mode parameters are part of the
// controller instance; the routines confirm that the controller answers.
const RoutineSpec kGetFeatureList{
    "FsaifExGetFeatureList", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret&, CIMMethodParam&) { return readAdapter(t.controller, [](const storlib::Adapter&) {}); }};

const RoutineSpec kGetPerfModeParams{
    "FsaifExGetPerfModeParams", TargetKind::Controller, {},
    [](const Target& t, const Values&, Ret&, CIMMethodParam&) { return readAdapter(t.controller, [](const storlib::Adapter&) {}); }};

}  // namespace

VEX_TABLE_ROUTINE(FsaifExRescan, kRescan)
VEX_TABLE_ROUTINE(FsaifExSetAdvancedStats, kSetAdvancedStats)
VEX_TABLE_ROUTINE(FsaifExResetAdvancedStats, kResetAdvancedStats)
VEX_TABLE_ROUTINE(FsaifExGetControllerLog, kGetControllerLog)
VEX_TABLE_ROUTINE(FsaifExClearControllerLog, kClearControllerLog)
VEX_TABLE_ROUTINE(FsaifExSetDefTaskPrio, kSetDefTaskPrio)
VEX_TABLE_ROUTINE(FsaifExSetAlarmState, kSetAlarmState)
VEX_TABLE_ROUTINE(FsaifExSetFunctionalMode, kSetFunctionalMode)
VEX_TABLE_ROUTINE(FsaifExSetGlobalMaxSASPhyLinkRate, kSetMaxLinkRate)
VEX_TABLE_ROUTINE(FsaifExSetGlobalPhysicalDevicesWriteCachePolicy, kSetDriveWriteCachePolicy)
VEX_TABLE_ROUTINE(FsaifExSaveConfig, kSaveConfig)
VEX_TABLE_ROUTINE(FsaifExRestoreConfig, kRestoreConfig)
VEX_TABLE_ROUTINE(FsaifExClearConfig, kClearConfig)
VEX_TABLE_ROUTINE(FsaifExSetFastTierWrite, kSetFastTierWrite)
VEX_TABLE_ROUTINE(FsaifExSetFastTierFetchRate, kSetFastTierFetchRate)
VEX_TABLE_ROUTINE(FsaifExSetFastTierDirtyPageThreshold, kSetFastTierThreshold)
VEX_TABLE_ROUTINE(FsaifExSetFastTierRWFactor, kSetFastTierRWFactor)
VEX_TABLE_ROUTINE(FsaifExSetFastTierWriteDisableAll, kSetFastTierWriteDisableAll)
VEX_TABLE_ROUTINE(FsaifExStartFastTierCoherencyCheck, kStartFastTierCoherency)
VEX_TABLE_ROUTINE(FsaifExClearFastTierPool, kClearFastTierPool)
VEX_TABLE_ROUTINE(FsaifExHasFastTierDirtyData, kHasFastTierDirtyData)
VEX_TABLE_ROUTINE(FsaifExGetNumFastTierAssignedDrives, kNumFastTierDrives)
VEX_TABLE_ROUTINE(FsaifExGetMaxNumFastTierAssignedDrives, kMaxFastTierDrives)
VEX_TABLE_ROUTINE(FsaifExGetFeatureList, kGetFeatureList)
VEX_TABLE_ROUTINE(FsaifExGetPerfModeParams, kGetPerfModeParams)

}  // namespace vex::cim::fwf
