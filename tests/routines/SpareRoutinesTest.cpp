// Spares, parity and rebuild through the SMI-S routines: references checked,
// the controller's state changed, a failed member rebuilt onto the spare.
#include "RoutineTestSupport.h"
#include "controller/routines/Routines.h"

namespace vex::cim::fwf::test {

namespace {

using storlib::DriveState;
using storlib::SpareType;

class SpareRoutinesTest : public RoutineTest {};

}  // namespace

TEST_F(SpareRoutinesTest, GlobalAndDedicatedSparesAreAssignedAndReleased) {
    CIMMethodParam global = args();
    withRefs(global, "InExtents", {extentRef("0_0_3")});
    ASSERT_EQ(call("AssignSpares", global), 0u);
    EXPECT_EQ(drive(0, 3)->getSpareType(), SpareType::Global);

    CIMMethodParam dedicated = args();
    withRefs(dedicated, "InExtents", {extentRef("0_0_4")});
    withRefs(dedicated, "Pool", {poolRef("0_0")});
    ASSERT_EQ(call("AssignSpares", dedicated), 0u);
    EXPECT_EQ(drive(0, 4)->getSpareType(), SpareType::Dedicated);
    EXPECT_EQ(drive(0, 4)->getDedicatedLogicalDrives(), std::vector<uint32_t>{0});

    CIMMethodParam release = args();
    withRefs(release, "InExtents", {extentRef("0_0_3"), extentRef("0_0_4_Spare")});
    ASSERT_EQ(call("UnassignSpares", release), 0u);
    EXPECT_EQ(drive(0, 3)->getSpareType(), SpareType::None);
    EXPECT_EQ(drive(0, 4)->getSpareType(), SpareType::None);
}

TEST_F(SpareRoutinesTest, AFailedMemberIsRebuiltOntoTheDedicatedSpare) {
    CIMMethodParam dedicated = args();
    withRefs(dedicated, "InExtents", {extentRef("0_0_5")});
    withRefs(dedicated, "Pool", {poolRef("0_0")});
    ASSERT_EQ(call("AssignSpares", dedicated), 0u);
    ASSERT_TRUE(simulator().failDrive(storlib::Addr::device(0, 0, 1)).ok());
    EXPECT_EQ(drive(0, 5)->getState(), DriveState::Rebuilding);
    ASSERT_TRUE(simulator().finishAllTasks().ok());
    EXPECT_EQ(drive(0, 5)->getState(), DriveState::Online);
    EXPECT_EQ(logicalDrive(0)->getState(), storlib::LogicalDriveState::Optimal);
}

TEST_F(SpareRoutinesTest, ADegradedLogicalDriveIsRebuiltOntoTheDriveNamed) {
    ASSERT_TRUE(simulator().failDrive(storlib::Addr::device(0, 0, 2)).ok());
    ASSERT_EQ(logicalDrive(0)->getState(), storlib::LogicalDriveState::Degraded);
    CIMMethodParam in = args();
    withRefs(in, "Element", {poolRef("0_0")});
    CIMMethodParam wrong = in;
    withRefs(wrong, "Target", {extentRef("0_0_1")});  // already a member
    EXPECT_EQ(FsaifExRebuildStorageExtent(CIMObjectPath(), wrong, out), unsigned{FSAIF_FW_FAILURE});
    withRefs(in, "Target", {extentRef("0_0_3")});
    ASSERT_EQ(FsaifExRebuildStorageExtent(CIMObjectPath(), in, out), 0u);
    EXPECT_EQ(drive(0, 3)->getState(), DriveState::Rebuilding);
    ASSERT_TRUE(simulator().finishAllTasks().ok());
    EXPECT_EQ(logicalDrive(0)->getState(), storlib::LogicalDriveState::Optimal);
}

TEST_F(SpareRoutinesTest, BadReferencesAreRefusedWithTheirMessages) {
    EXPECT_EQ(call("AssignSpares", args()), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("User has to pass InExtents"));
    CIMMethodParam text = args();
    withText(text, "InExtents", "0_0_3");
    EXPECT_EQ(call("AssignSpares", text), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("User passed \"InExtents\" is Invalid data type.Reference is expected"));
    CIMMethodParam noId = args();
    withRefs(noId, "InExtents", {poolRef("0_0")});
    EXPECT_EQ(call("AssignSpares", noId), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("Invalid Inextent Passed, No DeviceID"));
    CIMMethodParam other = args();
    withRefs(other, "InExtents", {extentRef("1_0_3")});
    EXPECT_EQ(call("AssignSpares", other), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("Supplied Pool controllerID mismatches with StorageConfigurationService controllerID"));
    CIMMethodParam inUse = args();
    withRefs(inUse, "InExtents", {extentRef("0_0_0")});
    EXPECT_EQ(call("AssignSpares", inUse), unsigned{FSAIF_FW_FAILURE});
    EXPECT_EQ(drive(0, 3)->getSpareType(), SpareType::None);
    EXPECT_EQ(drive(0, 0)->getSpareType(), SpareType::None);
}

TEST_F(SpareRoutinesTest, ParityIsCheckedAndRepairedOnAPool) {
    CIMMethodParam check = args();
    withRefs(check, "Element", {poolRef("0_0")});
    ASSERT_EQ(call("CheckParityConsistency", check), 0u);
    EXPECT_EQ(logicalDrive(0)->getState(), storlib::LogicalDriveState::Verifying);
    EXPECT_EQ(call("RepairParity", check), unsigned{FSAIF_FW_FAILURE});  // busy with the check
    EXPECT_EQ(call("RepairParity", args()), unsigned{FSAIF_INVALID_PARAM});
}

TEST_F(SpareRoutinesTest, PoolsAreCreatedGrownAndDeletedThroughTheService) {
    CIMMethodParam create = args();
    withRefs(create, "InExtents", {extentRef("0_0_3"), extentRef("0_0_4"), extentRef("0_0_5")});
    withText(create, "ElementName", "Pool A");
    ASSERT_EQ(call("CreateOrModifyStoragePool", create), 0u);
    EXPECT_TRUE(logged("Goal is empty, using default configuration of source storagepool : "));
    const CIMProperty* pool = out.getArgumentByName("Pool");
    ASSERT_NE(pool, nullptr);
    const CIMObjectPath created = pool->getObjectPathValue().getValues().at(0);
    ASSERT_NE(logicalDrive(1), nullptr);
    EXPECT_EQ(logicalDrive(1)->getRaidLevel(), storlib::RaidLevel::Raid5);
    EXPECT_EQ(logicalDrive(1)->getName(), "Pool A");
    ASSERT_NE(out.getArgumentByName("Size"), nullptr);
    EXPECT_EQ(out.getArgumentByName("Size")->getUint64Value().getValues().at(0),
              logicalDrive(1)->getDataSizeMB() * 1024 * 1024);

    CIMMethodParam del = args();
    EXPECT_EQ(call("DeleteStoragePool", del), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("Pool is empty, Mandatory Parameter"));
    withRefs(del, "Pool", {created});
    ASSERT_EQ(call("DeleteStoragePool", del), 0u);
    EXPECT_EQ(logicalDrive(1), nullptr);

    CIMMethodParam grow = args();
    withRefs(grow, "Pool", {poolRef("0_0")});
    withRefs(grow, "InExtents", {extentRef("0_0_6")});
    ASSERT_EQ(call("CreateOrModifyStoragePool", grow), 0u);
    ASSERT_TRUE(simulator().finishAllTasks().ok());
    EXPECT_EQ(logicalDrive(0)->getMemberCount(), 4u);
}

TEST_F(SpareRoutinesTest, AGoalSettingChoosesTheLevelOfANewPool) {
    CIMMethodParam setting = args();
    EXPECT_EQ(call("CreateSetting", setting), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("SettingType is empty, it is a mandatory field"));
    withNumber(setting, "SettingType", 3);
    ASSERT_EQ(call("CreateSetting", setting), 0u);
    const CIMObjectPath goal = out.getArgumentByName("NewSetting")->getObjectPathValue().getValues().at(0);

    CIMMethodParam available = args();
    ASSERT_EQ(call("GetAvailableExtents", available), 0u);
    const std::vector<CIMObjectPath> extents =
        out.getArgumentByName("AvailableExtents")->getObjectPathValue().getValues();
    EXPECT_EQ(extents.size(), 8u);  // 0:3 to 0:10; the members and the raw drive are not available

    CIMMethodParam create = args();
    withRefs(create, "Goal", {goal});
    withRefs(create, "InExtents", {extents.begin(), extents.begin() + 4});
    ASSERT_EQ(call("CreateOrModifyStoragePool", create), 0u);
    EXPECT_EQ(logicalDrive(1)->getMemberCount(), 4u);
    EXPECT_EQ(logicalDrive(1)->getRaidLevel(), storlib::RaidLevel::Raid5);
}

}  // namespace vex::cim::fwf::test
