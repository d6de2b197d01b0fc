// Target identifiers are decoded strictly: a malformed one never reaches the controller.
#include <gtest/gtest.h>

#include "controller/routines/RoutineInput.h"

namespace vex::cim::fwf::test {

TEST(RoutineInputTest, DriveAndLogicalDriveIdentifiersNeedExactlyTheirDecimalFields) {
    const auto drive = routine::parseDrive("1_2_3");
    ASSERT_TRUE(drive);
    EXPECT_EQ(drive->controller, 1);
    EXPECT_EQ(drive->channel, 2);
    EXPECT_EQ(drive->device, 3);
    for (const char* bad : {"", "1_2", "1_2_3_4", "1_a_3", "-1_0_2", "1__3", "1_2_", " 1_2_3", "1_2_3 ",
                            "9999999999_0_0", "0x1_0_0", "1_+2_3"}) {
        EXPECT_FALSE(routine::parseDrive(bad)) << bad;
    }
    const auto ld = routine::parseLogicalDrive("0_12");
    ASSERT_TRUE(ld);
    EXPECT_EQ(ld->logicalDrive, 12);
    for (const char* bad : {"0", "0_1_2", "a_1", "0_-1", "0_99999999999"}) {
        EXPECT_FALSE(routine::parseLogicalDrive(bad)) << bad;
    }
}

TEST(RoutineInputTest, TheControllerComesFromItsSystemNameOrNumber) {
    EXPECT_EQ(routine::parseController("vexController_3"), 3);
    EXPECT_EQ(routine::parseController("3"), 3);
    EXPECT_FALSE(routine::parseController("vexController_"));
    EXPECT_FALSE(routine::parseController("vexController_-1"));
    EXPECT_FALSE(routine::parseController("otherController_1"));

    // A service path names its controller as SystemName; a key named CSName wins.
    const CIMObjectPath service("", "", "VEX_StorageConfigurationService",
                                {CIMProperty("Name", CIMValue<std::string>("StorageConfigurationService_1"), true,
                                             CIM_STRING, false),
                                 CIMProperty("SystemName", CIMValue<std::string>("vexController_1"), true, CIM_STRING,
                                             false)});
    EXPECT_EQ(routine::targetController(service, CIMMethodParam()), 1);
    CIMMethodParam in;
    in.addArgument(CIMProperty("CSName", CIMValue<std::string>("vexController_2"), false, CIM_STRING, false));
    EXPECT_EQ(routine::targetController(service, in), 2);
    EXPECT_FALSE(routine::targetController(CIMObjectPath(), CIMMethodParam()));
}

}  // namespace vex::cim::fwf::test
