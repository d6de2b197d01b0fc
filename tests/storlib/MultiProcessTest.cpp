// Several processes and threads on one controller state.
#include "SimFixture.h"

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <set>
#include <thread>

namespace storlibtest {
namespace {

using MultiProcess = SimFixture;

// Runs `body` in a child process with its own library handle; returns its exit code.
template <class F> int inChild(const storlib::Options& o, F body) {
    pid_t pid = fork();
    if (pid == 0) {
        storlib::StorLib lib;
        int rc = lib.open(o) ? body(lib) : 100;
        _exit(rc);
    }
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 200;
}

TEST_F(MultiProcess, AChangeByOneProcessIsSeenByAnotherOnItsNextCall) {
    openSystem(kEightDrives);
    createLd(storlib::RaidLevel::Raid1, {0, 1});
    storlib::StorEventCollection drained;
    lib_.getEvents(0, drained);
    auto before = config();
    int rc = inChild(options(systemFile_), [](storlib::StorLib& lib) {
        storlib::Simulator sim(lib);
        return sim.failDrive(drv(1)) ? 0 : 1;
    });
    ASSERT_EQ(rc, 0);
    EXPECT_EQ(drive(0, 1)->getState(), storlib::DriveState::Failed);
    EXPECT_EQ(ld(0)->getState(), storlib::LogicalDriveState::Degraded);
    EXPECT_NE(config()->getGeneration(), before->getGeneration());
    storlib::StorEventCollection events;
    ASSERT_TRUE(lib_.getEvents(0, events));
    EXPECT_FALSE(events.empty());
}

TEST_F(MultiProcess, ConcurrentWritersNeverLoseOrCorruptChanges) {
    openSystem(kEightDrives);
    std::vector<pid_t> kids;
    for (uint32_t k = 0; k < 4; ++k) {
        pid_t pid = fork();
        if (pid == 0) {
            storlib::StorLib lib;
            if (!lib.open(options(systemFile_))) _exit(100);
            for (int i = 0; i < 5; ++i) {
                storlib::LogicalDriveSpec spec;
                spec.raidLevel = storlib::RaidLevel::Raid1;
                spec.dataSizeMB = 1000;
                spec.name = "p" + std::to_string(k) + "-" + std::to_string(i);
                spec.chunks = {storlib::ChunkSpec(drv(2 * k)), storlib::ChunkSpec(drv(2 * k + 1))};
                if (!lib.createLogicalDrive(spec)) _exit(1 + i);
            }
            _exit(0);
        }
        kids.push_back(pid);
    }
    for (pid_t pid : kids) {
        int status = 0;
        waitpid(pid, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    }
    reopen();
    storlib::FilterCollection lds(*config()->getAdapter(0), "LogicalDrive");
    ASSERT_EQ(lds.size(), 20u);
    std::set<std::string> names;
    for (const storlib::RaidObject* o : lds) names.insert(o->as<storlib::LogicalDrive>()->getName());
    EXPECT_EQ(names.size(), 20u);
    EXPECT_EQ(drive(0, 7)->getUsedMB(), 5000u);
}

TEST_F(MultiProcess, ThreadsShareOneHandleSafely) {
    openSystem(kEightDrives);
    std::vector<std::thread> threads;
    std::atomic<int> failures{0};
    for (uint32_t k = 0; k < 4; ++k)
        threads.emplace_back([&, k] {
            for (int i = 0; i < 3; ++i) {
                storlib::LogicalDriveSpec spec;
                spec.raidLevel = storlib::RaidLevel::Raid1;
                spec.dataSizeMB = 1000;
                spec.chunks = {storlib::ChunkSpec(drv(2 * k)), storlib::ChunkSpec(drv(2 * k + 1))};
                if (!lib_.createLogicalDrive(spec)) ++failures;
                auto snap = lib_.getSystemConfig();
                if (!snap || snap->getAdapterCount() != 1) ++failures;
            }
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(failures.load(), 0);
    EXPECT_EQ(storlib::FilterCollection(*config()->getAdapter(0), "LogicalDrive").size(), 12u);
}

}  // namespace
}  // namespace storlibtest
