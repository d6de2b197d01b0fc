#include "core/SnapshotBuilder.h"

#include "sim/Layout.h"
#include "sim/Lookup.h"
#include "sim/Tasks.h"

#include <storlib/Battery.h>
#include <storlib/Channel.h>
#include <storlib/Chunk.h>
#include <storlib/Enclosure.h>
#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>
#include <storlib/Progress.h>
#include <storlib/SASConnector.h>
#include <storlib/SASPhy.h>
#include <storlib/SESElement.h>

#include <algorithm>
#include <map>
#include <set>

namespace storlib::detail {
namespace {

using ChunkMap = std::map<std::pair<uint32_t, uint32_t>, std::vector<ChunkData>>;

// Every chunk of every logical drive, by the drive it is on, sorted by start.
ChunkMap chunksByDrive(const sim::ControllerRec& c) {
    ChunkMap map;
    for (const sim::LdRec& ld : c.logicalDrives)
        for (const auto* list : {&ld.members, &ld.target})
            for (size_t i = 0; i < list->size(); ++i) {
                const sim::ChunkRec& k = (*list)[i];
                auto& v = map[{k.channel, k.device}];
                auto same = std::find_if(v.begin(), v.end(), [&](const ChunkData& x) {
                    return x.logicalDriveID == ld.id && x.startMB == k.startMB;
                });
                if (same != v.end()) {
                    same->sizeMB = std::max(same->sizeMB, k.sizeMB);
                    continue;
                }
                v.push_back({k.channel, k.device, k.startMB, k.sizeMB, k.state, static_cast<uint32_t>(i), ld.id});
            }
    for (auto& [key, v] : map)
        std::sort(v.begin(), v.end(), [](const ChunkData& a, const ChunkData& b) { return a.startMB < b.startMB; });
    return map;
}

// Used chunks plus the free extents between them.
std::vector<ChunkData> driveChunks(const sim::DriveRec& d, const std::vector<ChunkData>& used) {
    std::vector<ChunkData> out;
    uint64_t pos = 0;
    auto gap = [&](uint64_t end) {
        if (end > pos) out.push_back({d.channel, d.device, pos, end - pos, ChunkState::Free, 0, Addr::ANY});
    };
    for (const ChunkData& k : used) {
        gap(k.startMB);
        out.push_back(k);
        pos = std::max(pos, k.startMB + k.sizeMB);
    }
    gap(d.hd.sizeMB);
    return out;
}

bool batteryHolds(const sim::ControllerRec& c) {
    return c.battery && (c.battery->status == BatteryStatus::Ok || c.battery->status == BatteryStatus::Charging);
}

SESStatus worst(SESStatus a, SESStatus b) {
    auto rank = [](SESStatus s) {
        switch (s) {
        case SESStatus::Critical: case SESStatus::Unrecoverable: return 3;
        case SESStatus::NonCritical: return 2;
        case SESStatus::OK: return 1;
        default: return 0;
        }
    };
    return rank(b) > rank(a) ? b : a;
}

}  // namespace

template <class T, class... A> T* SnapshotBuilder::add(RaidObject* parent, A&&... args) {
    auto obj = std::make_unique<T>(std::forward<A>(args)...);
    T* raw = obj.get();
    RaidObject* base = raw;
    base->parent_ = parent;
    parent->children_.push_back(raw);
    root_->index_.emplace(base->getAddr(), raw);
    root_->arena_.push_back(std::move(obj));
    return raw;
}

std::shared_ptr<const SystemConfig> SnapshotBuilder::build(const sim::Model& m, uint64_t generation) {
    SnapshotBuilder b(m);
    b.root_ = std::make_shared<SystemConfig>();
    b.root_->time_ = static_cast<int64_t>(m.now);
    b.root_->generation_ = generation;
    uint32_t index = 0;
    for (const sim::ControllerRec& c : m.controllers)
        if (c.present) b.adapter(c, index++);
    return b.root_;
}

void SnapshotBuilder::adapter(const sim::ControllerRec& c, uint32_t index) {
    AdapterData a = c.ad;
    a.numDrives = static_cast<uint32_t>(c.drives.size());
    a.numFastTierDrives = 0;
    a.fastTierPoolSizeMB = 0;
    for (const sim::DriveRec& d : c.drives)
        if (d.hd.fastTierAssigned) {
            ++a.numFastTierDrives;
            a.fastTierPoolSizeMB += d.hd.sizeMB;
        }
    if (a.statisticsEnabled) {
        auto secs = static_cast<uint64_t>(std::max(0.0, m_.now - static_cast<double>(a.statisticsResetTime)));
        a.statReadCommands = secs * 1800;
        a.statWriteCommands = secs * 700;
        a.statReadMB = secs * 110;
        a.statWriteMB = secs * 45;
    }
    auto* ad = add<Adapter>(root_.get(), Addr(index), std::move(a));
    chunks_ = chunksByDrive(c);
    std::set<uint32_t> channels;
    for (const sim::ChannelRec& ch : c.channels) channels.insert(ch.id);
    for (const sim::DriveRec& d : c.drives) channels.insert(d.channel);
    for (const sim::EnclosureRec& e : c.enclosures) channels.insert(e.channel);
    for (uint32_t id : channels) {
        auto it = std::find_if(c.channels.begin(), c.channels.end(), [&](const sim::ChannelRec& x) { return x.id == id; });
        channel(ad, c, it != c.channels.end() ? *it : sim::ChannelRec{id, {}}, index);
    }
    for (const sim::LdRec& ld : c.logicalDrives) logicalDrive(ad, c, ld, index);
    extras(ad, c, index);
}

void SnapshotBuilder::channel(RaidObject* parent, const sim::ControllerRec& c, const sim::ChannelRec& ch, uint32_t index) {
    ChannelData data = ch.d;
    data.deviceCount = 0;
    for (const sim::DriveRec& d : c.drives) data.deviceCount += d.channel == ch.id;
    for (const sim::EnclosureRec& e : c.enclosures) data.deviceCount += e.channel == ch.id;
    auto* obj = add<Channel>(parent, Addr(index, ch.id), data);
    for (const sim::EnclosureRec& e : c.enclosures)
        if (e.channel == ch.id) enclosure(obj, c, e, index);
    for (const sim::DriveRec& d : c.drives)
        if (d.channel == ch.id) drive(obj, c, d, index);
}

void SnapshotBuilder::drive(RaidObject* parent, const sim::ControllerRec& c, const sim::DriveRec& d, uint32_t index) {
    static const std::vector<ChunkData> none;
    HardDriveData hd = d.hd;
    auto it = chunks_.find({d.channel, d.device});
    const std::vector<ChunkData>& used = it != chunks_.end() ? it->second : none;
    std::vector<ChunkData> chunks = driveChunks(d, used);
    hd.usedMB = hd.freeMB = hd.largestFreeMB = 0;
    hd.chunkCount = static_cast<uint32_t>(used.size());
    for (const ChunkData& k : chunks) {
        if (k.state == ChunkState::Free) {
            hd.freeMB += k.sizeMB;
            hd.largestFreeMB = std::max(hd.largestFreeMB, k.sizeMB);
        } else {
            hd.usedMB += k.sizeMB;
        }
    }
    hd.taskRunning = sim::hasRunningTask(c, Addr::ANY, d.channel, d.device);
    auto* obj = add<HardDrive>(parent, Addr(index, d.channel, d.device), d.dev, std::move(hd));
    for (const ChunkData& k : chunks)
        add<Chunk>(obj, Addr(index, k.channelID, k.deviceID, k.logicalDriveID, k.startMB), k);
}

void SnapshotBuilder::enclosure(RaidObject* parent, const sim::ControllerRec& c, const sim::EnclosureRec& e,
                                uint32_t index) {
    EnclosureData enc = e.enc;
    SESStatus status = SESStatus::OK;
    for (const auto& f : e.fans) status = worst(status, f.el.status);
    for (const auto& p : e.powerSupplies) status = worst(status, p.el.status);
    for (const auto& s : e.temperatureSensors) status = worst(status, s.el.status);
    enc.status = status;
    enc.numSlots = static_cast<uint32_t>(e.slots.size());
    auto* obj = add<SES2EnclosureDevice>(parent, Addr(index, e.channel, e.device), e.dev, enc, e.ses);
    auto addr = [&](const SESElementData& el) {
        return Addr(index, e.channel, e.device, Addr::ANY,
                    (static_cast<uint64_t>(el.elementType) << 32) | el.elementIndex);
    };
    for (const auto& f : e.fans) add<EnclosureFan>(obj, addr(f.el), f.el, f.d);
    for (const auto& p : e.powerSupplies) add<EnclosurePowerSupply>(obj, addr(p.el), p.el, p.d);
    for (const auto& s : e.temperatureSensors) add<EnclosureTemperatureSensor>(obj, addr(s.el), s.el, s.d);
    for (const auto& s : e.slots) {
        SlotData slot = s.d;
        SESElementData el = s.el;
        slot.occupied = false;
        for (const sim::DriveRec& d : c.drives) {
            if (d.hd.enclosureIndex != static_cast<int32_t>(e.enc.enclosureIndex) ||
                d.hd.slot != static_cast<int32_t>(slot.bayNumber) || d.hd.state == DriveState::Missing)
                continue;
            slot.occupied = true;
            slot.deviceChannel = d.channel;
            slot.deviceID = d.device;
            slot.sasAddress = d.dev.wwn;
            slot.fault = d.hd.state == DriveState::Failed;
            slot.identify = d.hd.locateActive;
        }
        if (!slot.occupied) el.status = SESStatus::NotInstalled;
        add<EnclosureSlot>(obj, addr(el), el, slot);
    }
}

void SnapshotBuilder::logicalDrive(RaidObject* parent, const sim::ControllerRec& c, const sim::LdRec& ld,
                                   uint32_t index) {
    LogicalDriveData l = ld.ld;
    uint64_t chunk = ld.members.empty() ? 0 : ld.members.front().sizeMB;
    l.hotSpareProtected = false;
    if (sim::isRedundant(l.raidLevel))
        for (const sim::DriveRec& d : c.drives) {
            if (d.hd.state != DriveState::HotSpare || d.hd.sizeMB < chunk) continue;
            bool mine = d.hd.spareType == SpareType::Global ||
                        std::find(d.hd.dedicatedTo.begin(), d.hd.dedicatedTo.end(), ld.id) != d.hd.dedicatedTo.end();
            l.hotSpareProtected = l.hotSpareProtected || mine;
        }
    std::set<InterfaceType> ifaces;
    std::set<MediaType> media;
    for (const sim::ChunkRec& k : ld.members)
        for (const sim::DriveRec& d : c.drives)
            if (d.channel == k.channel && d.device == k.device) {
                ifaces.insert(d.dev.interfaceType);
                media.insert(d.hd.mediaType);
            }
    l.interfaceType = ifaces.size() == 1 ? *ifaces.begin() : InterfaceType::Unknown;
    l.mixedMedia = media.size() > 1;
    l.writeCacheActive = l.writeCache == WriteCacheMode::WriteBack ||
                         (l.writeCache == WriteCacheMode::WriteBackWhenProtected && batteryHolds(c));
    l.fastTierWCNoBattery = !batteryHolds(c);
    l.fastTierWCNonRedundant = !sim::isRedundant(l.raidLevel);
    l.fastTierWCProtected = batteryHolds(c) && sim::isRedundant(l.raidLevel);
    l.extendedLba = l.extendedLba || l.dataSizeMB <= c.ad.legacyLbaLimitMB;
    auto* obj = add<LogicalDrive>(parent, Addr(index, Addr::ANY, Addr::ANY, ld.id), std::move(l));
    for (size_t i = 0; i < ld.members.size(); ++i) {
        const sim::ChunkRec& k = ld.members[i];
        ChunkData data{k.channel, k.device, k.startMB, k.sizeMB, k.state, static_cast<uint32_t>(i), ld.id};
        add<Chunk>(obj, Addr(index, k.channel, k.device, ld.id, k.startMB), data);
    }
}

void SnapshotBuilder::extras(RaidObject* parent, const sim::ControllerRec& c, uint32_t index) {
    if (c.battery) add<Battery>(parent, Addr(index, Addr::ANY, Addr::ANY, Addr::ANY, 0), *c.battery);
    for (const SASPhyData& p : c.phys) add<SASPhy>(parent, Addr(index, Addr::ANY, Addr::ANY, Addr::ANY, 0x10000 + p.phyId), p);
    for (const SASConnectorData& k : c.connectors)
        add<SASConnector>(parent, Addr(index, Addr::ANY, Addr::ANY, Addr::ANY, 0x20000 + k.connectorId), k);
    for (const sim::TaskRec& t : c.tasks) {
        ProgressData p = t.p;
        p.percentComplete = sim::taskPercent(c, t, m_.now);
        double done = sim::taskDoneAt(c, t, m_.now);
        p.elapsedSec = static_cast<uint64_t>(std::max(0.0, (t.p.taskState == TaskState::Running ? m_.now : t.anchor) -
                                                               static_cast<double>(t.p.startTime)));
        p.remainingSec = t.p.taskState == TaskState::Running
                             ? static_cast<uint64_t>((t.workMB - done) / sim::taskRate(c, t))
                             : 0;
        add<Progress>(parent, Addr(index, Addr::ANY, Addr::ANY, Addr::ANY, t.p.taskId), p);
    }
}

}  // namespace storlib::detail
