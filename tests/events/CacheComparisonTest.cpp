// The comparison of the cache with its state at the previous comparison:
// what appeared, disappeared or changed reaches the registered plug-ins.
#include <gtest/gtest.h>

#include "controller/VexCacheManager.h"
#include "events/FsaIfEventManager.h"
#include "events/FsaIfPluginManagr.h"
#include "framework/CIMValue.h"

namespace vex::eventstest {
namespace {

using namespace cim::fwf;

class Recorder : public EventObserver {
public:
    void EventNotify(_eVEXObjectType, _eVEXEventType event, std::string, std::vector<CIMProperty>& keys,
                     std::vector<CIMProperty>& changed) override {
        std::string line = std::to_string(event) + ":" + keys.at(0).getStringValue().getValues().at(0);
        for (const CIMProperty& p : changed) {
            line += ":" + p.getName();
        }
        heard.push_back(line);
    }
    std::vector<std::string> heard;
};

CIMInstance drive(const std::string& id, const std::string& status, const std::string& counter) {
    CIMInstance i;
    i.addProperty(CIMProperty("DDDeviceID", CIMValue<std::string>(id), true, CIM_STRING, true));
    i.addProperty(CIMProperty("DDOperationalStatus", CIMValue<std::string>(status), false, CIM_STRING, false));
    i.addProperty(CIMProperty("DDReadCount", CIMValue<std::string>(counter), false, CIM_STRING, false));
    return i;
}

TEST(CacheComparison, CreatedDeletedAndStatusChangesReachThePlugins) {
    VexCacheManager* cache = VexCacheManager::getInstance(true);
    ASSERT_NE(cache, nullptr);
    cache->deleteObjectInstance(VEX_OBJ_PHYSICAL_DRIVE, {});
    cache->addObjInstance(VEX_OBJ_PHYSICAL_DRIVE, drive("0_0_1", "OK", "1"));
    cache->addObjInstance(VEX_OBJ_PHYSICAL_DRIVE, drive("0_0_2", "OK", "1"));
    cache->addObjInstance(VEX_OBJ_PHYSICAL_DRIVE, drive("0_0_3", "OK", "1"));
    FsaIfEventManager& manager = *FsaIfEventManager::getInstance();
    manager.updateWholeOldCache();

    Recorder recorder;
    FsaIfPluginManagr::getInstance()->clear();
    FsaIfPluginManagr::getInstance()->pushPluginVec(VEX_OBJ_PHYSICAL_DRIVE, &recorder);
    cache->deleteObjectInstance(VEX_OBJ_PHYSICAL_DRIVE, {});
    cache->addObjInstance(VEX_OBJ_PHYSICAL_DRIVE, drive("0_0_1", "Error", "1"));
    cache->addObjInstance(VEX_OBJ_PHYSICAL_DRIVE, drive("0_0_2", "OK", "999"));  // counters are not a change
    cache->addObjInstance(VEX_OBJ_PHYSICAL_DRIVE, drive("0_0_4", "OK", "1"));
    manager.compareAllObjects();
    EXPECT_EQ(recorder.heard, (std::vector<std::string>{"2:0_0_1:DDOperationalStatus", "0:0_0_4", "1:0_0_3"}));

    recorder.heard.clear();
    manager.comparePdisks();  // nothing changed since
    EXPECT_TRUE(recorder.heard.empty());
    FsaIfPluginManagr::getInstance()->clear();
    cache->deleteObjectInstance(VEX_OBJ_PHYSICAL_DRIVE, {});
}

}  // namespace
}  // namespace vex::eventstest
