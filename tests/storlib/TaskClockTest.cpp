// Background tasks under the manual and the scaled clock.
#include "SimFixture.h"

#include <chrono>
#include <thread>

namespace storlibtest {
namespace {

using storlib::RaidLevel;
using storlib::TaskType;

class TaskClock : public SimFixture {
protected:
    void SetUp() override {
        SimFixture::SetUp();
        openSystem(kEightDrives);  // 100000 MB drives, 100 MB/s at high priority
        id_ = createLd(RaidLevel::Raid1, {0, 1});
        ASSERT_TRUE(lib_.verifyLogicalDrive(ldAddr(id_), false));
    }
    uint32_t percent() { return task(TaskType::Verify)->getPercentComplete(); }
    storlib::Addr taskAddr() {
        return storlib::Addr(0, storlib::Addr::ANY, storlib::Addr::ANY, storlib::Addr::ANY, task(TaskType::Verify)->getTaskID());
    }
    uint32_t id_ = 0;
};

TEST_F(TaskClock, ProgressMovesOnlyWithTheClock) {
    EXPECT_EQ(percent(), 0u);
    EXPECT_EQ(ld(id_)->getState(), storlib::LogicalDriveState::Verifying);
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    EXPECT_EQ(percent(), 0u);
    ASSERT_TRUE(sim_.advanceTime(250));
    EXPECT_EQ(percent(), 25u);
    EXPECT_EQ(task(TaskType::Verify)->getRemainingSeconds(), 750u);
}

TEST_F(TaskClock, APriorityChangeChangesTheRateFromThatMomentOn) {
    ASSERT_TRUE(sim_.advanceTime(200));
    ASSERT_TRUE(lib_.setTaskPriority(taskAddr(), storlib::TaskPriority::Low));  // a quarter of the rate
    ASSERT_TRUE(sim_.advanceTime(400));
    EXPECT_EQ(percent(), 30u);
}

TEST_F(TaskClock, ATaskCompletesAtItsTimeAndIsListedForAWhile) {
    ASSERT_TRUE(sim_.advanceTime(999));
    EXPECT_EQ(task(TaskType::Verify)->getTaskState(), storlib::TaskState::Running);
    ASSERT_TRUE(sim_.advanceTime(2));
    EXPECT_EQ(task(TaskType::Verify)->getTaskState(), storlib::TaskState::Completed);
    EXPECT_EQ(percent(), 100u);
    EXPECT_EQ(ld(id_)->getState(), storlib::LogicalDriveState::Optimal);
    ASSERT_TRUE(sim_.advanceTime(301));
    EXPECT_EQ(task(TaskType::Verify), nullptr);
}

TEST_F(TaskClock, ProgressIsReportedEveryTenPercentAndAtTheEnd) {
    storlib::StorEventCollection ignore;
    lib_.getEvents(0, ignore);
    ASSERT_TRUE(sim_.advanceTime(2000));
    storlib::StorEventCollection events;
    ASSERT_TRUE(lib_.getEvents(0, events));
    std::vector<uint32_t> steps;
    bool completed = false;
    for (const storlib::StorEvent& e : events) {
        if (e.getType() != storlib::EventType::Task) continue;
        EXPECT_EQ(e.getDetail(1), static_cast<uint32_t>(TaskType::Verify));
        if (e.getDetail(0) == 1) steps.push_back(e.getDetail(2));
        completed = completed || (e.getDetail(0) == 3 && e.getDetail(2) == 100);
    }
    EXPECT_EQ(steps, (std::vector<uint32_t>{10, 20, 30, 40, 50, 60, 70, 80, 90}));
    EXPECT_TRUE(completed);
}

TEST_F(TaskClock, AScaledClockRunsOnItsOwn) {
    ASSERT_TRUE(sim_.setTimeScale(1000));
    std::this_thread::sleep_for(std::chrono::milliseconds(120));
    EXPECT_GE(percent(), 10u);
    ASSERT_TRUE(sim_.setTimeScale(0));
    uint32_t frozen = percent();
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    EXPECT_EQ(percent(), frozen);
}

TEST_F(TaskClock, StoppableTasksStopAndRebuildsDoNot) {
    ASSERT_TRUE(lib_.abortTask(taskAddr()));
    EXPECT_EQ(task(TaskType::Verify)->getTaskState(), storlib::TaskState::Aborted);
    EXPECT_EQ(ld(id_)->getState(), storlib::LogicalDriveState::Optimal);
    ASSERT_TRUE(lib_.assignGlobalSpare(drv(2)));
    ASSERT_TRUE(sim_.failDrive(drv(0)));
    const storlib::Progress* rebuild = task(TaskType::Rebuild);
    ASSERT_NE(rebuild, nullptr);
    storlib::Ret r = lib_.abortTask(storlib::Addr(0, storlib::Addr::ANY, storlib::Addr::ANY, storlib::Addr::ANY,
                                                  rebuild->getTaskID()));
    EXPECT_EQ(r.getStatus(), storlib::RetStatus::NotSupported);
}

}  // namespace
}  // namespace storlibtest
