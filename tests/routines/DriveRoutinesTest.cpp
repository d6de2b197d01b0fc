// Physical drive routines: each changes the simulated drive, and bad targets
// or values change nothing.
#include "RoutineTestSupport.h"

namespace vex::cim::fwf::test {

namespace {

using storlib::DriveState;

class DriveRoutinesTest : public RoutineTest {};

}  // namespace

TEST_F(DriveRoutinesTest, DriveRoutinesChangeTheDrive) {
    CIMMethodParam in = args();
    withText(in, "DDDeviceID", "0_0_11");
    EXPECT_EQ(call("InitializePD", in), 0u);
    EXPECT_EQ(drive(0, 11)->getState(), DriveState::Ready);
    EXPECT_TRUE(logged(" FsaifExInitPD for PD - 0_0_11"));
    EXPECT_TRUE(logged("Returning success form FsaifExInitPD"));

    in = args();
    withText(in, "DDDeviceID", "0_0_5");
    EXPECT_EQ(call("CreateJBOD", in), 0u);
    EXPECT_EQ(drive(0, 5)->getState(), DriveState::JBOD);
    EXPECT_EQ(call("DeleteJBOD", in), 0u);
    EXPECT_EQ(drive(0, 5)->getState(), DriveState::Ready);

    withFlag(in, "locateIN", true);
    EXPECT_EQ(call("LocatePhysicalDisk", in), 0u);
    EXPECT_TRUE(drive(0, 5)->isLocateActive());

    in = args();
    withText(in, "DDDeviceID", "0_0_6");
    withFlag(in, "bWBEnable", true);
    EXPECT_EQ(call("SetPDWriteCacheMode", in), 0u);
    EXPECT_TRUE(drive(0, 6)->isWriteCacheEnabled());

    in = args();
    withText(in, "DDDeviceID", "0_0_7");
    EXPECT_EQ(call("ForceOffline", in), 0u);
    EXPECT_EQ(drive(0, 7)->getState(), DriveState::Offline);
    EXPECT_TRUE(logged("Returning success form downharddrive"));
}

TEST_F(DriveRoutinesTest, TheControllerRefusesADriveInUse) {
    CIMMethodParam in = args();
    withText(in, "DDDeviceID", "0_0_1");
    EXPECT_EQ(call("CreateJBOD", in), unsigned{FSAIF_FW_FAILURE});
    EXPECT_EQ(drive(0, 1)->getState(), DriveState::Online);
    EXPECT_EQ(call("UninitializePD", in), unsigned{FSAIF_FW_FAILURE});
    EXPECT_TRUE(logged("Failed to execute fsaifUninitializeHardDriveSet"));
}

TEST_F(DriveRoutinesTest, MissingMalformedAndUnknownTargetsChangeNothing) {
    EXPECT_EQ(call("CreateJBOD", args()), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("FsaifExCreateJBOD exits with without calling FSA Func"));
    for (const char* bad : {"0_0", "0_x_5", "-0_0_5", "0_0_99999999999", ""}) {
        CIMMethodParam in = args();
        withText(in, "DDDeviceID", bad);
        EXPECT_EQ(call("CreateJBOD", in), unsigned{FSAIF_INVALID_PARAM}) << bad;
    }
    CIMMethodParam unknown = args();
    withText(unknown, "DDDeviceID", "0_3_3");
    EXPECT_EQ(call("CreateJBOD", unknown), unsigned{FSAIF_FW_FAILURE});
    CIMMethodParam noController = args();
    withText(noController, "DDDeviceID", "7_0_3");
    EXPECT_EQ(call("CreateJBOD", noController), unsigned{FSAIF_FW_FAILURE});
    for (uint32_t d = 3; d <= 10; ++d) {
        EXPECT_EQ(drive(0, d)->getState(), DriveState::Ready);
    }
}

TEST_F(DriveRoutinesTest, MissingOrMistypedValuesAreReportedAndChangeNothing) {
    CIMMethodParam in = args();
    withText(in, "DDDeviceID", "0_0_4");
    EXPECT_EQ(call("StartPDTask", in), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for Task ID"));
    EXPECT_EQ(call("SetPDWriteCacheMode", in), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for writecachemode"));
    EXPECT_EQ(call("LocatePhysicalDisk", in), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("LOCATE not invoked!"));
    withText(in, "bWBEnable", "perhaps");
    EXPECT_EQ(call("SetPDWriteCacheMode", in), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_EQ(call("SecureErase", in), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for secure erase password"));
    EXPECT_FALSE(drive(0, 4)->isWriteCacheEnabled());
    EXPECT_FALSE(drive(0, 4)->isTaskRunning());
}

TEST_F(DriveRoutinesTest, AStartedDriveTaskRuns) {
    CIMMethodParam in = args();
    withText(in, "DDDeviceID", "0_0_4");
    withNumber(in, "TaskID", static_cast<unsigned>(storlib::TaskType::DriveVerify));
    EXPECT_EQ(call("StartPDTask", in), 0u);
    EXPECT_TRUE(drive(0, 4)->isTaskRunning());
}

}  // namespace vex::cim::fwf::test
