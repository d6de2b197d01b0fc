// Readers enumerating while the update thread runs full rebuild cycles.
#include <atomic>
#include <shared_mutex>
#include <thread>

#include "CacheTestSupport.h"

namespace vex::cim::fwf::test {
namespace {

constexpr int kDrivesPerCycle = 64;
constexpr int kCycles = 150;

// One rebuild as the event process thread runs it: register, rebuild the
// shadow, copy it over the served repository, swap roles, unregister.
void rebuild(int generation) {
    Cache::initCacheUpdate();
    VexCacheManager* shadow = Cache::getInstance(true);
    shadow->deleteObjectInstance(kDrives, {});
    for (int id = 0; id < kDrivesPerCycle; ++id) {
        shadow->addObjInstance(kDrives, drive(std::to_string(id), std::to_string(generation)));
    }
    Cache::copyNewCachetoOldCache();
    Cache::reverseCacheSwapFlag();
    Cache::exitCacheUpdate();
}

// The generation of a complete list - every drive once, in order, all of one
// generation, not older than the last one seen - or -1.
int generationOf(const std::vector<CIMInstance>& list, int lastSeen) {
    const Ids ids = valuesOf(list, "DeviceID");
    const Ids generations = valuesOf(list, "State");
    bool complete = list.size() == static_cast<std::size_t>(kDrivesPerCycle);
    for (std::size_t id = 0; complete && id < list.size(); ++id) {
        complete = ids[id] == std::to_string(id) && generations[id] == generations[0];
    }
    const int generation = complete ? std::stoi(generations[0]) : -1;
    return generation >= lastSeen ? generation : -1;
}

TEST_F(CacheTest, ReadersNeverSeeAHalfCopiedRepository) {
    rebuild(0);
    rebuild(0);  // both repositories hold generation 0
    // A reader that took the served repository just before a role swap may
    // still read it afterwards; the next rebuild waits for such readers, as
    // rebuilds in the provider are a second or more apart.
    std::shared_mutex grace;
    std::atomic<bool> done{false};
    std::atomic<int> failures{0};
    auto reader = [&] {
        for (int lastSeen = 0; !done.load();) {
            std::vector<CIMInstance> list;
            std::shared_lock<std::shared_mutex> hold(grace);
            const unsigned int result =
                Cache::getInstance(true)->getRepositoryObject(kDrives, "", {}, false, list);
            hold.unlock();
            const int generation = result == VEX_CM_SUCCESS ? generationOf(list, lastSeen) : -1;
            failures += generation < 0 ? 1 : 0;
            lastSeen = std::max(lastSeen, generation);
        }
    };
    std::thread readers[] = {std::thread(reader), std::thread(reader)};
    for (int generation = 1; generation <= kCycles; ++generation) {
        rebuild(generation);
        std::unique_lock<std::shared_mutex> wait(grace);
    }
    done = true;
    for (std::thread& thread : readers) {
        thread.join();
    }
    EXPECT_EQ(failures.load(), 0);
    std::vector<CIMInstance> last;
    ASSERT_EQ(Cache::getInstance(true)->getRepositoryObject(kDrives, "", {}, false, last), VEX_CM_SUCCESS);
    EXPECT_EQ(generationOf(last, kCycles), kCycles);
}

}  // namespace
}  // namespace vex::cim::fwf::test
