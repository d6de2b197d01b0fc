// The build's instance batch gives what repeated adds to the cache give.
#include "CacheTestSupport.h"
#include "controller/InstanceBatch.h"

namespace vex::cim::fwf::test {

TEST_F(CacheTest, TheBatchKeepsTheFirstOfEqualKeysInOrderAndStoresEachTypeOnce) {
    InstanceBatch batch;
    EXPECT_TRUE(batch.add(kDrives, drive("a", "OK")));
    EXPECT_TRUE(batch.add(kDrives, drive("b", "OK")));
    clearLog();
    EXPECT_FALSE(batch.add(kDrives, drive("a", "Failed")));
    EXPECT_TRUE(logged("VEX_CM_ENTRY_ALREADY_EXIST--Device Type:: 0"));
    EXPECT_TRUE(batch.add(kControllers, drive("a", "OK")));
    EXPECT_EQ(batch.size(kDrives), 2u);

    batch.storeInto(*first);
    EXPECT_EQ(storedIds(first, kDrives), (Ids{"a", "b"}));
    std::vector<CIMInstance> stored;
    first->getRepositoryObject(kDrives, "", {}, false, stored);
    EXPECT_EQ(valuesOf(stored, "State"), (Ids{"OK", "OK"}));
    EXPECT_EQ(storedIds(first, kControllers), Ids{"a"});
    EXPECT_EQ(batch.size(kDrives), 0u);
}

}  // namespace vex::cim::fwf::test
