// The controller event queue: what a change puts there, and who sees it.
#include "SimFixture.h"

namespace storlibtest {
namespace {

namespace EventType = storlib::EventType;
using storlib::StorEventCollection;

class EventQueue : public SimFixture {
protected:
    void SetUp() override {
        SimFixture::SetUp();
        openSystem(kEightDrives);
    }
    StorEventCollection fetch(storlib::StorLib& lib) {
        StorEventCollection out;
        EXPECT_TRUE(lib.getEvents(0, out));
        return out;
    }
    const storlib::StorEvent* find(const StorEventCollection& events, uint32_t type) {
        for (const storlib::StorEvent& e : events)
            if (e.getType() == type) return &e;
        return nullptr;
    }
};

TEST_F(EventQueue, AFailedMemberQueuesDriveLogicalDriveAndAlarmEvents) {
    uint32_t id = createLd(storlib::RaidLevel::Raid5, {0, 1, 2});
    fetch(lib_);
    ASSERT_TRUE(sim_.failDrive(drv(1)));
    StorEventCollection events = fetch(lib_);

    const storlib::StorEvent* d = find(events, EventType::DriveState);
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(d->getDetail(0), static_cast<uint32_t>(storlib::DriveState::Failed));
    EXPECT_EQ(d->getDetail(1), static_cast<uint32_t>(storlib::DriveState::Online));
    EXPECT_EQ(d->getAddr(), storlib::Addr(0, 0, 1));

    const storlib::StorEvent* l = find(events, EventType::LogicalDriveState);
    ASSERT_NE(l, nullptr);
    EXPECT_EQ(l->getDetail(0), static_cast<uint32_t>(storlib::LogicalDriveState::Degraded));
    EXPECT_EQ(l->getAddr().getLogicalDriveID(), id);
    EXPECT_NE(l->getDescription().find("degraded"), std::string::npos);

    ASSERT_NE(find(events, EventType::Alarm), nullptr);
    EXPECT_GT(l->getSequence(), d->getSequence());
}

TEST_F(EventQueue, ConfigurationChangesCarryTheirKind) {
    uint32_t id = createLd(storlib::RaidLevel::Raid1, {0, 1});
    ASSERT_TRUE(lib_.setLogicalDriveName(ldAddr(id), "Renamed"));
    ASSERT_TRUE(lib_.deleteLogicalDrive(ldAddr(id)));
    std::vector<uint32_t> kinds;
    for (const storlib::StorEvent& e : fetch(lib_))
        if (e.getType() == EventType::ConfigChange) kinds.push_back(e.getDetail(2));
    EXPECT_EQ(kinds, (std::vector<uint32_t>{1, 5, 2}));  // created, cosmetic, deleted
}

TEST_F(EventQueue, EveryHandleFetchesEachEventOnce) {
    storlib::StorLib other;
    ASSERT_TRUE(other.open(options(systemFile_)));
    fetch(lib_);
    fetch(other);
    ASSERT_TRUE(lib_.setHardDriveWriteCache(drv(4), true));
    EXPECT_EQ(fetch(lib_).size(), 1u);
    EXPECT_EQ(fetch(lib_).size(), 0u);
    StorEventCollection seen = fetch(other);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen.elementAt(0).getType(), EventType::DriveProperty);
}

TEST_F(EventQueue, TheQueueKeepsTheNewestEventsOnly) {
    storlib::Options o = options(systemFile_);
    o.eventQueueSize = 5;
    lib_.close();
    ASSERT_TRUE(lib_.open(o));
    for (int i = 0; i < 10; ++i) ASSERT_TRUE(lib_.setHardDriveWriteCache(drv(0), i % 2 == 0));
    StorEventCollection history;
    ASSERT_TRUE(lib_.getEventHistory(0, 100, history));
    ASSERT_EQ(history.size(), 5u);
    EXPECT_EQ(history.elementAt(4).getSequence(), history.elementAt(0).getSequence() + 4);
}

TEST_F(EventQueue, AMigrationStartsWithATaskEventThatAsksForARefresh) {
    uint32_t id = createLd(storlib::RaidLevel::Raid1, {0, 1});
    fetch(lib_);
    storlib::LogicalDriveSpec spec;
    spec.raidLevel = storlib::RaidLevel::Raid5;
    for (uint32_t d : {0, 1, 2}) spec.chunks.emplace_back(drv(d));
    ASSERT_TRUE(lib_.modifyLogicalDrive(ldAddr(id), spec));
    const storlib::StorEventCollection events = fetch(lib_);
    const storlib::StorEvent* t = find(events, EventType::Task);
    ASSERT_NE(t, nullptr);
    EXPECT_EQ(t->getDetail(0), 2u);   // started
    EXPECT_EQ(t->getDetail(1), 16u);  // migration
}

}  // namespace
}  // namespace storlibtest
