// The controller state across reopening, and when its file is damaged.
#include "SimFixture.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace storlibtest {
namespace {

using Persistence = SimFixture;

std::string slurp(const std::string& path) {
    std::ifstream in(path);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

TEST_F(Persistence, ConfigurationAndClockSurviveAReopen) {
    openSystem(kEightDrives);
    uint32_t id = createLd(storlib::RaidLevel::Raid5, {0, 1, 2});
    ASSERT_TRUE(lib_.assignGlobalSpare(drv(5)));
    ASSERT_TRUE(lib_.setLogicalDriveName(ldAddr(id), "Kept"));
    ASSERT_TRUE(sim_.advanceTime(1234));
    double before = 0, scale = 0;
    ASSERT_TRUE(sim_.getTime(before, scale));
    reopen();
    EXPECT_EQ(ld(id)->getName(), "Kept");
    EXPECT_EQ(drive(0, 5)->getSpareType(), storlib::SpareType::Global);
    double after = 0;
    ASSERT_TRUE(sim_.getTime(after, scale));
    EXPECT_NEAR(after, before, 0.001);
}

TEST_F(Persistence, AnUnreadableStateIsReportedAndNeverOverwritten) {
    openSystem(kEightDrives);
    createLd(storlib::RaidLevel::Raid1, {0, 1});
    std::string path = sim_.statePath();
    lib_.close();
    std::ofstream(path) << "{ \"format\": \"storvex-state\", \"controllers\": [ {\"drives\": 7} ] }";
    std::string damaged = slurp(path);

    storlib::Ret r = lib_.open(options(systemFile_));
    EXPECT_EQ(r.getStatus(), storlib::RetStatus::StateError);
    EXPECT_NE(r.getReason().find(path), std::string::npos) << r.getReason();
    EXPECT_NE(r.getReason().find("controllers[0].drives"), std::string::npos) << r.getReason();
    EXPECT_EQ(lib_.getSystemConfig(), nullptr);
    EXPECT_FALSE(lib_.createJBOD(drv(3)));
    EXPECT_EQ(slurp(path), damaged);

    ASSERT_TRUE(sim_.reset());  // explicit: the damaged file is kept beside the new one
    EXPECT_EQ(config()->getAdapter(0)->getNumDrives(), 8u);
    bool kept = false;
    for (const auto& e : std::filesystem::directory_iterator(std::filesystem::path(path).parent_path()))
        kept = kept || (e.path().filename().string().find(".broken-") != std::string::npos && slurp(e.path()) == damaged);
    EXPECT_TRUE(kept);
}

TEST_F(Persistence, EachDescriptionHasItsOwnState) {
    openSystem(kEightDrives);
    createLd(storlib::RaidLevel::Raid1, {0, 1});
    std::string other = writeFile("other.json", R"({"controllers": [{"drives": [{"device": 0, "sizeMB": 5000}]}]})");
    lib_.close();
    ASSERT_TRUE(lib_.open(options(other)));
    EXPECT_EQ(config()->getAdapter(0)->getNumDrives(), 1u);
    reopen();
    EXPECT_NE(ld(0), nullptr);
}

TEST_F(Persistence, StateDirectoriesThatEscapeAreRefused) {
    storlib::Options o = options("");
    for (const char* bad : {"relative/dir", "/tmp/../etc/storvex", ""}) {
        o.stateDir = bad;
        if (!*bad) continue;
        storlib::Ret r = lib_.open(o);
        EXPECT_EQ(r.getStatus(), storlib::RetStatus::InvalidArgument) << bad;
    }
}

}  // namespace
}  // namespace storlibtest
