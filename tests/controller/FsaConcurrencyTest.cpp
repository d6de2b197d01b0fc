// Cache refreshes on the update thread while request threads enumerate,
// modify and run routines: every read is complete or empty-handed, never torn,
// and the cache ends as the controllers are.
#include <atomic>
#include <thread>

#include "FsaTestSupport.h"

namespace vex::cim::fwf::test {

namespace {

class FsaConcurrencyTest : public FsaTest {};

}  // namespace

TEST_F(FsaConcurrencyTest, RequestsRunWhileTheUpdateThreadRebuilds) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    const size_t drives = served(VEX_OBJ_PHYSICAL_DRIVE).size();
    std::atomic<bool> done{false};

    std::thread updater([&] {
        for (int i = 0; i < 15; ++i) {
            EXPECT_EQ(refresh(i % 3 == 2), 0u);
        }
        done = true;
    });
    auto reader = [&](_eVEXObjectType type, const char* prefix) {
        while (!done) {
            // As an enumeration does: wait for a build in progress, then read.
            TkzMutexLock(VexFSAInterface::getStorlibGuard());
            TkzMutexUnlock(VexFSAInterface::getStorlibGuard());
            for (const CIMInstance& instance : names(type, prefix)) {
                EXPECT_GE(instance.getPropertyCount(), 1u);
            }
            EXPECT_LE(fsa->controllerCount(), 2u);
        }
    };
    std::thread drivesReader(reader, VEX_OBJ_PHYSICAL_DRIVE, "DD");
    std::thread poolsReader(reader, VEX_OBJ_CONCRETE_POOL, "");
    std::thread modifier([&] {
        const std::vector<CIMProperty> key = {
            CIMProperty("SPInstanceID", CIMValue<std::string>("0_3"), true, CIM_STRING, false)};
        for (int i = 0; !done; ++i) {
            const std::string name = i % 2 ? "Scratch" : "Scratch2";
            EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONCRETE_POOL, key,
                                          {CIMProperty("SPElementName", CIMValue<std::string>(name), false, CIM_STRING,
                                                       false)}),
                      0u);
        }
    });
    std::thread caller([&] {
        CIMMethodParam out;
        while (!done) {
            EXPECT_EQ(fsa->execute(CIMObjectPath(), "getRoutineList", CIMMethodParam(), out), 0u);
            out.clearArgument();
        }
    });
    updater.join();
    drivesReader.join();
    poolsReader.join();
    modifier.join();
    caller.join();

    ASSERT_EQ(refresh(false), 0u);
    EXPECT_EQ(served(VEX_OBJ_PHYSICAL_DRIVE).size(), drives);
    EXPECT_EQ(served(VEX_OBJ_CONTROLLER).size(), 2u);
    EXPECT_EQ(served(VEX_OBJ_CONCRETE_POOL).size(), 5u);
}

}  // namespace vex::cim::fwf::test
