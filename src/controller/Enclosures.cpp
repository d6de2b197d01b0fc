#include "controller/CimNames.h"
#include "controller/DeviceMapping.h"
#include "controller/StatusMaps.h"
#include "controller/InstanceBatch.h"

namespace vex::cim::fwf::fsamap {

namespace {

using Row = PropertyRow<EnclosureContext>;

// CIM_PhysicalPackage.PackageType 3: Chassis/Frame; CIM_Chassis.ChassisPackageType 22: Storage Chassis.
constexpr unsigned kPackageChassis = 3;
constexpr unsigned kStorageChassis = 22;

const storlib::SES2EnclosureDevice& of(const EnclosureContext& e) { return *e.enclosure; }

RawValue textOrUnknown(const std::string& text) { return raw(text.empty() ? std::string(kUnknown) : text); }

const Row kEnclosure[] = {
    {"CreationClassName", CIM_STRING, KEY, [](const EnclosureContext&) { return raw(kEnclosureChassisClass); }},
    {"Tag", CIM_STRING, KEY, [](const EnclosureContext& e) { return raw(enclosureTag(e)); }},
    {"ElementName", CIM_STRING, PLAIN,
     [](const EnclosureContext& e) { return textOrUnknown(of(e).getVendor() + " " + of(e).getProduct()); }},
    {"Manufacturer", CIM_STRING, PLAIN, [](const EnclosureContext& e) { return textOrUnknown(of(e).getVendor()); }},
    {"Model", CIM_STRING, PLAIN, [](const EnclosureContext& e) { return textOrUnknown(of(e).getProduct()); }},
    {"SerialNumber", CIM_STRING, PLAIN, [](const EnclosureContext& e) { return textOrUnknown(of(e).getSerialNumber()); }},
    {"Version", CIM_STRING, PLAIN, [](const EnclosureContext& e) { return textOrUnknown(of(e).getFirmwareRevision()); }},
    {"PackageType", CIM_UINT16, PLAIN, [](const EnclosureContext&) { return raw(kPackageChassis); }},
    {"ChassisPackageType", CIM_UINT16, PLAIN, [](const EnclosureContext&) { return raw(kStorageChassis); }},
    {"OperationalStatus", CIM_UINT16_ARRAY, PLAIN,
     [](const EnclosureContext& e) { return RawValue(sesOperationalStatus(of(e).getStatus())); }},
    {"ControllerSystemName", CIM_STRING, PLAIN, [](const EnclosureContext& e) { return raw(controllerSystemName(e.controller)); }},
    {"ControllerNumber", CIM_UINT32, PLAIN, [](const EnclosureContext& e) { return raw(e.controller); }},
    {"ChannelID", CIM_UINT32, PLAIN, [](const EnclosureContext& e) { return raw(of(e).getChannelID()); }},
    {"EnclosureDeviceID", CIM_UINT32, PLAIN, [](const EnclosureContext& e) { return raw(of(e).getDeviceID()); }},
    {"EnclosureIndex", CIM_UINT32, PLAIN, [](const EnclosureContext& e) { return raw(of(e).getEnclosureIndex()); }},
    {"LogicalID", CIM_STRING, PLAIN,
     [](const EnclosureContext& e) { return raw(formatText("%016llX", static_cast<unsigned long long>(of(e).getLogicalId()))); }},
    {"EnclosureType", CIM_STRING, PLAIN, [](const EnclosureContext& e) { return raw(of(e).getEnclosureType()); }},
    {"NumberOfSlots", CIM_UINT32, PLAIN, [](const EnclosureContext& e) { return raw(of(e).getNumSlots()); }},
    {"LocateActive", CIM_BOOLEAN, PLAIN, [](const EnclosureContext& e) { return raw(of(e).isLocateActive()); }},
    {"ProtocolIdentifier", CIM_UINT32, PLAIN, [](const EnclosureContext& e) { return raw(of(e).getProtocolIdentifier()); }},
};

}  // namespace

std::string enclosureTag(const EnclosureContext& enclosure) {
    return enclosureSystemName(enclosure.controller, enclosure.enclosure->getLogicalId());
}

void updateEnclosureInformation(const EnclosureContext& enclosure, InstanceBatch& batch) {
    fsaCIMInstanceWrapper instance;
    instance.addRows(kEnclosure, enclosure);
    batch.add(VEX_OBJ_ENCLOSURE, instance);
    for (const storlib::RaidObject* object :
         storlib::FilterCollection(*enclosure.enclosure, storlib::SESElement::kClassName)) {
        initSESData(SESElementContext{&enclosure, object->as<storlib::SESElement>()}, batch);
    }
}

}  // namespace vex::cim::fwf::fsamap
