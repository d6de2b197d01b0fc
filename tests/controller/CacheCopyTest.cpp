// The rebuild's copy: an exact copy, repeats dropped as repeated adds would.
#include <random>

#include "CacheTestSupport.h"

namespace vex::cim::fwf::test {
namespace {

Ids storedStates(VexCacheManager* repository) {
    std::vector<CIMInstance> list;
    repository->getRepositoryObject(kDrives, "", {}, false, list);
    return valuesOf(list, "State");
}

TEST_F(CacheTest, CopyReplacesTheTargetKeepingTheFirstOfRepeats) {
    std::vector<CIMInstance> drives{drive("0_1"), drive("0_2", "first"), drive("0_2", "second")};
    first->swapObjectInstance(kDrives, drives);  // swap stores the repeat
    std::vector<CIMInstance> none;
    first->swapObjectInstance(kControllers, none);  // present but empty
    second->addObjInstance(VEX_OBJ_JOB, drive("old job"));

    Cache::copyNewCachetoOldCache();
    EXPECT_EQ(storedStates(second), Ids({"OK", "first"}));
    EXPECT_TRUE(logged("VEX_CM_ENTRY_ALREADY_EXIST--Device Type:: 0"));
    // No add ever ran for the empty type, and nothing of the target is left.
    std::vector<CIMInstance> out;
    EXPECT_EQ(second->getRepositoryObject(kControllers, "", {}, false, out), VEX_CM_DEVTYPE_NOT_EXIST);
    EXPECT_EQ(second->getRepositoryObject(VEX_OBJ_JOB, "", {}, false, out), VEX_CM_DEVTYPE_NOT_EXIST);
}

// Awkward lists: keyless instances, keys missing from some instances, keys
// of another type or not flagged under the same name, several key-name lists.
CIMInstance randomInstance(std::mt19937& random) {
    auto pick = [&](unsigned n) { return static_cast<int>(random() % n); };
    CIMInstance instance;
    if (pick(5) != 0) {
        instance.addCimKeyBinding(stringKey("DeviceID", std::string(1, static_cast<char>('a' + pick(3)))));
    }
    switch (pick(4)) {
    case 0: instance.addCimKeyBinding(uint16Prop("Slot", static_cast<unsigned short>(pick(2)), true)); break;
    case 1: instance.addCimKeyBinding(stringKey("Slot", "1")); break;
    case 2: instance.addProperty(uint16Prop("Slot", 1)); break;
    default: break;
    }
    instance.addProperty(stringProp("State", std::to_string(random())));  // tells instances apart
    return instance;
}

TEST_F(CacheTest, CopyKeepsExactlyWhatRepeatedAddsKeep) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        std::vector<CIMInstance> list;
        for (unsigned i = 0, n = random() % 12 + 1; i < n; ++i) {
            list.push_back(randomInstance(random));
        }
        std::vector<CIMInstance> source = list;
        first->swapObjectInstance(kDrives, source);
        Cache::copyNewCachetoOldCache();

        first->flushCache();
        for (const CIMInstance& instance : list) {
            first->addObjInstance(kDrives, instance);
        }
        ASSERT_EQ(storedStates(second), storedStates(first)) << "round " << round;
    }
}

}  // namespace
}  // namespace vex::cim::fwf::test
