// What the property tables read from: one library object of the snapshot
// being mapped, with the numbers that identify it. The dataOf overloads name
// the library's data records behind each context for fieldOf rows.
#ifndef VEX_CONTROLLER_MAPPINGCONTEXT_H
#define VEX_CONTROLLER_MAPPINGCONTEXT_H

#include <cstdint>
#include <string>

#include <storlib/Adapter.h>
#include <storlib/Battery.h>
#include <storlib/Enclosure.h>
#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>
#include <storlib/PhysicalDevice.h>
#include <storlib/Progress.h>
#include <storlib/SASConnector.h>
#include <storlib/SASPhy.h>
#include <storlib/SESElement.h>

namespace vex::cim::fwf::fsamap {

struct ControllerContext {
    int index = 0;
    const storlib::Adapter* adapter = nullptr;  // null: the controller is not in the snapshot
};

struct BatteryContext {
    const ControllerContext* controller;
    const storlib::Battery* battery;
};

struct PhyContext {
    const ControllerContext* controller;
    const storlib::SASPhy* phy;
};

struct ConnectorContext {
    const ControllerContext* controller;
    const storlib::SASConnector* connector;
};

// A physical device; drive is null for devices that are not hard drives.
struct DeviceContext {
    int controller = 0;
    const storlib::PhysicalDevice* device = nullptr;
    const storlib::HardDrive* drive = nullptr;
    // The chassis tag of the enclosure that holds the drive; empty: none known.
    std::string enclosureTag;
};

struct DevicePortContext {
    const DeviceContext* device;
    const storlib::DevicePortData* port;
};

struct LogicalDriveContext {
    int controller = 0;
    const storlib::LogicalDrive* logicalDrive = nullptr;
};

struct EnclosureContext {
    int controller = 0;
    const storlib::SES2EnclosureDevice* enclosure = nullptr;
};

struct SESElementContext {
    const EnclosureContext* enclosure;
    const storlib::SESElement* element;
};

struct JobContext {
    int controller = 0;
    const storlib::Progress* task = nullptr;
    std::int64_t now = 0;  // controller clock of the snapshot, seconds since the epoch
};

inline const storlib::AdapterData& dataOf(const ControllerContext& c, const storlib::AdapterData*) {
    return c.adapter->getAdapterData();
}
inline const storlib::PhysicalDeviceData& dataOf(const DeviceContext& c,
                                                 const storlib::PhysicalDeviceData*) {
    return c.device->getDeviceData();
}
inline const storlib::HardDriveData& dataOf(const DeviceContext& c, const storlib::HardDriveData*) {
    return c.drive->getDriveData();
}
inline const storlib::LogicalDriveData& dataOf(const LogicalDriveContext& c,
                                               const storlib::LogicalDriveData*) {
    return c.logicalDrive->getLogicalDriveData();
}

}  // namespace vex::cim::fwf::fsamap

#endif
