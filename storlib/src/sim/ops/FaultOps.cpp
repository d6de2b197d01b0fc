// Faults and changes a real installation would see from outside: failing
// and pulled drives, fans, power supplies, temperatures, batteries,
// controllers coming and going.
#include "sim/Events.h"
#include "sim/Health.h"
#include "sim/Lookup.h"
#include "sim/Ops.h"
#include "sim/Tasks.h"

#include <storlib/Names.h>

namespace storlib::sim::ops {
namespace {

void setDriveState(Model& m, ControllerRec& c, DriveRec& d, DriveState s, const std::string& why) {
    DriveState old = d.hd.state;
    d.hd.state = s;
    emit(m, c, EventType::DriveState, EventTarget::drive(d), driveName(d) + " " + why,
         static_cast<uint32_t>(s), static_cast<uint32_t>(old));
}

// A drive back in its slot: members it still holds are rebuilt onto it.
void rejoin(Model& m, ControllerRec& c, DriveRec& d) {
    for (LdRec* ld : ldsUsingDrive(c, d))
        for (size_t i = 0; i < ld->members.size(); ++i) {
            ChunkRec& k = ld->members[i];
            if (k.channel == d.channel && k.device == d.device && k.state != ChunkState::Ok &&
                k.state != ChunkState::Rebuilding && evaluateHealth(*ld) != LogicalDriveState::Failed)
                startRebuild(m, c, *ld, i, d);
        }
}

void renewDrive(DriveRec& d) {
    d.dev.serialNumber += "R";
    d.hd.spareType = SpareType::None;
    d.hd.dedicatedTo.clear();
    d.hd.smartError = false;
    d.hd.smartWarnings = d.hd.mediumErrors = d.hd.hardwareErrors = d.hd.reallocatedSectors = 0;
    d.hd.powerOnHours = 0;
    d.hd.fastTierAssigned = false;
    d.hd.isProtected = false;
}

SESStatus sensorStatus(const TemperatureSensorData& t) {
    if (t.temperatureC >= t.highCriticalC) return SESStatus::Critical;
    if (t.temperatureC >= t.highWarningC) return SESStatus::NonCritical;
    return SESStatus::OK;
}

EventTarget enclosureTarget(const EnclosureRec& e, SESElementType type, uint32_t index) {
    return {e.channel, e.device, Addr::ANY, (static_cast<uint64_t>(type) << 32) | index};
}

}  // namespace

Ret failDrive(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (d->hd.state == DriveState::Failed || d->hd.state == DriveState::Missing)
        return refuse(RetStatus::InvalidState, driveName(*d) + " is already " + toString(d->hd.state));
    for (TaskRec& t : c->tasks)
        if (t.p.channelID == d->channel && t.p.deviceID == d->device && t.p.logicalDriveID == Addr::ANY)
            endTask(m, *c, t, TaskState::Failed, "the drive failed");
    d->hd.spareType = SpareType::None;
    d->hd.dedicatedTo.clear();
    d->hd.hardwareErrors += 1;
    setDriveState(m, *c, *d, DriveState::Failed, "failed");
    reconcile(m, *c);
    return Ret::success();
}

Ret pullDrive(Model& m, const Addr& a) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    if (d->hd.state == DriveState::Missing) return refuse(RetStatus::InvalidState, driveName(*d) + " is not present");
    for (TaskRec& t : c->tasks)
        if (t.p.channelID == d->channel && t.p.deviceID == d->device && t.p.logicalDriveID == Addr::ANY)
            endTask(m, *c, t, TaskState::Failed, "the drive was removed");
    d->pulledFrom = d->hd.state;
    emit(m, *c, EventType::DriveRemoved, EventTarget::drive(*d), driveName(*d) + " removed");
    setDriveState(m, *c, *d, DriveState::Missing, "is missing");
    reconcile(m, *c);
    return Ret::success();
}

Ret insertDrive(Model& m, const Addr& a, bool asNew) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    DriveState s = d->hd.state;
    if (s != DriveState::Missing && !(asNew && s == DriveState::Failed))
        return refuse(RetStatus::InvalidState, driveName(*d) + " is present");
    DriveState back = d->pulledFrom;
    if (asNew || back == DriveState::Failed || back == DriveState::Rebuilding) back = DriveState::Ready;
    if (back == DriveState::HotSpare && d->hd.spareType == SpareType::None) back = DriveState::Ready;
    if (asNew) renewDrive(*d);
    emit(m, *c, EventType::DriveAdded, EventTarget::drive(*d), driveName(*d) + " inserted");
    setDriveState(m, *c, *d, back, asNew ? "replaced by a new drive" : "is back");
    rejoin(m, *c, *d);
    reconcile(m, *c);
    return Ret::success();
}

Ret setSmartError(Model& m, const Addr& a, bool tripped) {
    ControllerRec* c = nullptr;
    DriveRec* d = nullptr;
    if (Ret r = resolveDrive(m, a, c, d); !r) return r;
    d->hd.smartError = tripped;
    if (tripped) ++d->hd.smartWarnings;
    emit(m, *c, EventType::SmartWarning, EventTarget::drive(*d),
         driveName(*d) + (tripped ? " predicts its failure (SMART)" : " SMART status cleared"), tripped);
    return Ret::success();
}

Ret setElementFailed(Model& m, const Addr& a, SESElementType type, uint32_t index, bool failed) {
    ControllerRec* c = nullptr;
    EnclosureRec* e = nullptr;
    if (Ret r = resolveEnclosure(m, a, c, e); !r) return r;
    SESStatus status = failed ? SESStatus::Critical : SESStatus::OK;
    std::string what;
    if (type == SESElementType::Cooling) {
        if (index >= e->fans.size()) return refuse(RetStatus::NotFound, "no fan " + std::to_string(index));
        e->fans[index].el.status = status;
        e->fans[index].d.speedRPM = failed ? 0 : 5000;
        what = "fan";
    } else if (type == SESElementType::PowerSupply) {
        if (index >= e->powerSupplies.size()) return refuse(RetStatus::NotFound, "no power supply " + std::to_string(index));
        e->powerSupplies[index].el.status = status;
        e->powerSupplies[index].d.acFail = e->powerSupplies[index].d.dcFail = failed;
        what = "power supply";
    } else {
        return refuse(RetStatus::InvalidArgument, "only fans and power supplies can fail");
    }
    uint32_t kind = type == SESElementType::Cooling ? 1 : 2;
    std::string text = "enclosure " + std::to_string(e->enc.enclosureIndex) + " " + what + " " +
                       std::to_string(index) + (failed ? " failed" : " is OK");
    emit(m, *c, type == SESElementType::Cooling ? EventType::Fan : EventType::PowerSupply,
         enclosureTarget(*e, type, index), text, failed, index);
    emit(m, *c, EventType::EnclosureStatus, enclosureTarget(*e, type, index), text, kind, index,
         static_cast<uint32_t>(status));
    reconcile(m, *c);
    return Ret::success();
}

Ret setSensorTemperature(Model& m, const Addr& a, uint32_t index, int32_t celsius) {
    ControllerRec* c = nullptr;
    EnclosureRec* e = nullptr;
    if (Ret r = resolveEnclosure(m, a, c, e); !r) return r;
    if (index >= e->temperatureSensors.size()) return refuse(RetStatus::NotFound, "no sensor " + std::to_string(index));
    if (celsius < -40 || celsius > 150) return refuse(RetStatus::InvalidArgument, "temperature out of range");
    SensorRec& s = e->temperatureSensors[index];
    SESStatus old = s.el.status;
    s.d.temperatureC = celsius;
    s.el.status = sensorStatus(s.d);
    auto target = enclosureTarget(*e, SESElementType::TemperatureSensor, index);
    std::string where = "enclosure " + std::to_string(e->enc.enclosureIndex) + " sensor " + std::to_string(index);
    emit(m, *c, EventType::EnclosureStatus, target, where + " reads " + std::to_string(celsius) + " C", 5, index,
         static_cast<uint32_t>(s.el.status));
    if (s.el.status != old)
        emit(m, *c, EventType::TemperatureAlarm, target, where + " is " + toString(s.el.status),
             static_cast<uint32_t>(celsius), static_cast<uint32_t>(s.d.highWarningC));
    reconcile(m, *c);
    return Ret::success();
}

Ret setControllerTemperature(Model& m, uint32_t adapter, int32_t celsius) {
    ControllerRec* c = findController(m, adapter);
    if (!c) return refuse(RetStatus::NotFound, "no controller " + std::to_string(adapter));
    if (celsius < -40 || celsius > 150) return refuse(RetStatus::InvalidArgument, "temperature out of range");
    c->ad.temperatureC = celsius;
    if (celsius >= c->ad.temperatureHighC)
        emit(m, *c, EventType::TemperatureAlarm, EventTarget::none(), "controller temperature " + std::to_string(celsius) + " C",
             static_cast<uint32_t>(celsius), static_cast<uint32_t>(c->ad.temperatureHighC));
    return Ret::success();
}

Ret setBatteryFailed(Model& m, uint32_t adapter, bool failed) {
    ControllerRec* c = findController(m, adapter);
    if (!c) return refuse(RetStatus::NotFound, "no controller " + std::to_string(adapter));
    if (!c->battery) return refuse(RetStatus::NotFound, "controller " + std::to_string(adapter) + " has no battery");
    BatteryData& b = *c->battery;
    b.status = failed ? BatteryStatus::Failed : BatteryStatus::Ok;
    b.remainingCapacityPct = failed ? 0 : 100;
    if (b.isSuperCap) {
        b.superCapHealthPct = failed ? 0 : 100;
        b.superCapChargeLevelPct = failed ? 0 : 100;
        b.superCapErrorCode = failed ? 1 : 0;
    }
    emit(m, *c, EventType::Battery, EventTarget::none(),
         std::string(b.isSuperCap ? "super-capacitor " : "battery ") + (failed ? "failed" : "is OK"), failed ? 3 : 1);
    reconcile(m, *c);
    return Ret::success();
}

Ret setControllerStatus(Model& m, uint32_t adapter, uint32_t status) {
    ControllerRec* c = findController(m, adapter);
    if (!c) return refuse(RetStatus::NotFound, "no controller " + std::to_string(adapter));
    uint32_t old = c->ad.status;
    c->ad.status = status;
    emit(m, *c, EventType::ControllerState, EventTarget::none(),
         status ? "controller is not responding" : "controller is usable", status, old);
    return Ret::success();
}

Ret removeController(Model& m, uint32_t adapter) {
    ControllerRec* c = findController(m, adapter);
    if (!c) return refuse(RetStatus::NotFound, "no controller " + std::to_string(adapter));
    c->present = false;
    return Ret::success();
}

Ret addController(Model& m) {
    for (ControllerRec& c : m.controllers)
        if (!c.present) {
            c.present = true;
            emit(m, c, EventType::ControllerState, EventTarget::none(), "controller added", c.ad.status, 0);
            return Ret::success();
        }
    return refuse(RetStatus::NotFound, "no removed controller to put back");
}

}  // namespace storlib::sim::ops
