#include "RaidSources.h"

#include <algorithm>
#include <cctype>

#include "CimText.h"

namespace vexraid {

namespace {

using cmpihost::Instance;
using cmpihost::Value;

// The codes of an OperationalStatus array (CIM_ManagedSystemElement).
std::vector<long long> statusCodes(const Instance& i, const std::string& name) {
    std::vector<long long> codes;
    const Value* v = i.property(name);
    if (v == nullptr || v->isNull() || !v->isArray()) return codes;
    for (const Value& e : v->elements()) {
        if (e.isNull()) continue;
        if ((e.type() & CMPI_SINT) == CMPI_SINT) codes.push_back(e.asSigned());
        else if ((e.type() & CMPI_SINT) == CMPI_UINT) codes.push_back(static_cast<long long>(e.asUnsigned()));
    }
    return codes;
}

bool has(const std::vector<long long>& codes, long long code) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

bool flag(const Instance& i, const std::string& name) {
    const Value* v = i.property(name);
    return v != nullptr && !v->isNull() && v->type() == CMPI_boolean && v->asBool();
}

std::optional<double> number(const Instance& i, const std::string& name) {
    auto v = integerProperty(i, name);
    return v ? std::optional<double>(static_cast<double>(*v)) : std::nullopt;
}

std::string lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// "0_2" -> 0: the controller number that prefixes identities.
long long leadingNumber(const std::string& id) {
    long long n = 0;
    std::size_t i = 0;
    for (; i < id.size() && std::isdigit(static_cast<unsigned char>(id[i])) && i < 9; ++i) n = n * 10 + (id[i] - '0');
    return i == 0 ? -1 : n;
}

// The version of the element of the SI arrays whose identity ends in kind.
std::string softwareVersion(const Instance& controller, const std::string& kind) {
    for (std::size_t i = 0;; ++i) {
        const std::string id = elementText(controller, "SIInstanceID", i);
        if (id.empty()) return "";
        if (id.size() >= kind.size() && id.compare(id.size() - kind.size(), kind.size(), kind) == 0) {
            return elementText(controller, "SIVersionString", i);
        }
    }
}

void readController(const Instance& i, SourceContext& c) {
    RaidObject o;
    o.kind = Kind::Controller;
    o.sourceClass = i.className();
    o.id = o.name = o.controller = propertyText(i, "CSName");
    const auto codes = statusCodes(i, "PCOperationalStatus");
    o.state = has(codes, 6) || has(codes, 7) || has(codes, 13) ? "failed" : "ok";
    o.temperatureCelsius = number(i, "CSControllerTemparature");
    o.labels = {{"model", propertyText(i, "CDModel")},
                {"serial", propertyText(i, "CDSerialNumber")},
                {"firmware", softwareVersion(i, "_Firmware")}};
    if (auto n = integerProperty(i, "CSControllerNumber")) c.controllerByNumber[*n] = o.id;
    c.state.objects.push_back(o);
}

// CIM_Battery.BatteryStatus: 3 fully charged; 6 to 9 charging; 11
// partially charged; 12 learning; 4 low; 5 critical (failed); 2 unknown.
std::string batteryState(long long status) {
    switch (status) {
    case 3: return "ok";
    case 6: case 7: case 8: case 9: case 11: return "charging";
    case 12: return "learning";
    case 4: return "low";
    case 5: return "failed";
    default: return "unknown";
    }
}

void readBattery(const Instance& i, SourceContext& c) {
    if (!flag(i, "BlbuPresent")) return;  // no backup unit fitted: nothing to watch
    RaidObject o;
    o.kind = Kind::Battery;
    o.sourceClass = i.className();
    o.id = o.name = propertyText(i, "DeviceID");
    o.controller = propertyText(i, "SystemName");
    o.state = batteryState(integerProperty(i, "BatteryStatus").value_or(2));
    const bool superCap = flag(i, "isSuperCap");
    o.labels = {{"type", superCap ? "supercap" : "battery"}};
    if (superCap) {
        o.temperatureCelsius = number(i, "superCapBUFuelCurrentTemp");
        if (auto level = number(i, "superCapBUFuelChargeLevel")) o.chargeRatio = *level / 100.0;
    } else if (auto remaining = number(i, "BatRemainingCapacity")) {
        o.chargeRatio = std::min(*remaining, 100.0) / 100.0;
    }
    c.state.objects.push_back(o);
}

// Drives only: the drive view also lists enclosure processors, which have
// no extent.
void readDrive(const Instance& i, SourceContext& c) {
    auto blocks = number(i, "SENumberOfBlocks");
    auto blockSize = number(i, "SEBlockSize");
    if (!blocks || !blockSize) return;
    RaidObject o;
    o.kind = Kind::Drive;
    o.sourceClass = i.className();
    o.id = o.name = propertyText(i, "DDDeviceID");
    o.controller = propertyText(i, "DDSystemName");
    const auto codes = statusCodes(i, "DDOperationalStatus");
    if (has(codes, 6) || has(codes, 7)) o.state = "failed";
    else if (has(codes, 12) || has(codes, 13)) o.state = "missing";
    else if (has(codes, 10)) o.state = "offline";
    else if (has(codes, 5) || flag(i, "DDSmarterrorFlag")) o.state = "predictive_failure";
    else if (has(codes, 11)) o.state = "rebuilding";
    o.capacityBytes = *blocks * *blockSize;
    o.spare = integerProperty(i, "DDSpareType").value_or(0) != 0;
    o.labels = {{"model", propertyText(i, "PPModel")}, {"serial", propertyText(i, "PPSerialNumber")}};
    c.state.objects.push_back(o);
}

const char* raidLevelName(long long level) {
    switch (level) {
    case 0: return "RAID0";
    case 1: return "RAID1";
    case 2: return "RAID1E";
    case 5: return "RAID5";
    case 6: return "RAID5E";
    case 7: return "RAID5EE";
    case 8: return "RAID00";
    case 9: return "RAID10";
    case 10: return "RAID1E0";
    case 11: return "RAID50";
    case 12: return "RAID5E0";
    case 13: return "spanned";
    case 14: return "RAID volume";
    case 15: return "simple";
    case 16: return "RAID6";
    case 17: return "RAID60";
    default: return "unknown";
    }
}

bool redundantLevel(long long level) {
    return level != 0 && level != 8 && level != 13 && level != 14 && level != 15 && raidLevelName(level)[0] == 'R';
}

// A volume and its concrete pool are one logical drive; the pool carries
// its name, state, size and level.
void readVolume(const Instance& i, SourceContext& c) {
    RaidObject o;
    o.kind = Kind::Volume;
    o.sourceClass = i.className();
    o.id = propertyText(i, "InstanceID");
    o.name = propertyText(i, "ElementName");
    if (o.name.empty()) o.name = o.id;
    o.controller = c.controllerName(integerProperty(i, "ControllerID").value_or(leadingNumber(o.id)));
    const auto codes = statusCodes(i, "OperationalStatus");
    if (has(codes, 6) || has(codes, 7)) o.state = "failed";
    else if (has(codes, 3)) o.state = "degraded";
    o.capacityBytes = number(i, "TotalManagedSpace");
    const long long level = integerProperty(i, "RAIDLevel").value_or(-1);
    o.redundant = redundantLevel(level);
    o.spareProtected = flag(i, "HotSpareProtected");
    o.labels = {{"name", o.name}, {"raid_level", raidLevelName(level)}};
    c.state.objects.push_back(o);
}

void readEnclosure(const Instance& i, SourceContext& c) {
    RaidObject o;
    o.kind = Kind::Enclosure;
    o.sourceClass = i.className();
    o.controller = propertyText(i, "ControllerSystemName");
    const long long number = integerProperty(i, "ControllerNumber").value_or(leadingNumber(propertyText(i, "Tag")));
    o.id = std::to_string(number) + "_" + propertyText(i, "EnclosureIndex");
    o.name = o.id;
    const auto codes = statusCodes(i, "OperationalStatus");
    if (has(codes, 12) || has(codes, 13)) o.state = "lost";
    else if (has(codes, 6) || has(codes, 7)) o.state = "failed";
    else if (has(codes, 3)) o.state = "degraded";
    o.labels = {{"model", propertyText(i, "ElementName")}};
    c.enclosureByTag[propertyText(i, "Tag")] = o.id;
    c.enclosureController[o.id] = o.controller;
    c.state.objects.push_back(o);
}

// SES-2 element status codes: 1 OK, 2 critical, 3 noncritical,
// 4 unrecoverable, 5 not installed, 6 unknown, 7 not available.
std::string elementState(long long status) {
    switch (status) {
    case 1: return "ok";
    case 2: return "critical";
    case 3: return "noncritical";
    case 4: return "unrecoverable";
    case 5: return "not_installed";
    default: return "unknown";
    }
}

// SES-2 element types: 2 power supply, 3 cooling, 4 temperature sensor.
// Array device slots follow their drives and are left to them.
void readSesElement(const Instance& i, SourceContext& c) {
    const long long type = integerProperty(i, "ElementType").value_or(-1);
    if (type == 23 || type == 1) return;
    RaidObject o;
    o.kind = type == 2 ? Kind::PowerSupply : type == 3 ? Kind::Fan : type == 4 ? Kind::Sensor : Kind::Element;
    o.sourceClass = i.className();
    const std::string tag = propertyText(i, "SystemName");
    auto enclosure = c.enclosureByTag.find(tag);
    const std::string encl = enclosure == c.enclosureByTag.end() ? tag : enclosure->second;
    const std::string index = propertyText(i, "elementIndex");
    std::string desc = lower(propertyText(i, "ElementDesc"));
    if (desc.empty()) desc = std::string(kindWord(o.kind)) + " " + index;
    o.id = encl + "_" + std::to_string(type) + "_" + index;
    o.name = "enclosure " + encl + " " + desc;
    auto controller = c.enclosureController.find(encl);
    o.controller = controller == c.enclosureController.end() ? c.controllerName(leadingNumber(tag)) : controller->second;
    o.state = elementState(integerProperty(i, "ElementStatus").value_or(6));
    o.labels = {{"enclosure", encl}, {"element", desc}};
    c.state.objects.push_back(o);
}

void readJob(const Instance& i, SourceContext& c) {
    RaidJob j;
    j.id = propertyText(i, "InstanceID");
    j.controller = c.controllerName(leadingNumber(j.id));
    j.task = propertyText(i, "Name");
    j.target = propertyText(i, "DeviceTypeAndID");
    const auto state = integerProperty(i, "JobState");
    if (state && *state != 4 && *state != 3) return;  // only new and running jobs
    if (auto percent = number(i, "PercentComplete")) j.progressRatio = std::min(*percent, 100.0) / 100.0;
    c.state.jobs.push_back(j);
}

}  // namespace

std::string SourceContext::controllerName(long long n) const {
    auto found = controllerByNumber.find(n);
    return found != controllerByNumber.end() ? found->second : "vexController_" + std::to_string(n);
}

const std::vector<RaidSource>& raidSources() {
    static const std::vector<RaidSource> kSources = {
        {"VEX_ControllerView", readController},
        {"VEX_Battery", readBattery},
        {"VEX_DiskDriveView", readDrive},
        {"VEX_ConcreteStoragePool", readVolume},
        {"VEX_EnclosureChassis", readEnclosure},
        {"VEX_SESElement", readSesElement},
        {"VEX_ConcreteJob", readJob},
    };
    return kSources;
}

}  // namespace vexraid
