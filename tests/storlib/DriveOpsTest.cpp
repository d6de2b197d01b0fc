// Operations on single drives: JBOD, initialisation, erase, locate, firmware, fast tier, rescan.
#include "SimFixture.h"

#include <fstream>

namespace storlibtest {
namespace {

using storlib::DriveState;
using storlib::RetStatus;

const char* const kMixed = R"({"controllers": [{"taskRateMBps": 100, "drives": [
  {"device": 0, "sizeMB": 100000}, {"device": 1, "sizeMB": 100000}, {"device": 2, "sizeMB": 100000},
  {"device": 3, "sizeMB": 50000, "mediaType": "SSD", "fastTierCapable": true},
  {"device": 4, "sizeMB": 100000, "interfaceType": "SATA", "ataSecuritySupported": true},
  {"device": 5, "sizeMB": 100000, "interfaceType": "SATA"}]}]})";

class DriveOps : public SimFixture {
protected:
    void SetUp() override {
        SimFixture::SetUp();
        openSystem(kMixed);
    }
    std::string image(const std::string& header) { return writeFile("fw.bin", header + "\nbinary payload\n"); }
};

TEST_F(DriveOps, JbodAndInitialisationMoveADriveBetweenItsStates) {
    ASSERT_TRUE(lib_.createJBOD(drv(2)));
    EXPECT_TRUE(drive(0, 2)->isJBOD());
    EXPECT_EQ(lib_.createLogicalDrive([] {
        storlib::LogicalDriveSpec s;
        s.raidLevel = storlib::RaidLevel::Raid1;
        s.chunks = {storlib::ChunkSpec(drv(1)), storlib::ChunkSpec(drv(2))};
        return s;
    }()).getStatus(), RetStatus::InvalidState);
    ASSERT_TRUE(lib_.deleteJBOD(drv(2)));
    ASSERT_TRUE(lib_.uninitializeHardDrives({drv(1), drv(2)}));
    EXPECT_EQ(drive(0, 2)->getState(), DriveState::Raw);
    EXPECT_EQ(lib_.assignGlobalSpare(drv(2)).getStatus(), RetStatus::InvalidState);
    ASSERT_TRUE(lib_.initializeHardDrives({drv(1), drv(2)}));
    EXPECT_EQ(drive(0, 1)->getState(), DriveState::Ready);
}

TEST_F(DriveOps, ARefusedDriveInACollectionLeavesTheOthersUntouched) {
    createLd(storlib::RaidLevel::Raid1, {0, 1});
    EXPECT_FALSE(lib_.uninitializeHardDrives({drv(2), drv(0)}));
    EXPECT_EQ(drive(0, 2)->getState(), DriveState::Ready);
}

TEST_F(DriveOps, SecureEraseRunsAsATaskAndNeedsThePassword) {
    EXPECT_EQ(lib_.secureEraseHardDrive(drv(4), "").getStatus(), RetStatus::InvalidArgument);
    EXPECT_EQ(lib_.secureEraseHardDrive(drv(5), "pw").getStatus(), RetStatus::NotSupported);  // no ATA security
    ASSERT_TRUE(lib_.secureEraseHardDrive(drv(4), "pw"));
    EXPECT_TRUE(drive(0, 4)->isTaskRunning());
    EXPECT_EQ(lib_.createJBOD(drv(4)).getStatus(), RetStatus::Busy);
    ASSERT_TRUE(sim_.advanceTime(1001));
    EXPECT_EQ(task(storlib::TaskType::SecureErase)->getTaskState(), storlib::TaskState::Completed);
    EXPECT_FALSE(drive(0, 4)->isTaskRunning());
}

TEST_F(DriveOps, LocatingALogicalDriveLightsItsMembers) {
    uint32_t id = createLd(storlib::RaidLevel::Raid5, {0, 1, 2});
    ASSERT_TRUE(lib_.locateDevice(ldAddr(id), true));
    EXPECT_TRUE(drive(0, 1)->isLocateActive());
    EXPECT_FALSE(drive(0, 3)->isLocateActive());
    ASSERT_TRUE(lib_.locateDevice(ldAddr(id), false));
    EXPECT_FALSE(drive(0, 1)->isLocateActive());
}

TEST_F(DriveOps, DriveFirmwareNeedsAnImageForItsInterface) {
    std::string sas = image("STORVEX-FW sas-drive D101");
    EXPECT_EQ(lib_.flashSATADriveMicrocode({drv(4)}, sas, 4096, 0).getStatus(), RetStatus::InvalidArgument);
    EXPECT_EQ(lib_.flashSASDriveFirmware({drv(0), drv(4)}, sas, 4096, 0).getStatus(), RetStatus::InvalidArgument);
    EXPECT_EQ(drive(0, 0)->getFirmwareRevision(), "N003");
    ASSERT_TRUE(lib_.flashSASDriveFirmware({drv(0), drv(1)}, sas, 4096, 0));
    EXPECT_EQ(drive(0, 1)->getFirmwareRevision(), "D101");
    std::string ctrl = image("STORVEX-FW controller 7.20.1");
    ASSERT_TRUE(lib_.upgradeControllerFirmware(0, ctrl));
    EXPECT_EQ(config()->getAdapter(0)->getFirmwareVersion(), "7.20.1");
}

TEST_F(DriveOps, OnlyCapableSsdsJoinTheFastTierPool) {
    EXPECT_EQ(lib_.addDriveToFastTierPool(drv(0)).getStatus(), RetStatus::NotSupported);
    ASSERT_TRUE(lib_.addDriveToFastTierPool(drv(3)));
    EXPECT_EQ(config()->getAdapter(0)->getNumFastTierDrives(), 1u);
    EXPECT_EQ(config()->getAdapter(0)->getTierReadCachePoolSize(), 50000u);
    EXPECT_EQ(lib_.assignGlobalSpare(drv(3)).getStatus(), RetStatus::InvalidState);
    ASSERT_TRUE(lib_.clearFastTierPool(0));
    EXPECT_FALSE(drive(0, 3)->isFastTierAssigned());
}

TEST_F(DriveOps, RescanForgetsMissingDrivesNoLogicalDriveNeeds) {
    createLd(storlib::RaidLevel::Raid1, {0, 1});
    ASSERT_TRUE(sim_.pullDrive(drv(1)));
    ASSERT_TRUE(sim_.pullDrive(drv(2)));
    ASSERT_TRUE(lib_.rescan(0));
    EXPECT_NE(config()->getObject(drv(1)), nullptr);  // still a member of the mirror
    EXPECT_EQ(config()->getObject(drv(2)), nullptr);
    EXPECT_EQ(config()->getAdapter(0)->getNumDrives(), 5u);
}

TEST_F(DriveOps, TakingADriveOfflineAndBackRebuildsIt) {
    uint32_t id = createLd(storlib::RaidLevel::Raid1, {0, 1});
    ASSERT_TRUE(lib_.downHardDrive(drv(1)));
    EXPECT_EQ(drive(0, 1)->getState(), DriveState::Offline);
    EXPECT_EQ(ld(id)->getState(), storlib::LogicalDriveState::Degraded);
    ASSERT_TRUE(lib_.upHardDrive(drv(1)));
    EXPECT_EQ(drive(0, 1)->getState(), DriveState::Rebuilding);
    ASSERT_TRUE(sim_.finishAllTasks());
    EXPECT_EQ(ld(id)->getState(), storlib::LogicalDriveState::Optimal);
}

}  // namespace
}  // namespace storlibtest
