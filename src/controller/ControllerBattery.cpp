#include "controller/CimNames.h"
#include "controller/ControllerMapping.h"
#include "controller/StatusMaps.h"

namespace vex::cim::fwf::fsamap {

namespace {

using storlib::Battery;
using Row = PropertyRow<BatteryContext>;

// A row that calls one getter of the battery.
template <auto Getter>
RawValue field(const BatteryContext& b) {
    return raw((b.battery->*Getter)());
}

const Row kBattery[] = {
    {"BSystemCreationClassName", CIM_STRING, VIEW_KEY, [](const BatteryContext&) { return raw(kControllerSystemClass); }},
    {"BSystemName", CIM_STRING, VIEW_KEY,
     [](const BatteryContext& b) { return raw(controllerSystemName(b.controller->index)); }},
    {"BCreationClassName", CIM_STRING, VIEW_KEY, [](const BatteryContext&) { return raw(kBatteryClass); }},
    {"BBatteryStatus", CIM_UINT16, PLAIN,
     [](const BatteryContext& b) { return raw(batteryStatusValue(b.battery->getStatus())); }},
    // controller, backup unit of that controller
    {"BDeviceID", CIM_STRING, VIEW_KEY,
     [](const BatteryContext& b) {
         return raw(formatText("%d_%d", b.controller->index,
                               static_cast<int>(b.battery->getAddr().getExtendedID())));
     }},
    {"BBatteryTwarn", CIM_BOOLEAN, PLAIN, field<&Battery::isTemperatureWarning>},
    {"BBlbuStatus", CIM_UINT32, PLAIN, field<&Battery::getBlbuStatus>},
    {"BBatReconditionRequired", CIM_BOOLEAN, PLAIN, field<&Battery::isReconditionRequired>},
    {"BBatFullCapacity", CIM_UINT32, PLAIN, field<&Battery::getFullCapacity>},
    {"BBatRemainingCapacity", CIM_UINT32, PLAIN, field<&Battery::getRemainingCapacity>},
    {"BBatCurrentDraw", CIM_SINT32, PLAIN, field<&Battery::getCurrentDraw>},
    {"BBlbuPresent", CIM_BOOLEAN, PLAIN, field<&Battery::isBlbuPresent>},
    {"BisSuperCap", CIM_BOOLEAN, PLAIN, field<&Battery::isSuperCap>},
};

const Row kSuperCap[] = {
    {"BsuperCapBUStatus", CIM_UINT32, PLAIN, field<&Battery::getSuperCapStatus>},
    {"BsuperCapBUStorageStatus", CIM_UINT32, PLAIN, field<&Battery::getSuperCapStorageStatus>},
    {"BsuperCapBUFuelStatus", CIM_UINT32, PLAIN, field<&Battery::getSuperCapFuelStatus>},
    {"BsuperCapBUFuelCurrentTemp", CIM_SINT32, PLAIN, field<&Battery::getSuperCapTemperature>},
    {"BisSuperCapTempThreshold", CIM_BOOLEAN, PLAIN, field<&Battery::isSuperCapTempThresholdExceeded>},
    {"BsuperCapBUFuelVoltage", CIM_UINT32, PLAIN, field<&Battery::getSuperCapVoltage>},
    {"BsuperCapBUFuelLifeTimeMaxTemperature", CIM_SINT32, PLAIN, field<&Battery::getSuperCapLifetimeMaxTemperature>},
    {"BsuperCapBUFuelLifeTimeMinTemperature", CIM_SINT32, PLAIN, field<&Battery::getSuperCapLifetimeMinTemperature>},
    {"BsuperCapBUFuelMaxVoltage", CIM_UINT32, PLAIN, field<&Battery::getSuperCapMaxVoltage>},
    {"BsuperCapBUFuelLifeTimeMaxVoltage", CIM_UINT32, PLAIN, field<&Battery::getSuperCapLifetimeMaxVoltage>},
    {"BsuperCapBUFuelMaxCurrentDraw", CIM_UINT32, PLAIN, field<&Battery::getSuperCapMaxCurrentDraw>},
    {"BsuperCapBUFuelCurrentDraw", CIM_UINT32, PLAIN, field<&Battery::getSuperCapCurrentDraw>},
    {"BsuperCapBUHealth", CIM_UINT32, PLAIN, field<&Battery::getSuperCapHealth>},
    {"BsuperCapBUErrorCode", CIM_UINT32, PLAIN, field<&Battery::getSuperCapErrorCode>},
    {"BsuperCapBUFuelChargeLevel", CIM_UINT32, PLAIN, field<&Battery::getSuperCapChargeLevel>},
    {"BsuperCapBUFuelLifeTimeEstimate", CIM_UINT32, PLAIN, field<&Battery::getSuperCapLifetimeEstimate>},
    {"BsuperCapBUFuelTempThreshold", CIM_SINT32, PLAIN, field<&Battery::getSuperCapTempThreshold>},
};

}  // namespace

// A controller without a backup unit has no battery; the super-capacitor
// group is there only for a super-capacitor.
void updateBatteryProperties(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    storlib::FilterCollection batteries(*controller.adapter, Battery::kClassName);
    if (batteries.empty()) {
        return;
    }
    const BatteryContext battery{&controller, batteries.elementAt<Battery>(0)};
    instance.addRows(kBattery, battery);
    if (battery.battery->isSuperCap()) {
        instance.addRows(kSuperCap, battery);
    }
}

}  // namespace vex::cim::fwf::fsamap
