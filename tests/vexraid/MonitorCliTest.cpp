// vexraid health and metrics as a monitoring system runs them, on the demo
// system with the simulator clock stopped, before and after faults injected
// with storvex-sim; the metrics read back by python3-prometheus-client's
// parser of the text format.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "CliRunner.h"

namespace {

using nlohmann::json;
using vex::clitest::Outcome;

std::string slurp(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// A fresh simulator state on the demo system, shared by vexraid and
// storvex-sim; removed at the end.
class MonitorCliTest : public ::testing::Test {
protected:
    Outcome run(const std::string& program, const std::vector<std::string>& args, const std::string& input = "") const {
        return m_runner.run(program, args, input);
    }
    Outcome vexraid(const std::vector<std::string>& args) const { return m_runner(args); }
    void inject(const std::vector<std::string>& args) const {
        const Outcome r = run(STORVEX_SIM_PROGRAM, m_runner.onSimulator(args));
        ASSERT_EQ(r.exitCode, 0) << r.err;
    }
    // The families the parser found, by name.
    std::map<std::string, json> parsed(const std::string& exposition) const {
        const Outcome r = run("/usr/bin/python3", {PARSE_METRICS_SCRIPT}, exposition);
        EXPECT_EQ(r.exitCode, 0) << "the exposition does not parse: " << r.err;
        std::map<std::string, json> families;
        if (r.exitCode != 0) return families;
        for (const json& f : json::parse(r.out)) families[f["name"]] = f;
        return families;
    }
    static double value(const json& family, const std::map<std::string, std::string>& labels) {
        for (const json& s : family["samples"]) {
            bool match = true;
            for (const auto& [k, v] : labels) match = match && s["labels"].value(k, "") == v;
            if (match) return s["value"];
        }
        ADD_FAILURE() << "no sample of " << family["name"] << " with the labels asked for";
        return -1;
    }

    vex::clitest::CliRunner m_runner;
    const std::string& m_dir = m_runner.dir();
};

TEST_F(MonitorCliTest, TheDemoSystemIsHealthy) {
    const Outcome r = vexraid({"health"});
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out.rfind("RAID OK - 2 controllers, 17 drives, 5 volumes | drives_ok=17 ", 0), 0u) << r.out;
    EXPECT_NE(r.out.find(" temp_vexController_0=45;80;95 temp_vexController_1=45;80;95\n"), std::string::npos) << r.out;
    EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), 1);
}

TEST_F(MonitorCliTest, InjectedFaultsAreNamedWithTheirLevel) {
    inject({"smart", "1:0:2"});
    Outcome r = vexraid({"health"});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.out.substr(0, r.out.find(" | ")), "RAID WARNING - drive 1_0_2 predictive failure");

    inject({"fail", "0:0:3"});  // the dedicated spare 0:10 takes over
    inject({"advance", "600"});
    inject({"fail-battery", "1"});
    inject({"fail-fan", "0:0:32", "1"});
    r = vexraid({"health", "--warn-temp", "40"});
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_EQ(r.out.substr(0, r.out.find(" | ")),
              "RAID CRITICAL - controller vexController_0 temperature 45 C, controller vexController_1 temperature 45 C, "
              "volume Data degraded (rebuilding 26%), drive 0_0_3 failed, drive 0_0_10 rebuilding, "
              "drive 1_0_2 predictive failure, battery 1_0 failed, enclosure 0_0 fan 1 failed");
    EXPECT_NE(r.out.find(" drives_failed=1 volumes_ok=4 volumes_rebuilding=1 "), std::string::npos) << r.out;
    EXPECT_NE(r.out.find(" rebuild_Data=26%;;;0;100\n"), std::string::npos) << r.out;

    // The same verdict as data; ignored kinds leave it.
    r = vexraid({"--json", "health", "--ignore", "drive", "--ignore", "VEX_SESElement", "--ignore", "volume"});
    EXPECT_EQ(r.exitCode, 2);
    const json verdict = json::parse(r.out);
    EXPECT_EQ(verdict["status"], "CRITICAL");
    ASSERT_EQ(verdict["problems"].size(), 1u) << r.out;
    EXPECT_EQ(verdict["problems"][0]["text"], "battery 1_0 failed");
    EXPECT_EQ(verdict["problems"][0]["controller"], "vexController_1");
    EXPECT_EQ(verdict["counts"]["drives"], 17);
}

TEST_F(MonitorCliTest, WhatCannotBeReadIsUnknownInOneLine) {
    Outcome r = vexraid({"--provider", "/nonexistent/libvexRAIDProvider15.so", "health"});
    EXPECT_EQ(r.exitCode, 3);
    EXPECT_EQ(r.out.rfind("RAID UNKNOWN - provider cannot be loaded: /nonexistent/libvexRAIDProvider15.so", 0), 0u) << r.out;
    EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), 1);

    const std::string notADirectory = m_dir + "/plain-file";
    std::ofstream(notADirectory) << "x";
    r = run(VEXRAID_PROGRAM, {"--system", VEX_DEMO_SYSTEM, "--state-dir", notADirectory, "health"});
    EXPECT_EQ(r.exitCode, 3);
    EXPECT_EQ(r.out, "RAID UNKNOWN - simulator state directory " + notADirectory + " is not readable\n");

    inject({"remove-controller", "0"});
    inject({"remove-controller", "0"});
    r = vexraid({"health"});
    EXPECT_EQ(r.exitCode, 3);
    EXPECT_EQ(r.out, "RAID UNKNOWN - no RAID controller found\n");
}

TEST_F(MonitorCliTest, MetricsParseAndCarryTheStateSeries) {
    inject({"fail", "0:0:3"});
    inject({"advance", "600"});
    const Outcome r = vexraid({"metrics"});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    auto families = parsed(r.out);
    ASSERT_FALSE(families.empty());
    EXPECT_EQ(value(families["vexraid_scrape_success"], {}), 1);
    EXPECT_EQ(value(families["vexraid_drive_state"], {{"drive", "0_0_3"}, {"state", "failed"}}), 1);
    EXPECT_EQ(value(families["vexraid_drive_state"], {{"drive", "0_0_3"}, {"state", "ok"}}), 0);
    EXPECT_EQ(value(families["vexraid_volume_state"], {{"name", "Data"}, {"state", "rebuilding"}}), 1);
    EXPECT_EQ(value(families["vexraid_drive_capacity_bytes"], {{"drive", "1_0_4"}}), 3999999721472.0);
    EXPECT_EQ(value(families["vexraid_controller_temperature_celsius"], {{"controller", "vexController_1"}}), 45);
    EXPECT_DOUBLE_EQ(value(families["vexraid_job_progress_ratio"], {{"task", "rebuild"}, {"target", "LogicalDrive:0_1"}}), 0.26);
    EXPECT_EQ(value(families["vexraid_jobs_running"], {{"controller", "vexController_0"}, {"task", "verify"}}), 1);
    EXPECT_EQ(value(families["vexraid_battery_charge_ratio"], {{"controller", "vexController_0"}}), 0.98);
    EXPECT_EQ(value(families["vexraid_enclosure_element_state"], {{"element", "fan 1"}, {"state", "ok"}}), 1);
    for (const auto& [name, family] : families) {
        EXPECT_EQ(family["type"], "gauge") << name;
        EXPECT_FALSE(family["help"].get<std::string>().empty()) << name;
    }
}

TEST_F(MonitorCliTest, MetricsFileIsReplacedWholeAndKeptWhenTheReadingFails) {
    const std::string file = m_dir + "/textfile/vexraid.prom";
    std::filesystem::create_directories(m_dir + "/textfile");
    Outcome r = vexraid({"metrics", "--output", file});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "");
    const std::string good = slurp(file);
    EXPECT_NE(good.find("vexraid_scrape_success 1\n"), std::string::npos);

    r = vexraid({"--provider", "/nonexistent/libvexRAIDProvider15.so", "metrics", "--output", file});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(value(parsed(r.out)["vexraid_scrape_success"], {}), 0);
    EXPECT_NE(r.err.find("provider cannot be loaded"), std::string::npos) << r.err;
    EXPECT_EQ(slurp(file), good);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_dir + "/textfile"), std::filesystem::directory_iterator()), 1);
}

}  // namespace
