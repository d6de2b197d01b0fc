// Drive, enclosure and enclosure-element mapping. Each physical device of a
// controller becomes one instance of cache type 0 carrying the disk drive
// ("DD"), its primordial extent ("SE"), its package ("PP"), its firmware
// ("SI") and its ports ("LP", parallel arrays, one element per device port).
// Each SES-2 enclosure becomes one type-7 instance (the enclosure chassis)
// and each of its elements one type-8 instance.
#ifndef VEX_CONTROLLER_DEVICEMAPPING_H
#define VEX_CONTROLLER_DEVICEMAPPING_H

#include "controller/FsaCIMInstanceWrapper.h"
#include "controller/MappingContext.h"

namespace vex::cim::fwf {
class InstanceBatch;
}

namespace vex::cim::fwf::fsamap {

// Every physical device into type 0, then every enclosure into types 7 and 8.
void updatePhysicalDevice(const ControllerContext& controller, InstanceBatch& batch);

void insertStorageDevInfoDetails(const DeviceContext& device, fsaCIMInstanceWrapper& instance);
void insertOtherDeviceInfo(const DeviceContext& device, fsaCIMInstanceWrapper& instance);
void insertPhyInfo(const DeviceContext& device, fsaCIMInstanceWrapper& instance);
void insertDiskSmartDetails(const DeviceContext& device, fsaCIMInstanceWrapper& instance);

// The enclosure into type 7 and its elements into type 8.
void updateEnclosureInformation(const EnclosureContext& enclosure, InstanceBatch& batch);
void initSESData(const SESElementContext& element, InstanceBatch& batch);

// The chassis tag of an enclosure, which its elements name as their system.
std::string enclosureTag(const EnclosureContext& enclosure);

}  // namespace vex::cim::fwf::fsamap

#endif
