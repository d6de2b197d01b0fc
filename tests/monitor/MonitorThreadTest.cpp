// The monitor on its thread: the no-controller event, stop, and many starts
// and stops leaving no thread behind.
#include <dirent.h>

#include <chrono>
#include <thread>

#include "ThreadCount.h"
#include "MonitorFixture.h"
#include "monitor/VEXRaidEventMonitor.h"

namespace vex::monitortest {
namespace {

using testsupport::threadCount;

TEST_F(MonitorTest, NoControllersGiveExactlyOneEvent) {
    useSystem("none.json");
    monitor::FsaRaidMonitor monitor(m_lib.get());
    std::thread thread([&] { monitor.start(); });
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (monitor.getNumberOfEvents() == 0 && std::chrono::steady_clock::now() < until) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    monitor.stop();
    thread.join();
    EXPECT_TRUE(monitor.isStopped());
    const auto events = drain(monitor);
    ASSERT_EQ(events.size(), 1u) << keys(events);
    EXPECT_EQ(events[0].getCode(), 201);
    EXPECT_EQ(events[0].getType(), 3);
    EXPECT_EQ(events[0].getKey(), "EVENT_STRATAVOL_STATE_NOTFOUND");
    EXPECT_EQ(events[0].getDescription(), "No RAID controllers were found.");
}

TEST_F(MonitorTest, StartAndStopManyTimesLeavesNoThread) {
    monitor::VEXRaidEventMonitor* raidMonitor = monitor::VEXRaidEventMonitor::getInstance();
    ASSERT_NE(raidMonitor, nullptr);
    int before = -1;
    const auto started = std::chrono::steady_clock::now();
    for (int i = 0; i < 100; ++i) {
        if (i == 1) {
            before = threadCount();  // after the first round, which may start a sanitizer's own thread
        }
        ASSERT_TRUE(raidMonitor->start());
        EXPECT_TRUE(monitor::VEXRaidEventMonitor::continueThread.load());
        if (i % 10 == 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));  // stopped mid-cycle too
        }
        raidMonitor->stop();
        EXPECT_FALSE(monitor::VEXRaidEventMonitor::continueThread.load());
        EXPECT_EQ(raidMonitor->getMonitor(), nullptr);
    }
    EXPECT_EQ(threadCount(), before);
    // Each stop ends within a poll; here far less, as stop wakes the sleep.
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(60));
}

}  // namespace
}  // namespace vex::monitortest
