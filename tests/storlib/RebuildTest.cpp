// Member failures, hot-spare take-over and rebuilds.
#include "SimFixture.h"

#include <storlib/Chunk.h>

namespace storlibtest {
namespace {

using storlib::ChunkState;
using storlib::DriveState;
using storlib::LogicalDriveState;
using storlib::RaidLevel;

class Rebuild : public SimFixture {
protected:
    void SetUp() override {
        SimFixture::SetUp();
        openSystem(kEightDrives);
    }
    std::vector<const storlib::Chunk*> members(uint32_t id) {
        std::vector<const storlib::Chunk*> out;
        for (const storlib::RaidObject* o : storlib::FilterCollection(ld(id), "Chunk")) out.push_back(o->as<storlib::Chunk>());
        return out;
    }
};

TEST_F(Rebuild, DegradedDriveRebuildsOntoTheSpareAndReturnsToOptimal) {
    uint32_t id = createLd(RaidLevel::Raid5, {0, 1, 2});
    ASSERT_TRUE(lib_.assignGlobalSpare(drv(3)));
    ASSERT_TRUE(sim_.failDrive(drv(1)));

    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Rebuilding);
    EXPECT_EQ(ld(id)->getSubstate(), LogicalDriveState::Degraded);
    EXPECT_EQ(drive(0, 1)->getState(), DriveState::Failed);
    EXPECT_EQ(drive(0, 3)->getState(), DriveState::Rebuilding);
    EXPECT_EQ(drive(0, 3)->getSpareType(), storlib::SpareType::None);
    auto m = members(id);
    ASSERT_EQ(m.size(), 3u);
    EXPECT_EQ(m[1]->getDeviceID(), 3u);
    EXPECT_EQ(m[1]->getState(), ChunkState::Rebuilding);

    ASSERT_TRUE(sim_.advanceTime(500));  // 100000 MB at 100 MB/s
    ASSERT_NE(task(storlib::TaskType::Rebuild), nullptr);
    EXPECT_EQ(task(storlib::TaskType::Rebuild)->getPercentComplete(), 50u);
    ASSERT_TRUE(sim_.advanceTime(501));
    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Optimal);
    EXPECT_EQ(drive(0, 3)->getState(), DriveState::Online);
    EXPECT_EQ(members(id)[1]->getState(), ChunkState::Ok);
}

TEST_F(Rebuild, ADedicatedSpareIsTakenBeforeAGlobalOne) {
    uint32_t id = createLd(RaidLevel::Raid1, {0, 1});
    ASSERT_TRUE(lib_.assignGlobalSpare(drv(2)));
    ASSERT_TRUE(lib_.assignDedicatedSpare(drv(3), ldAddr(id)));
    EXPECT_TRUE(ld(id)->isHotSpareProtected());
    ASSERT_TRUE(sim_.failDrive(drv(0)));
    EXPECT_EQ(drive(0, 3)->getState(), DriveState::Rebuilding);
    EXPECT_EQ(drive(0, 2)->getState(), DriveState::HotSpare);
}

TEST_F(Rebuild, WithoutASpareTheDriveStaysDegradedUntilOneIsAssigned) {
    uint32_t id = createLd(RaidLevel::Raid6, {0, 1, 2, 3});
    ASSERT_TRUE(sim_.failDrive(drv(2)));
    ASSERT_TRUE(sim_.advanceTime(10000));
    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Degraded);
    EXPECT_EQ(task(storlib::TaskType::Rebuild), nullptr);
    ASSERT_TRUE(lib_.assignGlobalSpare(drv(5)));
    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Rebuilding);
    ASSERT_TRUE(sim_.finishAllTasks());
    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Optimal);
}

TEST_F(Rebuild, LosingMoreMembersThanTheLevelToleratesFailsTheLogicalDrive) {
    uint32_t r0 = createLd(RaidLevel::Raid0, {0, 1}, 10000);
    uint32_t r6 = createLd(RaidLevel::Raid6, {2, 3, 4, 5});
    uint32_t r10 = createLd(RaidLevel::Raid10, {0, 1, 6, 7}, 10000);
    ASSERT_TRUE(sim_.failDrive(drv(6)));
    EXPECT_EQ(ld(r10)->getState(), LogicalDriveState::Degraded);
    ASSERT_TRUE(sim_.failDrive(drv(0)));  // the other side of the second mirror pair survives
    EXPECT_EQ(ld(r0)->getState(), LogicalDriveState::Failed);
    EXPECT_EQ(ld(r10)->getState(), LogicalDriveState::Degraded);
    ASSERT_TRUE(sim_.failDrive(drv(7)));  // both halves of the pair 6/7
    EXPECT_EQ(ld(r10)->getState(), LogicalDriveState::Failed);
    ASSERT_TRUE(sim_.failDrive(drv(2)));
    ASSERT_TRUE(sim_.failDrive(drv(3)));
    EXPECT_EQ(ld(r6)->getState(), LogicalDriveState::Degraded);
    ASSERT_TRUE(sim_.failDrive(drv(4)));
    EXPECT_EQ(ld(r6)->getState(), LogicalDriveState::Failed);
}

TEST_F(Rebuild, APulledMemberIsRebuiltOntoItselfWhenPutBack) {
    uint32_t id = createLd(RaidLevel::Raid1, {0, 1});
    ASSERT_TRUE(sim_.pullDrive(drv(1)));
    EXPECT_EQ(drive(0, 1)->getState(), DriveState::Missing);
    EXPECT_EQ(members(id)[1]->getState(), ChunkState::Missing);
    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Degraded);
    ASSERT_TRUE(sim_.insertDrive(drv(1)));
    EXPECT_EQ(drive(0, 1)->getState(), DriveState::Rebuilding);
    ASSERT_TRUE(sim_.finishAllTasks());
    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Optimal);
    EXPECT_EQ(drive(0, 1)->getState(), DriveState::Online);
}

TEST_F(Rebuild, ANewDriveInPlaceOfAFailedMemberIsRebuilt) {
    uint32_t id = createLd(RaidLevel::Raid5, {0, 1, 2});
    std::string oldSerial = drive(0, 2)->getSerialNumber();
    ASSERT_TRUE(sim_.failDrive(drv(2)));
    ASSERT_TRUE(sim_.insertDrive(drv(2), true));
    EXPECT_NE(drive(0, 2)->getSerialNumber(), oldSerial);
    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Rebuilding);
    ASSERT_TRUE(sim_.finishAllTasks());
    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Optimal);
}

TEST_F(Rebuild, AFailedLogicalDriveCanBeForcedOnlineWhenItsDrivesArePresent) {
    uint32_t id = createLd(RaidLevel::Raid0, {0, 1});
    ASSERT_TRUE(sim_.failDrive(drv(1)));
    ASSERT_EQ(ld(id)->getState(), LogicalDriveState::Failed);
    ASSERT_TRUE(lib_.setLogicalDriveState(ldAddr(id), LogicalDriveState::Optimal, 1, 0));
    EXPECT_EQ(ld(id)->getState(), LogicalDriveState::Optimal);
    EXPECT_EQ(drive(0, 1)->getState(), DriveState::Online);
}

}  // namespace
}  // namespace storlibtest
