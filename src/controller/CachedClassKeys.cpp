#include "controller/CachedClassKeys.h"

// The keys of a CIM_LogicalDevice, under a prefix.
#define DEVICE_KEYS(p) {p "SystemCreationClassName", p "SystemName", p "CreationClassName", p "DeviceID"}

namespace vex::cim::fwf {

const CachedClassKeys kCachedClassKeys[] = {
    // The cached class plug-ins.
    {"VEX_StorageVolume", VEX_OBJ_STORAGE_VOLUME, "SV", DEVICE_KEYS(""), true},
    {"VEX_StorageVolumeView", VEX_OBJ_STORAGE_VOLUME, "", DEVICE_KEYS("SV"), true},
    {"VEX_ConcreteStoragePool", VEX_OBJ_CONCRETE_POOL, "SP", {"InstanceID"}, true},
    {"VEX_ConcreteStoragePoolView", VEX_OBJ_CONCRETE_POOL, "", {"SPInstanceID"}, true},
    {"VEX_SourceStoragePoolView", VEX_OBJ_SSP_POOL, "", {"SPInstanceID"}, true},
    {"VEX_PrimordialStorageExtent", VEX_OBJ_PHYSICAL_DRIVE, "SE", DEVICE_KEYS(""), true},
    {"VEX_DiskDrive", VEX_OBJ_PHYSICAL_DRIVE, "DD", DEVICE_KEYS(""), true},
    {"VEX_DiskDriveView", VEX_OBJ_PHYSICAL_DRIVE, "", DEVICE_KEYS("DD"), true},
    {"VEX_ControllerComputerSystem", VEX_OBJ_CONTROLLER, "CS", {"CreationClassName", "Name"}, true},
    {"VEX_ControllerView", VEX_OBJ_CONTROLLER, "", {"CSCreationClassName", "CSName"}, true},
    {"VEX_Card", VEX_OBJ_CONTROLLER, "CD", {"CreationClassName", "Tag"}, true},
    {"VEX_Product", VEX_OBJ_CONTROLLER, "PRD", {"Name", "IdentifyingNumber", "Vendor", "Version"}, true},
    {"VEX_PortController", VEX_OBJ_CONTROLLER, "PC", DEVICE_KEYS(""), true},
    {"VEX_SCSIProtocolController", VEX_OBJ_CONTROLLER, "PC", DEVICE_KEYS(""), true},
    {"VEX_AlarmDevice", VEX_OBJ_CONTROLLER, "AD", DEVICE_KEYS(""), true},
    {"VEX_Battery", VEX_OBJ_CONTROLLER, "B", DEVICE_KEYS(""), true},
    // One array element per connector or phy; the view splits them by index.
    {"VEX_SASInitiatorPort", VEX_OBJ_CONTROLLER, "SP", DEVICE_KEYS(""), true},
    {"VEX_InitiatorSASPhy", VEX_OBJ_CONTROLLER, "IP", DEVICE_KEYS(""), true},
    {"VEX_DATargetPort", VEX_OBJ_CONTROLLER, "DA", DEVICE_KEYS(""), true},
    {"VEX_EnclosureChassis", VEX_OBJ_ENCLOSURE, "", {"CreationClassName", "Tag"}, true},
    {"VEX_SESElement", VEX_OBJ_SES_ELEMENT, "", DEVICE_KEYS(""), true},
    {"VEX_ConcreteJob", VEX_OBJ_JOB, "", {"InstanceID"}, true},
    {"VEX_EventIndication", VEX_OBJ_EVENT_INDICATION, "", {}, true},  // holds no instances
    {"VEX_PrimordialFixedStorageSettings", VEX_OBJ_VOLUME_SETTING, "", {"InstanceID"}, true},
    {"VEX_PrimordialGeneratedStorageSettings", VEX_OBJ_PRIMORDIAL_SETTING, "", {"InstanceID"}, true},
    {"VEX_ConcreteGeneratedStorageSettings", VEX_OBJ_CONCRETE_SETTING, "", {"InstanceID"}, true},
    // Further views carried by the same cache entries.
    {"VEX_DiskDrivePhysicalPackage", VEX_OBJ_PHYSICAL_DRIVE, "PP", {"CreationClassName", "Tag"}, false},
    {"VEX_DiskDriveSASPort", VEX_OBJ_PHYSICAL_DRIVE, "LP", DEVICE_KEYS(""), false},
    {"VEX_DiskDriveATAPort", VEX_OBJ_PHYSICAL_DRIVE, "LP", DEVICE_KEYS(""), false},
    {"VEX_DiskDriveSoftwareIdentity", VEX_OBJ_PHYSICAL_DRIVE, "SI", {"InstanceID"}, false},
    // Driver, firmware and BIOS identities: three array elements.
    {"VEX_DriverSoftwareIdentity", VEX_OBJ_CONTROLLER, "SI", {"InstanceID"}, false},
    {"VEX_ConcreteStoragePoolCapabilities", VEX_OBJ_CONCRETE_POOL, "SC", {"InstanceID"}, false},
};

const std::size_t kCachedClassKeyCount = sizeof kCachedClassKeys / sizeof kCachedClassKeys[0];

}  // namespace vex::cim::fwf

#undef DEVICE_KEYS
