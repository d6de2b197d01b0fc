// The device and physical classes served straight from the object cache:
// drives, the controller and its views (card, product, port and protocol
// controllers, alarm, battery, SAS ports and phys, target port), enclosures
// and their elements. Each is its row of kCachedClasses
// (providers/storage/CachedClassTable.h).
#ifndef VEX_PROVIDERS_DEVICE_CACHEDDEVICECLASSES_H
#define VEX_PROVIDERS_DEVICE_CACHEDDEVICECLASSES_H

#include "providers/storage/CachedClassPlugin.h"

namespace vex::cim::fwf {

class VEXDiskDriveClass final : public CachedClassPlugin<kDiskDrive> {};
class VEXDiskDriveView final : public CachedClassPlugin<kDiskDriveView> {};
class VEXControllerComputerSystem final : public CachedClassPlugin<kControllerComputerSystem> {};
class VEXControllerComputerSystemView final : public CachedClassPlugin<kControllerView> {};
class VEXCard final : public CachedClassPlugin<kCard> {};
class VEXProduct final : public CachedClassPlugin<kProduct> {};
class VEXPortController final : public CachedClassPlugin<kPortController> {};
class VEXSCSIProtocolController final : public CachedClassPlugin<kSCSIProtocolController> {};
class VEXAlarmDevice final : public CachedClassPlugin<kAlarmDevice> {};
class VEXBattery final : public CachedClassPlugin<kBattery> {};
class VEXSASInitiatorPort final : public CachedClassPlugin<kSASInitiatorPort> {};
class VEXInitiatorSASPhy final : public CachedClassPlugin<kInitiatorSASPhy> {};
class VEXDATargetPort final : public CachedClassPlugin<kDATargetPort> {};
class VEXChasis final : public CachedClassPlugin<kEnclosureChassis> {};
class VEXSESElement final : public CachedClassPlugin<kSESElement> {};

}  // namespace vex::cim::fwf

#endif
