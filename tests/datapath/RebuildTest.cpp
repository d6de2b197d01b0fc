// Enumerations while the cache is rebuilt: readers never see a partial list,
// the settings the controllers cannot give back survive every rebuild, and a
// change made through a modification shows once the cache is refreshed.
#include <atomic>
#include <thread>

#include "InProcessFixture.h"
#include "controller/VexCacheManager.h"
#include "framework/PropertyBuilders.h"

namespace vex::datapath {
namespace {

using cim::fwf::CIMInstance;
using cim::fwf::CIMObjectPath;
using cim::fwf::VexCacheManager;

TEST(RebuildTest, EnumerationsDuringARebuildStormAreComplete) {
    const std::size_t drives = enumerateThroughFacade("VEX_DiskDrive").size();
    const std::size_t phys = enumerateThroughFacade("VEX_InitiatorSASPhy").size();
    ASSERT_GT(drives, 0u);
    ASSERT_GT(phys, 0u);
    std::atomic<bool> storming{true};
    std::atomic<int> incomplete{0};
    std::atomic<int> reads{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 2; ++i) {
        threads.emplace_back([&] {
            for (int cycle = 0; cycle < 25; ++cycle) {
                EXPECT_EQ(refreshCycle(cycle % 3 == 2), 0u);
            }
        });
    }
    for (int i = 0; i < 3; ++i) {
        threads.emplace_back([&, i] {
            while (storming.load() || reads.load() < 20) {
                const char* cls = i == 0 ? "VEX_InitiatorSASPhy" : "VEX_DiskDrive";
                const std::size_t expected = i == 0 ? phys : drives;
                incomplete += enumerateThroughFacade(cls).size() == expected ? 0 : 1;
                ++reads;
            }
        });
    }
    threads[0].join();
    threads[1].join();
    storming = false;
    for (std::size_t i = 2; i < threads.size(); ++i) {
        threads[i].join();
    }
    EXPECT_EQ(incomplete.load(), 0) << "of " << reads.load() << " reads";
}

// A setting as CreateSetting stores it: in both repositories.
void storeSetting(cim::fwf::_eVEXObjectType type, const std::string& id) {
    CIMInstance setting;
    setting.addCimKeyBinding(cim::fwf::stringProperty("InstanceID", id, true));
    setting.addProperty(cim::fwf::stringProperty("ElementName", "made by CreateSetting"));
    for (bool current : {true, false}) {
        ASSERT_EQ(VexCacheManager::getInstance(current)->addObjInstance(type, setting), 0u);
    }
}

TEST(RebuildTest, SettingsSurviveRebuilds) {
    storeSetting(cim::fwf::VEX_OBJ_PRIMORDIAL_SETTING, "PrimordialSetting_1");
    storeSetting(cim::fwf::VEX_OBJ_CONCRETE_SETTING, "ConcreteSetting_1");
    const char* const classes[] = {"VEX_PrimordialFixedStorageSettings", "VEX_PrimordialGeneratedStorageSettings",
                                   "VEX_ConcreteGeneratedStorageSettings"};
    std::vector<std::size_t> before;
    for (const char* cls : classes) {
        before.push_back(enumerateThroughFacade(cls).size());
        EXPECT_GT(before.back(), 0u) << cls;
    }
    ASSERT_EQ(refreshCycle(false), 0u);
    ASSERT_EQ(refreshCycle(true), 0u);
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(enumerateThroughFacade(classes[i]).size(), before[i]) << classes[i];
    }
}

TEST(RebuildTest, ModifiedPoolShowsAfterTheRefresh) {
    std::vector<CIMInstance> pools = enumerateThroughFacade("VEX_ConcreteStoragePool");
    ASSERT_FALSE(pools.empty());
    CIMObjectPath path = pools.back().getPath();
    CIMInstance changed;
    changed.addProperty(cim::fwf::stringProperty("ElementName", "Scratch"));
    std::vector<std::string> names{"ElementName"};
    facade().modifyInstance(path, changed, names);
    ASSERT_EQ(refreshCycle(false), 0u);
    std::vector<CIMInstance> got;
    facade().getCIMInstance(path, got);
    ASSERT_EQ(got.size(), 1u);
    EXPECT_EQ(cim::fwf::stringValueOf(got[0], "ElementName"), "Scratch");
}

}  // namespace
}  // namespace vex::datapath
