// The classes derived from an enclosure services element's record: fans,
// power supplies, temperature sensors and drive slots. Each names the
// chassis that holds it ("ChassisTag") and, as a logical device, the
// controller system that sees it. Health follows the element's status as
// the enclosure reports it, and the readings behind it: a stopped fan, a
// power supply with a failed input or output, a temperature over a
// threshold.
#include "providers/device/DerivedRecords.h"
#include "providers/device/DeviceDerivations.h"

namespace vex::cim::fwf::derived {

namespace {

// SES element types and status codes as the enclosure reports them.
enum ElementType : long long {
    kDeviceSlot = 1,
    kPowerSupply = 2,
    kCooling = 3,
    kTemperature = 4,
    kArraySlot = 0x17
};
enum ElementStatus : long long {
    kSesOK = 1,
    kSesCritical = 2,
    kSesNonCritical = 3,
    kSesUnrecoverable = 4,
    kSesNotInstalled = 5
};

// OperationalStatus values.
enum : unsigned short { kUnknown = 0, kOK = 2, kDegraded = 3, kError = 6, kNonRecoverable = 7, kLostCommunication = 13 };

bool isType(const CIMInstance& element, ElementType type) { return numberOf(element, "ElementType") == type; }

unsigned short statusOf(const CIMInstance& element) {
    switch (numberOf(element, "ElementStatus").value_or(0)) {
    case kSesOK: return kOK;
    case kSesNonCritical: return kDegraded;
    case kSesCritical: return kError;
    case kSesUnrecoverable: return kNonRecoverable;
    case kSesNotInstalled: return kLostCommunication;
    default: return kUnknown;
    }
}

// How severe a status is: Unknown least, then OK, Degraded, Lost
// Communication, Error, Non-Recoverable Error.
int severity(unsigned short status) {
    switch (status) {
    case kUnknown: return 0;
    case kOK: return 1;
    case kDegraded: return 2;
    case kLostCommunication: return 3;
    case kError: return 4;
    default: return 5;
    }
}

unsigned short worse(unsigned short a, unsigned short b) { return severity(a) >= severity(b) ? a : b; }

// The keys and common properties of a logical device of an enclosure.
CIMInstance enclosureDevice(const CIMInstance& element, const char* className, const char* kind) {
    CIMInstance device;
    addKey(device, "SystemCreationClassName", "VEX_ControllerComputerSystem");
    addKey(device, "SystemName", "vexController_" + leadingNumber(textOf(element, "SystemName")));
    addKey(device, "CreationClassName", className);
    copyAs(element, "InstanceID", "DeviceID", device, kKey);
    const std::string description = textOf(element, "ElementDesc");
    addText(device, "ElementName",
            description.empty() ? std::string(kind) + " " + textOf(element, "elementIndex") : description);
    copyAs(element, "SystemName", "ChassisTag", device);
    return device;
}

}  // namespace

void enclosureFan(const CIMInstance& element, Out& out) {
    if (!isType(element, kCooling)) {
        return;
    }
    CIMInstance fan = enclosureDevice(element, "VEX_EnclosureFan", "Fan");
    const std::optional<long long> speed = numberOf(element, "SpeedRPM");
    const unsigned short status = speed == 0 ? worse(statusOf(element), kError) : statusOf(element);
    addHealth(fan, status);
    addBoolean(fan, "ActiveCooling", true);
    copyAs(element, "SpeedRPM", "SpeedRPM", fan);
    out.push_back(std::move(fan));
}

void enclosurePowerSupply(const CIMInstance& element, Out& out) {
    if (!isType(element, kPowerSupply)) {
        return;
    }
    CIMInstance supply = enclosureDevice(element, "VEX_EnclosurePowerSupply", "Power supply");
    const bool failed = numberOf(element, "ACFailed") == 1 || numberOf(element, "DCFailed") == 1;
    addHealth(supply, failed ? worse(statusOf(element), kError) : statusOf(element));
    // CIM_PowerSupply.TotalOutputPower is in milliwatts.
    if (const std::optional<long long> watts = numberOf(element, "RatedWatts")) {
        addUint32(supply, "TotalOutputPower", static_cast<unsigned int>(*watts * 1000));
    }
    out.push_back(std::move(supply));
}

void enclosureSensor(const CIMInstance& element, Out& out) {
    if (!isType(element, kTemperature)) {
        return;
    }
    CIMInstance sensor = enclosureDevice(element, "VEX_EnclosureSensor", "Temperature sensor");
    const std::optional<long long> reading = numberOf(element, "Temperature");
    const std::optional<long long> warning = numberOf(element, "HighWarningThreshold");
    const std::optional<long long> critical = numberOf(element, "HighCriticalThreshold");
    const bool overCritical = reading && critical && *reading >= *critical;
    const bool overWarning = reading && warning && *reading >= *warning;
    unsigned short status = statusOf(element);
    status = overCritical ? worse(status, kError) : overWarning ? worse(status, kDegraded) : status;
    addHealth(sensor, status);
    // CIM_Sensor.SensorType 2: Temperature; CIM_NumericSensor.BaseUnits 2: Degrees C.
    addUint16(sensor, "SensorType", 2);
    addUint16(sensor, "BaseUnits", 2);
    addSint32(sensor, "UnitModifier", 0);
    if (reading) {
        addSint32(sensor, "CurrentReading", static_cast<int>(*reading));
    }
    if (warning) {
        addSint32(sensor, "UpperThresholdNonCritical", static_cast<int>(*warning));
    }
    if (critical) {
        addSint32(sensor, "UpperThresholdCritical", static_cast<int>(*critical));
    }
    addTexts(sensor, "PossibleStates", {"Normal", "Upper Non-Critical", "Upper Critical"});
    addText(sensor, "CurrentState", overCritical ? "Upper Critical" : overWarning ? "Upper Non-Critical" : "Normal");
    out.push_back(std::move(sensor));
}

// A drive bay, named after its chassis and number.
void enclosureSlot(const CIMInstance& element, Out& out) {
    if (!isType(element, kDeviceSlot) && !isType(element, kArraySlot)) {
        return;
    }
    const std::optional<long long> bay = numberOf(element, "BayNumber");
    if (!bay) {
        return;
    }
    const std::string chassis = textOf(element, "SystemName");
    CIMInstance slot;
    addKey(slot, "CreationClassName", "VEX_EnclosureDiskDriveSlot");
    addKey(slot, "Tag", chassis + "_Slot_" + std::to_string(*bay));
    addText(slot, "ElementName", "Slot " + std::to_string(*bay));
    addUint16(slot, "Number", static_cast<unsigned short>(*bay));
    addUint32(slot, "BayNumber", static_cast<unsigned int>(*bay));
    addText(slot, "ChassisTag", chassis);
    copyAs(element, "Occupied", "Occupied", slot);
    out.push_back(std::move(slot));
}

}  // namespace vex::cim::fwf::derived
