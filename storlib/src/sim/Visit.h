// Field visitors: one per record, listing (name, member) pairs. The JSON
// reader/writer and the description checks are built on them.
#pragma once
#include "sim/Model.h"

// SFINAE guard: the overload applies to records that have both members.
#define STORLIB_HAS(a, b) decltype((void)(a), (void)(b), 0)*
#define STORLIB_VISIT_FIELD(type, member, getter, init) f(#member, d.member);
#define STORLIB_DEFINE_VISIT(Type, TABLE)                                                  \
    template <class F> void visitFields(Type& d, F&& f) { TABLE(STORLIB_VISIT_FIELD) }     \
    template <class F> void visitFields(const Type& d, F&& f) { TABLE(STORLIB_VISIT_FIELD) }

namespace storlib {
STORLIB_DEFINE_VISIT(PhysicalDeviceData, STORLIB_PHYSICAL_DEVICE_PROPERTIES)
STORLIB_DEFINE_VISIT(HardDriveData, STORLIB_HARD_DRIVE_PROPERTIES)
STORLIB_DEFINE_VISIT(LogicalDriveData, STORLIB_LOGICAL_DRIVE_PROPERTIES)
STORLIB_DEFINE_VISIT(ChannelData, STORLIB_CHANNEL_PROPERTIES)
STORLIB_DEFINE_VISIT(EnclosureData, STORLIB_ENCLOSURE_PROPERTIES)
STORLIB_DEFINE_VISIT(SES2Data, STORLIB_SES2_PROPERTIES)
STORLIB_DEFINE_VISIT(SESElementData, STORLIB_SES_ELEMENT_PROPERTIES)
STORLIB_DEFINE_VISIT(FanData, STORLIB_FAN_PROPERTIES)
STORLIB_DEFINE_VISIT(PowerSupplyData, STORLIB_POWER_SUPPLY_PROPERTIES)
STORLIB_DEFINE_VISIT(TemperatureSensorData, STORLIB_TEMPERATURE_SENSOR_PROPERTIES)
STORLIB_DEFINE_VISIT(SlotData, STORLIB_SLOT_PROPERTIES)
STORLIB_DEFINE_VISIT(BatteryData, STORLIB_BATTERY_PROPERTIES)
STORLIB_DEFINE_VISIT(SASPhyData, STORLIB_SAS_PHY_PROPERTIES)
STORLIB_DEFINE_VISIT(SASConnectorData, STORLIB_SAS_CONNECTOR_PROPERTIES)
STORLIB_DEFINE_VISIT(ProgressData, STORLIB_PROGRESS_PROPERTIES)
STORLIB_DEFINE_VISIT(AdapterData, STORLIB_ADAPTER_PROPERTIES)

template <class D, class F> void visitFields(D& d, F&& f, STORLIB_HAS(d.phyId, d.portType) = nullptr) {
    f("phyId", d.phyId); f("sasAddress", d.sasAddress); f("attachedDeviceType", d.attachedDeviceType);
    f("attachedSASAddress", d.attachedSASAddress); f("portType", d.portType);
    f("negotiatedLinkRate", d.negotiatedLinkRate);
}
template <class D, class F> void visitFields(D& d, F&& f, STORLIB_HAS(d.id, d.value) = nullptr) {
    f("id", d.id); f("value", d.value);
}
template <class D, class F> void visitFields(D& d, F&& f, STORLIB_HAS(d.sequence, d.detail3) = nullptr) {
    f("sequence", d.sequence); f("time", d.time); f("type", d.type); f("detail1", d.detail1);
    f("detail2", d.detail2); f("detail3", d.detail3); f("channelID", d.channelID);
    f("deviceID", d.deviceID); f("logicalDriveID", d.logicalDriveID); f("extendedID", d.extendedID);
    f("description", d.description);
}
}  // namespace storlib

namespace storlib::sim {

template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.startMB, r.state) = nullptr) {
    f("channel", r.channel); f("device", r.device); f("startMB", r.startMB);
    f("sizeMB", r.sizeMB); f("state", r.state);
}
template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.dev, r.hd) = nullptr) {
    f("channel", r.channel); f("device", r.device);
    visitFields(r.dev, f); visitFields(r.hd, f); f("pulledFrom", r.pulledFrom);
}
template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.ld, r.members) = nullptr) {
    f("id", r.id); visitFields(r.ld, f); f("members", r.members);
    f("migrating", r.migrating); f("targetLevel", r.targetLevel); f("targetLegs", r.targetLegs);
    f("targetStripeKB", r.targetStripeKB); f("targetDataMB", r.targetDataMB); f("target", r.target);
}
template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.el, r.d) = nullptr) {
    visitFields(r.el, f); visitFields(r.d, f);
}
template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.enc, r.ses) = nullptr) {
    f("channel", r.channel); f("device", r.device);
    visitFields(r.dev, f); visitFields(r.enc, f); visitFields(r.ses, f);
    f("fans", r.fans); f("powerSupplies", r.powerSupplies);
    f("temperatureSensors", r.temperatureSensors); f("slots", r.slots);
}
template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.id, r.d.maxDevices) = nullptr) {
    f("id", r.id); visitFields(r.d, f);
}
template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.p, r.workMB) = nullptr) {
    visitFields(r.p, f); f("workMB", r.workMB); f("doneMB", r.doneMB);
    f("anchor", r.anchor); f("lastStep", r.lastStep);
}
template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.ad, r.drives) = nullptr) {
    f("uid", r.uid); f("present", r.present); visitFields(r.ad, f);
    f("channels", r.channels); f("drives", r.drives); f("logicalDrives", r.logicalDrives);
    f("enclosures", r.enclosures); f("battery", r.battery); f("phys", r.phys);
    f("connectors", r.connectors); f("tasks", r.tasks); f("events", r.events);
    f("nextSequence", r.nextSequence);
    f("logStartSequence", r.logStartSequence); f("nextTaskId", r.nextTaskId);
}
template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.simAnchor, r.scale) = nullptr) {
    f("simAnchor", r.simAnchor); f("wallAnchor", r.wallAnchor); f("scale", r.scale);
}
template <class R, class F> void visitFields(R& r, F&& f, STORLIB_HAS(r.clock, r.controllers) = nullptr) {
    f("clock", r.clock); f("controllers", r.controllers);
}

}  // namespace storlib::sim
