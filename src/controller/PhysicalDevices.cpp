#include <map>
#include <new>

#include <storlib/Enclosure.h>
#include <storlib/HardDrive.h>

#include "controller/DeviceMapping.h"
#include "controller/InstanceBatch.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf::fsamap {

namespace {

using EnclosureTags = std::map<int, std::string>;

// Chassis tag per enclosure index, for the drives' "DDEnclosureTagID".
EnclosureTags enclosureTagsOf(const ControllerContext& controller) {
    EnclosureTags tags;
    try {
        for (const storlib::RaidObject* object :
             storlib::FilterCollection(*controller.adapter, storlib::SES2EnclosureDevice::kClassName)) {
            const auto* enclosure = object->as<storlib::SES2EnclosureDevice>();
            tags[static_cast<int>(enclosure->getEnclosureIndex())] =
                enclosureTag(EnclosureContext{controller.index, enclosure});
        }
    } catch (const std::bad_alloc&) {
        TkzLogMsg(TKZ_LOG_ERROR, "ERROR :Failed to allocate memory for enclIndex!");
        tags.clear();
    }
    return tags;
}

void addDevice(const DeviceContext& device, InstanceBatch& batch) {
    fsaCIMInstanceWrapper instance;
    insertPhyInfo(device, instance);
    insertDiskSmartDetails(device, instance);
    if (device.drive != nullptr) {
        insertStorageDevInfoDetails(device, instance);
    } else {
        insertOtherDeviceInfo(device, instance);
    }
    batch.add(VEX_OBJ_PHYSICAL_DRIVE, instance);
}

}  // namespace

void updatePhysicalDevice(const ControllerContext& controller, InstanceBatch& batch) {
    const EnclosureTags tags = enclosureTagsOf(controller);
    for (const storlib::RaidObject* object :
         storlib::FilterCollection(*controller.adapter, storlib::PhysicalDevice::kClassName)) {
        DeviceContext device;
        device.controller = controller.index;
        device.device = object->as<storlib::PhysicalDevice>();
        device.drive = object->as<storlib::HardDrive>();
        if (device.drive != nullptr) {
            const auto tag = tags.find(device.drive->getEnclosureIndex());
            if (tag != tags.end()) {
                device.enclosureTag = tag->second;
            }
        }
        addDevice(device, batch);
    }
    for (const storlib::RaidObject* object :
         storlib::FilterCollection(*controller.adapter, storlib::SES2EnclosureDevice::kClassName)) {
        updateEnclosureInformation(EnclosureContext{controller.index, object->as<storlib::SES2EnclosureDevice>()},
                                   batch);
    }
}

}  // namespace vex::cim::fwf::fsamap
