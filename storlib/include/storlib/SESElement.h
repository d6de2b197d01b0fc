// Elements of an SES-2 enclosure: fans, power supplies, temperature sensors, slots.
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>
#include <storlib/Types.h>

#include <string>

namespace storlib {

#define STORLIB_SES_ELEMENT_PROPERTIES(X)                                                  \
    X(SESElementType, elementType, getElementType, SESElementType::DeviceSlot)             \
    X(uint32_t, elementIndex, getElementIndex, 0)                                          \
    X(SESStatus, status, getStatus, SESStatus::OK)                                         \
    X(std::string, description, getDescription, {})                                       \
    X(uint32_t, descriptorType, getDescriptorType, 0)

struct SESElementData {
    STORLIB_SES_ELEMENT_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Address: controller, channel and device of the enclosure; the extended
// component is (element type << 32) | element index.
class STORLIB_API SESElement : public RaidObject {
    STORLIB_OBJECT_CLASS(SESElement, RaidObject)
public:
    SESElement(const Addr& addr, SESElementData data) : RaidObject(addr), data_(std::move(data)) {}
    ~SESElement() override;

    STORLIB_SES_ELEMENT_PROPERTIES(STORLIB_PROPERTY_GETTER)

private:
    SESElementData data_;
};

#define STORLIB_FAN_PROPERTIES(X) X(uint32_t, speedRPM, getSpeedRPM, 0)
struct FanData { STORLIB_FAN_PROPERTIES(STORLIB_PROPERTY_MEMBER) };

class STORLIB_API EnclosureFan : public SESElement {
    STORLIB_OBJECT_CLASS(Fan, SESElement)
public:
    EnclosureFan(const Addr& a, SESElementData e, FanData d) : SESElement(a, std::move(e)), data_(d) {}
    ~EnclosureFan() override;
    STORLIB_FAN_PROPERTIES(STORLIB_PROPERTY_GETTER)
private:
    FanData data_;
};

#define STORLIB_POWER_SUPPLY_PROPERTIES(X)                                                 \
    X(bool, acFail, isACFailed, false)                                                     \
    X(bool, dcFail, isDCFailed, false)                                                     \
    X(uint32_t, ratedWatts, getRatedWatts, 0)
struct PowerSupplyData { STORLIB_POWER_SUPPLY_PROPERTIES(STORLIB_PROPERTY_MEMBER) };

class STORLIB_API EnclosurePowerSupply : public SESElement {
    STORLIB_OBJECT_CLASS(PowerSupply, SESElement)
public:
    EnclosurePowerSupply(const Addr& a, SESElementData e, PowerSupplyData d) : SESElement(a, std::move(e)), data_(d) {}
    ~EnclosurePowerSupply() override;
    STORLIB_POWER_SUPPLY_PROPERTIES(STORLIB_PROPERTY_GETTER)
private:
    PowerSupplyData data_;
};

#define STORLIB_TEMPERATURE_SENSOR_PROPERTIES(X)                                           \
    X(int32_t, temperatureC, getTemperature, 25)                                           \
    X(int32_t, highWarningC, getHighWarningThreshold, 45)                                  \
    X(int32_t, highCriticalC, getHighCriticalThreshold, 55)
struct TemperatureSensorData { STORLIB_TEMPERATURE_SENSOR_PROPERTIES(STORLIB_PROPERTY_MEMBER) };

class STORLIB_API EnclosureTemperatureSensor : public SESElement {
    STORLIB_OBJECT_CLASS(TemperatureSensor, SESElement)
public:
    EnclosureTemperatureSensor(const Addr& a, SESElementData e, TemperatureSensorData d) : SESElement(a, std::move(e)), data_(d) {}
    ~EnclosureTemperatureSensor() override;
    STORLIB_TEMPERATURE_SENSOR_PROPERTIES(STORLIB_PROPERTY_GETTER)
private:
    TemperatureSensorData data_;
};

#define STORLIB_SLOT_PROPERTIES(X)                                                         \
    X(uint32_t, bayNumber, getBayNumber, 0)                                                \
    X(bool, occupied, isOccupied, false)                                                   \
    X(uint32_t, deviceChannel, getDeviceChannelID, Addr::ANY)                              \
    X(uint32_t, deviceID, getDeviceID, Addr::ANY)                                          \
    X(std::string, sasAddress, getSASAddress, {})                                          \
    X(bool, arrayDevice, isArrayDevice, true)                                              \
    X(bool, notAllPhys, isNotAllPhys, false)                                               \
    X(bool, invalid, isInvalid, false)                                                     \
    X(bool, eip, isEip, true)                                                              \
    X(bool, fault, isFaultIndicated, false)                                                \
    X(bool, identify, isIdentifyIndicated, false)
struct SlotData { STORLIB_SLOT_PROPERTIES(STORLIB_PROPERTY_MEMBER) };

class STORLIB_API EnclosureSlot : public SESElement {
    STORLIB_OBJECT_CLASS(Slot, SESElement)
public:
    EnclosureSlot(const Addr& a, SESElementData e, SlotData d) : SESElement(a, std::move(e)), data_(std::move(d)) {}
    ~EnclosureSlot() override;
    STORLIB_SLOT_PROPERTIES(STORLIB_PROPERTY_GETTER)
private:
    SlotData data_;
};

}  // namespace storlib
