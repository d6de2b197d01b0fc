#include "controller/CimNames.h"
#include "controller/DeviceMapping.h"
#include "controller/StatusMaps.h"

namespace vex::cim::fwf::fsamap {

namespace {

using storlib::InterfaceType;

bool isAtaPort(const DevicePortContext& p) { return p.port->portType == InterfaceType::SATA; }

const PropertyRow<DevicePortContext> kPorts[] = {
    {"LPPermanentAddress", CIM_STRING_ARRAY, PLAIN, [](const DevicePortContext& p) { return raw(p.port->sasAddress); }},
    {"LPAttachedDeviceType", CIM_STRING_ARRAY, PLAIN, [](const DevicePortContext& p) { return raw(p.port->attachedDeviceType); }},
    {"LPAttachedSASAddress", CIM_STRING_ARRAY, PLAIN, [](const DevicePortContext& p) { return raw(p.port->attachedSASAddress); }},
    {"LPSystemCreationClassName", CIM_STRING_ARRAY, VIEW_KEY, [](const DevicePortContext&) { return raw(kControllerSystemClass); }},
    {"LPSystemName", CIM_STRING_ARRAY, VIEW_KEY,
     [](const DevicePortContext& p) { return raw(controllerSystemName(p.device->controller)); }},
    // The port's interface as the library codes it: 1 SAS, 2 SATA, 3 NVMe.
    {"LPPortType", CIM_UINT16_ARRAY, PLAIN, [](const DevicePortContext& p) { return raw(p.port->portType); }},
    // SAS link-rate code: 8 1.5 Gbit/s, 9 3, 10 6, 11 12.
    {"LPNegotiatedSpeedType", CIM_UINT8_ARRAY, PLAIN, [](const DevicePortContext& p) { return raw(p.port->negotiatedLinkRate); }},
    {"LPCreationClassName", CIM_STRING_ARRAY, VIEW_KEY,
     [](const DevicePortContext& p) { return raw(isAtaPort(p) ? kDiskATAPortClass : kDiskSASPortClass); }},
    // controller, channel, device, port
    {"LPDeviceID", CIM_STRING_ARRAY, VIEW_KEY,
     [](const DevicePortContext& p) {
         const storlib::PhysicalDevice& d = *p.device->device;
         return raw(formatText("%d_%d_%d_%d", p.device->controller, static_cast<int>(d.getChannelID()),
                               static_cast<int>(d.getDeviceID()), static_cast<int>(p.port->phyId)));
     }},
    // CIM_LogicalPort.Speed: bits per second.
    {"LPSpeed", CIM_UINT64_ARRAY, PLAIN,
     [](const DevicePortContext& p) { return raw(linkRateMbps(p.port->negotiatedLinkRate) * 1000000ull); }},
};

const PropertyRow<DeviceContext> kSmart[] = {
    {"DDPfaSupported", CIM_BOOLEAN, PLAIN, [](const DeviceContext& d) { return raw(d.drive->isPfaSupported()); }},
    {"DDPfaEnabled", CIM_BOOLEAN, PLAIN, [](const DeviceContext& d) { return raw(d.drive->isPfaEnabled()); }},
    {"DDSmarterrorFlag", CIM_BOOLEAN, PLAIN, [](const DeviceContext& d) { return raw(d.drive->hasSmartError()); }},
    {"DDSmartWarnings", CIM_UINT32, PLAIN, [](const DeviceContext& d) { return raw(d.drive->getSmartWarnings()); }},
};

// CIM_PhysicalPackage.PackageType: 15 Storage Media Package, 3 Chassis/Frame, 0 Unknown.
unsigned packageType(const DeviceContext& d) {
    if (d.drive != nullptr) {
        return 15;
    }
    return d.device->getDeviceType() == storlib::DeviceType::Enclosure ? 3 : 0;
}

}  // namespace

// "DDDeviceType" (SCSI peripheral type), then one element per device port.
void insertPhyInfo(const DeviceContext& device, fsaCIMInstanceWrapper& instance) {
    instance.fsaAddProp("DDDeviceType", static_cast<unsigned int>(device.device->getDeviceType()));
    std::vector<DevicePortContext> ports;
    for (const storlib::DevicePortData& port : device.device->getPorts()) {
        ports.push_back(DevicePortContext{&device, &port});
    }
    if (!ports.empty()) {
        instance.addColumns(kPorts, ports);
    }
}

// The drive's failure prediction; a device that is not a hard drive has none.
void insertDiskSmartDetails(const DeviceContext& device, fsaCIMInstanceWrapper& instance) {
    if (device.drive != nullptr) {
        instance.addRows(kSmart, device);
    }
    instance.fsaAddProp("PPPackageType", static_cast<unsigned short>(packageType(device)));
}

}  // namespace vex::cim::fwf::fsamap
