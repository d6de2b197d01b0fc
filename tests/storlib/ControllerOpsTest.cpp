// Controller-wide settings, statistics, logs, alarm and faults outside the drives.
#include "SimFixture.h"

#include <storlib/Battery.h>
#include <storlib/Enclosure.h>
#include <storlib/SASPhy.h>
#include <storlib/SESElement.h>

namespace storlibtest {
namespace {

using storlib::RetStatus;
namespace EventType = storlib::EventType;

const char* const kShelf = R"({"controllers": [{"battery": {"fullCapacityMAh": 1800},
  "enclosures": [{"channel": 1, "device": 0, "numSlots": 4, "fans": [{}, {}], "powerSupplies": [{}],
                  "temperatureSensors": [{"temperatureC": 30, "highWarningC": 45, "highCriticalC": 55}]}],
  "drives": [{"device": 0, "sizeMB": 9000, "enclosureIndex": 0, "slot": 0},
             {"device": 1, "sizeMB": 9000, "enclosureIndex": 0, "slot": 1},
             {"device": 2, "sizeMB": 9000, "enclosureIndex": 0, "slot": 2}]}]})";

class ControllerOps : public SimFixture {
protected:
    void SetUp() override {
        SimFixture::SetUp();
        openSystem(kShelf);
    }
    const storlib::Adapter& adapter() { return *config()->getAdapter(0); }
    const storlib::SES2EnclosureDevice& shelf() {
        return *storlib::FilterCollection(adapter(), "SES2EnclosureDevice").elementAt<storlib::SES2EnclosureDevice>(0);
    }
    std::vector<uint32_t> eventTypes() {
        storlib::StorEventCollection events;
        EXPECT_TRUE(lib_.getEvents(0, events));
        std::vector<uint32_t> types;
        for (const storlib::StorEvent& e : events) types.push_back(e.getType());
        return types;
    }
    const storlib::Addr shelfAddr{0, 1, 0};
};

TEST_F(ControllerOps, SettingsAreCheckedAgainstTheirRanges) {
    ASSERT_TRUE(lib_.setStayAwakePeriod(0, true, 8, 18, 0x1f));
    EXPECT_EQ(adapter().getStayAwakeStart(), 8u);
    EXPECT_EQ(adapter().getStayAwakeEnabledDays(), 0x1fu);
    EXPECT_EQ(lib_.setStayAwakePeriod(0, true, 8, 24, 1).getStatus(), RetStatus::InvalidArgument);
    EXPECT_EQ(lib_.setBackgroundConsistencyCheckPeriod(0, 0).getStatus(), RetStatus::InvalidArgument);
    ASSERT_TRUE(lib_.setPerformanceMode(0, storlib::PerformanceMode::OLTP));
    EXPECT_EQ(adapter().getPerformanceMode(), storlib::PerformanceMode::OLTP);
    ASSERT_TRUE(lib_.setFastTierRWFactor(0, 3, 4));
    EXPECT_EQ(adapter().getFastTierWriteFactor(), 4u);
    EXPECT_EQ(lib_.setFastTierFetchRate(0, 11).getStatus(), RetStatus::InvalidArgument);
}

TEST_F(ControllerOps, LinkRateAndDriveCachePolicyReachPhysAndDrives) {
    ASSERT_TRUE(lib_.setGlobalMaxSASPhyLinkRate(0, storlib::LinkRate::Rate6G));
    for (const storlib::RaidObject* o : storlib::FilterCollection(adapter(), "SASPhy"))
        EXPECT_LE(o->as<storlib::SASPhy>()->getNegotiatedLinkRate(), storlib::LinkRate::Rate6G);
    EXPECT_EQ(drive(0, 0)->getNegotiatedLinkRate(), storlib::LinkRate::Rate6G);
    EXPECT_EQ(lib_.setGlobalMaxSASPhyLinkRate(0, storlib::LinkRate::Disabled).getStatus(), RetStatus::InvalidArgument);
    ASSERT_TRUE(lib_.setGlobalPhysicalDevicesWriteCachePolicy(0, storlib::DriveWriteCachePolicy::Enabled));
    EXPECT_TRUE(drive(0, 2)->isWriteCacheEnabled());
}

TEST_F(ControllerOps, StatisticsGrowWhileEnabledAndTheLogShowsEvents) {
    ASSERT_TRUE(lib_.setStatisticsCollection(0, true));
    ASSERT_TRUE(sim_.advanceTime(10));
    EXPECT_EQ(adapter().getStatReadCommands(), 18000u);
    ASSERT_TRUE(lib_.resetStatisticsCounters(0));
    EXPECT_EQ(adapter().getStatReadCommands(), 0u);

    ASSERT_TRUE(sim_.failDrive(drv(2)));
    std::string xml, csv;
    ASSERT_TRUE(lib_.getControllerLog(0, storlib::LogType::Event, xml, csv));
    EXPECT_NE(xml.find("drive 0:2 failed"), std::string::npos);
    EXPECT_NE(csv.find("\"drive 0:2 failed\""), std::string::npos);
    ASSERT_TRUE(lib_.clearControllerLog(0, storlib::LogType::Event));
    ASSERT_TRUE(lib_.getControllerLog(0, storlib::LogType::Event, xml, csv));
    EXPECT_EQ(xml.find("drive 0:2 failed"), std::string::npos);
}

TEST_F(ControllerOps, AFailedFanSoundsTheAlarmUntilSilenced) {
    eventTypes();
    ASSERT_TRUE(sim_.setFanFailed(shelfAddr, 1, true));
    EXPECT_EQ(shelf().getStatus(), storlib::SESStatus::Critical);
    EXPECT_EQ(storlib::FilterCollection(shelf(), "Fan").elementAt<storlib::EnclosureFan>(1)->getSpeedRPM(), 0u);
    EXPECT_TRUE(adapter().isAlarmSounding());
    auto types = eventTypes();
    EXPECT_NE(std::find(types.begin(), types.end(), EventType::Fan), types.end());
    EXPECT_NE(std::find(types.begin(), types.end(), EventType::EnclosureStatus), types.end());
    ASSERT_TRUE(lib_.setAlarmState(0, storlib::AlarmState::Silenced));
    EXPECT_FALSE(adapter().isAlarmSounding());
    EXPECT_EQ(sim_.setFanFailed(shelfAddr, 5, true).getStatus(), RetStatus::NotFound);
}

TEST_F(ControllerOps, TemperaturesCrossTheirThresholds) {
    ASSERT_TRUE(sim_.setTemperature(shelfAddr, 0, 50));
    EXPECT_EQ(shelf().getStatus(), storlib::SESStatus::NonCritical);
    ASSERT_TRUE(sim_.setTemperature(shelfAddr, 0, 60));
    EXPECT_EQ(shelf().getStatus(), storlib::SESStatus::Critical);
    auto types = eventTypes();
    EXPECT_EQ(std::count(types.begin(), types.end(), EventType::TemperatureAlarm), 2);
}

TEST_F(ControllerOps, AFailedBatteryEndsProtectedWriteBack) {
    createLd(storlib::RaidLevel::Raid1, {0, 1});
    EXPECT_TRUE(ld(0)->isWriteCacheActive());
    ASSERT_TRUE(sim_.setBatteryFailed(0, true));
    EXPECT_FALSE(ld(0)->isWriteCacheActive());
    EXPECT_EQ(storlib::FilterCollection(adapter(), "Battery").elementAt<storlib::Battery>(0)->getStatus(),
              storlib::BatteryStatus::Failed);
    EXPECT_TRUE(shelf().getNumSlots() == 4 && storlib::FilterCollection(shelf(), "Slot").size() == 4);
}

TEST_F(ControllerOps, ControllersComeAndGo) {
    ASSERT_TRUE(sim_.setControllerStatus(0, 2));
    EXPECT_EQ(adapter().getAdapterStatus(), 2u);
    EXPECT_EQ(lib_.rescan(0).getStatus(), RetStatus::InvalidState);
    ASSERT_TRUE(sim_.setControllerStatus(0, 0));
    ASSERT_TRUE(sim_.removeController(0));
    EXPECT_EQ(lib_.getNumAdapters(), 0u);
    EXPECT_EQ(lib_.rescan(0).getStatus(), RetStatus::NotFound);
    ASSERT_TRUE(sim_.addController());
    EXPECT_EQ(lib_.getNumAdapters(), 1u);
    EXPECT_EQ(sim_.addController().getStatus(), RetStatus::NotFound);
}

}  // namespace
}  // namespace storlibtest
