#include "Summary.h"

#include <cctype>
#include <map>

#include "CimText.h"
#include "TextTable.h"

namespace vexraid {

namespace {

using cmpihost::Instance;
using Row = std::vector<std::string>;

std::string size(const Instance& i, const std::string& bytes) {
    auto value = integerProperty(i, bytes);
    return value && *value >= 0 ? sizeText(static_cast<std::uint64_t>(*value)) : "";
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

SummarySection controllers(const std::vector<Instance>& views) {
    SummarySection s{"Controllers", {"NAME", "MODEL", "SERIAL", "FIRMWARE", "DRIVES", "TEMP", "BATTERY", "STATUS"}, {}};
    for (const Instance& c : views) {
        const std::string temp = propertyText(c, "CSControllerTemparature");
        s.rows.push_back({propertyText(c, "CSName"), propertyText(c, "CDModel"), propertyText(c, "CDSerialNumber"),
                          softwareVersion(c, "_Firmware"), propertyText(c, "CSNumDrives"), temp.empty() ? "" : temp + " C",
                          batteryStatusText(c.property("BBatteryStatus")), operationalStatusText(c.property("PCOperationalStatus"))});
    }
    return s;
}

// Drives only: the view also lists enclosure processors, which have no extent.
SummarySection drives(const std::vector<Instance>& views) {
    SummarySection s{"Drives", {"ID", "SLOT", "VENDOR", "MODEL", "TYPE", "SIZE", "STATUS"}, {}};
    for (const Instance& d : views) {
        auto blocks = integerProperty(d, "SENumberOfBlocks");
        auto blockSize = integerProperty(d, "SEBlockSize");
        if (!blocks || !blockSize) continue;
        const std::string type = propertyText(d, "SEInterfaceType") + " " + propertyText(d, "SEtype");
        s.rows.push_back({propertyText(d, "DDDeviceID"), propertyText(d, "DDSlotNo"), propertyText(d, "PPManufacturer"),
                          propertyText(d, "PPModel"), type, sizeText(static_cast<std::uint64_t>(*blocks * *blockSize)),
                          operationalStatusText(d.property("DDOperationalStatus"))});
    }
    return s;
}

std::map<std::string, std::string> raidLevels(const std::vector<Instance>& settings) {
    std::map<std::string, std::string> levels;
    for (const Instance& setting : settings) levels[propertyText(setting, "PoolInstanceID")] = propertyText(setting, "RAIDLevel");
    return levels;
}

SummarySection pools(const SummarySource& source) {
    const auto levels = raidLevels(source.settings);
    SummarySection s{"Pools", {"ID", "NAME", "RAID", "SIZE", "STATUS"}, {}};
    for (const Instance& p : source.pools) {
        const std::string id = propertyText(p, "SPInstanceID");
        auto level = levels.find(id);
        s.rows.push_back({id, propertyText(p, "SPElementName"), level == levels.end() ? "" : level->second,
                          size(p, "SPTotalManagedSpace"), operationalStatusText(p.property("SPOperationalStatus"))});
    }
    return s;
}

SummarySection volumes(const SummarySource& source) {
    std::map<std::string, const Instance*> poolById;
    for (const Instance& p : source.pools) poolById[propertyText(p, "SPInstanceID")] = &p;
    SummarySection s{"Volumes", {"ID", "POOL", "NAME", "SIZE", "BOOT", "STATUS"}, {}};
    for (const Instance& v : source.volumes) {
        const std::string poolId = propertyText(v, "SPInstanceID");
        auto pool = poolById.find(poolId);
        const Instance* p = pool == poolById.end() ? nullptr : pool->second;
        s.rows.push_back({propertyText(v, "SVDeviceID"), poolId, p ? propertyText(*p, "SPElementName") : "",
                          p ? size(*p, "SPTotalManagedSpace") : "", propertyText(v, "SVIsBootDisk"),
                          p ? operationalStatusText(p->property("SPOperationalStatus")) : ""});
    }
    return s;
}

SummarySection jobs(const std::vector<Instance>& running) {
    SummarySection s{"Jobs", {"ID", "TASK", "TARGET", "PROGRESS"}, {}};
    for (const Instance& j : running) {
        const std::string percent = propertyText(j, "PercentComplete");
        s.rows.push_back({propertyText(j, "InstanceID"), propertyText(j, "Name"), propertyText(j, "DeviceTypeAndID"),
                          percent.empty() ? "" : percent + "%"});
    }
    return s;
}

std::string lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

}  // namespace

std::vector<SummarySection> summarize(const SummarySource& source) {
    return {controllers(source.controllers), drives(source.drives), pools(source), volumes(source), jobs(source.jobs)};
}

std::string summaryText(const std::vector<SummarySection>& sections) {
    std::string out;
    for (const SummarySection& section : sections) {
        out += (out.empty() ? "" : "\n") + section.title + " (" + std::to_string(section.rows.size()) + ")\n";
        if (section.rows.empty()) continue;
        TextTable table(section.header);
        for (const Row& row : section.rows) table.add(row);
        out += table.render();
    }
    return out;
}

nlohmann::json summaryJson(const std::vector<SummarySection>& sections) {
    nlohmann::json out = nlohmann::json::object();
    for (const SummarySection& section : sections) {
        nlohmann::json rows = nlohmann::json::array();
        for (const Row& row : section.rows) {
            nlohmann::json object = nlohmann::json::object();
            for (std::size_t i = 0; i < section.header.size() && i < row.size(); ++i) object[section.header[i]] = row[i];
            rows.push_back(object);
        }
        out[lower(section.title)] = rows;
    }
    return out;
}

}  // namespace vexraid
