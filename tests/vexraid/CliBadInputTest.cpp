// Bad input ends vexraid with a message and a non-zero exit, never a
// crash: usage errors exit 64, refusals exit with the CIM status, a provider
// that cannot be loaded with the loader's own message.
#include <gtest/gtest.h>

#include "CliRunner.h"

namespace vex::clitest {
namespace {

constexpr int kUsage = 64;
const std::string kController =
    "VEX_ControllerComputerSystem.CreationClassName=\"VEX_ControllerComputerSystem\",Name=\"vexController_0\"";

class CliBadInputTest : public ::testing::Test {
protected:
    static void expectFailure(const Outcome& r, int exitCode, const std::string& message) {
        EXPECT_EQ(r.exitCode, exitCode) << r.err;
        EXPECT_NE(r.err.find(message), std::string::npos) << r.err;
        EXPECT_TRUE(r.out.empty()) << r.out;
    }
    CliRunner vexraid;
};

TEST_F(CliBadInputTest, UnknownClassesAndNamespacesGetTheStatusAnObjectManagerGives) {
    expectFailure(vexraid({"ei", "VEX_NoSuchClass"}), 5, "CIM_ERR_INVALID_CLASS: no class VEX_NoSuchClass");
    expectFailure(vexraid({"ei", "root/nowhere:VEX_DiskDrive"}), 3, "CIM_ERR_INVALID_NAMESPACE: no namespace root/nowhere");
    expectFailure(vexraid({"ein", "root/tkz/vex/smi_15:VEX_RegisteredProfile"}), 5, "serves no class VEX_RegisteredProfile");
    expectFailure(vexraid({"cm", kController, "SelfDestruct"}), 17, "has no method SelfDestruct");
}

TEST_F(CliBadInputTest, MalformedPathsAndArgumentsAreUsageErrors) {
    expectFailure(vexraid({"gi", "VEX_DiskDrive.DeviceID=\"0_0_1"}), kUsage, "unterminated quoted value");
    expectFailure(vexraid({"gi", "VEX_DiskDrive.DeviceID"}), kUsage, "expected '=' after DeviceID");
    expectFailure(vexraid({"cm", kController, "SetAlarmState", "AlarmState=uint16:loud"}), kUsage,
                  "'loud' is no uint16 value");
    expectFailure(vexraid({"cm", kController, "SetAlarmState", "AlarmState=uint8:300"}), kUsage, "out of range");
    expectFailure(vexraid({"cm", kController, "SetAlarmState", "Volume=3"}), kUsage,
                  "method SetAlarmState has no parameter Volume; write Volume=type:value");
    expectFailure(vexraid({"mi", kController, "NoEquals"}), kUsage, "expected Name=value");
    expectFailure(vexraid({"frobnicate"}), kUsage, "A subcommand is required");
    expectFailure(vexraid({"--cimom", "wbemd", "ein", "VEX_Card"}), kUsage, "--cimom");
    expectFailure(vexraid.bare({"--system", "/no/such.json", "ein", "VEX_Card"}), kUsage,
                  "no system description file /no/such.json");
}

TEST_F(CliBadInputTest, AProviderThatCannotBeLoadedIsReportedWithTheLoadersMessage) {
    expectFailure(vexraid.bare({"--provider", "/no/such/libvexRAIDProvider15.so", "ein", "VEX_Card"}), 1,
                  "/no/such/libvexRAIDProvider15.so: cannot open shared object file");
    expectFailure(vexraid.bare({"--provider", VEX_DEMO_SYSTEM, "ein", "VEX_Card"}), 1, "demo.json");
}

TEST_F(CliBadInputTest, MethodsAndModificationsNeedAMemberOfTheRootGroup) {
    expectFailure(vexraid({"--user", "nobody", "cm", kController, "getRoutineList"}), 2,
                  "CIM_ERR_ACCESS_DENIED: nobody : is not a member of Administrator/root");
    expectFailure(vexraid({"--user", "nobody", "mi", kController, "CopyBack=boolean:true"}), 2,
                  "nobody : is not a member of Administrator/root");
}

TEST_F(CliBadInputTest, EverySubcommandExplainsItself) {
    for (const char* sub : {"ei", "ein", "gi", "mi", "ai", "ain", "ri", "rin", "cm", "watch", "job", "summary", "classes"}) {
        const Outcome r = vexraid.bare({sub, "--help"});
        EXPECT_EQ(r.exitCode, 0) << sub;
        EXPECT_NE(r.out.find("Usage:"), std::string::npos) << sub;
    }
}

}  // namespace
}  // namespace vex::clitest
