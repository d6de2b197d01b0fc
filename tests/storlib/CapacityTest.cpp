// Capacity per RAID level: the rule table and what created logical drives report.
#include "SimFixture.h"

#include <storlib/RaidLevel.h>

namespace storlibtest {
namespace {

using storlib::RaidLevel;

struct CapacityCase {
    RaidLevel level;
    uint32_t members, legs;
    uint64_t expected;  // for chunks of 1000 MB; 0: not allowed
};

const CapacityCase kCases[] = {
    {RaidLevel::Raid0, 3, 1, 3000},  {RaidLevel::Raid1, 2, 1, 1000},  {RaidLevel::Raid1E, 3, 1, 1500},
    {RaidLevel::Raid5, 4, 1, 3000},  {RaidLevel::Raid6, 5, 1, 3000},  {RaidLevel::Raid10, 6, 1, 3000},
    {RaidLevel::Raid50, 6, 2, 4000}, {RaidLevel::Raid60, 8, 2, 4000}, {RaidLevel::SimpleVolume, 1, 1, 1000},
    {RaidLevel::Raid5, 2, 1, 0},     {RaidLevel::Raid6, 3, 1, 0},     {RaidLevel::Raid1, 3, 1, 0},
    {RaidLevel::Raid10, 5, 1, 0},    {RaidLevel::Raid50, 7, 2, 0},    {RaidLevel::Raid50, 6, 1, 0},
    {RaidLevel::Raid60, 6, 2, 0},    {RaidLevel::Raid5EE, 4, 1, 0},
};

TEST(RaidLevelRules, DataCapacityPerLevelAndMemberCount) {
    for (const CapacityCase& c : kCases) {
        SCOPED_TRACE(std::string(storlib::toString(c.level)) + " x" + std::to_string(c.members));
        EXPECT_EQ(storlib::raidDataCapacityMB(c.level, c.members, 1000, c.legs), c.expected);
        EXPECT_EQ(storlib::checkRaidMembers(c.level, c.members, c.legs) == nullptr, c.expected != 0);
    }
}

using Capacity = SimFixture;

TEST_F(Capacity, CreatedLogicalDrivesReportTheCapacityOfTheirLevel) {
    openSystem(kEightDrives);
    for (const CapacityCase& c : kCases) {
        if (c.expected == 0 || c.members > 8) continue;
        SCOPED_TRACE(storlib::toString(c.level));
        storlib::LogicalDriveSpec spec;
        spec.raidLevel = c.level;
        spec.legs = c.legs > 1 ? c.legs : 0;
        for (uint32_t d = 0; d < c.members; ++d) spec.chunks.emplace_back(drv(d));
        uint32_t id = 0;
        ASSERT_TRUE(lib_.createLogicalDrive(spec, &id)) << lib_.getLastError().getReason();
        const storlib::LogicalDrive* l = ld(id);
        ASSERT_NE(l, nullptr);
        EXPECT_EQ(l->getDataSizeMB(), c.expected * 100);  // 100000 MB drives
        EXPECT_EQ(l->getRawSizeMB(), c.members * 100000ull);
        EXPECT_EQ(l->getMirrorSpaceMB() + l->getParitySpaceMB() + l->getDataSizeMB(), l->getRawSizeMB());
        EXPECT_EQ(l->getMemberCount(), c.members);
        ASSERT_TRUE(lib_.deleteLogicalDrive(ldAddr(id)));
    }
}

TEST_F(Capacity, ARequestedSizeUsesPartOfTheDrivesAndLeavesTheRestFree) {
    openSystem(kEightDrives);
    uint32_t first = createLd(RaidLevel::Raid5, {0, 1, 2}, 50000);
    EXPECT_EQ(ld(first)->getDataSizeMB(), 50000u);
    EXPECT_EQ(drive(0, 1)->getUsedMB(), 25000u);
    EXPECT_EQ(drive(0, 1)->getFreeMB(), 75000u);
    uint32_t second = createLd(RaidLevel::Raid0, {0, 1, 2});  // the rest of the same drives
    EXPECT_EQ(ld(second)->getDataSizeMB(), 225000u);
    EXPECT_EQ(drive(0, 1)->getFreeMB(), 0u);
    EXPECT_EQ(drive(0, 1)->getChunkCount(), 2u);
}

TEST_F(Capacity, ExpansionAndMigrationKeepOrGrowTheDataSpace) {
    openSystem(kEightDrives);
    uint32_t id = createLd(RaidLevel::Raid5, {0, 1, 2});
    storlib::LogicalDriveSpec grow;
    grow.raidLevel = RaidLevel::Raid5;
    for (uint32_t d : {0, 1, 2, 3}) grow.chunks.emplace_back(drv(d));
    ASSERT_TRUE(lib_.modifyLogicalDrive(ldAddr(id), grow));
    EXPECT_EQ(ld(id)->getState(), storlib::LogicalDriveState::Migrating);
    EXPECT_EQ(drive(0, 3)->getState(), storlib::DriveState::Online);
    ASSERT_TRUE(sim_.finishAllTasks());
    EXPECT_EQ(ld(id)->getDataSizeMB(), 300000u);

    storlib::LogicalDriveSpec toSix = grow;
    toSix.raidLevel = RaidLevel::Raid6;
    toSix.chunks.emplace_back(drv(4));
    ASSERT_TRUE(lib_.modifyLogicalDrive(ldAddr(id), toSix));
    ASSERT_TRUE(sim_.finishAllTasks());
    EXPECT_EQ(ld(id)->getRaidLevel(), RaidLevel::Raid6);
    EXPECT_EQ(ld(id)->getMemberCount(), 5u);
    EXPECT_EQ(ld(id)->getDataSizeMB(), 300000u);
    EXPECT_EQ(ld(id)->getState(), storlib::LogicalDriveState::Optimal);
}

}  // namespace
}  // namespace storlibtest
