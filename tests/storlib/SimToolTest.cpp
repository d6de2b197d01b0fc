// The storvex-sim command: the demo walk-through a user does first.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace storlibtest {
namespace {

class SimTool : public ::testing::Test {
protected:
    void SetUp() override {
        const char* build = std::getenv("VEX_BUILD_DIR");
        tool_ = std::string(build ? build : ".") + "/tools/storvex-sim/storvex-sim";
        if (!std::filesystem::exists(tool_)) GTEST_SKIP() << "no " << tool_;
        std::string tmpl = (std::filesystem::temp_directory_path() / "storvex-sim-test-XXXXXX").string();
        ASSERT_NE(mkdtemp(tmpl.data()), nullptr);
        dir_ = tmpl;
    }
    void TearDown() override {
        std::error_code ec;
        if (!dir_.empty()) std::filesystem::remove_all(dir_, ec);
    }
    // Runs the tool with the built-in demo system and a stopped clock.
    std::string run(const std::string& args, int* rc = nullptr) {
        std::string cmd = "'" + tool_ + "' --state-dir '" + dir_ + "' --time-scale 0 " + args + " 2>&1";
        FILE* p = popen(cmd.c_str(), "r");
        std::string out;
        std::array<char, 4096> buf{};
        while (p && fgets(buf.data(), buf.size(), p)) out += buf.data();
        int status = p ? pclose(p) : -1;
        if (rc) *rc = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return out;
    }
    std::string tool_, dir_;
};

TEST_F(SimTool, ADriveFailureShowsAsRebuildWithProgressAndEvents) {
    EXPECT_NE(run("show").find("Archive      RAID6   verifying"), std::string::npos);
    int rc = -1;
    run("fail 0:0:6", &rc);
    ASSERT_EQ(rc, 0);
    std::string shown = run("show -c 0");
    EXPECT_NE(shown.find("rebuilding/degraded"), std::string::npos) << shown;
    EXPECT_NE(shown.find("0:6   failed"), std::string::npos) << shown;
    run("advance 600");
    EXPECT_NE(run("show").find("rebuild    running    26%"), std::string::npos) << run("show");
    std::string events = run("events -c 0");
    EXPECT_NE(events.find("drive 0:6 failed"), std::string::npos) << events;
    EXPECT_NE(events.find("is degraded"), std::string::npos) << events;
}

TEST_F(SimTool, BadInputIsRefusedWithAMessage) {
    int rc = 0;
    EXPECT_NE(run("fail 0:6", &rc).find("CONTROLLER:CHANNEL:DEVICE"), std::string::npos);
    EXPECT_NE(rc, 0);
    EXPECT_NE(run("fail 0:0:99", &rc).find("no drive 0:99"), std::string::npos);
    EXPECT_EQ(rc, 1);
    EXPECT_NE(run("--system /nonexistent.json show", &rc).find("cannot read /nonexistent.json"), std::string::npos);
    EXPECT_EQ(rc, 1);
}

}  // namespace
}  // namespace storlibtest
