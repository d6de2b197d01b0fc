// Logical drive routines: create every level the controller builds, migrate
// and expand, delete; refusals change nothing.
#include "RoutineTestSupport.h"

namespace vex::cim::fwf::test {

namespace {

using storlib::RaidLevel;

class LogicalDriveRoutinesTest : public RoutineTest {
protected:
    // The ready drives 0:3 onwards, as many as asked for.
    static std::vector<std::string> readyDrives(std::size_t count) {
        std::vector<std::string> ids;
        for (std::size_t i = 0; i < count; ++i) {
            ids.push_back("0_0_" + std::to_string(3 + i));
        }
        return ids;
    }
    unsigned int create(const std::string& level, const std::vector<std::string>& chunks, const std::string& name) {
        CIMMethodParam in = args();
        withText(in, "RaidLevel", level);
        withTexts(in, "InChunkSpec", chunks);
        withText(in, "VDName", name);
        return call("CreateVD", in);
    }
    CIMMethodParam modifyArgs(const std::string& level, const std::vector<std::string>& chunks,
                              const std::string& name = "Data") {
        CIMMethodParam in = args();
        withText(in, "SPInstanceID", "0_0");
        withText(in, "VDName", name);
        withText(in, "RaidLevel", level);
        withNumber(in, "StripeSize", 0);
        withNumber(in, "InitMethod", 0);
        if (!chunks.empty()) {
            withTexts(in, "InChunkSpec", chunks);
        }
        return in;
    }
};

}  // namespace

TEST_F(LogicalDriveRoutinesTest, EveryLevelTheControllerBuildsCanBeCreatedAndDeleted) {
    const struct {
        const char* name;
        RaidLevel level;
        std::size_t members;
    } levels[] = {{"RAID0", RaidLevel::Raid0, 2},     {"raid1", RaidLevel::Raid1, 2},   {"RAID1E", RaidLevel::Raid1E, 3},
                  {"RAID5", RaidLevel::Raid5, 3},     {"RAID6", RaidLevel::Raid6, 4},   {"RAID10", RaidLevel::Raid10, 4},
                  {"RAID50", RaidLevel::Raid50, 6},   {"RAID60", RaidLevel::Raid60, 8},
                  {"SIMPLEVOLUME", RaidLevel::SimpleVolume, 1}};
    for (const auto& l : levels) {
        SCOPED_TRACE(l.name);
        ASSERT_EQ(create(l.name, readyDrives(l.members), "New"), 0u);
        const storlib::LogicalDrive* created = logicalDrive(1);
        ASSERT_NE(created, nullptr);
        EXPECT_EQ(created->getRaidLevel(), l.level);
        EXPECT_EQ(created->getMemberCount(), l.members);
        EXPECT_EQ(created->getName(), "New");
        CIMMethodParam del = args();
        withNumber(del, "PoolID", 1);
        ASSERT_EQ(call("DeleteVD", del), 0u);
        EXPECT_EQ(logicalDrive(1), nullptr);
    }
}

TEST_F(LogicalDriveRoutinesTest, TheBuilderChoosesDrivesAndNamesWhenTheRequestLeavesThemOpen) {
    CIMMethodParam in = args();
    withText(in, "RaidLevel", "RAID5");
    withNumber(in, "MemberCount", 4);
    withNumber(in, "Size", 1000);
    ASSERT_EQ(call("CreateVD", in), 0u);
    const storlib::LogicalDrive* created = logicalDrive(1);
    ASSERT_NE(created, nullptr);
    EXPECT_EQ(created->getMemberCount(), 4u);
    EXPECT_GE(created->getDataSizeMB(), 1000u);
    EXPECT_EQ(created->getName(), "RAID5_0");
    EXPECT_EQ(drive(0, 11)->getState(), storlib::DriveState::Raw);  // never an uninitialised drive
}

TEST_F(LogicalDriveRoutinesTest, ASimpleVolumeOnAJbodPromotesTheWholeDrive) {
    CIMMethodParam jbod = args();
    withText(jbod, "DDDeviceID", "0_0_7");
    ASSERT_EQ(call("CreateJBOD", jbod), 0u);
    ASSERT_EQ(create("SIMPLEVOLUME", {"0_0_7"}, "Promoted"), 0u);
    ASSERT_NE(logicalDrive(1), nullptr);
    EXPECT_EQ(logicalDrive(1)->getRaidLevel(), RaidLevel::SimpleVolume);
    EXPECT_EQ(drive(0, 7)->getState(), storlib::DriveState::Online);
    EXPECT_EQ(logicalDrive(1)->getDataSizeMB(), drive(0, 7)->getSizeMB());
}

TEST_F(LogicalDriveRoutinesTest, RequestsTheControllerCannotSatisfyAreRefusedBeforeAnyChange) {
    EXPECT_EQ(create("RAID 5", readyDrives(3), "x"), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for Raid Level"));
    EXPECT_EQ(create("RAID5", readyDrives(2), "x"), unsigned{FSAIF_OP_INVALID});  // not enough drives
    EXPECT_EQ(create("RAID5", {"0_0_3", "0_0_4", "0_0_1"}, "x"), unsigned{FSAIF_FW_FAILURE});  // drive in use
    EXPECT_EQ(create("RAID5", {"0_0_3", "0_0_4", "0_0_bad"}, "x"), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for Chunk Spec"));
    CIMMethodParam huge = args();
    withText(huge, "RaidLevel", "RAID1");
    withTexts(huge, "InChunkSpec", readyDrives(2));
    withNumber(huge, "Size", 4000000000u);
    EXPECT_EQ(call("CreateVD", huge), unsigned{FSAIF_OP_INVALID});
    EXPECT_EQ(logicalDriveCount(), 1u);

    CIMMethodParam noPool = args();
    EXPECT_EQ(call("DeleteVD", noPool), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for Pool ID"));
    withNumber(noPool, "PoolID", 7);
    EXPECT_EQ(call("DeleteVD", noPool), unsigned{FSAIF_FW_FAILURE});
    EXPECT_EQ(logicalDriveCount(), 1u);
}

TEST_F(LogicalDriveRoutinesTest, ModifyExpandsAndMigratesThroughAMigrationTask) {
    ASSERT_EQ(call("ModifyVD", modifyArgs("RAID5", {"0_0_0", "0_0_1", "0_0_2", "0_0_3"}, "Grown")), 0u);
    ASSERT_EQ(simulator().finishAllTasks().getStatusCode(), 0);
    EXPECT_EQ(logicalDrive(0)->getMemberCount(), 4u);
    EXPECT_EQ(logicalDrive(0)->getName(), "Grown");
    EXPECT_EQ(logicalDrive(0)->getRaidLevel(), RaidLevel::Raid5);

    ASSERT_EQ(call("ModifyVD", modifyArgs("RAID6", {"0_0_0", "0_0_1", "0_0_2", "0_0_3", "0_0_4"})), 0u);
    ASSERT_EQ(simulator().finishAllTasks().getStatusCode(), 0);
    EXPECT_EQ(logicalDrive(0)->getRaidLevel(), RaidLevel::Raid6);
}

TEST_F(LogicalDriveRoutinesTest, AMigrationWithoutChunksTakesTheDrivesItNeeds) {
    // RAID 5 of three to RAID 10 keeps the data on 2n - 2 = 4 chunks: one drive is added.
    ASSERT_EQ(call("ModifyVD", modifyArgs("RAID10", {})), 0u);
    ASSERT_EQ(simulator().finishAllTasks().getStatusCode(), 0);
    EXPECT_EQ(logicalDrive(0)->getRaidLevel(), RaidLevel::Raid10);
    EXPECT_EQ(logicalDrive(0)->getMemberCount(), 4u);
}

TEST_F(LogicalDriveRoutinesTest, ModifyRefusalsChangeNothing) {
    // RAID 5 to RAID 10 keeps its data on the drives: at least 2n - 2 = 4 chunks.
    EXPECT_EQ(call("ModifyVD", modifyArgs("RAID10", {"0_0_0", "0_0_1", "0_0_2"})), unsigned{FSAIF_OP_INVALID});
    // No migration from RAID 5 to RAID 1E exists.
    EXPECT_EQ(call("ModifyVD", modifyArgs("RAID1E", {})), unsigned{FSAIF_NOT_SUPPORTED});
    CIMMethodParam noStripe = modifyArgs("RAID5", {});
    noStripe.clearArgument();
    withText(noStripe, "SPInstanceID", "0_0");
    withText(noStripe, "VDName", "Data");
    withText(noStripe, "RaidLevel", "RAID5");
    EXPECT_EQ(call("ModifyVD", noStripe), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for Stripe Size"));
    CIMMethodParam noName = args();
    withText(noName, "SPInstanceID", "0_0");
    EXPECT_EQ(call("ModifyVD", noName), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for VD Name"));
    EXPECT_EQ(logicalDrive(0)->getMemberCount(), 3u);
    EXPECT_EQ(logicalDrive(0)->getRaidLevel(), RaidLevel::Raid5);
}

TEST_F(LogicalDriveRoutinesTest, VerifyInitialiseAndLocateActOnTheLogicalDrive) {
    CIMMethodParam verify = args();
    withText(verify, "SPInstanceID", "0_0");
    withFlag(verify, "bFix", true);
    EXPECT_EQ(call("VerifyVD", verify), 0u);
    EXPECT_EQ(logicalDrive(0)->getState(), storlib::LogicalDriveState::Verifying);
    // Busy: a second task is refused by the controller.
    CIMMethodParam init = args();
    withText(init, "SPInstanceID", "0_0");
    withNumber(init, "TaskPriority", 1);
    EXPECT_EQ(call("InitVD", init), unsigned{FSAIF_FW_FAILURE});
    withNumber(init, "TaskPriority", 9);
    CIMMethodParam badPriority = args();
    withText(badPriority, "SPInstanceID", "0_0");
    withNumber(badPriority, "TaskPriority", 9);
    EXPECT_EQ(call("InitVD", badPriority), unsigned{FSAIF_INVALID_PARAM});

    CIMMethodParam locate = args();
    withText(locate, "SPInstanceID", "0_0");
    withFlag(locate, "locateIN", true);
    EXPECT_EQ(call("LocateVirtualDisk", locate), 0u);
    EXPECT_TRUE(logicalDrive(0)->isLocateActive());
}

TEST_F(LogicalDriveRoutinesTest, ThePartitionsOfADriveAndALogicalDriveAreExtents) {
    CIMMethodParam in = args();
    withText(in, "SPInstanceID", "0_0");
    ASSERT_EQ(call("GetVDPartition", in), 0u);
    const CIMProperty* partition = out.getArgumentByName("Partition");
    ASSERT_NE(partition, nullptr);
    EXPECT_EQ(partition->getType(), CIM_INSTANCE_ARRAY);
    EXPECT_EQ(partition->getInstanceValue().size(), 3u);
    EXPECT_TRUE(logged("Returning VD chunk instances"));
}

}  // namespace vex::cim::fwf::test
