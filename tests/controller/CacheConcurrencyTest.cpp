// Readers and the update thread: a reader always reads one complete
// generation, whenever it took its repository and however long it stalls.
#include <atomic>
#include <thread>

#include "CacheTestSupport.h"

namespace vex::cim::fwf::test {
namespace {

constexpr int kDrivesPerCycle = 64;
constexpr int kCycles = 150;

// The first part of a rebuild as the event process thread runs it: register,
// empty the shadow and fill it with `count` drives of the generation.
VexCacheManager* beginRebuild(int generation, int count) {
    Cache::initCacheUpdate();
    VexCacheManager* shadow = Cache::getInstance(true);
    shadow->deleteObjectInstance(kDrives, {});
    for (int id = 0; id < count; ++id) {
        shadow->addObjInstance(kDrives, drive(std::to_string(id), std::to_string(generation)));
    }
    return shadow;
}

// The rest: the remaining drives, the copy over the served repository, the
// swap of roles, unregistering.
void endRebuild(VexCacheManager* shadow, int generation, int from) {
    for (int id = from; id < kDrivesPerCycle; ++id) {
        shadow->addObjInstance(kDrives, drive(std::to_string(id), std::to_string(generation)));
    }
    Cache::copyNewCachetoOldCache();
    Cache::reverseCacheSwapFlag();
    Cache::exitCacheUpdate();
}

void rebuild(int generation) {
    endRebuild(beginRebuild(generation, 0), generation, 0);
}

// The generation of a complete list - every drive once, in order, all of one
// generation - or -1.
int generationOf(const std::vector<CIMInstance>& list) {
    const Ids ids = valuesOf(list, "DeviceID");
    const Ids generations = valuesOf(list, "State");
    bool complete = list.size() == static_cast<std::size_t>(kDrivesPerCycle);
    for (std::size_t id = 0; complete && id < list.size(); ++id) {
        complete = ids[id] == std::to_string(id) && generations[id] == generations[0];
    }
    return complete ? std::stoi(generations[0]) : -1;
}

// Read on a thread of its own, as a request thread would.
int readOnOtherThread(VexCacheManager* repository) {
    int generation = -2;
    std::thread([&] {
        std::vector<CIMInstance> list;
        if (repository->getRepositoryObject(kDrives, "", {}, false, list) == VEX_CM_SUCCESS) {
            generation = generationOf(list);
        }
    }).join();
    return generation;
}

// The reader takes the served repository, then stalls through a whole
// rebuild and into the next one, which is rebuilding that very repository.
TEST_F(CacheTest, AReaderStalledThroughARebuildStillReadsOneWholeGeneration) {
    rebuild(0);
    rebuild(0);
    VexCacheManager* held = Cache::getInstance(true);
    rebuild(1);
    VexCacheManager* shadow = beginRebuild(2, 10);
    ASSERT_EQ(shadow, held);  // the held repository is the one being rebuilt

    EXPECT_EQ(readOnOtherThread(held), 1);
    EXPECT_EQ(readOnOtherThread(Cache::getInstance(true)), 1);
    // The update thread itself sees its work in progress.
    std::vector<CIMInstance> own;
    ASSERT_EQ(shadow->getRepositoryObject(kDrives, "", {}, false, own), VEX_CM_SUCCESS);
    EXPECT_EQ(own.size(), 10u);

    endRebuild(shadow, 2, 10);
    EXPECT_EQ(readOnOtherThread(held), 2);
    EXPECT_EQ(readOnOtherThread(Cache::getInstance(true)), 2);
}

// An update thread that leaves without the copy still hands over what it
// wrote, whole, when it unregisters.
TEST_F(CacheTest, UnregisteringPublishesWhatTheUpdateThreadWrote) {
    rebuild(0);
    VexCacheManager* shadow = beginRebuild(1, kDrivesPerCycle);
    EXPECT_EQ(readOnOtherThread(shadow), 0);
    Cache::exitCacheUpdate();
    EXPECT_EQ(readOnOtherThread(shadow), 1);
}

// Readers with no protection of their own, rebuilds back to back: every read
// is one complete generation, never older than one read before it.
TEST_F(CacheTest, ReadersNeverSeeAHalfBuiltOrOlderGeneration) {
    rebuild(0);
    rebuild(0);
    std::atomic<bool> done{false};
    std::atomic<int> failures{0};
    std::atomic<int> reads{0};
    auto reader = [&] {
        for (int lastSeen = 0; !done.load(); ++reads) {
            std::vector<CIMInstance> list;
            const unsigned int result =
                Cache::getInstance(true)->getRepositoryObject(kDrives, "", {}, false, list);
            const int generation = result == VEX_CM_SUCCESS ? generationOf(list) : -1;
            failures += generation < lastSeen ? 1 : 0;
            lastSeen = std::max(lastSeen, generation);
        }
    };
    std::thread readers[] = {std::thread(reader), std::thread(reader)};
    for (int generation = 1; generation <= kCycles; ++generation) {
        rebuild(generation);
    }
    done = true;
    for (std::thread& thread : readers) {
        thread.join();
    }
    EXPECT_EQ(failures.load(), 0) << "of " << reads.load() << " reads";
    std::vector<CIMInstance> last;
    ASSERT_EQ(Cache::getInstance(true)->getRepositoryObject(kDrives, "", {}, false, last), VEX_CM_SUCCESS);
    EXPECT_EQ(generationOf(last), kCycles);
}

}  // namespace
}  // namespace vex::cim::fwf::test
