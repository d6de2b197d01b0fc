// The event queue: bound, overload report, type level, and the events-log line.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "MonitorFixture.h"
#include "monitor/NRMEventCollection.h"

namespace vex::monitortest {
namespace {

using monitor::NRMEvent;
using monitor::NRMEventCollection;

NRMEvent numbered(int code, int type = 3) { return NRMEvent(code, type, "event " + std::to_string(code), "KEY"); }

TEST(EventQueue, MaximumBelow201IsIgnored) {
    NRMEventCollection queue("", 500, 5);
    queue.setMaxSize(200);
    EXPECT_EQ(queue.getMaxSize(), 500u);
    queue.setMaxSize(201);
    EXPECT_EQ(queue.getMaxSize(), 201u);
}

TEST(EventQueue, FullQueueDropsATenthAndReportsTheOverloadAtItsHead) {
    NRMEventCollection queue("", 500, 5);
    queue.setMaxSize(201);
    for (int i = 0; i < 201; ++i) {
        queue.addEvent(numbered(i));
    }
    queue.addEvent(numbered(999));
    const std::vector<NRMEvent> all = queue.getAllEvents();
    ASSERT_EQ(all.size(), 201u - 19u + 1u);
    EXPECT_EQ(all.front().getCode(), 200);
    EXPECT_EQ(all.front().getType(), 2);
    EXPECT_EQ(all.front().getDescription(), "NRM Event queue overload. Discarding events.");
    EXPECT_EQ(all[1].getCode(), 20);  // 0..18 dropped, 19 overwritten
    EXPECT_EQ(all.back().getCode(), 999);
    EXPECT_EQ(queue.getNumberOfEvents(), 0u);
}

TEST(EventQueue, TypesAboveTheLevelAreNotQueuedAndDrainingIsOldestFirst) {
    TempDir dir;
    NRMEventCollection queue(dir.file("events.log"), 500, 5);
    queue.addEvent(numbered(1, 6));
    queue.addEvent(numbered(2, 5));
    queue.addEvent(numbered(3, 1));
    queue.addEvent(numbered(4, 2));
    EXPECT_EQ(queue.getNumberOfEvents(), 3u);
    EXPECT_EQ(queue.getEvents(1).front().getCode(), 2);
    queue.flushEvents(1);
    EXPECT_EQ(queue.getEvents(5).front().getCode(), 4);
    std::ifstream log(dir.file("events.log"));
    std::stringstream text;
    text << log.rdbuf();
    EXPECT_EQ(text.str().find("event 1"), std::string::npos);
    EXPECT_NE(text.str().find("| ERR | SYS  | 003:A--C--S--L--- | event 3\n"), std::string::npos) << text.str();
}

TEST(EventQueue, EventsLogLine) {
    NRMEvent event(7, 2, "text", storlib::Addr(0, storlib::Addr::ANY, storlib::Addr::ANY, 1), 0, 0, 0, "K");
    event.setObjectClass(monitor::NRM_OBJ_LOGICAL_DRIVE);
    event.setTime(0);
    const std::string line = event.toString();
    EXPECT_NE(line.find(" | WRN | LDRV | 007:A00C--S--L001 | text"), std::string::npos) << line;
    EXPECT_EQ(line.find('\n'), std::string::npos);
    event.setType(9);
    event.setObjectClass(0);
    EXPECT_NE(event.toString().find(" | --- | UNKN | "), std::string::npos);
}

}  // namespace
}  // namespace vex::monitortest
