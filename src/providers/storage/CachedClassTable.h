// The family of classes served straight from the object cache, as one table.
//
// Each row is one CIM class: the cache object type that carries it, the
// prefix its properties are stored under inside those cache instances
// (empty: the cache instance is the class's own instance), and how its
// plug-in behaves beyond the cached base. The plug-in classes themselves are
// one line each (CachedStorageClasses.h, CachedDeviceClasses.h) over the one
// template of CachedClassPlugin.h that reads its row.
#ifndef VEX_PROVIDERS_STORAGE_CACHEDCLASSTABLE_H
#define VEX_PROVIDERS_STORAGE_CACHEDCLASSTABLE_H

#include <cstddef>

#include "framework/VexObjectType.h"

namespace vex::cim::fwf {

// Registration for change events: the object type whose changes the plug-in
// hears about, or none.
inline constexpr int kNoChangeEvents = -1;

struct CachedClassRow {
    const char* className;    // the CIM class the plug-in reports
    const char* pluginClass;  // the plug-in class serving it
    _eVEXObjectType type;     // cache object type carrying the class
    const char* prefix;       // property-name prefix inside those instances
    bool tracesPrefix;        // getClassPrefix traces "ENTER::" / "EXIT::"
    bool hasMethods;          // extrinsic methods, run as controller routines
    int changeEvents;         // object type registered for change events, or kNoChangeEvents
    bool perElement;          // one instance per element of the stored parallel arrays
};

enum CachedClassId : std::size_t {
    kStorageVolume,
    kStorageVolumeView,
    kConcreteStoragePool,
    kConcreteStoragePoolView,
    kSourceStoragePoolView,
    kPrimordialStorageExtent,
    kDiskDrive,
    kDiskDriveView,
    kControllerComputerSystem,
    kControllerView,
    kCard,
    kProduct,
    kPortController,
    kSCSIProtocolController,
    kAlarmDevice,
    kBattery,
    kSASInitiatorPort,
    kInitiatorSASPhy,
    kDATargetPort,
    kEnclosureChassis,
    kSESElement,
    kConcreteJob,
    kEventIndication,
    kPrimordialFixedStorageSettings,
    kPrimordialGeneratedStorageSettings,
    kConcreteGeneratedStorageSettings,
    kCachedClassCount
};

namespace cachedtable {

constexpr bool kTraced = true, kPlain = false;
constexpr bool kMethods = true, kNoMethods = false;
constexpr bool kPerElement = true, kWhole = false;
constexpr int kNone = kNoChangeEvents;

// Indexed by CachedClassId. "PC" serves both the port controller and the SCSI
// protocol controller (the same stored properties); "SP" is the concrete
// pool's prefix in type 4 and the SAS initiator port's in type 1. The volume
// view deliberately hears controller changes. The SAS ports and phys of a
// controller are stored as parallel arrays, one element per port or phy.
// clang-format off
inline constexpr CachedClassRow kRows[kCachedClassCount] = {
    // class                                   plug-in class                             object type                 prefix  getClassPrefix  methods  change events  instances
    {"VEX_StorageVolume",                      "VEX_StorageVolume",                      VEX_OBJ_STORAGE_VOLUME,     "SV",  kPlain, kNoMethods, kNone, kWhole},
    {"VEX_StorageVolumeView",                  "VEXStorageVolumeView",                   VEX_OBJ_STORAGE_VOLUME,     "",    kPlain, kNoMethods, VEX_OBJ_CONTROLLER, kWhole},
    {"VEX_ConcreteStoragePool",                "VEX_ConcreteStoragePool",                VEX_OBJ_CONCRETE_POOL,      "SP",  kPlain, kNoMethods, VEX_OBJ_CONCRETE_POOL, kWhole},
    {"VEX_ConcreteStoragePoolView",            "VEXConcreteStoragePoolView",             VEX_OBJ_CONCRETE_POOL,      "",    kPlain, kNoMethods, VEX_OBJ_CONCRETE_POOL, kWhole},
    {"VEX_SourceStoragePoolView",              "VEXSourceStoragePoolView",               VEX_OBJ_SSP_POOL,           "",    kPlain, kNoMethods, kNone, kWhole},
    {"VEX_PrimordialStorageExtent",            "VEXPrimordialStorageExtent",             VEX_OBJ_PHYSICAL_DRIVE,     "SE",  kPlain, kNoMethods, kNone, kWhole},
    {"VEX_DiskDrive",                          "VEXDiskDriveClass",                      VEX_OBJ_PHYSICAL_DRIVE,     "DD",  kPlain, kNoMethods, VEX_OBJ_PHYSICAL_DRIVE, kWhole},
    {"VEX_DiskDriveView",                      "VEXDiskDriveView",                       VEX_OBJ_PHYSICAL_DRIVE,     "",    kPlain, kNoMethods, VEX_OBJ_PHYSICAL_DRIVE, kWhole},
    {"VEX_ControllerComputerSystem",           "VEXControllerComputerSystem",            VEX_OBJ_CONTROLLER,         "CS",  kPlain, kMethods, VEX_OBJ_CONTROLLER, kWhole},
    {"VEX_ControllerView",                     "VEXControllerComputerSystemView",        VEX_OBJ_CONTROLLER,         "",    kPlain, kNoMethods, VEX_OBJ_CONTROLLER, kWhole},
    {"VEX_Card",                               "VEXCard",                                VEX_OBJ_CONTROLLER,         "CD",  kPlain, kMethods, VEX_OBJ_CONTROLLER, kWhole},
    {"VEX_Product",                            "VEXProduct",                             VEX_OBJ_CONTROLLER,         "PRD", kPlain, kMethods, VEX_OBJ_CONTROLLER, kWhole},
    {"VEX_PortController",                     "VEXPortController",                      VEX_OBJ_CONTROLLER,         "PC",  kPlain, kMethods, VEX_OBJ_CONTROLLER, kWhole},
    {"VEX_SCSIProtocolController",             "VEXSCSIProtocolController",              VEX_OBJ_CONTROLLER,         "PC",  kPlain, kMethods, VEX_OBJ_CONTROLLER, kWhole},
    {"VEX_AlarmDevice",                        "VEXAlarmDevice",                         VEX_OBJ_CONTROLLER,         "AD",  kPlain, kMethods, VEX_OBJ_CONTROLLER, kWhole},
    {"VEX_Battery",                            "VEXBattery",                             VEX_OBJ_CONTROLLER,         "B",   kPlain, kMethods, kNone, kWhole},
    {"VEX_SASInitiatorPort",                   "VEXSASInitiatorPort",                    VEX_OBJ_CONTROLLER,         "SP",  kTraced, kNoMethods, kNone, kPerElement},
    {"VEX_InitiatorSASPhy",                    "VEXInitiatorSASPhy",                     VEX_OBJ_CONTROLLER,         "IP",  kTraced, kNoMethods, kNone, kPerElement},
    {"VEX_DATargetPort",                       "VEXDATargetPort",                        VEX_OBJ_CONTROLLER,         "DA",  kTraced, kNoMethods, kNone, kWhole},
    {"VEX_EnclosureChassis",                   "VEXChasis",                              VEX_OBJ_ENCLOSURE,          "",    kPlain, kMethods, VEX_OBJ_ENCLOSURE, kWhole},
    {"VEX_SESElement",                         "VEXSESElement",                          VEX_OBJ_SES_ELEMENT,        "",    kPlain, kNoMethods, VEX_OBJ_SES_ELEMENT, kWhole},
    {"VEX_ConcreteJob",                        "VEX_ConcreteJob",                        VEX_OBJ_JOB,                "",    kPlain, kNoMethods, VEX_OBJ_JOB, kWhole},
    {"VEX_EventIndication",                    "VEX_EventIndication",                    VEX_OBJ_EVENT_INDICATION,   "",    kPlain, kNoMethods, VEX_OBJ_EVENT_INDICATION, kWhole},
    {"VEX_PrimordialFixedStorageSettings",     "VEX_PrimordialFixedStorageSettings",     VEX_OBJ_VOLUME_SETTING,     "",    kPlain, kNoMethods, kNone, kWhole},
    {"VEX_PrimordialGeneratedStorageSettings", "VEX_PrimordialGeneratedStorageSettings", VEX_OBJ_PRIMORDIAL_SETTING, "",    kPlain, kNoMethods, kNone, kWhole},
    {"VEX_ConcreteGeneratedStorageSettings",   "VEX_ConcreteGeneratedStorageSettings",   VEX_OBJ_CONCRETE_SETTING,   "",    kPlain, kNoMethods, kNone, kWhole},
};
// clang-format on

}  // namespace cachedtable

inline constexpr const auto& kCachedClasses = cachedtable::kRows;

}  // namespace vex::cim::fwf

#endif
