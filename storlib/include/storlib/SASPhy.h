// SASPhy: one phy of the controller's SAS initiator.
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>
#include <storlib/Types.h>

#include <string>

namespace storlib {

#define STORLIB_SAS_PHY_PROPERTIES(X)                                                      \
    X(uint32_t, phyId, getPhyID, 0)                                                        \
    X(std::string, attachedDeviceType, getAttachedDeviceType, "none")                      \
    X(std::string, attachedSASAddress, getAttachedSASAddress, {})                          \
    X(LinkRate, hardwareMaxLinkRate, getHardwareMaximumLinkRate, LinkRate::Rate12G)        \
    X(LinkRate, hardwareMinLinkRate, getHardwareMinimumLinkRate, LinkRate::Rate1_5G)       \
    X(LinkRate, negotiatedLinkRate, getNegotiatedLinkRate, LinkRate::Unknown)              \
    X(LinkRate, programmedMaxLinkRate, getProgrammedMaximumLinkRate, LinkRate::Rate12G)    \
    X(LinkRate, programmedMinLinkRate, getProgrammedMinimumLinkRate, LinkRate::Rate1_5G)

struct SASPhyData {
    STORLIB_SAS_PHY_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Address: controller; the extended component is 0x10000 + the phy id.
class STORLIB_API SASPhy : public RaidObject {
    STORLIB_OBJECT_CLASS(SASPhy, RaidObject)
public:
    SASPhy(const Addr& addr, SASPhyData data) : RaidObject(addr), data_(std::move(data)) {}
    ~SASPhy() override;
    STORLIB_SAS_PHY_PROPERTIES(STORLIB_PROPERTY_GETTER)
private:
    SASPhyData data_;
};

}  // namespace storlib
