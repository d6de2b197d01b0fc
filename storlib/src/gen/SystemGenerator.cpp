// Large system descriptions: many controllers, drives and logical drives.
#include <storlib/SystemGenerator.h>

#include <storlib/Names.h>
#include <storlib/RaidLevel.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>

namespace storlib {
namespace {

using nlohmann::json;

constexpr uint64_t kDriveMB = 953674;  // 1 TB
constexpr uint32_t kSlotsPerEnclosure = 24;
constexpr uint32_t kDevicesPerChannel = 128;

std::string ref(uint32_t i) {
    return std::to_string(i / kDevicesPerChannel) + ":" + std::to_string(i % kDevicesPerChannel);
}

RaidLevel levelFor(uint32_t groupSize, uint32_t j) {
    if (groupSize == 2) return RaidLevel::Raid1;
    if (groupSize == 3) return RaidLevel::Raid5;
    const RaidLevel cycle[] = {RaidLevel::Raid5, RaidLevel::Raid6, RaidLevel::Raid10, RaidLevel::Raid0};
    RaidLevel l = cycle[j % 4];
    return l == RaidLevel::Raid10 && groupSize % 2 ? RaidLevel::Raid5 : l;
}

json drives(const GeneratorParams& p, uint32_t ctrl) {
    json list = json::array();
    for (uint32_t i = 0; i < p.drivesPerController; ++i) {
        char serial[32];
        std::snprintf(serial, sizeof serial, "GS%02u%06u", ctrl, i);
        json d = {{"channel", i / kDevicesPerChannel}, {"device", i % kDevicesPerChannel},
                  {"sizeMB", kDriveMB}, {"serialNumber", serial}, {"product", "ST1000NM0045"}};
        if (p.enclosures) {
            d["enclosureIndex"] = i / kSlotsPerEnclosure;
            d["slot"] = i % kSlotsPerEnclosure;
        }
        list.push_back(d);
    }
    return list;
}

json enclosures(const GeneratorParams& p) {
    json list = json::array();
    if (!p.enclosures) return list;
    uint32_t n = (p.drivesPerController + kSlotsPerEnclosure - 1) / kSlotsPerEnclosure;
    uint32_t channel = (p.drivesPerController + kDevicesPerChannel - 1) / kDevicesPerChannel;
    for (uint32_t k = 0; k < n; ++k)
        list.push_back({{"channel", channel}, {"device", k}, {"enclosureIndex", k}, {"numSlots", kSlotsPerEnclosure},
                        {"fans", json::array({json::object(), json::object()})},
                        {"powerSupplies", json::array({json::object(), json::object()})},
                        {"temperatureSensors", json::array({json::object()})}});
    return list;
}

json volumes(const GeneratorParams& p, uint32_t usable) {
    json list = json::array();
    if (p.volumesPerController == 0 || usable < 2) return list;
    uint32_t g = std::clamp<uint32_t>(usable / p.volumesPerController, 2, 16);
    uint32_t groups = usable / g;
    uint32_t perGroup = (p.volumesPerController + groups - 1) / groups;
    for (uint32_t j = 0; j < p.volumesPerController; ++j) {
        uint32_t group = j % groups;
        RaidLevel level = levelFor(g, group);
        json members = json::array();
        for (uint32_t k = 0; k < g; ++k) members.push_back(ref(group * g + k));
        json v = {{"id", j}, {"name", "Volume " + std::to_string(j)}, {"raidLevel", toString(level)},
                  {"members", members}};
        if (perGroup > 1) v["dataSizeMB"] = raidDataCapacityMB(level, g, kDriveMB / perGroup - 1);
        list.push_back(v);
    }
    return list;
}

}  // namespace

std::string generateSystemDescription(const GeneratorParams& p) {
    json ctrls = json::array();
    for (uint32_t c = 0; c < p.controllers; ++c) {
        uint32_t spares = std::min(p.sparesPerController, p.drivesPerController);
        uint32_t usable = p.drivesPerController - spares;
        json spareList = json::array();
        for (uint32_t s = 0; s < spares; ++s) spareList.push_back(ref(usable + s));
        ctrls.push_back({{"model", "VEX-8160i"}, {"maxLogicalDrives", std::max<uint32_t>(64, p.volumesPerController)},
                         {"maxTopLevelLDs", std::max<uint32_t>(64, p.volumesPerController)},
                         {"maxConfiguredDrives", std::max<uint32_t>(256, p.drivesPerController)},
                         {"maxGlobalSpares", std::max<uint32_t>(16, spares)},
                         {"enclosures", enclosures(p)}, {"drives", drives(p, c)},
                         {"logicalDrives", volumes(p, usable)}, {"globalSpares", spareList}});
    }
    return json{{"comment", "generated"}, {"controllers", ctrls}}.dump(1);
}

}  // namespace storlib
