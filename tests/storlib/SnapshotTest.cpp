// Reading the demo system through the object model.
#include "SimFixture.h"

#include <storlib/Battery.h>
#include <storlib/Chunk.h>
#include <storlib/Enclosure.h>
#include <storlib/Feature.h>
#include <storlib/SESElement.h>

namespace storlibtest {
namespace {

class Snapshot : public SimFixture {
protected:
    void SetUp() override {
        SimFixture::SetUp();
        ASSERT_TRUE(lib_.open(options("")));  // the built-in demo system
        root_ = config();
        a0_ = root_->getAdapter(0);
    }
    size_t count(const storlib::RaidObject& from, const char* cls) { return storlib::FilterCollection(from, cls).size(); }
    std::shared_ptr<const storlib::SystemConfig> root_;
    const storlib::Adapter* a0_ = nullptr;
};

TEST_F(Snapshot, FilterCollectionFindsObjectsByClassAndItsBases) {
    ASSERT_EQ(root_->getAdapterCount(), 2u);
    EXPECT_EQ(count(*a0_, "HardDrive"), 12u);
    EXPECT_EQ(count(*a0_, "PhysicalDevice"), 13u);  // with the enclosure processor
    EXPECT_EQ(count(*a0_, "Enclosure"), 1u);
    EXPECT_EQ(count(*a0_, "LogicalDrive"), 4u);
    EXPECT_EQ(count(*a0_, "Fan"), 3u);
    EXPECT_EQ(count(*a0_, "SESElement"), 3u + 2u + 2u + 12u);
    EXPECT_EQ(count(*a0_, "Progress"), 1u);
    EXPECT_EQ(count(*a0_, "SASPhy"), 8u);
    EXPECT_EQ(count(*root_, "Adapter"), 2u);
    EXPECT_EQ(count(*a0_, "NoSuchClass"), 0u);
    EXPECT_FALSE(storlib::FilterCollection(*a0_, "Battery").elementAt<storlib::Battery>(0)->isSuperCap());
    EXPECT_TRUE(storlib::FilterCollection(*root_->getAdapter(1), "Battery").elementAt<storlib::Battery>(0)->isSuperCap());
}

TEST_F(Snapshot, AddressesFindTheirObjects) {
    EXPECT_EQ(root_->getObject(storlib::Addr(0)), a0_);
    EXPECT_EQ(root_->getObject(storlib::Addr(7)), nullptr);
    const auto* d = root_->getObject(storlib::Addr(0, 0, 3))->as<storlib::HardDrive>();
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(d->getSerialNumber(), "WFK01003");
    EXPECT_EQ(d->getParent()->getClassName(), std::string("Channel"));
    EXPECT_EQ(a0_->getObject(storlib::Addr(0, 0, 3)), d);
    EXPECT_EQ(root_->getAdapter(1)->getObject(storlib::Addr(0, 0, 3)), nullptr);  // not below controller 1
    EXPECT_EQ(storlib::Addr(1, 2, 3).toString(), "1_2_3_2147483647_9223372036854775807");
}

TEST_F(Snapshot, DrivesListTheirChunksAndLogicalDrivesTheirMembers) {
    // Drives 0:0 and 0:1 carry the 200 GB mirror and a RAID 0 on the rest.
    storlib::FilterCollection chunks(*root_->getObject(storlib::Addr(0, 0, 0)), "Chunk");
    ASSERT_EQ(chunks.size(), 2u);
    EXPECT_EQ(chunks.elementAt<storlib::Chunk>(0)->getLogicalDriveID(), 0u);
    EXPECT_EQ(chunks.elementAt<storlib::Chunk>(1)->getLogicalDriveID(), 3u);
    EXPECT_EQ(chunks.elementAt<storlib::Chunk>(1)->getStartMB(), chunks.elementAt<storlib::Chunk>(0)->getSizeMB());
    const auto* spare = root_->getObject(storlib::Addr(0, 0, 10))->as<storlib::HardDrive>();
    EXPECT_EQ(spare->getDedicatedLogicalDrives(), std::vector<uint32_t>{1});
    storlib::FilterCollection slots(*a0_, "Slot");
    EXPECT_TRUE(slots.elementAt<storlib::EnclosureSlot>(3)->isOccupied());
    EXPECT_EQ(slots.elementAt<storlib::EnclosureSlot>(3)->getDeviceID(), 3u);
}

TEST_F(Snapshot, ASnapshotNeverChangesAndIsReusedWhileNothingHappens) {
    ASSERT_TRUE(sim_.finishAllTasks());  // nothing moves any more
    auto old = config();
    EXPECT_EQ(lib_.getSystemConfig(), old);
    ASSERT_TRUE(sim_.failDrive(storlib::Addr(0, 0, 5)));
    auto fresh = lib_.getSystemConfig();
    EXPECT_NE(fresh, old);
    EXPECT_EQ(old->getObject(storlib::Addr(0, 0, 5))->as<storlib::HardDrive>()->getState(), storlib::DriveState::Online);
    EXPECT_EQ(fresh->getObject(storlib::Addr(0, 0, 5))->as<storlib::HardDrive>()->getState(), storlib::DriveState::Failed);
}

TEST_F(Snapshot, TheFeatureQueryAnswersOneZeroOrMinusOne) {
    EXPECT_EQ(a0_->getFeature(storlib::migrationFeature(storlib::RaidLevel::Raid5, storlib::RaidLevel::Raid6)), 1);
    EXPECT_EQ(a0_->getFeature(storlib::expansionFeature(storlib::RaidLevel::Raid5)), 1);
    EXPECT_EQ(a0_->getFeature(storlib::migrationFeature(storlib::RaidLevel::Raid5EE, storlib::RaidLevel::Raid5)), 0);
    EXPECT_EQ(root_->getAdapter(1)->getFeature(storlib::Feature::FastTier), -1);
    EXPECT_EQ(storlib::migrationFeature(storlib::RaidLevel::Raid0, storlib::RaidLevel::Raid0), 31u);
    EXPECT_EQ(storlib::migrationFeature(storlib::RaidLevel::Raid1, storlib::RaidLevel::SimpleVolume), 76u);
    EXPECT_EQ(storlib::expansionFeature(storlib::RaidLevel::Raid60), 55u);
    EXPECT_EQ(storlib::migrationFeature(storlib::RaidLevel::Raid1E, storlib::RaidLevel::Raid60), storlib::Feature::None);
}

TEST_F(Snapshot, TheDemoShowsItsRunningVerify) {
    const storlib::Progress* p = task(storlib::TaskType::Verify);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->getPercentComplete(), 35u);
    EXPECT_EQ(p->getTarget(), ldAddr(2));
    EXPECT_EQ(ld(2)->getState(), storlib::LogicalDriveState::Verifying);
}

}  // namespace
}  // namespace storlibtest
