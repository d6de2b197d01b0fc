// The mapping functions of the derived device classes: each takes one cache
// record (a controller of type 1, a physical device of type 0, an enclosure
// services element of type 8) and appends the instances of its class that
// the record stands for.
#ifndef VEX_PROVIDERS_DEVICE_DEVICEDERIVATIONS_H
#define VEX_PROVIDERS_DEVICE_DEVICEDERIVATIONS_H

#include <vector>

#include "framework/CIMInstance.h"

namespace vex::cim::fwf::derived {

using Out = std::vector<CIMInstance>;

// From a controller.
void driverIdentity(const CIMInstance& controller, Out& out);
void firmwareIdentity(const CIMInstance& controller, Out& out);
void biosIdentity(const CIMInstance& controller, Out& out);
void perfModeProps(const CIMInstance& controller, Out& out);
void targetEndpoint(const CIMInstance& controller, Out& out);
void initiatorSCSIEndpoints(const CIMInstance& controller, Out& out);
void initiatorATAEndpoints(const CIMInstance& controller, Out& out);
void viewCapabilities(const CIMInstance& controller, Out& out);

// From a physical device (drives only).
void drivePackage(const CIMInstance& device, Out& out);
void driveFirmware(const CIMInstance& device, Out& out);
void driveSASPorts(const CIMInstance& device, Out& out);
void driveATAPorts(const CIMInstance& device, Out& out);
void driveSCSIEndpoints(const CIMInstance& device, Out& out);
void driveATAEndpoints(const CIMInstance& device, Out& out);

// From an enclosure services element.
void enclosureFan(const CIMInstance& element, Out& out);
void enclosurePowerSupply(const CIMInstance& element, Out& out);
void enclosureSensor(const CIMInstance& element, Out& out);
void enclosureSlot(const CIMInstance& element, Out& out);

}  // namespace vex::cim::fwf::derived

#endif
