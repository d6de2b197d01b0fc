// Class names and identifier formats of the cached instances. Every
// identifier the property mapping writes is formatted here, so the formats
// that clients and the storage routines decode live in one place.
#ifndef VEX_CONTROLLER_CIMNAMES_H
#define VEX_CONTROLLER_CIMNAMES_H

#include <cstdint>
#include <string>

namespace vex::cim::fwf::fsamap {

inline constexpr const char* kControllerSystemClass = "VEX_ControllerComputerSystem";
inline constexpr const char* kDATargetPortClass = "VEX_DATargetPort";
inline constexpr const char* kCardClass = "VEX_Card";
inline constexpr const char* kPortControllerClass = "VEX_PortController";
inline constexpr const char* kAlarmDeviceClass = "VEX_AlarmDevice";
inline constexpr const char* kBatteryClass = "VEX_Battery";
inline constexpr const char* kInitiatorSASPhyClass = "VEX_InitiatorSASPhy";
inline constexpr const char* kSASInitiatorPortClass = "VEX_SASInitiatorPort";
inline constexpr const char* kDiskDriveClass = "VEX_DiskDrive";
inline constexpr const char* kStorageExtentClass = "VEX_StorageExtent";
inline constexpr const char* kDiskPackageClass = "VEX_DiskDrivePhysicalPackage";
inline constexpr const char* kDiskSASPortClass = "VEX_DiskDriveSASPort";
inline constexpr const char* kDiskATAPortClass = "VEX_DiskDriveATAPort";
inline constexpr const char* kStorageVolumeClass = "VEX_StorageVolume";
inline constexpr const char* kEnclosureChassisClass = "VEX_EnclosureChassis";
inline constexpr const char* kSESElementClass = "VEX_SESElement";
// The system class the SES elements name; spelled so by the element classes.
inline constexpr const char* kSESSystemClass = "VEX_EnclosureChasis";
inline constexpr const char* kManufacturer = "TKZ-Lorvan";
inline constexpr const char* kProductVendor = "TKZ";
inline constexpr const char* kUnknown = "unknown";

std::string formatText(const char* format, ...) __attribute__((format(printf, 1, 2)));

// "vexController_%d"
std::string controllerSystemName(int controller);
// "%d_%d_%d": controller, channel, device
std::string driveDeviceId(int controller, int channel, int device);
// "%d_%d": controller, logical drive
std::string logicalDriveId(int controller, int logicalDrive);
// "%d_%llu": controller, enclosure logical identifier
std::string enclosureSystemName(int controller, std::uint64_t enclosureId);

// The numbers of a "%d_%d_%d" / "%d_%d" identifier; false when the text does
// not hold that many numbers.
bool parseDriveDeviceId(const std::string& text, int& controller, int& channel, int& device);
bool parseLogicalDriveId(const std::string& text, int& controller, int& logicalDrive);
// The controller number of "vexController_%d".
bool parseControllerSystemName(const std::string& text, int& controller);

}  // namespace vex::cim::fwf::fsamap

#endif
