// Cache changes handed to a cached plug-in become life-cycle indications,
// delivered through the facade's indication callback.
#include "InProcessFixture.h"
#include "framework/EventObserver.h"
#include "framework/PropertyBuilders.h"

namespace vex::datapath {
namespace {

using namespace cim::fwf;

std::vector<CIMInstance> gDelivered;  // the callback runs on the notifying thread

bool collect(CIMInstance& indication) {
    gDelivered.push_back(indication);
    return true;
}

class LifecycleIndicationTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(facade().registerForEvent(&collect)); }
    void TearDown() override { facade().deRegisterForEvent(); }

    static CIMProperty driveKey(const std::string& id) { return stringProperty("DDDeviceID", id, true); }

    // What the plug-in of className sends for one event about the object keyed by key.
    std::vector<CIMInstance> notify(const std::string& className, _eVEXObjectType type, int event, CIMProperty key) {
        gDelivered.clear();
        std::vector<CIMProperty> keys{std::move(key)}, changed;
        dynamic_cast<EventObserver&>(*facade().getPlugIn(className))
            .EventNotify(type, static_cast<_eVEXEventType>(event), "1/2/2024 10:00:00", keys, changed);
        return gDelivered;
    }
};

TEST_F(LifecycleIndicationTest, CreationCarriesTheClassPartOfTheCachedObject) {
    const std::string id = stringValueOf(enumerateThroughFacade("VEX_DiskDrive").front(), "DeviceID");
    const auto sent = notify("VEX_DiskDrive", VEX_OBJ_PHYSICAL_DRIVE, VEX_EVENT_CREATED, driveKey(id));
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].getClassName(), "CIM_InstCreation");
    EXPECT_EQ(sent[0].getNameSpace(), "root/tkz/vex/smi_15");
    EXPECT_EQ(sent[0].getPropertyByName("PerceivedSeverity")->getUint16Value().getValues().at(0), 6);
    const CIMInstance source = sent[0].getPropertyByName("SourceInstance")->getInstanceValue().getValues().at(0);
    EXPECT_EQ(source.getClassName(), "VEX_DiskDrive");
    EXPECT_EQ(stringValueOf(source, "DeviceID"), id);
    EXPECT_EQ(source.getPropertyByName("DDDeviceID"), nullptr);
    // An object the cache does not hold is not indicated.
    EXPECT_TRUE(notify("VEX_DiskDrive", VEX_OBJ_PHYSICAL_DRIVE, VEX_EVENT_CREATED, driveKey("7_7_7")).empty());
}

// A deletion names the object without reading the cache; a finished job is
// indicated and kept as a completed-job record, and job events of kind 4 are
// not indicated.
TEST_F(LifecycleIndicationTest, DeletionNamesTheObject) {
    const auto sent = notify("VEX_DiskDrive", VEX_OBJ_PHYSICAL_DRIVE, VEX_EVENT_DELETED, driveKey("0_5_77"));
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].getClassName(), "CIM_InstDeletion");
    EXPECT_EQ(sent[0].getPropertyByName("SourceInstance"), nullptr);
    EXPECT_NE(stringValueOf(sent[0], "SourceInstanceModelPath").find("DeviceID=\"0_5_77\""), std::string::npos);
    const CIMProperty job = stringProperty("InstanceID", "0_1", true);
    EXPECT_TRUE(notify("VEX_ConcreteJob", VEX_OBJ_JOB, 4, job).empty());
    EXPECT_EQ(notify("VEX_ConcreteJob", VEX_OBJ_JOB, VEX_EVENT_DELETED, job).size(), 1u);
    bool kept = false;
    for (const CIMInstance& done : enumerateThroughFacade("VEX_CompletedJob")) {
        kept = kept || (stringValueOf(done, "InstanceID") == "0_1" &&
                        stringValueOf(done, "JobStatus") == "Failed");
    }
    EXPECT_TRUE(kept);
}

}  // namespace
}  // namespace vex::datapath
