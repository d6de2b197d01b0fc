#include "controller/CimNames.h"
#include "controller/ControllerMapping.h"
#include "controller/StatusMaps.h"

namespace vex::cim::fwf::fsamap {

namespace {

using Row = PropertyRow<ControllerContext>;

// CIM_PortController.ControllerType 1: Other (named by OtherControllerType).
constexpr unsigned kControllerTypeOther = 1;
// CIM_AlarmDevice.AlarmState: 1 Off, 3 Steady.
constexpr unsigned kAlarmOff = 1;
constexpr unsigned kAlarmSteady = 3;

RawValue systemName(const ControllerContext& c) { return controllerSystemName(c.index); }
RawValue systemClass(const ControllerContext&) { return raw(kControllerSystemClass); }

const Row kPortController[] = {
    {"PCSystemCreationClassName", CIM_STRING, VIEW_KEY, systemClass},
    {"PCSystemName", CIM_STRING, VIEW_KEY, systemName},
    {"PCCreationClassName", CIM_STRING, VIEW_KEY, [](const ControllerContext&) { return raw(kPortControllerClass); }},
    {"PCDeviceID", CIM_STRING, VIEW_KEY,
     [](const ControllerContext& c) { return raw(formatText("%d_PortController", c.index)); }},
    {"PCControllerType", CIM_UINT16, PLAIN, [](const ControllerContext&) { return raw(kControllerTypeOther); }},
    {"PCOtherControllerType", CIM_STRING, PLAIN, [](const ControllerContext&) { return raw("SAS"); }},
    {"PCOperationalStatus", CIM_UINT16_ARRAY, PLAIN,
     [](const ControllerContext&) { return RawValue(std::vector<unsigned long long>{OS_OK}); }},
};

const Row kAlarm[] = {
    {"ADSystemCreationClassName", CIM_STRING, VIEW_KEY, systemClass},
    {"ADSystemName", CIM_STRING, VIEW_KEY, systemName},
    {"ADCreationClassName", CIM_STRING, VIEW_KEY, [](const ControllerContext&) { return raw(kAlarmDeviceClass); }},
    {"ADDeviceID", CIM_STRING, VIEW_KEY,
     [](const ControllerContext& c) { return raw(formatText("%d_Alarm", c.index)); }},
    {"ADVisibleAlarm", CIM_BOOLEAN, PLAIN, [](const ControllerContext& c) { return raw(c.adapter->isAlarmVisible()); }},
    {"ADAudibleAlarm", CIM_BOOLEAN, PLAIN, [](const ControllerContext& c) { return raw(c.adapter->isAlarmAudible()); }},
    {"ADAlarmState", CIM_UINT16, PLAIN,
     [](const ControllerContext& c) { return raw(c.adapter->isAlarmSounding() ? kAlarmSteady : kAlarmOff); }},
};

}  // namespace

void updatePortControllerDetails(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    instance.addRows(kPortController, controller);
}

// A controller without an alarm has no alarm device.
void updateAlarmDetails(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    if (controller.adapter->isAlarmPresent()) {
        instance.addRows(kAlarm, controller);
    }
}

}  // namespace vex::cim::fwf::fsamap
