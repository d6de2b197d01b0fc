// Channel: a bus of a controller (a SAS domain) that devices are attached to.
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>
#include <storlib/Types.h>

namespace storlib {

#define STORLIB_CHANNEL_PROPERTIES(X)                                                      \
    X(InterfaceType, type, getType, InterfaceType::SAS)                                    \
    X(uint32_t, maxDevices, getMaxDevices, 128)                                            \
    X(uint32_t, deviceCount, getDeviceCount, 0)

struct ChannelData {
    STORLIB_CHANNEL_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Children: "HardDrive" and "SES2EnclosureDevice" objects.
class STORLIB_API Channel : public RaidObject {
    STORLIB_OBJECT_CLASS(Channel, RaidObject)
public:
    Channel(const Addr& addr, ChannelData data) : RaidObject(addr), data_(data) {}
    ~Channel() override;

    uint32_t getChannelID() const noexcept { return getAddr().getChannelID(); }
    STORLIB_CHANNEL_PROPERTIES(STORLIB_PROPERTY_GETTER)

private:
    ChannelData data_;
};

}  // namespace storlib
