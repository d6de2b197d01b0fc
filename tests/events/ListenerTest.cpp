// The listener's work on one batch of monitor events, the one-slot refresh
// queue, and the VEX_EventIndication instance.
#include <dirent.h>
#include <gtest/gtest.h>

#include <climits>
#include <ctime>
#include <vector>

#include "ThreadCount.h"
#include "controller/VexFSAInterface.h"
#include "events/FsaIfEventManager.h"
#include "framework/FrameworkFacade.h"
#include "monitor/NRMEvent.h"
#include "monitor/VEXRaidEventMonitor.h"

namespace vex::eventstest {
namespace {

using namespace cim::fwf;
using monitor::NRMEvent;

std::vector<CIMInstance> gSent;

bool collect(CIMInstance& indication) {
    gSent.push_back(indication);
    return true;
}

class ListenerTest : public ::testing::Test {
protected:
    void SetUp() override {
        gSent.clear();
        ASSERT_TRUE(FrameworkFacade::getInstance()->registerForEvent(&collect));
        uPollEvent stale{};
        while (manager().popEvent(stale) == 0) {
        }
    }
    void TearDown() override { FrameworkFacade::getInstance()->deRegisterForEvent(); }
    static FsaIfEventManager& manager() { return *FsaIfEventManager::getInstance(); }

    // The refresh request the batch left queued; 0 when none.
    static unsigned int queuedRequest() {
        uPollEvent request{};
        return manager().popEvent(request) == 0 ? request.EventType : 0;
    }
};

NRMEvent event(int code, int type) {
    return NRMEvent(code, type, "event " + std::to_string(code), storlib::Addr(0, 0, 3), 0, 0, 0, "K");
}

TEST_F(ListenerTest, ConfigurationChangesAloneAskForAFullReinitialisationOnly) {
    manager().deliverMonitorEvents({event(190, 5), event(191, 5)}, "<Config/>", "");
    EXPECT_TRUE(gSent.empty());
    EXPECT_EQ(queuedRequest(), FSA_POLL_CONFIG_CHANGE);
}

TEST_F(ListenerTest, AMixedBatchIndicatesTheOthersAndAsksForBothRefreshes) {
    manager().deliverMonitorEvents({event(42, 1), event(190, 5), event(63, 2)}, "<Config/>", "<SmartStats/>");
    ASSERT_EQ(gSent.size(), 2u);
    EXPECT_EQ(gSent[0].getPropertyByName("eventCode")->getUint32Value().getValues().at(0), 42u);
    EXPECT_EQ(gSent[1].getPropertyByName("eventCode")->getUint32Value().getValues().at(0), 63u);
    EXPECT_EQ(queuedRequest(), FSA_POLL_CONFIG_CHANGE | FSA_POLL_REFRESH);
    manager().deliverMonitorEvents({}, "", "");
    EXPECT_EQ(queuedRequest(), 0u);
}

TEST_F(ListenerTest, TheQueueHoldsOneRequestAndDropsTheRest) {
    uPollEvent first{};
    first.EventType = FSA_POLL_REFRESH;
    uPollEvent second{};
    second.EventType = FSA_POLL_CONFIG_CHANGE;
    EXPECT_TRUE(manager().invokeCallBack(first));
    manager().invokeCallBack(second);
    uPollEvent peeked{};
    ASSERT_EQ(manager().peekEvent(peeked), 0);
    EXPECT_EQ(peeked.EventType, FSA_POLL_REFRESH);
    EXPECT_EQ(queuedRequest(), FSA_POLL_REFRESH);
    uPollEvent untouched{};
    untouched.AdapterID = 7;
    EXPECT_EQ(manager().popEvent(untouched), -1);
    EXPECT_EQ(untouched.AdapterID, 7u);
}

TEST(EventIndication, PropertiesInOrder) {
    NRMEvent e(42, 1, "Drive failed.", storlib::Addr(0, 0, 3), 0, 0, 0, "EVENT_STRATAVOL_PD_FAILED");
    struct tm when {};
    when.tm_year = 2024 - 1900;
    when.tm_mon = 2;
    when.tm_mday = 5;
    when.tm_hour = 7;
    when.tm_min = 8;
    when.tm_sec = 9;
    when.tm_isdst = -1;
    e.setTime(mktime(&when));
    const CIMInstance indication = eventIndicationOf(e, "<Config/>", "<SmartStats/>");
    EXPECT_EQ(indication.getClassName(), "VEX_EventIndication");
    EXPECT_EQ(indication.getNameSpace(), "root/tkz/vex/smi_15");
    const std::vector<CIMProperty> properties = indication.getPropertyList();
    std::vector<std::string> names;
    for (const CIMProperty& p : properties) {
        names.push_back(p.getName());
        EXPECT_FALSE(p.isKey());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"eventTime", "eventCode", "eventType", "eventDesc", "devIdentifier",
                                               "xmlConfig", "xmlSmartStats"}));
    EXPECT_EQ(properties[0].getStringValue().getValues().at(0), "03/05/2024 07:08:09");
    EXPECT_EQ(properties[2].getUint32Value().getValues().at(0), 1u);
    EXPECT_EQ(properties[4].getStringValue().getValues().at(0), "0_0_3_2147483647_9223372036854775807");
    EXPECT_EQ(properties[5].getStringValue().getValues().at(0), "<Config/>");
}

TEST(EventIndication, AnUnconvertibleTimeGivesTheCurrentTime) {
    const std::string now = formatTimeStampDup(std::time(nullptr));
    const std::string text = formatTimeStampDup(static_cast<std::time_t>(LLONG_MAX));
    EXPECT_EQ(text.substr(0, 10), now.substr(0, 10));
}

}  // namespace
}  // namespace vex::eventstest

namespace vex::eventstest {
namespace {

using testsupport::threadCount;

// Started and stopped as the provider's start and terminate do it; the
// process thread, once terminated, is not started again in this load.
TEST(EventThreads, StartAndStopLeaveNoThreadBehind) {
    FsaIfEventManager& manager = *FsaIfEventManager::getInstance();
    monitor::VEXRaidEventMonitor& raidMonitor = *monitor::VEXRaidEventMonitor::getInstance();
    int before = 0;
    for (int i = 0; i < 100; ++i) {
        if (i == 1) {
            before = threadCount();  // after the first round, which may start a sanitizer's own thread
        }
        ASSERT_TRUE(raidMonitor.start());
        ASSERT_TRUE(manager.initEventListener());
        ASSERT_TRUE(manager.initEventProcessThread());
        EXPECT_TRUE(manager.terminateEventListener());
        EXPECT_TRUE(manager.terminateEventProcessThread());
        EXPECT_FALSE(manager.isCallBackValid());
    }
    EXPECT_EQ(threadCount(), before);
    EXPECT_TRUE(FsaIfEventManager::flagTermThread.load());
    manager.setCallBack(&defaultEventListenerCbk);
}

}  // namespace
}  // namespace vex::eventstest
