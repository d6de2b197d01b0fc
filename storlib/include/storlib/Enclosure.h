// Enclosure: an enclosure-services device; SES2EnclosureDevice: one that speaks SES-2.
#pragma once
#include <storlib/PhysicalDevice.h>

namespace storlib {

#define STORLIB_ENCLOSURE_PROPERTIES(X)                                                    \
    X(uint32_t, enclosureIndex, getEnclosureIndex, 0)                                      \
    X(uint64_t, logicalId, getLogicalId, 0)           /* SES enclosure logical identifier */ \
    X(SESStatus, status, getStatus, SESStatus::OK)    /* worst element status */           \
    X(uint32_t, numSlots, getNumSlots, 0)                                                  \
    X(bool, locateActive, isLocateActive, false)                                           \
    X(std::string, enclosureType, getEnclosureType, "backplane")

struct EnclosureData {
    STORLIB_ENCLOSURE_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

class STORLIB_API Enclosure : public PhysicalDevice {
    STORLIB_OBJECT_CLASS(Enclosure, PhysicalDevice)
public:
    Enclosure(const Addr& addr, PhysicalDeviceData dev, EnclosureData data)
        : PhysicalDevice(addr, std::move(dev)), data_(std::move(data)) {}
    ~Enclosure() override;

    STORLIB_ENCLOSURE_PROPERTIES(STORLIB_PROPERTY_GETTER)

private:
    EnclosureData data_;
};

#define STORLIB_SES2_PROPERTIES(X)                                                         \
    X(uint32_t, protocolIdentifier, getProtocolIdentifier, 6)  /* 6: SAS */                 \
    X(uint32_t, generationCode, getGenerationCode, 0)

struct SES2Data {
    STORLIB_SES2_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Children: "Fan", "PowerSupply", "TemperatureSensor" and "Slot" elements
// (all of them "SESElement"), in element index order per type.
class STORLIB_API SES2EnclosureDevice : public Enclosure {
    STORLIB_OBJECT_CLASS(SES2EnclosureDevice, Enclosure)
public:
    SES2EnclosureDevice(const Addr& addr, PhysicalDeviceData dev, EnclosureData encl, SES2Data data)
        : Enclosure(addr, std::move(dev), std::move(encl)), data_(data) {}
    ~SES2EnclosureDevice() override;

    STORLIB_SES2_PROPERTIES(STORLIB_PROPERTY_GETTER)

private:
    SES2Data data_;
};

}  // namespace storlib
