// Which repository getInstance hands out, and so the direction of the copy.
#include <thread>

#include "CacheTestSupport.h"

namespace vex::cim::fwf::test {
namespace {

TEST_F(CacheTest, APlainShadowReadDecidesTheCopyDirection) {
    first->addObjInstance(kDrives, drive("in_first"));
    Cache::getInstance(true);         // never marks anything
    Cache::copyNewCachetoOldCache();  // the first is latest: second := first
    EXPECT_EQ(storedIds(second, kDrives), Ids({"in_first"}));

    second->addObjInstance(kDrives, drive("added"));
    Cache::getInstance(false);  // a reader's look at the shadow marks it latest
    Cache::copyNewCachetoOldCache();
    EXPECT_EQ(storedIds(first, kDrives), Ids({"in_first", "added"}));

    Cache::setSVexCacheRepoOldIsLatest(false);  // neither latest: no copy at all
    first->flushCache();
    Cache::copyNewCachetoOldCache();
    EXPECT_EQ(storedIds(second, kDrives), Ids({"in_first", "added"}));
}

TEST_F(CacheTest, TheRegisteredUpdateThreadGetsTheShadow) {
    Cache::initCacheUpdate();
    EXPECT_EQ(Cache::getInstance(true), second);
    EXPECT_TRUE(VexCacheManagerTestAccess::secondIsLatest());
    VexCacheManager* seenByReader = nullptr;
    std::thread reader([&] { seenByReader = Cache::getInstance(true); });
    reader.join();
    EXPECT_EQ(seenByReader, first);  // other threads keep the served one

    Cache::exitCacheUpdate();
    EXPECT_EQ(Cache::getInstance(true), first);
}

}  // namespace
}  // namespace vex::cim::fwf::test
