// The poll cycle on the simulated demo system: each fault the simulator can
// inject becomes its event (code, type, key, text); changes made while no
// monitor ran are found at start; controllers that go away are reported.
#include <syslog.h>

#include <functional>
#include <utility>

#include "MonitorFixture.h"
#include "monitor/EventVocabulary.h"

namespace vex::monitortest {
namespace {

using storlib::Addr;
using storlib::Simulator;

const Addr kEnclosure(0, 0, 32);

struct FaultCase {
    const char* name;
    std::function<storlib::Ret(Simulator&)> inject;
    const char* key;
    int code;
    int type;
    const char* text;
    const char* address;  // devIdentifier order, "" to skip
};

const FaultCase kFaults[] = {
    {"fail", [](Simulator& s) { return s.failDrive(Addr(0, 0, 3)); }, "EVENT_STRATAVOL_PD_FAILED", 42, 1,
     "Drive 0:3 (slot 3) on controller 0 has failed. Replace it as soon as possible.",
     "0_0_3_2147483647_9223372036854775807"},
    {"pull", [](Simulator& s) { return s.pullDrive(Addr(0, 0, 4)); }, "EVENT_STRATAVOL_PD_MISSING", 44, 2,
     "Drive 0:4 (slot 4) on controller 0 is missing.", ""},
    {"smart", [](Simulator& s) { return s.setSmartError(Addr(0, 0, 5), true); }, "EVENT_STRATAVOL_PD_PFA", 53, 2,
     "Drive 0:5 (slot 5) on controller 0 predicts its failure (SMART). Replace it as soon as possible.", ""},
    {"fail-fan", [](Simulator& s) { return s.setFanFailed(kEnclosure, 1, true); }, "EVENT_STRATAVOL_FAN_FAILED", 150,
     1, "The fan 1 of enclosure 0 on controller 0 has failed. Replace it as soon as possible.",
     "0_0_32_2147483647_12884901889"},
    {"fail-psu", [](Simulator& s) { return s.setPowerSupplyFailed(kEnclosure, 0, true); },
     "EVENT_STRATAVOL_PSU_FAILED", 155, 1,
     "The power supply 0 of enclosure 0 on controller 0 has failed. Replace it as soon as possible.", ""},
    {"set-temp", [](Simulator& s) { return s.setTemperature(kEnclosure, 1, 70); }, "EVENT_STRATAVOL_TEMP_CRITICAL",
     160, 1, "The temperature sensor 1 of enclosure 0 on controller 0 reads a critical temperature (70 C).", ""},
    {"controller-temp", [](Simulator& s) { return s.setControllerTemperature(0, 110); },
     "EVENT_STRATAVOL_CONTROLLER_TEMP_HIGH", 5, 2, "The temperature of controller 0 is too high (110 C).", ""},
    {"fail-battery", [](Simulator& s) { return s.setBatteryFailed(0, true); }, "EVENT_STRATAVOL_BATTERY_FAILED", 23, 1,
     "The battery of controller 0 has failed. Replace it as soon as possible.", ""},
    {"fail-supercap", [](Simulator& s) { return s.setBatteryFailed(1, true); }, "EVENT_STRATAVOL_SUPERCAP_FAILED", 30,
     1, "The super-capacitor of controller 1 has failed. Replace it as soon as possible.", ""},
    {"controller-status", [](Simulator& s) { return s.setControllerStatus(1, 3); },
     "EVENT_STRATAVOL_CONTROLLER_FAILED", 2, 1, "Controller 1 has failed (status 3).", ""},
};

class MonitorFaults : public MonitorTest, public ::testing::WithParamInterface<FaultCase> {};

TEST_P(MonitorFaults, EachFaultBecomesItsEvent) {
    const FaultCase& fault = GetParam();
    auto monitor = startMonitor();
    EXPECT_TRUE(cycle(*monitor).empty());
    ASSERT_TRUE(fault.inject(*m_sim).ok());
    const auto events = cycle(*monitor);
    const monitor::NRMEvent* event = find(events, fault.key);
    ASSERT_NE(event, nullptr) << keys(events);
    EXPECT_EQ(event->getCode(), fault.code);
    EXPECT_EQ(event->getType(), fault.type);
    EXPECT_EQ(event->getDescription(), fault.text);
    if (*fault.address != '\0') {
        EXPECT_EQ(event->getAddress().toString(), fault.address);
    }
    // Told once: the next cycle has nothing more to say about it.
    EXPECT_EQ(find(cycle(*monitor), fault.key), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Simulator, MonitorFaults, ::testing::ValuesIn(kFaults),
                         [](const ::testing::TestParamInfo<FaultCase>& info) {
                             std::string name = info.param.name;
                             for (char& c : name) {
                                 c = c == '-' ? '_' : c;
                             }
                             return name;
                         });

TEST_F(MonitorTest, ARebuildOntoTheSpareIsFollowedToItsEnd) {
    auto monitor = startMonitor();
    ASSERT_TRUE(m_sim->failDrive(Addr(0, 0, 0)).ok());
    const auto failed = cycle(*monitor);
    EXPECT_NE(find(failed, "EVENT_STRATAVOL_LD_DEGRADED"), nullptr) << keys(failed);
    EXPECT_NE(find(failed, "EVENT_STRATAVOL_PD_SPARE_USED"), nullptr) << keys(failed);
    EXPECT_NE(find(failed, "EVENT_STRATAVOL_LD_REBUILD_STARTED"), nullptr) << keys(failed);
    EXPECT_EQ(find(failed, "EVENT_STRATAVOL_PD_REBUILDING"), nullptr) << keys(failed);  // the spare's own words
    ASSERT_TRUE(m_sim->finishAllTasks().ok());
    const auto done = cycle(*monitor);
    EXPECT_NE(find(done, "EVENT_STRATAVOL_LD_REBUILD_DONE"), nullptr) << keys(done);
    EXPECT_NE(find(done, "EVENT_STRATAVOL_LD_OPTIMAL"), nullptr) << keys(done);
}

TEST_F(MonitorTest, APulledDriveReplacedByANewOneIsTold) {
    auto monitor = startMonitor();
    ASSERT_TRUE(m_sim->pullDrive(Addr(0, 0, 11)).ok());
    EXPECT_NE(find(cycle(*monitor), "EVENT_STRATAVOL_PD_MISSING"), nullptr);
    ASSERT_TRUE(m_sim->insertDrive(Addr(0, 0, 11), true).ok());
    const auto back = cycle(*monitor);
    const monitor::NRMEvent* replaced = find(back, "EVENT_STRATAVOL_PD_REPLACED");
    ASSERT_NE(replaced, nullptr) << keys(back);
    EXPECT_EQ(replaced->getDescription().find("Drive 0:11 (slot 11) on controller 0 was replaced (serial WFK01011 is now "),
              0u)
        << replaced->getDescription();
}

TEST_F(MonitorTest, TaskProgressIsToldOncePerTenth) {
    auto monitor = startMonitor();
    ASSERT_TRUE(m_sim->advanceTime(1200).ok());  // the verify of logical drive 2 moves from 35 %
    const auto moved = cycle(*monitor);
    int progress = 0;
    for (const auto& e : moved) {
        progress += e.getKey() == "EVENT_STRATAVOL_LD_VERIFY_PROGRESS" ? 1 : 0;
    }
    EXPECT_GE(progress, 1) << keys(moved);
    EXPECT_EQ(find(cycle(*monitor), "EVENT_STRATAVOL_LD_VERIFY_PROGRESS"), nullptr);
}

TEST_F(MonitorTest, WhatChangedWhileStoppedIsFoundAtStart) {
    startMonitor();  // leaves its snapshot behind
    ASSERT_TRUE(m_sim->failDrive(Addr(0, 0, 6)).ok());
    ASSERT_TRUE(m_sim->removeController(1).ok());
    auto next = startMonitor(false);
    const auto found = drain(*next);
    EXPECT_NE(find(found, "EVENT_STRATAVOL_PD_FAILED"), nullptr) << keys(found);
    const monitor::NRMEvent* removed = find(found, monitor::kKeyControllerRemoved);
    ASSERT_NE(removed, nullptr) << keys(found);
    EXPECT_EQ(removed->getCode(), 202);
    EXPECT_EQ(removed->getType(), 3);
    EXPECT_EQ(removed->getDescription(), "Controller 1 (VEX-8160e, serial VX4A2B17) is no longer present.");
}

TEST_F(MonitorTest, AControllerRemovedBetweenCyclesIsAnError) {
    auto monitor = startMonitor();
    ASSERT_TRUE(m_sim->removeController(1).ok());
    ASSERT_TRUE(m_sim->failDrive(Addr(0, 0, 7)).ok());  // a refresh, as the count check would cause
    const auto events = cycle(*monitor);
    const monitor::NRMEvent* removed = find(events, monitor::kKeyControllerRemoved);
    ASSERT_NE(removed, nullptr) << keys(events);
    EXPECT_EQ(removed->getType(), 1);
    ASSERT_TRUE(m_sim->addController().ok());
    ASSERT_TRUE(m_sim->setSmartError(Addr(0, 0, 8), true).ok());  // a refresh, as the count check would cause
    const auto back = cycle(*monitor);
    EXPECT_NE(find(back, "EVENT_STRATAVOL_CONTROLLER_ADDED"), nullptr) << keys(back);
}

std::vector<std::pair<int, std::string>> gSystemLog;

TEST_F(MonitorTest, EventsAsSevereAsTheLoggingLevelGoToTheSystemLog) {
    monitor::BaseRaidMonitor::setSystemLogSink([](int priority, const std::string& text) {
        gSystemLog.emplace_back(priority, text);
    });
    m_nrm.write("NRMConfig.conf", "agent.OSLoggingLevel=1\n");
    auto monitor = startMonitor();
    gSystemLog.clear();
    ASSERT_TRUE(m_sim->setSmartError(Addr(0, 0, 2), true).ok());  // a warning
    ASSERT_TRUE(m_sim->setBatteryFailed(0, true).ok());           // an error
    cycle(*monitor);
    monitor::BaseRaidMonitor::setSystemLogSink(nullptr);
    ASSERT_EQ(gSystemLog.size(), 1u);
    EXPECT_EQ(gSystemLog[0].first, LOG_ERR);
    EXPECT_EQ(gSystemLog[0].second, "The battery of controller 0 has failed. Replace it as soon as possible.");
}

TEST_F(MonitorTest, ABrokenSnapshotIsIgnoredAtStart) {
    for (const std::string& text : {std::string("<Config><Controller controllerID=\"0\""), std::string(1 << 16, '\x01')}) {
        m_nrm.write("NRMFSAConfig.xml", text);
        auto monitor = startMonitor(false);
        EXPECT_EQ(drain(*monitor).size(), 0u);
        EXPECT_NE(monitor->getXmlConfig().find("controllerSerial=\"VX4A1F0C\""), std::string::npos);
    }
}

}  // namespace
}  // namespace vex::monitortest
