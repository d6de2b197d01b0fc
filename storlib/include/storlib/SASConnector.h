// SASConnector: a physical connector of the controller and the phys (lanes) it carries.
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>

#include <string>
#include <vector>

namespace storlib {

#define STORLIB_SAS_CONNECTOR_PROPERTIES(X)                                                \
    X(uint32_t, connectorId, getConnectorID, 0)                                            \
    X(std::string, name, getName, {})                 /* "CN0" */                          \
    X(std::string, connectorType, getConnectorType, "SFF-8643")                            \
    X(std::vector<uint32_t>, phyIds, getPhyIDs, {})                                        \
    X(std::vector<uint32_t>, laneIds, getLaneIDs, {})                                      \
    X(bool, external, isExternal, false)                                                   \
    X(std::string, sasAddress, getSASAddress, {})     /* permanent port address */         \
    X(bool, enabled, isEnabled, true)                                                      \
    X(uint32_t, attachedDevices, getAttachedDeviceCount, 0)

struct SASConnectorData {
    STORLIB_SAS_CONNECTOR_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Address: controller; the extended component is 0x20000 + the connector id.
class STORLIB_API SASConnector : public RaidObject {
    STORLIB_OBJECT_CLASS(SASConnector, RaidObject)
public:
    SASConnector(const Addr& addr, SASConnectorData data) : RaidObject(addr), data_(std::move(data)) {}
    ~SASConnector() override;
    STORLIB_SAS_CONNECTOR_PROPERTIES(STORLIB_PROPERTY_GETTER)
private:
    SASConnectorData data_;
};

}  // namespace storlib
