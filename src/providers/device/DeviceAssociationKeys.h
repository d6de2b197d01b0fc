// The join keys and link conditions of the device associations that plain
// property values cannot express: the controller number inside an
// identifier, the drive a firmware identity or an endpoint belongs to, and
// the extra properties some associations carry.
#ifndef VEX_PROVIDERS_DEVICE_DEVICEASSOCIATIONKEYS_H
#define VEX_PROVIDERS_DEVICE_DEVICEASSOCIATIONKEYS_H

#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMProperty.h"

namespace vex::cim::fwf::devicekeys {

using Keys = std::vector<std::string>;

// The controller number, as the controller system's "ControllerNumber"
// contributes it, of: an identifier that starts with it ("0_Driver",
// "0_ViewCapabilities"); a card tag that ends with it ("vex_0"); a system
// name that ends with it ("vexController_0") as "SystemName" or as a drive
// view's "DDSystemName".
void controllerOfInstanceID(const CIMInstance& instance, Keys& keys);
void controllerOfTag(const CIMInstance& instance, Keys& keys);
void controllerOfSystemName(const CIMInstance& instance, Keys& keys);
void controllerOfDriveView(const CIMInstance& instance, Keys& keys);

// The drive ("DeviceID" of VEX_DiskDrive) whose firmware an identity
// describes ("DiskFirmware_0_0_1"), or whose port an endpoint is named
// after ("0_0_1_0": the last number is the port).
void driveOfFirmware(const CIMInstance& instance, Keys& keys);
void driveOfEndpoint(const CIMInstance& instance, Keys& keys);

// ElementSoftwareStatus {Current, Installed} of a running software identity.
bool installedAndCurrent(const CIMInstance& first, const CIMInstance& second, std::vector<CIMProperty>& extra);
// LocationWithinContainer of a drive package in its enclosure ("Bay 3").
bool locationInChassis(const CIMInstance& chassis, const CIMInstance& package, std::vector<CIMProperty>& extra);

}  // namespace vex::cim::fwf::devicekeys

#endif
