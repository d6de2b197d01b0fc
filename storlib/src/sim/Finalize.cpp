// Defaults and consistency checks of a system description. Every problem
// is reported with the path of the field it concerns.
#include "sim/Description.h"
#include "sim/DescriptionExtras.h"
#include "sim/Health.h"
#include "sim/Json.h"
#include "sim/Layout.h"
#include "sim/Lookup.h"
#include "sim/Tasks.h"
#include "sim/ops/SpecCheck.h"

#include <storlib/Feature.h>
#include <storlib/Names.h>
#include <storlib/RaidLevel.h>

#include <algorithm>
#include <cstdio>
#include <set>

namespace storlib::sim {
namespace {

std::string hex(uint64_t v, int width) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%0*llX", width, static_cast<unsigned long long>(v));
    return buf;
}

std::string at(const std::string& base, const char* list, size_t i) {
    return base + "." + list + "[" + std::to_string(i) + "]";
}

void defaultFeatures(AdapterData& a) {
    std::vector<FeatureEntry> given = a.features;
    a.features.clear();
    const RaidLevel levels[] = {RaidLevel::Raid0, RaidLevel::Raid1, RaidLevel::Raid1E, RaidLevel::Raid5,
                                RaidLevel::Raid10, RaidLevel::Raid50, RaidLevel::SimpleVolume,
                                RaidLevel::Raid6, RaidLevel::Raid60, RaidLevel::Raid5EE};
    for (RaidLevel from : levels) {
        bool fromBuilt = findRaidLevelRule(from) != nullptr;
        if (uint32_t id = expansionFeature(from); id != Feature::None) a.features.push_back({id, fromBuilt ? 1 : 0});
        for (RaidLevel to : levels)
            if (uint32_t id = migrationFeature(from, to); id != Feature::None)
                a.features.push_back({id, fromBuilt && findRaidLevelRule(to) ? 1 : 0});
    }
    for (uint32_t id = Feature::JBOD; id <= Feature::SaveRestoreConfig; ++id)
        a.features.push_back({id, id == Feature::FastTier ? (a.supportsFastTier ? 1 : -1) : 1});
    for (const FeatureEntry& g : given) {
        auto it = std::find_if(a.features.begin(), a.features.end(), [&](const FeatureEntry& f) { return f.id == g.id; });
        if (it != a.features.end()) it->value = g.value;
        else a.features.push_back(g);
    }
}

void identity(ControllerRec& c, uint32_t i) {
    AdapterData& a = c.ad;
    if (a.model.empty()) a.model = "VEX-8160i";
    if (a.serialNumber.empty()) a.serialNumber = "VX" + hex(0x4A1000 + i, 6);
    if (a.wwn.empty()) a.wwn = "50000D1" + hex(0x1000000ull + i * 0x100, 9);
    if (a.firmwareVersion.empty()) a.firmwareVersion = "7.18.0";
    if (a.firmwareBuild == 0) a.firmwareBuild = 34122;
    if (a.biosVersion.empty()) a.biosVersion = "7.18.0";
    if (a.driverVersion.empty()) a.driverVersion = "1.2.1-60001";
    if (a.sku.empty()) a.sku = a.model + "-SKU";
    if (a.hardwareRevision.empty()) a.hardwareRevision = "A";
    if (a.physicalSlot == 0) a.physicalSlot = i + 1;
    if (a.raid6DriveCounts.empty()) a.raid6DriveCounts = {"4,2,2", "5,3,2", "6,4,2", "8,6,2", "10,8,2", "16,14,2"};
    if (a.raid6RSDriveCounts.empty()) a.raid6RSDriveCounts = {"4,2,2", "6,4,2", "8,6,2"};
    defaultFeatures(a);
}

void checkDrive(ControllerRec& c, DriveRec& d, const std::string& p, std::set<DriveRef>& seen) {
    if (!seen.insert({d.channel, d.device}).second)
        throw FieldError(p, "drive " + std::to_string(d.channel) + ":" + std::to_string(d.device) + " is listed twice");
    if (d.hd.sizeMB == 0) throw FieldError(p + ".sizeMB", "must be given and above 0");
    if (d.hd.blockSize != 512 && d.hd.blockSize != 4096) throw FieldError(p + ".blockSize", "must be 512 or 4096");
    DriveState s = d.hd.state;
    if (s == DriveState::HotSpare || s == DriveState::Rebuilding)
        throw FieldError(p + ".state", std::string("\"") + toString(s) + "\" is set by the controller; list spares in globalSpares/dedicatedSpares");
    if (s == DriveState::Online) d.hd.state = DriveState::Ready;
    if (s == DriveState::Missing) d.pulledFrom = DriveState::Online;
    if (d.hd.enclosureIndex >= 0 && !findEnclosureByIndex(c, static_cast<uint32_t>(d.hd.enclosureIndex)))
        throw FieldError(p + ".enclosureIndex", "no enclosure " + std::to_string(d.hd.enclosureIndex));
    uint64_t n = d.channel * 1000ull + d.device;
    if (d.dev.serialNumber.empty()) d.dev.serialNumber = "S" + hex(c.uid * 100000ull + n, 9);
    if (d.dev.wwn.empty()) d.dev.wwn = "5000C5" + hex(c.uid * 0x100000ull + n, 10);
    if (d.dev.vendor.empty()) d.dev.vendor = d.hd.mediaType == MediaType::SSD ? "SAMSUNG" : "SEAGATE";
    if (d.dev.product.empty()) d.dev.product = d.hd.mediaType == MediaType::SSD ? "MZILT960HBHQ" : "ST1200MM0009";
    if (d.dev.firmwareRevision.empty()) d.dev.firmwareRevision = "N003";
    if (d.hd.rpm == 0) d.hd.rpm = d.hd.mediaType == MediaType::SSD ? 1 : 10000;
    if (d.dev.ports.empty()) {
        DevicePortData port;
        port.sasAddress = d.dev.wwn;
        port.attachedDeviceType = d.hd.enclosureIndex >= 0 ? "expander" : "initiator";
        port.attachedSASAddress = c.ad.wwn;
        port.portType = d.dev.interfaceType;
        port.negotiatedLinkRate = d.dev.negotiatedLinkRate;
        d.dev.ports.push_back(port);
    }
}

void checkSlots(ControllerRec& c, const std::string& base) {
    std::set<std::pair<int32_t, int32_t>> used;
    for (size_t i = 0; i < c.drives.size(); ++i) {
        const DriveRec& d = c.drives[i];
        if (d.hd.enclosureIndex < 0) continue;
        EnclosureRec* e = findEnclosureByIndex(c, static_cast<uint32_t>(d.hd.enclosureIndex));
        std::string p = at(base, "drives", i) + ".slot";
        if (d.hd.slot < 0 || static_cast<uint32_t>(d.hd.slot) >= e->enc.numSlots)
            throw FieldError(p, "enclosure " + std::to_string(d.hd.enclosureIndex) + " has slots 0.." +
                                    std::to_string(e->enc.numSlots ? e->enc.numSlots - 1 : 0));
        if (!used.insert({d.hd.enclosureIndex, d.hd.slot}).second) throw FieldError(p, "slot is taken by another drive");
    }
}

template <class R> void numberElements(std::vector<R>& list, SESElementType type, const char* what) {
    for (size_t i = 0; i < list.size(); ++i) {
        list[i].el.elementType = type;
        list[i].el.elementIndex = static_cast<uint32_t>(i);
        if (list[i].el.description.empty()) list[i].el.description = std::string(what) + " " + std::to_string(i);
    }
}

void checkEnclosure(ControllerRec& c, EnclosureRec& e, size_t i, const std::string& p) {
    if (findDrive(c, e.channel, e.device)) throw FieldError(p, "address is taken by a drive");
    for (size_t j = 0; j < i; ++j)
        if (c.enclosures[j].enc.enclosureIndex == e.enc.enclosureIndex)
            throw FieldError(p + ".enclosureIndex", "listed twice");
    e.dev.deviceType = DeviceType::Enclosure;
    if (e.dev.vendor.empty()) e.dev.vendor = "VEXSYS";
    if (e.dev.product.empty()) e.dev.product = "SAS3 24-bay";
    if (e.dev.serialNumber.empty()) e.dev.serialNumber = "E" + hex(c.uid * 100 + i, 7);
    if (e.enc.logicalId == 0) e.enc.logicalId = 0x500605B000000000ull + c.uid * 0x1000 + i;
    if (e.dev.wwn.empty()) e.dev.wwn = hex(e.enc.logicalId, 16);
    if (e.slots.empty())
        for (uint32_t s = 0; s < e.enc.numSlots; ++s) e.slots.push_back(SlotRec{});
    e.enc.numSlots = static_cast<uint32_t>(e.slots.size());
    for (size_t s = 0; s < e.slots.size(); ++s) e.slots[s].d.bayNumber = static_cast<uint32_t>(s);
    numberElements(e.fans, SESElementType::Cooling, "Fan");
    numberElements(e.powerSupplies, SESElementType::PowerSupply, "Power supply");
    numberElements(e.temperatureSensors, SESElementType::TemperatureSensor, "Temperature");
    numberElements(e.slots, SESElementType::ArrayDeviceSlot, "Slot");
    for (FanRec& f : e.fans)
        if (f.d.speedRPM == 0 && f.el.status == SESStatus::OK) f.d.speedRPM = 5000;
    for (SensorRec& s : e.temperatureSensors) {
        const auto& t = s.d;
        s.el.status = t.temperatureC >= t.highCriticalC ? SESStatus::Critical
                      : t.temperatureC >= t.highWarningC ? SESStatus::NonCritical : SESStatus::OK;
    }
}

void placeMembers(ControllerRec& c, LdRec& ld, const LdExtras& x, const std::string& p) {
    LogicalDriveSpec spec;
    spec.raidLevel = ld.ld.raidLevel;
    spec.stripeSizeKB = ld.ld.stripeSizeKB;
    spec.legs = ld.ld.legs > 1 ? ld.ld.legs : 0;
    spec.name = ld.ld.name;
    spec.dataSizeMB = x.dataSizeMB;
    for (size_t i = 0; i < ld.members.size(); ++i) {
        const ChunkRec& k = ld.members[i];
        DriveRec* d = findDrive(c, k.channel, k.device);
        if (!d) throw FieldError(at(p, "members", i), "no drive " + std::to_string(k.channel) + ":" + std::to_string(k.device));
        if (d->hd.state == DriveState::JBOD || d->hd.state == DriveState::Raw)
            throw FieldError(at(p, "members", i), "drive is " + std::string(toString(d->hd.state)));
        spec.chunks.emplace_back(Addr(0, k.channel, k.device), x.autoStart[i] ? ChunkSpec::AUTO : k.startMB, k.sizeMB);
    }
    // Drive states do not matter for placement: a described failed member is still a member.
    std::vector<DriveState> saved;
    for (DriveRec& d : c.drives) {
        saved.push_back(d.hd.state);
        d.hd.state = DriveState::Ready;
    }
    ops::Layout layout;
    Ret r = ops::planLayout(c, spec, Addr::ANY, nullptr, layout);
    for (size_t i = 0; i < c.drives.size(); ++i) c.drives[i].hd.state = saved[i];
    if (!r) throw FieldError(p + ".members", r.getReason());
    ld.members = layout.chunks;
    ld.ld.legs = layout.legs;
}

void checkLd(Model& m, ControllerRec& c, LdRec& ld, const LdExtras& x, const std::string& p) {
    if (ld.ld.name.empty()) ld.ld.name = "Device " + std::to_string(ld.id);
    if (ld.ld.creationTime == 0) ld.ld.creationTime = static_cast<int64_t>(m.now);
    if (ld.ld.serialNumber == 0) ld.ld.serialNumber = 0x3A5F0000u + c.uid * 0x100 + ld.id;
    ld.target.clear();
    ld.migrating = false;
    placeMembers(c, ld, x, p);  // the logical drives placed so far are in c
    updateCapacity(ld);
}

void assignSpares(ControllerRec& c, const ControllerExtras& cx, const std::string& p) {
    auto spare = [&](const DriveRef& r, const std::string& where) -> DriveRec& {
        DriveRec* d = findDrive(c, r.first, r.second);
        if (!d) throw FieldError(where, "no drive " + std::to_string(r.first) + ":" + std::to_string(r.second));
        if (!ldsUsingDrive(c, *d).empty()) throw FieldError(where, driveName(*d) + " is a member of a logical drive");
        if (d->hd.state != DriveState::Ready && d->hd.state != DriveState::HotSpare)
            throw FieldError(where, driveName(*d) + " is " + toString(d->hd.state));
        d->hd.state = DriveState::HotSpare;
        return *d;
    };
    for (size_t i = 0; i < cx.globalSpares.size(); ++i) {
        DriveRec& d = spare(cx.globalSpares[i], at(p, "globalSpares", i));
        if (d.hd.spareType == SpareType::Dedicated) throw FieldError(at(p, "globalSpares", i), "drive is a dedicated spare");
        d.hd.spareType = SpareType::Global;
    }
    for (size_t l = 0; l < cx.lds.size(); ++l)
        for (size_t i = 0; i < cx.lds[l].dedicatedSpares.size(); ++i) {
            std::string where = at(at(p, "logicalDrives", l), "dedicatedSpares", i);
            if (!isRedundant(c.logicalDrives[l].ld.raidLevel)) throw FieldError(where, "a spare cannot protect this RAID level");
            DriveRec& d = spare(cx.lds[l].dedicatedSpares[i], where);
            if (d.hd.spareType == SpareType::Global) throw FieldError(where, "drive is a global spare");
            d.hd.spareType = SpareType::Dedicated;
            d.hd.dedicatedTo.push_back(c.logicalDrives[l].id);
        }
}

void checkTasks(Model& m, ControllerRec& c, const std::string& p) {
    std::vector<TaskRec> tasks = std::move(c.tasks);
    c.tasks.clear();
    for (size_t i = 0; i < tasks.size(); ++i) {
        const ProgressData& t = tasks[i].p;
        std::string tp = at(p, "tasks", i);
        bool onLd = t.taskType == TaskType::Build || t.taskType == TaskType::Clear || t.taskType == TaskType::Verify ||
                    t.taskType == TaskType::VerifyFix;
        bool onDrive = t.taskType == TaskType::DriveVerify || t.taskType == TaskType::DriveClear;
        if (!onLd && !onDrive) throw FieldError(tp + ".taskType", "only build, clear, verify, verifyfix, driveverify and driveclear tasks can be described");
        if (t.percentComplete > 99) throw FieldError(tp + ".percentComplete", "must be below 100");
        double work = 0;
        if (onLd) {
            LdRec* ld = findLd(c, t.logicalDriveID);
            if (!ld) throw FieldError(tp + ".logicalDriveID", "no such logical drive");
            work = static_cast<double>(ld->members.empty() ? 0 : ld->members.front().sizeMB);
        } else {
            DriveRec* d = findDrive(c, t.channelID, t.deviceID);
            if (!d) throw FieldError(tp, "no drive " + std::to_string(t.channelID) + ":" + std::to_string(t.deviceID));
            work = static_cast<double>(d->hd.sizeMB);
        }
        TaskRec& s = startTask(m, c, t.taskType, {onLd ? t.logicalDriveID : Addr::ANY, t.channelID, t.deviceID},
                               work, t.priority, "");
        s.doneMB = s.workMB * t.percentComplete / 100.0;
        s.lastStep = t.percentComplete / 10;
    }
}

// Eight phys on two 4-lane connectors. With an enclosure the first four phys
// go to its expander; without, each phy attaches one drive directly.
void defaultPhys(ControllerRec& c) {
    for (uint32_t i = 0; i < 8; ++i) {
        SASPhyData p;
        p.phyId = i;
        if (!c.enclosures.empty() && i < 4) {
            p.attachedDeviceType = "expander";
            p.attachedSASAddress = c.enclosures.front().dev.wwn;
        } else if (c.enclosures.empty() && i < c.drives.size()) {
            p.attachedDeviceType = "end device";
            p.attachedSASAddress = c.drives[i].dev.wwn;
        }
        p.negotiatedLinkRate = p.attachedSASAddress.empty() ? LinkRate::Unknown : LinkRate::Rate12G;
        c.phys.push_back(p);
    }
}

void defaultConnectors(ControllerRec& c) {
    for (uint32_t i = 0; i < 2; ++i) {
        SASConnectorData k;
        k.connectorId = i;
        k.name = "CN" + std::to_string(i);
        for (uint32_t l = 0; l < 4; ++l) {
            k.phyIds.push_back(i * 4 + l);
            k.laneIds.push_back(l);
        }
        k.sasAddress = c.ad.wwn;
        c.connectors.push_back(k);
    }
}

void finalizeController(Model& m, ControllerRec& c, const ControllerExtras& cx, const std::string& p) {
    identity(c, c.uid);
    for (size_t i = 0; i < c.enclosures.size(); ++i) checkEnclosure(c, c.enclosures[i], i, at(p, "enclosures", i));
    std::set<DriveRef> seen;
    for (size_t i = 0; i < c.drives.size(); ++i) checkDrive(c, c.drives[i], at(p, "drives", i), seen);
    checkSlots(c, p);
    std::vector<LdRec> lds = std::move(c.logicalDrives);
    c.logicalDrives.clear();
    std::set<uint32_t> ids;
    for (size_t i = 0; i < lds.size(); ++i) {
        std::string lp = at(p, "logicalDrives", i);
        if (!ids.insert(lds[i].id).second) throw FieldError(lp + ".id", "logical drive " + std::to_string(lds[i].id) + " is listed twice");
        checkLd(m, c, lds[i], cx.lds[i], lp);
        c.logicalDrives.push_back(lds[i]);
    }
    if (c.logicalDrives.size() > c.ad.maxLogicalDrives) throw FieldError(p + ".logicalDrives", "more than the controller's maximum");
    assignSpares(c, cx, p);
    if (c.channels.empty()) {
        std::set<uint32_t> chans;
        for (const DriveRec& d : c.drives) chans.insert(d.channel);
        for (const EnclosureRec& e : c.enclosures) chans.insert(e.channel);
        for (uint32_t ch : chans) c.channels.push_back({ch, {}});
    }
    if (c.phys.empty()) defaultPhys(c);
    if (c.connectors.empty()) defaultConnectors(c);
    reconcile(m, c);
    checkTasks(m, c, p);
    reconcile(m, c);
    c.events.clear();  // a controller starts with an empty event queue
}

}  // namespace

void finalizeDescription(Model& m, const DescriptionExtras& extras) {
    for (size_t i = 0; i < m.controllers.size(); ++i) {
        ControllerRec& c = m.controllers[i];
        c.uid = static_cast<uint32_t>(i);
        c.present = true;
        c.nextTaskId = 1;
        c.nextSequence = 1;
        finalizeController(m, c, extras.controllers[i], "controllers[" + std::to_string(i) + "]");
    }
}

}  // namespace storlib::sim
