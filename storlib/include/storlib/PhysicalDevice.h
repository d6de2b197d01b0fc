// PhysicalDevice: any device attached to a controller channel (disks, enclosure processors).
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>
#include <storlib/Types.h>

#include <string>
#include <vector>

namespace storlib {

// One port (phy) of a device and what it is attached to.
struct DevicePortData {
    uint32_t phyId = 0;
    std::string sasAddress;          // the port's own (permanent) address
    std::string attachedDeviceType;  // "expander", "initiator", "end device"
    std::string attachedSASAddress;
    InterfaceType portType = InterfaceType::SAS;
    LinkRate negotiatedLinkRate = LinkRate::Rate12G;
};

#define STORLIB_PHYSICAL_DEVICE_PROPERTIES(X)                                              \
    X(DeviceType, deviceType, getDeviceType, DeviceType::Disk)                             \
    X(InterfaceType, interfaceType, getInterfaceType, InterfaceType::SAS)                  \
    X(std::string, vendor, getVendor, {})                                                  \
    X(std::string, product, getProduct, {})                                                \
    X(std::string, firmwareRevision, getFirmwareRevision, {})                              \
    X(std::string, serialNumber, getSerialNumber, {})                                      \
    X(std::string, wwn, getWWN, {})                                                        \
    X(LinkRate, negotiatedLinkRate, getNegotiatedLinkRate, LinkRate::Rate12G)              \
    X(std::vector<DevicePortData>, ports, getPorts, {})

struct PhysicalDeviceData {
    STORLIB_PHYSICAL_DEVICE_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

class STORLIB_API PhysicalDevice : public RaidObject {
    STORLIB_OBJECT_CLASS(PhysicalDevice, RaidObject)
public:
    PhysicalDevice(const Addr& addr, PhysicalDeviceData data) : RaidObject(addr), data_(std::move(data)) {}
    ~PhysicalDevice() override;

    uint32_t getChannelID() const noexcept { return getAddr().getChannelID(); }
    uint32_t getDeviceID() const noexcept { return getAddr().getDeviceID(); }
    STORLIB_PHYSICAL_DEVICE_PROPERTIES(STORLIB_PROPERTY_GETTER)
    const PhysicalDeviceData& getDeviceData() const noexcept { return data_; }

private:
    PhysicalDeviceData data_;
};

}  // namespace storlib
