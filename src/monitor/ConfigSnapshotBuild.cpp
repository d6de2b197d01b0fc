// The snapshot of a StorLib configuration: which properties of each object
// the monitor keeps.
#include <string>

#include <storlib/Adapter.h>
#include <storlib/Battery.h>
#include <storlib/Enclosure.h>
#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>
#include <storlib/Progress.h>
#include <storlib/SESElement.h>
#include <storlib/SystemConfig.h>

#include "monitor/ConfigSnapshot.h"

namespace vex::monitor {

namespace {

template <typename T>
std::string num(T value) {
    return std::to_string(static_cast<long long>(value));
}

std::string flag(bool value) { return value ? "true" : "false"; }

std::string driveLabel(const storlib::HardDrive& d) {
    std::string label = num(d.getChannelID()) + ":" + num(d.getDeviceID());
    if (d.getSlot() >= 0) {
        label += " (slot " + num(d.getSlot()) + ")";
    }
    return label;
}

SnapshotObject controllerOf(const storlib::Adapter& a) {
    SnapshotObject o{"Controller", {}};
    o.set("controllerID", num(a.getControllerID()));
    o.set("controllerSerial", a.getSerialNumber());
    o.set("model", a.getModel());
    o.set("firmwareVersion", a.getFirmwareVersion());
    o.set("status", num(a.getAdapterStatus()));
    o.set("temperature", num(a.getTemperature()));
    o.set("temperatureState", a.getTemperature() >= a.getTemperatureHighThreshold() ? "high" : "normal");
    o.set("label", num(a.getControllerID()));
    return o;
}

SnapshotObject batteryOf(const storlib::Battery& b) {
    SnapshotObject o{"Battery", {}};
    o.set("isSuperCap", flag(b.isSuperCap()));
    o.set("state", num(static_cast<std::uint32_t>(b.getStatus())));
    o.set("temperatureWarning", flag(b.isTemperatureWarning()));
    o.set("label", b.isSuperCap() ? "super-capacitor" : "battery");
    return o;
}

SnapshotObject driveOf(const storlib::HardDrive& d) {
    SnapshotObject o{"HardDrive", {}};
    o.set("channelID", num(d.getChannelID()));
    o.set("deviceID", num(d.getDeviceID()));
    o.set("serialNumber", d.getSerialNumber());
    o.set("vendor", d.getVendor());
    o.set("product", d.getProduct());
    o.set("firmwareRevision", d.getFirmwareRevision());
    o.set("state", num(static_cast<std::uint32_t>(d.getState())));
    o.set("spareType", num(static_cast<std::uint32_t>(d.getSpareType())));
    o.set("smartError", flag(d.hasSmartError()));
    o.set("label", driveLabel(d));
    return o;
}

SnapshotObject logicalDriveOf(const storlib::LogicalDrive& ld) {
    SnapshotObject o{"LogicalDrive", {}};
    o.set("logicalDriveID", num(ld.getLogicalDriveID()));
    o.set("name", ld.getName());
    o.set("raidLevel", num(static_cast<std::uint32_t>(ld.getRaidLevel())));
    o.set("state", num(static_cast<std::uint32_t>(ld.getState())));
    o.set("health", num(static_cast<std::uint32_t>(ld.getSubstate())));
    o.set("dataSizeMB", num(ld.getDataSizeMB()));
    o.set("memberCount", num(ld.getMemberCount()));
    o.set("label", num(ld.getLogicalDriveID()) + (ld.getName().empty() ? "" : " (" + ld.getName() + ")"));
    return o;
}

SnapshotObject enclosureOf(const storlib::SES2EnclosureDevice& e) {
    SnapshotObject o{"SES2EnclosureDevice", {}};
    o.set("channelID", num(e.getChannelID()));
    o.set("deviceID", num(e.getDeviceID()));
    o.set("enclosureIndex", num(e.getEnclosureIndex()));
    o.set("serialNumber", e.getSerialNumber());
    o.set("status", num(static_cast<std::uint32_t>(e.getStatus())));
    o.set("label", num(e.getEnclosureIndex()));
    return o;
}

const char* elementName(storlib::SESElementType type) {
    switch (type) {
    case storlib::SESElementType::PowerSupply: return "power supply";
    case storlib::SESElementType::Cooling: return "fan";
    case storlib::SESElementType::TemperatureSensor: return "temperature sensor";
    default: return "slot";
    }
}

SnapshotObject elementOf(const storlib::SESElement& el) {
    SnapshotObject o{"SESElement", {}};
    const storlib::Addr& a = el.getAddr();
    // Slots of either slot code are one kind here.
    const std::uint32_t type = el.getElementType() == storlib::SESElementType::ArrayDeviceSlot
                                   ? static_cast<std::uint32_t>(storlib::SESElementType::DeviceSlot)
                                   : static_cast<std::uint32_t>(el.getElementType());
    o.set("channelID", num(a.getChannelID()));
    o.set("deviceID", num(a.getDeviceID()));
    o.set("elementType", num(type));
    o.set("elementIndex", num(el.getElementIndex()));
    o.set("status", num(static_cast<std::uint32_t>(el.getStatus())));
    if (const auto* sensor = el.as<storlib::EnclosureTemperatureSensor>()) {
        o.set("temperature", num(sensor->getTemperature()));
    }
    if (const auto* slot = el.as<storlib::EnclosureSlot>()) {
        o.set("occupied", flag(slot->isOccupied()));
        o.set("fault", flag(slot->isFaultIndicated()));
    }
    const auto* enclosure = el.getParent() != nullptr ? el.getParent()->as<storlib::Enclosure>() : nullptr;
    o.set("label", std::string(elementName(el.getElementType())) + " " + num(el.getElementIndex()) +
                       " of enclosure " + (enclosure != nullptr ? num(enclosure->getEnclosureIndex()) : "?"));
    return o;
}

const char* taskName(storlib::TaskType type) {
    switch (type) {
    case storlib::TaskType::Build: return "build";
    case storlib::TaskType::Clear: return "clear";
    case storlib::TaskType::Rebuild: return "rebuild";
    case storlib::TaskType::Verify: return "verify";
    case storlib::TaskType::VerifyFix: return "verify and repair";
    case storlib::TaskType::DriveVerify: return "drive verify";
    case storlib::TaskType::DriveClear: return "drive clear";
    case storlib::TaskType::SecureErase: return "secure erase";
    case storlib::TaskType::CopyBack: return "copy back";
    case storlib::TaskType::FastTierCoherency: return "fast tier check";
    case storlib::TaskType::Migrate: return "reconfiguration";
    }
    return "task";
}

SnapshotObject progressOf(const storlib::Progress& p) {
    SnapshotObject o{"Progress", {}};
    o.set("taskID", num(p.getTaskID()));
    o.set("taskType", num(static_cast<std::uint32_t>(p.getTaskType())));
    o.set("taskState", num(static_cast<std::uint32_t>(p.getTaskState())));
    o.set("percentageComplete", num(p.getPercentComplete()));
    o.set("taskName", taskName(p.getTaskType()));
    o.set("logicalDriveID", num(p.getLogicalDriveID()));
    o.set("channelID", num(p.getChannelID()));
    o.set("deviceID", num(p.getDeviceID()));
    const bool onDrive = p.getLogicalDriveID() == storlib::Addr::ANY;
    o.set("label", onDrive ? num(p.getChannelID()) + ":" + num(p.getDeviceID()) : num(p.getLogicalDriveID()));
    return o;
}

template <typename T, typename Make>
void addAll(const storlib::Adapter& adapter, const char* className, Make make, AdapterSnapshot& out) {
    for (const storlib::RaidObject* object : storlib::FilterCollection(adapter, className)) {
        if (const T* typed = object->as<T>()) {
            out.objects.push_back(make(*typed));
        }
    }
}

}  // namespace

ConfigSnapshot snapshotOf(const storlib::SystemConfig& config) {
    ConfigSnapshot snapshot;
    for (std::size_t i = 0; i < config.getAdapterCount(); ++i) {
        const storlib::Adapter* adapter = config.getAdapter(i);
        if (adapter == nullptr) {
            continue;
        }
        AdapterSnapshot out;
        out.controller = controllerOf(*adapter);
        addAll<storlib::Battery>(*adapter, "Battery", batteryOf, out);
        addAll<storlib::HardDrive>(*adapter, "HardDrive", driveOf, out);
        addAll<storlib::LogicalDrive>(*adapter, "LogicalDrive", logicalDriveOf, out);
        addAll<storlib::SES2EnclosureDevice>(*adapter, "SES2EnclosureDevice", enclosureOf, out);
        addAll<storlib::SESElement>(*adapter, "SESElement", elementOf, out);
        addAll<storlib::Progress>(*adapter, "Progress", progressOf, out);
        snapshot.adapters.push_back(std::move(out));
    }
    return snapshot;
}

std::string smartStatsOf(const storlib::SystemConfig& config) {
    ConfigSnapshot stats;
    for (std::size_t i = 0; i < config.getAdapterCount(); ++i) {
        const storlib::Adapter* adapter = config.getAdapter(i);
        if (adapter == nullptr) {
            continue;
        }
        AdapterSnapshot out;
        out.controller = SnapshotObject{"Controller", {{"controllerID", num(adapter->getControllerID())}}};
        addAll<storlib::HardDrive>(*adapter, "HardDrive", [](const storlib::HardDrive& d) {
            SnapshotObject o{"HardDrive", {}};
            o.set("channelID", num(d.getChannelID()));
            o.set("deviceID", num(d.getDeviceID()));
            o.set("serialNumber", d.getSerialNumber());
            o.set("smartError", flag(d.hasSmartError()));
            o.set("smartWarnings", num(d.getSmartWarnings()));
            o.set("temperature", num(d.getTemperature()));
            o.set("powerOnHours", num(d.getPowerOnHours()));
            o.set("reallocatedSectors", num(d.getReallocatedSectors()));
            o.set("mediumErrors", num(d.getMediumErrors()));
            return o;
        }, out);
        stats.adapters.push_back(std::move(out));
    }
    std::string xml = toXml(stats);
    const std::string::size_type open = xml.find("<Config>");
    if (open != std::string::npos) {
        xml.replace(open, 8, "<SmartStats>");
    }
    const std::string::size_type close = xml.rfind("</Config>");
    if (close != std::string::npos) {
        xml.replace(close, 9, "</SmartStats>");
    }
    return xml;
}

}  // namespace vex::monitor
