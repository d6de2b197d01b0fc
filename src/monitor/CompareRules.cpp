#include "monitor/CompareRules.h"

namespace vex::monitor {

namespace {

constexpr Trigger APP = Trigger::Appeared;
constexpr Trigger GONE = Trigger::Disappeared;
constexpr Trigger TO = Trigger::Became;
constexpr Trigger CHG = Trigger::Changed;
constexpr Trigger STEP = Trigger::Stepped;

// One kind of task: started (seen running), progress by tenths, done (seen
// completed, or completing).
#define VEX_TASK_RULES(TYPE, NAME)                                                                          \
    {"Progress", APP, "", "", "taskType=" TYPE ",taskState=0", "EVENT_STRATAVOL_" NAME "_STARTED", "percentageComplete", false}, \
    {"Progress", APP, "", "", "taskType=" TYPE ",taskState=2", "EVENT_STRATAVOL_" NAME "_DONE", "", false},                 \
    {"Progress", STEP, "percentageComplete", "", "taskType=" TYPE ",taskState=0", "EVENT_STRATAVOL_" NAME "_PROGRESS", "percentageComplete", false}, \
    {"Progress", TO, "taskState", "2", "taskType=" TYPE, "EVENT_STRATAVOL_" NAME "_DONE", "", false}

const CompareRule kRules[] = {
    // Controllers and their backup units.
    {"Controller", TO, "status", "!0", "", "EVENT_STRATAVOL_CONTROLLER_FAILED", "status", true},
    {"Controller", TO, "status", "0", "", "EVENT_STRATAVOL_CONTROLLER_OK", "", false},
    {"Controller", CHG, "firmwareVersion", "", "", "EVENT_STRATAVOL_CONTROLLER_FIRMWARE_CHANGED", "", false},
    {"Controller", TO, "temperatureState", "high", "", "EVENT_STRATAVOL_CONTROLLER_TEMP_HIGH", "temperature", true},
    {"Controller", TO, "temperatureState", "normal", "", "EVENT_STRATAVOL_CONTROLLER_TEMP_NORMAL", "temperature", false},
    {"Battery", TO, "state", "0", "isSuperCap=false", "EVENT_STRATAVOL_BATTERY_OK", "", false},
    {"Battery", TO, "state", "1", "isSuperCap=false", "EVENT_STRATAVOL_BATTERY_CHARGING", "", false},
    {"Battery", TO, "state", "2", "isSuperCap=false", "EVENT_STRATAVOL_BATTERY_LOW", "", true},
    {"Battery", TO, "state", "3", "isSuperCap=false", "EVENT_STRATAVOL_BATTERY_FAILED", "", true},
    {"Battery", TO, "state", "4", "isSuperCap=false", "EVENT_STRATAVOL_BATTERY_MISSING", "", true},
    {"Battery", TO, "state", "5", "isSuperCap=false", "EVENT_STRATAVOL_BATTERY_RECONDITION", "", true},
    {"Battery", GONE, "", "", "isSuperCap=false", "EVENT_STRATAVOL_BATTERY_MISSING", "", false},
    {"Battery", TO, "state", "0", "isSuperCap=true", "EVENT_STRATAVOL_SUPERCAP_OK", "", false},
    {"Battery", TO, "state", "1", "isSuperCap=true", "EVENT_STRATAVOL_SUPERCAP_CHARGING", "", false},
    {"Battery", TO, "state", "2", "isSuperCap=true", "EVENT_STRATAVOL_SUPERCAP_LOW", "", true},
    {"Battery", TO, "state", "3", "isSuperCap=true", "EVENT_STRATAVOL_SUPERCAP_FAILED", "", true},
    {"Battery", TO, "state", "4", "isSuperCap=true", "EVENT_STRATAVOL_SUPERCAP_MISSING", "", true},
    {"Battery", GONE, "", "", "isSuperCap=true", "EVENT_STRATAVOL_SUPERCAP_MISSING", "", false},
    {"Battery", TO, "temperatureWarning", "true", "", "EVENT_STRATAVOL_BATTERY_TEMPERATURE", "", true},
    // Physical drives.
    {"HardDrive", APP, "", "", "", "EVENT_STRATAVOL_PD_INSERTED", "", false},
    {"HardDrive", GONE, "", "", "", "EVENT_STRATAVOL_PD_REMOVED", "", false},
    {"HardDrive", TO, "state", "4", "", "EVENT_STRATAVOL_PD_FAILED", "", true},
    {"HardDrive", TO, "state", "5", "", "EVENT_STRATAVOL_PD_OFFLINE", "", true},
    {"HardDrive", TO, "state", "7", "", "EVENT_STRATAVOL_PD_MISSING", "", true},
    {"HardDrive", TO, "state", "1", "", "EVENT_STRATAVOL_PD_ONLINE", "", false},
    {"HardDrive", TO, "state", "3", "old.state=!2", "EVENT_STRATAVOL_PD_REBUILDING", "", false},
    {"HardDrive", TO, "state", "3", "old.state=2", "EVENT_STRATAVOL_PD_SPARE_USED", "", false},
    {"HardDrive", TO, "spareType", "!0", "", "EVENT_STRATAVOL_PD_SPARE_ASSIGNED", "", false},
    {"HardDrive", TO, "spareType", "0", "state=!3", "EVENT_STRATAVOL_PD_SPARE_UNASSIGNED", "", false},
    {"HardDrive", TO, "state", "0", "", "EVENT_STRATAVOL_PD_READY", "", false},
    {"HardDrive", TO, "state", "6", "", "EVENT_STRATAVOL_PD_JBOD", "", false},
    {"HardDrive", TO, "state", "8", "", "EVENT_STRATAVOL_PD_RAW", "", false},
    {"HardDrive", TO, "smartError", "true", "", "EVENT_STRATAVOL_PD_PFA", "", true},
    {"HardDrive", TO, "smartError", "false", "", "EVENT_STRATAVOL_PD_PFA_CLEARED", "", false},
    {"HardDrive", CHG, "firmwareRevision", "", "", "EVENT_STRATAVOL_PD_FIRMWARE_CHANGED", "", false},
    {"HardDrive", CHG, "serialNumber", "", "", "EVENT_STRATAVOL_PD_REPLACED", "", false},
    // Logical drives.
    {"LogicalDrive", APP, "", "", "", "EVENT_STRATAVOL_LD_CREATED", "", false},
    {"LogicalDrive", GONE, "", "", "", "EVENT_STRATAVOL_LD_DELETED", "", false},
    {"LogicalDrive", TO, "health", "0", "", "EVENT_STRATAVOL_LD_OPTIMAL", "", false},
    {"LogicalDrive", TO, "health", "1", "", "EVENT_STRATAVOL_LD_DEGRADED", "", true},
    {"LogicalDrive", TO, "health", "2", "", "EVENT_STRATAVOL_LD_FAILED", "", true},
    {"LogicalDrive", CHG, "name", "", "", "EVENT_STRATAVOL_LD_RENAMED", "", false},
    {"LogicalDrive", CHG, "dataSizeMB", "", "", "EVENT_STRATAVOL_LD_EXPANDED", "", false},
    {"LogicalDrive", CHG, "raidLevel", "", "", "EVENT_STRATAVOL_LD_MIGRATED", "", false},
    // Tasks, by task type.
    VEX_TASK_RULES("1", "LD_INIT"),
    VEX_TASK_RULES("2", "LD_CLEAR"),
    VEX_TASK_RULES("3", "LD_REBUILD"),
    VEX_TASK_RULES("4", "LD_VERIFY"),
    VEX_TASK_RULES("5", "LD_REPAIR"),
    VEX_TASK_RULES("16", "LD_RECONFIG"),
    VEX_TASK_RULES("6", "PD_VERIFY"),
    VEX_TASK_RULES("7", "PD_CLEAR"),
    VEX_TASK_RULES("8", "PD_ERASE"),
    VEX_TASK_RULES("9", "PD_COPYBACK"),
    VEX_TASK_RULES("10", "FASTTIER_CHECK"),
    {"Progress", TO, "taskState", "3", "", "EVENT_STRATAVOL_TASK_FAILED", "taskName", false},
    {"Progress", TO, "taskState", "4", "", "EVENT_STRATAVOL_TASK_ABORTED", "taskName", false},
    {"Progress", APP, "", "", "taskState=3", "EVENT_STRATAVOL_TASK_FAILED", "taskName", false},
    {"Progress", APP, "", "", "taskState=4", "EVENT_STRATAVOL_TASK_ABORTED", "taskName", false},
    // Enclosures and their elements (SES status: 1 OK, 2 critical,
    // 3 non-critical, 4 unrecoverable, 5 not installed).
    {"SES2EnclosureDevice", APP, "", "", "", "EVENT_STRATAVOL_ENCL_ADDED", "", false},
    {"SES2EnclosureDevice", GONE, "", "", "", "EVENT_STRATAVOL_ENCL_REMOVED", "", false},
    {"SES2EnclosureDevice", TO, "status", "2", "", "EVENT_STRATAVOL_ENCL_CRITICAL", "", true},
    {"SES2EnclosureDevice", TO, "status", "4", "", "EVENT_STRATAVOL_ENCL_CRITICAL", "", true},
    {"SES2EnclosureDevice", TO, "status", "3", "", "EVENT_STRATAVOL_ENCL_NONCRITICAL", "", true},
    {"SES2EnclosureDevice", TO, "status", "1", "", "EVENT_STRATAVOL_ENCL_OK", "", false},
    {"SESElement", TO, "status", "2", "elementType=3", "EVENT_STRATAVOL_FAN_FAILED", "", true},
    {"SESElement", TO, "status", "4", "elementType=3", "EVENT_STRATAVOL_FAN_FAILED", "", true},
    {"SESElement", TO, "status", "3", "elementType=3", "EVENT_STRATAVOL_FAN_WARNING", "", true},
    {"SESElement", TO, "status", "1", "elementType=3", "EVENT_STRATAVOL_FAN_OK", "", false},
    {"SESElement", TO, "status", "5", "elementType=3", "EVENT_STRATAVOL_FAN_REMOVED", "", false},
    {"SESElement", TO, "status", "2", "elementType=2", "EVENT_STRATAVOL_PSU_FAILED", "", true},
    {"SESElement", TO, "status", "4", "elementType=2", "EVENT_STRATAVOL_PSU_FAILED", "", true},
    {"SESElement", TO, "status", "3", "elementType=2", "EVENT_STRATAVOL_PSU_WARNING", "", true},
    {"SESElement", TO, "status", "1", "elementType=2", "EVENT_STRATAVOL_PSU_OK", "", false},
    {"SESElement", TO, "status", "5", "elementType=2", "EVENT_STRATAVOL_PSU_REMOVED", "", false},
    {"SESElement", TO, "status", "2", "elementType=4", "EVENT_STRATAVOL_TEMP_CRITICAL", "temperature", true},
    {"SESElement", TO, "status", "4", "elementType=4", "EVENT_STRATAVOL_TEMP_CRITICAL", "temperature", true},
    {"SESElement", TO, "status", "3", "elementType=4", "EVENT_STRATAVOL_TEMP_WARNING", "temperature", true},
    {"SESElement", TO, "status", "1", "elementType=4", "EVENT_STRATAVOL_TEMP_OK", "temperature", false},
    {"SESElement", TO, "fault", "true", "elementType=1", "EVENT_STRATAVOL_SLOT_FAULT", "", true},
    {"SESElement", TO, "fault", "false", "elementType=1", "EVENT_STRATAVOL_SLOT_FAULT_CLEARED", "", false},
    {"SESElement", TO, "occupied", "true", "elementType=1", "EVENT_STRATAVOL_SLOT_OCCUPIED", "", false},
    {"SESElement", TO, "occupied", "false", "elementType=1", "EVENT_STRATAVOL_SLOT_EMPTY", "", false},
    {"SESElement", TO, "status", "2", "elementType=1", "EVENT_STRATAVOL_SLOT_FAILED", "", true},
};

#undef VEX_TASK_RULES

}  // namespace

const CompareRule* compareRules(std::size_t& count) {
    count = sizeof kRules / sizeof kRules[0];
    return kRules;
}

}  // namespace vex::monitor
