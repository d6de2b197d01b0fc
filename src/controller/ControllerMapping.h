// Controller property mapping: everything the provider shows about one
// controller goes into one instance (cache type 1), each controller-level
// CIM class under its prefix: "CS" controller system, "DA" target port, "PRD"
// product, "CD" card, "PC" port controller, "AD" alarm device, "B" battery,
// "SI" software identities, "IP" initiator SAS phys, "SP" SAS initiator
// ports, "HostBus" the host bus. Phys and ports are parallel arrays, one
// element per phy or connector in the library's listing order.
#ifndef VEX_CONTROLLER_CONTROLLERMAPPING_H
#define VEX_CONTROLLER_CONTROLLERMAPPING_H

#include "controller/FsaCIMInstanceWrapper.h"
#include "controller/MappingContext.h"

namespace vex::cim::fwf::fsamap {

// Identity from the controller enumeration; also for controllers that are
// not usable (their instance carries nothing else).
void setInfoFromFsaEnum(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);

void updatePortControllerDetails(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
// General settings and state; also adds the phys, the connectors, the
// capability flags and the PCI identifiers.
void readFsaGeneralInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
void updateAlarmDetails(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
// The controller's limits.
void readAdapterOptions(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
// Driver, firmware and BIOS as three-element parallel arrays, in that order.
void updateVersionInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
void updateBatteryProperties(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
void readHostBusInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
void readAdapterPCIIds(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
void updateSASPhyInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
void updateSasConnectorInformation(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
void insertFeatInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);
// "CSNoOfReadyDrives": the controller's hard drives.
void addReadyDriveCount(const ControllerContext& controller, fsaCIMInstanceWrapper& instance);

}  // namespace vex::cim::fwf::fsamap

#endif
