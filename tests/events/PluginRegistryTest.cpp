// The registry of change observers and how one change reaches them.
#include <gtest/gtest.h>

#include <stdexcept>

#include "events/FsaIfPluginManagr.h"
#include "framework/CIMValue.h"

namespace vex::eventstest {
namespace {

using namespace cim::fwf;

struct Heard {
    _eVEXObjectType type;
    _eVEXEventType event;
    std::vector<std::string> keys;  // "Name=value"
    std::size_t changed;
};

class Recorder : public EventObserver {
public:
    void EventNotify(_eVEXObjectType type, _eVEXEventType event, std::string timeStamp, std::vector<CIMProperty>& keys,
                     std::vector<CIMProperty>& changed) override {
        EXPECT_FALSE(timeStamp.empty());
        Heard h{type, event, {}, changed.size()};
        for (const CIMProperty& k : keys) {
            EXPECT_TRUE(k.isKey());
            h.keys.push_back(k.getName() + "=" + k.getStringValue().getValues().at(0));
        }
        heard.push_back(h);
    }
    std::vector<Heard> heard;
};

class PluginRegistryTest : public ::testing::Test {
protected:
    void SetUp() override { registry().clear(); }
    void TearDown() override { registry().clear(); }
    static FsaIfPluginManagr& registry() { return *FsaIfPluginManagr::getInstance(); }
};

TEST_F(PluginRegistryTest, SupportedTypesOnlyAndTwiceRegisteredHearsTwice) {
    Recorder drive;
    Recorder events;
    registry().pushPluginVec(VEX_OBJ_PHYSICAL_DRIVE, &drive);
    registry().pushPluginVec(VEX_OBJ_PHYSICAL_DRIVE, &drive);
    registry().pushPluginVec(VEX_OBJ_EVENT_INDICATION, &events);
    registry().pushPluginVec(VEX_OBJ_STORAGE_VOLUME, &events);
    EXPECT_EQ(registry().pluginCount(VEX_OBJ_EVENT_INDICATION), 0u);
    EXPECT_EQ(registry().pluginCount(VEX_OBJ_STORAGE_VOLUME), 0u);
    EventObserver* found = nullptr;
    EXPECT_TRUE(registry().peekPluginVec(VEX_OBJ_PHYSICAL_DRIVE, 1, found));
    EXPECT_EQ(found, &drive);
    EXPECT_THROW(registry().peekPluginVec(VEX_OBJ_PHYSICAL_DRIVE, 2, found), std::out_of_range);
    EXPECT_FALSE(registry().peekPluginVec(VEX_OBJ_EVENT_INDICATION, 0, found));

    std::vector<CIMProperty> changed{CIMProperty("DDStatus", CIMValue<std::string>("x"), false, CIM_STRING, false)};
    registry().deliverPdEventToPlugins(VEX_EVENT_MODIFIED, 0, 1, 3, changed);
    ASSERT_EQ(drive.heard.size(), 2u);
    EXPECT_EQ(drive.heard[0].keys, std::vector<std::string>{"DDDeviceID=0_1_3"});
    EXPECT_EQ(drive.heard[0].event, VEX_EVENT_MODIFIED);
    EXPECT_EQ(drive.heard[0].changed, 1u);
    EXPECT_TRUE(events.heard.empty());
}

TEST_F(PluginRegistryTest, EachKindNamesItsObjectByItsKeys) {
    Recorder r;
    for (auto type : {VEX_OBJ_CONTROLLER, VEX_OBJ_CONCRETE_POOL, VEX_OBJ_ENCLOSURE, VEX_OBJ_SES_ELEMENT, VEX_OBJ_JOB}) {
        registry().pushPluginVec(type, &r);
    }
    std::vector<CIMProperty> none;
    registry().deliverAdapterEventToPlugins(VEX_EVENT_CREATED, 2, none);
    registry().deliverContainerEventToPlugins(VEX_EVENT_DELETED, 1, 4, none);
    registry().deliverEnclEventToPlugins(VEX_EVENT_MODIFIED, "E0", none);
    registry().deliverSESElementEventToPlugins(VEX_EVENT_MODIFIED, "0_32", "0_32_3_1", none);
    std::vector<CIMProperty> jobKeys{CIMProperty("InstanceID", CIMValue<std::string>("0_1"), true, CIM_STRING, false)};
    registry().deliverJobProgressEventToPlugins(VEX_EVENT_MODIFIED, jobKeys, none);
    ASSERT_EQ(r.heard.size(), 5u);
    EXPECT_EQ(r.heard[0].keys, std::vector<std::string>{"CSName=vexController_2"});
    EXPECT_EQ(r.heard[1].keys, std::vector<std::string>{"SPInstanceID=1_4"});
    EXPECT_EQ(r.heard[2].keys, (std::vector<std::string>{"CreationClassName=VEX_Enclosure", "Tag=E0"}));
    EXPECT_EQ(r.heard[3].keys,
              (std::vector<std::string>{"SystemCreationClassName=VEX_EnclosureChasis", "SystemName=0_32",
                                        "CreationClassName=VEX_SESElement", "DeviceID=0_32_3_1"}));
    EXPECT_EQ(r.heard[4].keys, std::vector<std::string>{"InstanceID=0_1"});
    EXPECT_EQ(r.heard[4].type, VEX_OBJ_JOB);
}

}  // namespace
}  // namespace vex::eventstest
