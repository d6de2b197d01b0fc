#include "monitor/EventVocabulary.h"

#include <cstring>

#include "monitor/NRMEvent.h"

namespace vex::monitor {

namespace {

constexpr int E = NRM_EVENT_ERROR;
constexpr int W = NRM_EVENT_WARNING;
constexpr int I = NRM_EVENT_INFO;
constexpr int P = NRM_EVENT_PROGRESS;
constexpr int C = NRM_EVENT_CONFIG_CHANGE;

constexpr int SYS = NRM_OBJ_SYSTEM;
constexpr int ADP = NRM_OBJ_ADAPTER;
constexpr int LDR = NRM_OBJ_LOGICAL_DRIVE;
constexpr int PDR = NRM_OBJ_PHYSICAL_DRIVE;
constexpr int ENC = NRM_OBJ_ENCLOSURE;
constexpr int FAN = NRM_OBJ_FAN;
constexpr int PSU = NRM_OBJ_POWER_SUPPLY;

// Tasks: started, progress, done, for each kind of task.
#define VEX_TASK_KINDS(NAME, CODE, CLASS, MSG)                                                  \
    {"EVENT_STRATAVOL_" NAME "_STARTED", CODE, I, CLASS, "agentEvent" MSG "Started"},           \
        {"EVENT_STRATAVOL_" NAME "_PROGRESS", CODE + 1, P, CLASS, "agentEvent" MSG "Progress"}, \
        {"EVENT_STRATAVOL_" NAME "_DONE", CODE + 2, I, CLASS, "agentEvent" MSG "Done"}

const EventKind kKinds[] = {
    // The system and the cycle itself.
    {"EVENT_STRATAVOL_STATE_NOTFOUND", 201, I, SYS, "agentEventInfNoControllers"},
    {"EVENT_STRATAVOL_STATE_FAILED", 202, E, ADP, "agentEventInfControllerRemoved"},
    {"EVENT_STRATAVOL_CONFIG_CHANGED", 190, C, SYS, "agentEventInfConfigChanged"},
    // Controllers.
    {"EVENT_STRATAVOL_CONTROLLER_ADDED", 1, I, ADP, "agentEventInfControllerAdded"},
    {"EVENT_STRATAVOL_CONTROLLER_FAILED", 2, E, ADP, "agentEventErrControllerFailed"},
    {"EVENT_STRATAVOL_CONTROLLER_OK", 3, I, ADP, "agentEventInfControllerOk"},
    {"EVENT_STRATAVOL_CONTROLLER_FIRMWARE_CHANGED", 4, I, ADP, "agentEventInfControllerFirmware"},
    {"EVENT_STRATAVOL_CONTROLLER_TEMP_HIGH", 5, W, ADP, "agentEventWrnControllerTempHigh"},
    {"EVENT_STRATAVOL_CONTROLLER_TEMP_NORMAL", 6, I, ADP, "agentEventInfControllerTempNormal"},
    {"EVENT_STRATAVOL_CONTROLLER_ALARM", 7, W, ADP, "agentEventWrnControllerAlarm"},
    // Batteries and super-capacitors.
    {"EVENT_STRATAVOL_BATTERY_OK", 20, I, ADP, "agentEventInfBatteryOk"},
    {"EVENT_STRATAVOL_BATTERY_CHARGING", 21, P, ADP, "agentEventInfBatteryCharging"},
    {"EVENT_STRATAVOL_BATTERY_LOW", 22, W, ADP, "agentEventWrnBatteryLow"},
    {"EVENT_STRATAVOL_BATTERY_FAILED", 23, E, ADP, "agentEventErrBatteryFailed"},
    {"EVENT_STRATAVOL_BATTERY_MISSING", 24, E, ADP, "agentEventErrBatteryMissing"},
    {"EVENT_STRATAVOL_BATTERY_RECONDITION", 25, W, ADP, "agentEventWrnBatteryRecondition"},
    {"EVENT_STRATAVOL_BATTERY_TEMPERATURE", 26, W, ADP, "agentEventWrnBatteryTemperature"},
    {"EVENT_STRATAVOL_SUPERCAP_OK", 27, I, ADP, "agentEventInfSuperCapOk"},
    {"EVENT_STRATAVOL_SUPERCAP_CHARGING", 28, P, ADP, "agentEventInfSuperCapCharging"},
    {"EVENT_STRATAVOL_SUPERCAP_LOW", 29, W, ADP, "agentEventWrnSuperCapLow"},
    {"EVENT_STRATAVOL_SUPERCAP_FAILED", 30, E, ADP, "agentEventErrSuperCapFailed"},
    {"EVENT_STRATAVOL_SUPERCAP_MISSING", 31, E, ADP, "agentEventErrSuperCapMissing"},
    // Physical drives.
    {"EVENT_STRATAVOL_PD_INSERTED", 40, I, PDR, "agentEventInfDriveInserted"},
    {"EVENT_STRATAVOL_PD_REMOVED", 41, W, PDR, "agentEventWrnDriveRemoved"},
    {"EVENT_STRATAVOL_PD_FAILED", 42, E, PDR, "agentEventErrDriveFailed"},
    {"EVENT_STRATAVOL_PD_OFFLINE", 43, W, PDR, "agentEventWrnDriveOffline"},
    {"EVENT_STRATAVOL_PD_MISSING", 44, W, PDR, "agentEventWrnDriveMissing"},
    {"EVENT_STRATAVOL_PD_ONLINE", 45, I, PDR, "agentEventInfDriveOnline"},
    {"EVENT_STRATAVOL_PD_REBUILDING", 46, I, PDR, "agentEventInfDriveRebuilding"},
    {"EVENT_STRATAVOL_PD_SPARE_USED", 47, W, PDR, "agentEventWrnSpareUsed"},
    {"EVENT_STRATAVOL_PD_SPARE_ASSIGNED", 48, I, PDR, "agentEventInfSpareAssigned"},
    {"EVENT_STRATAVOL_PD_SPARE_UNASSIGNED", 49, I, PDR, "agentEventInfSpareUnassigned"},
    {"EVENT_STRATAVOL_PD_READY", 50, I, PDR, "agentEventInfDriveReady"},
    {"EVENT_STRATAVOL_PD_JBOD", 51, I, PDR, "agentEventInfDriveJbod"},
    {"EVENT_STRATAVOL_PD_RAW", 52, I, PDR, "agentEventInfDriveRaw"},
    {"EVENT_STRATAVOL_PD_PFA", 53, W, PDR, "agentEventWrnDrivePfa"},
    {"EVENT_STRATAVOL_PD_PFA_CLEARED", 54, I, PDR, "agentEventInfDrivePfaCleared"},
    {"EVENT_STRATAVOL_PD_FIRMWARE_CHANGED", 55, I, PDR, "agentEventInfDriveFirmware"},
    {"EVENT_STRATAVOL_PD_REPLACED", 56, I, PDR, "agentEventInfDriveReplaced"},
    // Logical drives.
    {"EVENT_STRATAVOL_LD_CREATED", 60, I, LDR, "agentEventInfLdCreated"},
    {"EVENT_STRATAVOL_LD_DELETED", 61, I, LDR, "agentEventInfLdDeleted"},
    {"EVENT_STRATAVOL_LD_OPTIMAL", 62, I, LDR, "agentEventInfLdOptimal"},
    {"EVENT_STRATAVOL_LD_DEGRADED", 63, W, LDR, "agentEventWrnLdDegraded"},
    {"EVENT_STRATAVOL_LD_FAILED", 64, E, LDR, "agentEventErrLdFailed"},
    {"EVENT_STRATAVOL_LD_RENAMED", 65, P, LDR, "agentEventInfLdRenamed"},
    {"EVENT_STRATAVOL_LD_EXPANDED", 66, I, LDR, "agentEventInfLdExpanded"},
    {"EVENT_STRATAVOL_LD_MIGRATED", 67, I, LDR, "agentEventInfLdMigrated"},
    // Tasks.
    VEX_TASK_KINDS("LD_INIT", 90, LDR, "LdInit"),
    VEX_TASK_KINDS("LD_CLEAR", 93, LDR, "LdClear"),
    VEX_TASK_KINDS("LD_REBUILD", 96, LDR, "LdRebuild"),
    VEX_TASK_KINDS("LD_VERIFY", 99, LDR, "LdVerify"),
    VEX_TASK_KINDS("LD_REPAIR", 102, LDR, "LdRepair"),
    VEX_TASK_KINDS("LD_RECONFIG", 105, LDR, "LdReconfig"),
    VEX_TASK_KINDS("PD_VERIFY", 108, PDR, "DriveVerify"),
    VEX_TASK_KINDS("PD_CLEAR", 111, PDR, "DriveClear"),
    VEX_TASK_KINDS("PD_ERASE", 114, PDR, "DriveErase"),
    VEX_TASK_KINDS("PD_COPYBACK", 117, PDR, "DriveCopyBack"),
    VEX_TASK_KINDS("FASTTIER_CHECK", 120, ADP, "FastTierCheck"),
    {"EVENT_STRATAVOL_TASK_FAILED", 130, E, LDR, "agentEventErrTaskFailed"},
    {"EVENT_STRATAVOL_TASK_ABORTED", 131, W, LDR, "agentEventWrnTaskAborted"},
    // Enclosures and their elements.
    {"EVENT_STRATAVOL_ENCL_ADDED", 140, I, ENC, "agentEventInfEnclosureAdded"},
    {"EVENT_STRATAVOL_ENCL_REMOVED", 141, W, ENC, "agentEventWrnEnclosureRemoved"},
    {"EVENT_STRATAVOL_ENCL_CRITICAL", 142, E, ENC, "agentEventErrEnclosureCritical"},
    {"EVENT_STRATAVOL_ENCL_NONCRITICAL", 143, W, ENC, "agentEventWrnEnclosureNonCritical"},
    {"EVENT_STRATAVOL_ENCL_OK", 144, I, ENC, "agentEventInfEnclosureOk"},
    {"EVENT_STRATAVOL_FAN_FAILED", 150, E, FAN, "agentEventErrFanFailed"},
    {"EVENT_STRATAVOL_FAN_WARNING", 151, W, FAN, "agentEventWrnFanWarning"},
    {"EVENT_STRATAVOL_FAN_OK", 152, I, FAN, "agentEventInfFanOk"},
    {"EVENT_STRATAVOL_FAN_REMOVED", 153, W, FAN, "agentEventWrnFanRemoved"},
    {"EVENT_STRATAVOL_PSU_FAILED", 155, E, PSU, "agentEventErrPowerSupplyFailed"},
    {"EVENT_STRATAVOL_PSU_WARNING", 156, W, PSU, "agentEventWrnPowerSupplyWarning"},
    {"EVENT_STRATAVOL_PSU_OK", 157, I, PSU, "agentEventInfPowerSupplyOk"},
    {"EVENT_STRATAVOL_PSU_REMOVED", 158, W, PSU, "agentEventWrnPowerSupplyRemoved"},
    {"EVENT_STRATAVOL_TEMP_CRITICAL", 160, E, ENC, "agentEventErrTemperatureCritical"},
    {"EVENT_STRATAVOL_TEMP_WARNING", 161, W, ENC, "agentEventWrnTemperatureWarning"},
    {"EVENT_STRATAVOL_TEMP_OK", 162, I, ENC, "agentEventInfTemperatureOk"},
    {"EVENT_STRATAVOL_SLOT_FAULT", 165, W, ENC, "agentEventWrnSlotFault"},
    {"EVENT_STRATAVOL_SLOT_FAULT_CLEARED", 166, I, ENC, "agentEventInfSlotFaultCleared"},
    {"EVENT_STRATAVOL_SLOT_OCCUPIED", 167, P, ENC, "agentEventInfSlotOccupied"},
    {"EVENT_STRATAVOL_SLOT_EMPTY", 168, P, ENC, "agentEventInfSlotEmpty"},
    {"EVENT_STRATAVOL_SLOT_FAILED", 169, E, ENC, "agentEventErrSlotFailed"},
};

#undef VEX_TASK_KINDS

}  // namespace

const EventKind* eventKinds(std::size_t& count) {
    count = sizeof kKinds / sizeof kKinds[0];
    return kKinds;
}

const EventKind* findEventKind(const std::string& key) {
    for (const EventKind& kind : kKinds) {
        if (key == kind.key) {
            return &kind;
        }
    }
    return nullptr;
}

}  // namespace vex::monitor
