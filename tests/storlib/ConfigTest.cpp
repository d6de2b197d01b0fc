// Saving a controller configuration, clearing it and playing it back.
#include "SimFixture.h"

namespace storlibtest {
namespace {

class Config : public SimFixture {
protected:
    void SetUp() override {
        SimFixture::SetUp();
        openSystem(kEightDrives);
        createLd(storlib::RaidLevel::Raid5, {0, 1, 2}, 40000);
        createLd(storlib::RaidLevel::Raid10, {4, 5, 6, 7});
        EXPECT_TRUE(lib_.assignDedicatedSpare(drv(3), ldAddr(0)));
        EXPECT_TRUE(lib_.setLogicalDriveName(ldAddr(1), "Fast"));
    }
};

TEST_F(Config, ASavedConfigurationPlaysBackAfterAReset) {
    std::string saved;
    ASSERT_TRUE(lib_.saveConfig(0, saved));
    uint64_t size0 = ld(0)->getDataSizeMB();
    ASSERT_TRUE(lib_.resetConfig(0));
    EXPECT_EQ(ld(0), nullptr);
    EXPECT_EQ(drive(0, 3)->getState(), storlib::DriveState::Ready);

    ASSERT_TRUE(lib_.playConfig(0, saved, false, false));
    ASSERT_NE(ld(0), nullptr);
    EXPECT_EQ(ld(0)->getDataSizeMB(), size0);
    EXPECT_EQ(ld(1)->getName(), "Fast");
    EXPECT_EQ(ld(1)->getRaidLevel(), storlib::RaidLevel::Raid10);
    EXPECT_EQ(drive(0, 3)->getSpareType(), storlib::SpareType::Dedicated);
    std::string again;
    ASSERT_TRUE(lib_.saveConfig(0, again));
    EXPECT_EQ(again, saved);
}

TEST_F(Config, PlayingOverExistingLogicalDrivesNeedsForceAndGarbageIsRefused) {
    std::string saved;
    ASSERT_TRUE(lib_.saveConfig(0, saved));
    EXPECT_EQ(lib_.playConfig(0, saved, false, false).getStatus(), storlib::RetStatus::InvalidState);
    storlib::Ret bad = lib_.playConfig(0, "{\"format\": \"storvex-config\", \"logicalDrives\": [{}]}", true, false);
    EXPECT_EQ(bad.getStatus(), storlib::RetStatus::InvalidArgument);
    std::string after;
    ASSERT_TRUE(lib_.saveConfig(0, after));
    EXPECT_EQ(after, saved);  // a failed restore leaves everything as it was
    ASSERT_TRUE(lib_.playConfig(0, saved, true, true));  // drives outside enclosures match by address
}

}  // namespace
}  // namespace storlibtest
