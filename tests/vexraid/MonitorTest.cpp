// health and metrics without a provider: the state read from instances a
// stub enumerator hands out, the verdict the table gives, the exposition
// text and the atomic file write.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "Health.h"
#include "Metrics.h"
#include "RaidState.h"

namespace vexraid {
namespace {

using cmpihost::Instance;
using cmpihost::ObjectPath;
using cmpihost::Value;

Value codes(std::initializer_list<CMPIUint16> list) {
    Value::Array elements;
    for (CMPIUint16 c : list) elements.push_back(Value::uint16(c));
    return Value::array(CMPI_uint16, elements);
}

Instance make(const std::string& cls, std::initializer_list<std::pair<const char*, Value>> properties) {
    Instance i(ObjectPath("root/tkz/vex/smi_15", cls));
    for (const auto& [name, value] : properties) i.set(name, value);
    return i;
}

Instance controller(int n, CMPIUint32 temperature) {
    return make("VEX_ControllerView", {{"CSName", Value::string("vexController_" + std::to_string(n))},
                                       {"CSControllerNumber", Value::uint32(static_cast<CMPIUint32>(n))},
                                       {"CSControllerTemparature", Value::uint32(temperature)},
                                       {"PCOperationalStatus", codes({2})}});
}

Instance drive(const std::string& id, Value status, CMPIUint16 spareType = 0) {
    return make("VEX_DiskDriveView", {{"DDDeviceID", Value::string(id)},
                                      {"DDSystemName", Value::string("vexController_" + id.substr(0, 1))},
                                      {"DDOperationalStatus", status},
                                      {"DDSpareType", Value::uint16(spareType)},
                                      {"SENumberOfBlocks", Value::uint64(1000)},
                                      {"SEBlockSize", Value::uint64(512)}});
}

Instance pool(const std::string& id, const std::string& name, CMPIUint32 level, Value status, bool protectedBySpare) {
    return make("VEX_ConcreteStoragePool", {{"InstanceID", Value::string(id)},
                                            {"ElementName", Value::string(name)},
                                            {"ControllerID", Value::uint32(static_cast<CMPIUint32>(id[0] - '0'))},
                                            {"RAIDLevel", Value::uint32(level)},
                                            {"OperationalStatus", status},
                                            {"TotalManagedSpace", Value::uint64(1000000)},
                                            {"HotSpareProtected", Value::boolean(protectedBySpare)}});
}

Instance job(const std::string& id, const std::string& task, const std::string& target, CMPIUint16 percent) {
    return make("VEX_ConcreteJob", {{"InstanceID", Value::string(id)},
                                    {"Name", Value::string(task)},
                                    {"DeviceTypeAndID", Value::string(target)},
                                    {"JobState", Value::uint16(4)},
                                    {"PercentComplete", Value::uint16(percent)}});
}

// Hands out the instances given per class; classes not given are not served.
struct Stub {
    std::map<std::string, std::vector<Instance>> byClass;
    RaidState read() const {
        return readRaidState([this](const std::string& cls) -> std::optional<std::vector<Instance>> {
            auto found = byClass.find(cls);
            if (found == byClass.end()) return std::nullopt;
            return found->second;
        });
    }
};

// Controller 0 with a spare: Data (RAID5) lost 0_0_3 and rebuilds onto
// 0_0_4; Mirror (RAID1) is left without a spare; 0_0_5 predicts failure.
Stub rebuildingSystem() {
    Stub s;
    s.byClass["VEX_ControllerView"] = {controller(0, 45), controller(1, 45)};
    s.byClass["VEX_DiskDriveView"] = {drive("0_0_1", codes({2})), drive("0_0_3", codes({6})), drive("0_0_4", codes({2, 11})),
                                      drive("0_0_5", codes({5})), drive("0_0_9", codes({2}), 1), drive("1_0_0", codes({2}))};
    s.byClass["VEX_ConcreteStoragePool"] = {pool("0_1", "Data", 5, codes({3, 11}), true), pool("0_2", "Mirror", 1, codes({2}), false),
                                            pool("0_3", "Scratch", 0, codes({2}), false), pool("1_0", "Backup", 9, codes({2}), false)};
    s.byClass["VEX_ConcreteJob"] = {job("0_7", "rebuild", "LogicalDrive:0_1", 37), job("0_8", "verify", "LogicalDrive:0_2", 10)};
    return s;
}

TEST(HealthTest, NamesEveryProblemInOrderOfKindWithTheWorstLevel) {
    const RaidState state = rebuildingSystem().read();
    const Verdict v = judge(state, HealthOptions{});
    EXPECT_EQ(v.level, Level::Critical);
    // Backup sits on a controller never given a spare: no warning for it.
    EXPECT_EQ(v.summary,
              "RAID CRITICAL - volume Data degraded (rebuilding 37%), volume Mirror has no spare, drive 0_0_3 failed, "
              "drive 0_0_4 rebuilding, drive 0_0_5 predictive failure");
    EXPECT_NE(v.perfdata.find("drives_ok=3 drives_rebuilding=1 drives_predictive_failure=1"), std::string::npos) << v.perfdata;
    EXPECT_NE(v.perfdata.find("volumes_ok=3 volumes_rebuilding=1 volumes_degraded=0"), std::string::npos) << v.perfdata;
    EXPECT_NE(v.perfdata.find("temp_vexController_0=45;80;95"), std::string::npos);
    EXPECT_NE(v.perfdata.find("rebuild_Data=37%;;;0;100"), std::string::npos);

    HealthOptions strict;
    strict.requireSpare = true;
    strict.ignore = {"drive"};
    const Verdict w = judge(state, strict);
    EXPECT_EQ(w.level, Level::Warning);
    EXPECT_EQ(w.summary, "RAID WARNING - volume Data degraded (rebuilding 37%), volume Mirror has no spare, volume Backup has no spare");
}

TEST(HealthTest, DegradedWithoutRebuildIsCriticalAndTemperaturesFollowTheThresholds) {
    Stub s = rebuildingSystem();
    s.byClass.erase("VEX_ConcreteJob");
    s.byClass["VEX_ControllerView"] = {controller(0, 82), controller(1, 96)};
    s.byClass["VEX_DiskDriveView"] = {drive("0_0_1", codes({2})), drive("0_0_9", codes({2}), 1)};
    HealthOptions options;
    options.ignore = {"VEX_ConcreteStoragePool"};
    EXPECT_EQ(judge(s.read(), options).summary,
              "RAID CRITICAL - controller vexController_0 temperature 82 C, controller vexController_1 temperature 96 C");
    options.ignore = {"power-supply"};
    options.warnTemp = 90;
    options.critTemp = 100;
    const Verdict v = judge(s.read(), options);
    ASSERT_EQ(v.problems.size(), 3u);
    EXPECT_EQ(v.problems[0].text, "controller vexController_1 temperature 96 C");
    EXPECT_EQ(v.problems[0].level, Level::Warning);
    EXPECT_EQ(v.problems[1].text, "volume Data degraded");
    EXPECT_EQ(v.problems[1].level, Level::Critical);
    EXPECT_THROW(checkIgnoreWords({"psu", "VEX_battery", "fans"}), std::invalid_argument);
    EXPECT_NO_THROW(checkIgnoreWords({"psu", "VEX_battery", "Power_Supply"}));
}

TEST(HealthTest, AStateThatCannotBeReadIsUnknown) {
    Stub none;
    none.byClass["VEX_ControllerView"] = {};
    EXPECT_THROW(
        {
            try {
                none.read();
            } catch (const StateUnknown& e) {
                EXPECT_STREQ(e.what(), "no RAID controller found");
                throw;
            }
        },
        StateUnknown);
    // Drives of a controller that was gone by the time they were read.
    Stub vanished = rebuildingSystem();
    vanished.byClass["VEX_ControllerView"] = {controller(0, 45)};
    try {
        vanished.read();
        ADD_FAILURE() << "a drive of a vanished controller was accepted";
    } catch (const StateUnknown& e) {
        EXPECT_STREQ(e.what(), "controller vexController_1 vanished while it was read");
    }
    const Verdict v = unknownVerdict("cannot read | twice\nreally");
    EXPECT_EQ(v.level, Level::Unknown);
    EXPECT_EQ(verdictLine(v), "RAID UNKNOWN - cannot read / twice really");
    EXPECT_EQ(verdictJson(v, nullptr)["exitCode"], 3);
}

std::size_t occurrences(const std::string& text, const std::string& what) {
    std::size_t n = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
    return n;
}

TEST(MetricsTest, StatesAreEnumGaugesWithOneSetSeriesAndLabelsAreEscaped) {
    Stub s = rebuildingSystem();
    s.byClass["VEX_ConcreteStoragePool"].push_back(pool("0_4", "odd \"name\\\n", 1, codes({2}), true));
    const std::string text = metricsText(s.read(), 0.25);
    EXPECT_EQ(occurrences(text, "# TYPE vexraid_drive_state gauge\n"), 1u);
    EXPECT_EQ(occurrences(text, "vexraid_drive_state{"), 6u * 6u);
    EXPECT_EQ(occurrences(text, "vexraid_drive_state{controller=\"vexController_0\",drive=\"0_0_3\",state=\"failed\"} 1\n"), 1u);
    EXPECT_EQ(occurrences(text, "drive=\"0_0_3\",state=\"ok\"} 0\n"), 1u);
    EXPECT_EQ(occurrences(text, "} 1\n") - occurrences(text, "_info{"), 2u + 6u + 5u + occurrences(text, "vexraid_jobs_running{"));
    EXPECT_NE(text.find("name=\"odd \\\"name\\\\\\n\""), std::string::npos);
    EXPECT_NE(text.find("vexraid_job_progress_ratio{controller=\"vexController_0\",job=\"0_7\",task=\"rebuild\",target=\"LogicalDrive:0_1\"} 0.37\n"),
              std::string::npos);
    EXPECT_NE(text.find("\nvexraid_scrape_success 1\n"), std::string::npos);
    EXPECT_EQ(failedMetricsText(1).find("vexraid_scrape_success 0\n") != std::string::npos, true);
}

TEST(MetricsTest, WritesAtomicallyAndLeavesTheFileAloneOnFailure) {
    char pattern[] = "/tmp/vexraid-metrics-XXXXXX";
    const std::filesystem::path dir = mkdtemp(pattern);
    const std::string file = (dir / "vexraid.prom").string();
    writeFileAtomically(file, "first\n");
    writeFileAtomically(file, "second\n");
    std::ifstream in(file);
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_EQ(text.str(), "second\n");
    struct stat st {};
    ASSERT_EQ(stat(file.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0644u);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir), std::filesystem::directory_iterator()), 1);
    EXPECT_THROW(writeFileAtomically((dir / "missing" / "x.prom").string(), "x"), std::runtime_error);
    std::filesystem::remove_all(dir);
}

}  // namespace
}  // namespace vexraid
