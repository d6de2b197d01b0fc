// Controller routines: settings reach the controller, logs come back, the
// refresh follows only the routines flagged for it, jobs can be aborted.
#include <storlib/Progress.h>

#include "RoutineTestSupport.h"

namespace vex::cim::fwf::test {

namespace {

class ControllerRoutinesTest : public RoutineTest {
protected:
    const storlib::Adapter& adapter() {
        m_config = library().getSystemConfig();
        return *m_config->getAdapter(0);
    }
    std::shared_ptr<const storlib::SystemConfig> m_config;
};

}  // namespace

TEST_F(ControllerRoutinesTest, SettingsReachTheControllerAndOnlyFlaggedRoutinesRefresh) {
    std::vector<unsigned int> posted;
    FsaEventLink link;
    link.postPollEvent = [&posted](unsigned int bits) { posted.push_back(bits); };
    fsa->setEventLink(link);

    CIMMethodParam alarm = args();
    withNumber(alarm, "AlarmState", 2);
    ASSERT_EQ(call("SetAlarmState", alarm), 0u);
    EXPECT_EQ(adapter().getAlarmState(), storlib::AlarmState::Silenced);
    EXPECT_EQ(posted, std::vector<unsigned int>{FSA_POLL_REFRESH});

    CIMMethodParam mode = args();
    withNumber(mode, "FunctionalModeType", 1);
    ASSERT_EQ(call("SetFunctionalMode", mode), unsigned{FSAIF_FW_FAILURE});  // logical drives exist: no HBA mode
    CIMMethodParam badAlarm = args();
    withNumber(badAlarm, "AlarmState", 7);
    EXPECT_EQ(call("SetAlarmState", badAlarm), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_EQ(call("SetAlarmState", args()), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for Alarm State"));
    EXPECT_EQ(posted.size(), 1u);
    fsa->setEventLink(FsaEventLink{});
}

TEST_F(ControllerRoutinesTest, TheControllerLogComesBackWithItsSizes) {
    CIMMethodParam in = args();
    withNumber(in, "LogType", 0);
    ASSERT_EQ(call("GetAdvanceStat", in), 0u);
    const std::string xml = out.getArgumentByName("LogXMLBuffer")->getStringValue().getValues().at(0);
    EXPECT_EQ(out.getArgumentByName("LogXMLSize")->getUint32Value().getValues().at(0), xml.size());
    EXPECT_EQ(out.getArgumentByName("FsaStat")->getUint32Value().getValues().at(0), 0u);
    EXPECT_EQ(call("GetAdvanceStat", args()), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for Log Type"));
}

TEST_F(ControllerRoutinesTest, AControllerThatDoesNotExistIsRefused) {
    CIMMethodParam in = args();
    withNumber(in, "AlarmState", 0);
    EXPECT_EQ(callOn("SetAlarmState", {{"Name", "vexController_5"}}, in), unsigned{FSAIF_FW_FAILURE});
    EXPECT_EQ(callOn("SetAlarmState", {{"Name", "vexController_x"}}, in), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_EQ(callOn("SetAlarmState", {}, in), unsigned{FSAIF_INVALID_PARAM});
}

TEST_F(ControllerRoutinesTest, AJobCanBeReprioritisedAndAborted) {
    CIMMethodParam verify = args();
    withText(verify, "SPInstanceID", "0_0");
    ASSERT_EQ(call("VerifyVD", verify), 0u);
    const auto config = library().getSystemConfig();
    const storlib::FilterCollection tasks(*config->getAdapter(0), storlib::Progress::kClassName);
    ASSERT_EQ(tasks.size(), 1u);
    const std::string job = "0_" + std::to_string(tasks.elementAt<storlib::Progress>(0)->getTaskID());

    CIMMethodParam low = args();
    withNumber(low, "RequestedState", 32771);
    EXPECT_EQ(callOn("RequestStateChange", {{"InstanceID", job}}, low), 0u);
    CIMMethodParam timed = args();
    withNumber(timed, "RequestedState", 4);
    withText(timed, "TimeoutPeriod", "00000000000100.000000:000");
    EXPECT_EQ(callOn("RequestStateChange", {{"InstanceID", job}}, timed), unsigned{FSAIF_NOT_SUPPORTED});
    EXPECT_TRUE(logged("Use Of Timeout Parameter Not Supported"));
    CIMMethodParam odd = args();
    withNumber(odd, "RequestedState", 3);
    EXPECT_EQ(callOn("RequestStateChange", {{"InstanceID", job}}, odd), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("Invalid RequestedState Parameter Value"));
    CIMMethodParam abort = args();
    withNumber(abort, "RequestedState", 4);
    EXPECT_EQ(callOn("RequestStateChange", {{"InstanceID", job}}, abort), 0u);
    EXPECT_NE(logicalDrive(0)->getState(), storlib::LogicalDriveState::Verifying);
}

TEST_F(ControllerRoutinesTest, TheRoutineListHoldsEveryRoutine) {
    ASSERT_EQ(call("getRoutineList", args()), 0u);
    EXPECT_EQ(out.getArgumentByName("Routine_List")->getStringValue().size(), 76u);
}

}  // namespace vex::cim::fwf::test
