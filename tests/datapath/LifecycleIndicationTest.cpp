// Cache changes handed to a cached plug-in become life-cycle indications,
// delivered through the facade's indication callback.
#include <mutex>

#include "InProcessFixture.h"
#include "framework/EventObserver.h"
#include "framework/PropertyBuilders.h"

namespace vex::datapath {
namespace {

using cim::fwf::CIMInstance;
using cim::fwf::CIMProperty;
using cim::fwf::EventObserver;

std::mutex gDeliveredMutex;
std::vector<CIMInstance> gDelivered;

bool collect(CIMInstance& indication) {
    std::lock_guard<std::mutex> lock(gDeliveredMutex);
    gDelivered.push_back(indication);
    return true;
}

class LifecycleIndicationTest : public ::testing::Test {
protected:
    void SetUp() override {
        gDelivered.clear();
        ASSERT_TRUE(facade().registerForEvent(&collect));
    }
    void TearDown() override { facade().deRegisterForEvent(); }

    // Tells the plug-in of className that the drive driveId had the event.
    std::vector<CIMInstance> notify(const std::string& className, cim::fwf::_eVEXObjectType type,
                                    cim::fwf::_eVEXEventType event, std::vector<CIMProperty> keys) {
        auto* observer = dynamic_cast<EventObserver*>(facade().getPlugIn(className));
        EXPECT_NE(observer, nullptr) << className;
        std::vector<CIMProperty> changed;
        if (observer != nullptr) {
            observer->EventNotify(type, event, "1/2/2024 10:00:00", keys, changed);
        }
        return gDelivered;
    }

    static std::vector<CIMProperty> driveKey(const std::string& id) {
        return {cim::fwf::stringProperty("DDDeviceID", id, true)};
    }

    static const CIMProperty* find(const CIMInstance& instance, const std::string& name) {
        return instance.getPropertyByName(name);
    }
};

TEST_F(LifecycleIndicationTest, CreationCarriesTheClassInstance) {
    const std::string id = cim::fwf::stringValueOf(enumerateThroughFacade("VEX_DiskDrive").front(), "DeviceID");
    const auto sent = notify("VEX_DiskDrive", cim::fwf::VEX_OBJ_PHYSICAL_DRIVE, cim::fwf::VEX_EVENT_CREATED, driveKey(id));
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].getClassName(), "CIM_InstCreation");
    EXPECT_EQ(sent[0].getNameSpace(), "root/tkz/vex/smi_15");
    ASSERT_NE(find(sent[0], "SourceInstance"), nullptr);
    const CIMInstance source = find(sent[0], "SourceInstance")->getInstanceValue().getValues().at(0);
    EXPECT_EQ(source.getClassName(), "VEX_DiskDrive");
    EXPECT_EQ(cim::fwf::stringValueOf(source, "DeviceID"), id);
    EXPECT_EQ(source.getPropertyByName("DDDeviceID"), nullptr);  // the class's part only
    EXPECT_EQ(find(sent[0], "PerceivedSeverity")->getUint16Value().getValues().at(0), 6);
}

TEST_F(LifecycleIndicationTest, ViewClassCarriesTheWholeInstance) {
    const std::string id = cim::fwf::stringValueOf(enumerateThroughFacade("VEX_DiskDriveView").back(), "DDDeviceID");
    const auto sent = notify("VEX_DiskDriveView", cim::fwf::VEX_OBJ_PHYSICAL_DRIVE, cim::fwf::VEX_EVENT_MODIFIED, driveKey(id));
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].getClassName(), "CIM_InstModification");
    const CIMInstance source = find(sent[0], "SourceInstance")->getInstanceValue().getValues().at(0);
    EXPECT_EQ(cim::fwf::stringValueOf(source, "DDDeviceID"), id);
}

TEST_F(LifecycleIndicationTest, DeletionNamesTheObjectWithoutLookingItUp) {
    const auto sent = notify("VEX_DiskDrive", cim::fwf::VEX_OBJ_PHYSICAL_DRIVE, cim::fwf::VEX_EVENT_DELETED, driveKey("0_5_77"));
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].getClassName(), "CIM_InstDeletion");
    EXPECT_EQ(find(sent[0], "SourceInstance"), nullptr);
    EXPECT_NE(cim::fwf::stringValueOf(sent[0], "SourceInstanceModelPath").find("DeviceID=\"0_5_77\""), std::string::npos);
}

TEST_F(LifecycleIndicationTest, CreationOfAnObjectNotInTheCacheSendsNothing) {
    EXPECT_TRUE(notify("VEX_DiskDrive", cim::fwf::VEX_OBJ_PHYSICAL_DRIVE, cim::fwf::VEX_EVENT_CREATED, driveKey("7_7_7")).empty());
    EXPECT_GT(loggedCount("Empty instance vector"), 0);
}

// A finished job is indicated as deleted even though no completed-job class
// keeps its record yet; events of kind 4 are not indicated.
TEST_F(LifecycleIndicationTest, JobDeletionIsIndicated) {
    std::vector<CIMProperty> key{cim::fwf::stringProperty("InstanceID", "0_1", true)};
    EXPECT_TRUE(notify("VEX_ConcreteJob", cim::fwf::VEX_OBJ_JOB, static_cast<cim::fwf::_eVEXEventType>(4), key).empty());
    const auto sent = notify("VEX_ConcreteJob", cim::fwf::VEX_OBJ_JOB, cim::fwf::VEX_EVENT_DELETED, key);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].getClassName(), "CIM_InstDeletion");
    EXPECT_GT(loggedCount("Failed to get plugin for Completed Job Object"), 0);
}

}  // namespace
}  // namespace vex::datapath
