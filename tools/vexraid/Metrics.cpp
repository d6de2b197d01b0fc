#include "Metrics.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vexraid {

namespace {

using Labels = std::vector<std::pair<std::string, std::string>>;

std::string number(double value) {
    if (std::isnan(value)) return "NaN";
    if (std::isinf(value)) return value > 0 ? "+Inf" : "-Inf";
    char text[32];
    std::snprintf(text, sizeof text, "%.15g", value);
    return text;
}

// One metric family: its header and its samples.
class Family {
public:
    Family(std::string& out, const char* name, const char* help) : m_out(out), m_name(name) {
        out += std::string("# HELP ") + name + " " + help + "\n# TYPE " + name + " gauge\n";
    }
    void sample(const Labels& labels, double value) {
        m_out += m_name;
        if (!labels.empty()) {
            m_out += "{";
            for (std::size_t i = 0; i < labels.size(); ++i) {
                m_out += (i ? "," : "") + labels[i].first + "=\"" + escapeLabelValue(labels[i].second) + "\"";
            }
            m_out += "}";
        }
        m_out += " " + number(value) + "\n";
    }

private:
    std::string& m_out;
    std::string m_name;
};

Labels identity(const RaidObject& o, const char* idLabel) {
    Labels labels{{"controller", o.controller}};
    if (o.kind != Kind::Controller) labels.push_back({idLabel, o.id});
    return labels;
}

Labels with(Labels labels, const std::string& name, const std::string& value) {
    labels.push_back({name, value});
    return labels;
}

struct KindFamilies {
    Kind kind;
    const char* idLabel;
    const char* stateName;
    const char* stateHelp;
};

const KindFamilies kStateFamilies[] = {
    {Kind::Controller, "controller", "vexraid_controller_state", "Controller state: 1 for the current state."},
    {Kind::Battery, "battery", "vexraid_battery_state", "Cache backup unit (battery or super-capacitor) state: 1 for the current state."},
    {Kind::Drive, "drive", "vexraid_drive_state", "Physical drive state: 1 for the current state."},
    {Kind::Volume, "volume", "vexraid_volume_state", "Volume (logical drive) state: 1 for the current state."},
    {Kind::Enclosure, "enclosure", "vexraid_enclosure_state", "Enclosure state: 1 for the current state."},
};

void stateFamilies(std::string& out, const RaidState& state) {
    for (const KindFamilies& f : kStateFamilies) {
        Family family(out, f.stateName, f.stateHelp);
        for (const RaidObject& o : state.objects) {
            if (o.kind != f.kind) continue;
            Labels labels = identity(o, f.idLabel);
            if (o.kind == Kind::Volume) labels.push_back({"name", o.name});
            for (const std::string& s : kindStates(o.kind)) family.sample(with(labels, "state", s), o.state == s ? 1 : 0);
        }
    }
    Family elements(out, "vexraid_enclosure_element_state",
                    "Enclosure element (fan, power supply, temperature sensor) state by SES-2 status: 1 for the current state.");
    for (const RaidObject& o : state.objects) {
        if (o.kind != Kind::Fan && o.kind != Kind::PowerSupply && o.kind != Kind::Sensor && o.kind != Kind::Element) continue;
        Labels labels{{"controller", o.controller}, {"enclosure", o.labels.count("enclosure") ? o.labels.at("enclosure") : ""},
                      {"element", o.labels.count("element") ? o.labels.at("element") : o.id}, {"type", kindWord(o.kind)}};
        for (const std::string& s : kindStates(o.kind)) elements.sample(with(labels, "state", s), o.state == s ? 1 : 0);
    }
}

void infoFamilies(std::string& out, const RaidState& state) {
    Family controllers(out, "vexraid_controller_info", "Controller model, serial number and firmware; always 1.");
    for (const RaidObject& o : state.objects) {
        if (o.kind != Kind::Controller) continue;
        Labels labels{{"controller", o.controller}};
        for (const auto& [name, value] : o.labels) labels.push_back({name, value});
        controllers.sample(labels, 1);
    }
    Family volumes(out, "vexraid_volume_info", "Volume name and RAID level; always 1.");
    for (const RaidObject& o : state.objects) {
        if (o.kind != Kind::Volume) continue;
        volumes.sample({{"controller", o.controller}, {"volume", o.id}, {"name", o.name},
                        {"raid_level", o.labels.count("raid_level") ? o.labels.at("raid_level") : ""}}, 1);
    }
}

void figureFamilies(std::string& out, const RaidState& state) {
    Family temps(out, "vexraid_controller_temperature_celsius", "Controller temperature in degrees Celsius.");
    for (const RaidObject& o : state.objects) {
        if (o.kind == Kind::Controller && o.temperatureCelsius) temps.sample(identity(o, ""), *o.temperatureCelsius);
    }
    Family batteryTemps(out, "vexraid_battery_temperature_celsius", "Cache backup unit temperature in degrees Celsius.");
    for (const RaidObject& o : state.objects) {
        if (o.kind == Kind::Battery && o.temperatureCelsius) batteryTemps.sample(identity(o, "battery"), *o.temperatureCelsius);
    }
    Family charge(out, "vexraid_battery_charge_ratio", "Charge of the cache backup unit, 0 to 1.");
    for (const RaidObject& o : state.objects) {
        if (o.kind == Kind::Battery && o.chargeRatio) charge.sample(identity(o, "battery"), *o.chargeRatio);
    }
    Family drives(out, "vexraid_drive_capacity_bytes", "Physical drive capacity in bytes.");
    for (const RaidObject& o : state.objects) {
        if (o.kind == Kind::Drive && o.capacityBytes) drives.sample(identity(o, "drive"), *o.capacityBytes);
    }
    Family volumes(out, "vexraid_volume_capacity_bytes", "Volume capacity in bytes.");
    for (const RaidObject& o : state.objects) {
        if (o.kind == Kind::Volume && o.capacityBytes) volumes.sample(with(identity(o, "volume"), "name", o.name), *o.capacityBytes);
    }
}

void jobFamilies(std::string& out, const RaidState& state) {
    Family progress(out, "vexraid_job_progress_ratio", "Progress of a running controller task (rebuild, verify, ...), 0 to 1.");
    for (const RaidJob& j : state.jobs) {
        if (j.progressRatio) {
            progress.sample({{"controller", j.controller}, {"job", j.id}, {"task", j.task}, {"target", j.target}}, *j.progressRatio);
        }
    }
    std::map<std::pair<std::string, std::string>, int> counts;
    for (const RaidObject& o : state.objects) {
        if (o.kind == Kind::Controller) counts[{o.id, ""}];
    }
    for (const RaidJob& j : state.jobs) ++counts[{j.controller, j.task}];
    Family jobs(out, "vexraid_jobs_running", "Running controller tasks by task type.");
    for (const auto& [key, n] : counts) {
        if (!key.second.empty()) jobs.sample({{"controller", key.first}, {"task", key.second}}, n);
    }
}

void scrapeFamilies(std::string& out, bool success, double seconds) {
    Family(out, "vexraid_scrape_success", "1 if the RAID state was read through the provider, 0 if not.").sample({}, success ? 1 : 0);
    Family(out, "vexraid_scrape_duration_seconds", "Time taken to read the RAID state.").sample({}, seconds);
}

}  // namespace

std::string escapeLabelValue(const std::string& value) {
    std::string out;
    for (char c : value) {
        if (c == '\\') out += "\\\\";
        else if (c == '"') out += "\\\"";
        else if (c == '\n') out += "\\n";
        else out += c;
    }
    return out;
}

std::string metricsText(const RaidState& state, double scrapeSeconds) {
    std::string out;
    scrapeFamilies(out, true, scrapeSeconds);
    infoFamilies(out, state);
    stateFamilies(out, state);
    figureFamilies(out, state);
    jobFamilies(out, state);
    return out;
}

std::string failedMetricsText(double scrapeSeconds) {
    std::string out;
    scrapeFamilies(out, false, scrapeSeconds);
    return out;
}

void writeFileAtomically(const std::string& path, const std::string& text) {
    const std::filesystem::path target(path);
    const std::filesystem::path dir = target.has_parent_path() ? target.parent_path() : std::filesystem::path(".");
    std::string temp = (dir / ("." + target.filename().string() + ".XXXXXX")).string();
    const int fd = mkstemp(temp.data());
    if (fd < 0) throw std::runtime_error("cannot create a temporary file in " + dir.string() + ": " + std::strerror(errno));
    const char* data = text.data();
    std::size_t left = text.size();
    bool ok = true;
    while (ok && left > 0) {
        const ssize_t n = write(fd, data, left);
        if (n < 0 && errno == EINTR) continue;
        ok = n > 0;
        if (ok) {
            data += n;
            left -= static_cast<std::size_t>(n);
        }
    }
    const int error = ok ? 0 : errno;
    ok = ok && fchmod(fd, 0644) == 0 && fsync(fd) == 0;
    ok = close(fd) == 0 && ok;
    if (!ok || std::rename(temp.c_str(), path.c_str()) != 0) {
        const std::string reason = std::strerror(error != 0 ? error : errno);
        unlink(temp.c_str());
        throw std::runtime_error("cannot write " + path + ": " + reason);
    }
}

}  // namespace vexraid
