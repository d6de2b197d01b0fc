// Writes: add, swap, modify, delete.
#include "CacheTestSupport.h"

namespace vex::cim::fwf::test {
namespace {

class CacheWrite : public CacheTest {
protected:
    void SetUp() override {
        CacheTest::SetUp();
        for (const char* id : {"0_1", "0_2"}) {
            ASSERT_EQ(first->addObjInstance(kDrives, drive(id)), VEX_CM_SUCCESS);
        }
    }
    Ids states() {
        std::vector<CIMInstance> list;
        first->getRepositoryObject(kDrives, "", {}, false, list);
        return valuesOf(list, "State");
    }
    unsigned int modify(const std::vector<CIMProperty>& keys, const std::string& state) {
        return first->modifyObjectInstance(kDrives, keys, {stringProp("State", state)});
    }
};

TEST_F(CacheWrite, AddRefusesTheSameKeysOnly) {
    EXPECT_EQ(first->addObjInstance(kDrives, drive("0_1", "Degraded")), VEX_CM_ENTRY_ALREADY_EXIST);
    EXPECT_TRUE(logged("VEX_CM_ENTRY_ALREADY_EXIST--Device Type:: 0"));
    EXPECT_EQ(states(), Ids({"OK", "OK"}));
    EXPECT_EQ(first->addObjInstance(kDrives, drive("0_3")), VEX_CM_SUCCESS);  // same non-keys
    EXPECT_EQ(storedIds(first, kDrives), Ids({"0_1", "0_2", "0_3"}));
}

TEST_F(CacheWrite, SwapExchangesListsButOnlyCopiesIntoAMissingType) {
    std::vector<CIMInstance> list{drive("1_1")};
    EXPECT_EQ(first->swapObjectInstance(kDrives, list), VEX_CM_SUCCESS);
    EXPECT_EQ(valuesOf(list, "DeviceID"), Ids({"0_1", "0_2"}));
    EXPECT_EQ(storedIds(first, kDrives), Ids({"1_1"}));

    std::vector<CIMInstance> twins{drive("c"), drive("c")};  // no identity check here
    EXPECT_EQ(first->swapObjectInstance(kControllers, twins), VEX_CM_SUCCESS);
    EXPECT_EQ(valuesOf(twins, "DeviceID"), Ids({"c", "c"}));  // left as it was
    EXPECT_EQ(storedIds(first, kControllers), Ids({"c", "c"}));
}

TEST_F(CacheWrite, ModifyChangesEveryMatchButAnswersForTheLastInstance) {
    EXPECT_EQ(modify({stringKey("DeviceID", "0_1")}, "Failed"), VEX_CM_ENTRY_NOT_EXISTS);
    EXPECT_TRUE(logged("VEX_CM_ENTRY_NOT_EXISTS Key don't matched"));
    EXPECT_EQ(states(), Ids({"Failed", "OK"}));  // changed all the same

    EXPECT_EQ(modify({stringKey("DeviceID", "0_2")}, "Rebuilding"), VEX_CM_SUCCESS);
    EXPECT_EQ(states(), Ids({"Failed", "Rebuilding"}));
    EXPECT_EQ(modify({}, "Gone"), VEX_CM_SUCCESS);
    EXPECT_EQ(states(), Ids({"Gone", "Gone"}));
}

TEST_F(CacheWrite, ModifyStopsAtAMissingPropertyKeepingEarlierChanges) {
    EXPECT_EQ(first->modifyObjectInstance(kDrives, {}, {stringProp("State", "X"), stringProp("No", "Y")}),
              VEX_CM_ENTRY_NOT_EXISTS);
    EXPECT_TRUE(logged("VEX_CM_ENTRY_NOT_EXISTS mod prop not found"));
    EXPECT_EQ(states(), Ids({"X", "OK"}));  // the second instance was never reached
}

TEST_F(CacheWrite, ModifyFillsTheStoredPropertysOwnType) {
    CIMInstance instance = drive("0_9");
    instance.addProperty(uint16Prop("Health", 5));
    ASSERT_EQ(first->addObjInstance(kDrives, instance), VEX_CM_SUCCESS);
    // Tagged uint32, carried in the uint16 slot: the stored tag decides.
    const CIMProperty change("Health", CIMValue<unsigned short>(20), false, CIM_UINT32, false);
    EXPECT_EQ(first->modifyObjectInstance(kDrives, {stringKey("DeviceID", "0_9")}, {change}),
              VEX_CM_SUCCESS);
    std::vector<CIMInstance> out;
    first->getRepositoryObject(kDrives, "", {stringKey("DeviceID", "0_9")}, false, out);
    EXPECT_EQ(out.at(0).getPropertyByName("Health")->getUint16Value().getValues(),
              std::vector<unsigned short>{20});
}

TEST_F(CacheWrite, DeleteTakesTheFirstMatchAndTheTypeWithItsLastInstance) {
    std::vector<CIMInstance> twins{drive("c", "first"), drive("c", "second")};
    first->swapObjectInstance(kControllers, twins);
    EXPECT_EQ(first->deleteObjectInstance(kControllers, {stringKey("DeviceID", "c")}), VEX_CM_SUCCESS);
    std::vector<CIMInstance> out;
    first->getRepositoryObject(kControllers, "", {}, false, out);
    EXPECT_EQ(valuesOf(out, "State"), Ids({"second"}));

    EXPECT_EQ(first->deleteObjectInstance(kDrives, {stringKey("DeviceID", "9")}), VEX_CM_ENTRY_NOT_EXISTS);
    EXPECT_TRUE(logged("VEX_CM_ENTRY_NOT_EXISTS--Device Type:: 0"));
    EXPECT_EQ(first->deleteObjectInstance(kDrives, {stringKey("DeviceID", "0_1")}), VEX_CM_SUCCESS);
    EXPECT_EQ(first->deleteObjectInstance(kDrives, {stringKey("DeviceID", "0_2")}), VEX_CM_SUCCESS);
    EXPECT_EQ(first->getRepositoryObject(kDrives, "", {}, false, out), VEX_CM_DEVTYPE_NOT_EXIST);
    EXPECT_EQ(first->modifyObjectInstance(kDrives, {}, {}), VEX_CM_DEVTYPE_NOT_EXIST);
    EXPECT_EQ(first->deleteObjectInstance(kDrives, {}), VEX_CM_DEVTYPE_NOT_EXIST);
    EXPECT_TRUE(logged("VEX_CM_DEVTYPE_NOT_EXIST--Device Type:: 0"));
}

}  // namespace
}  // namespace vex::cim::fwf::test
