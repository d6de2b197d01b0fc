// ModifyInstance through the controller interface: changed controller and
// logical drive properties reach the controller, the refresh event follows,
// and the next build shows the change.
#include <storlib/LogicalDrive.h>
#include <storlib/SystemConfig.h>

#include "FsaTestSupport.h"
#include "framework/LogCapture.h"

namespace vex::cim::fwf::test {

namespace {

CIMProperty stringValue(const std::string& name, const std::string& value, bool key = false) {
    return CIMProperty(name, CIMValue<std::string>(value), key, CIM_STRING, false);
}
CIMProperty uintValue(const std::string& name, unsigned value) {
    return CIMProperty(name, CIMValue<unsigned>(value), false, CIM_UINT32, false);
}
CIMProperty boolValue(const std::string& name, bool value) {
    return CIMProperty(name, CIMValue<bool>(value), false, CIM_BOOLEAN, false);
}

class FsaModifyTest : public FsaTest {
protected:
    void SetUp() override {
        FsaTest::SetUp();
        simulatorOn(shippedSystem("demo.json"));
        ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
        FsaEventLink link;
        link.postPollEvent = [this](unsigned int bits) { posted.push_back(bits); };
        fsa->setEventLink(link);
        clearLog();
    }
    const storlib::LogicalDrive& logicalDrive(uint32_t controller, uint32_t id) {
        snapshot = library().getSystemConfig();
        return *snapshot->getObject(storlib::Addr::logicalDrive(controller, id))->as<storlib::LogicalDrive>();
    }
    const storlib::Adapter& adapter(uint32_t controller) {
        snapshot = library().getSystemConfig();
        return *snapshot->getAdapter(controller);
    }
    const std::vector<CIMProperty> pool1 = {stringValue("SPInstanceID", "0_1", true)};
    const std::vector<CIMProperty> controller0 = {stringValue("CSName", "vexController_0", true)};
    std::vector<unsigned int> posted;
    std::shared_ptr<const storlib::SystemConfig> snapshot;
};

}  // namespace

TEST_F(FsaModifyTest, ARenameReachesTheControllerAndShowsAfterTheNextRefresh) {
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONCRETE_POOL, pool1, {stringValue("SPElementName", "Renamed")}), 0u);
    EXPECT_TRUE(logged("fsaifChangeLDName succeeded"));
    EXPECT_EQ(logicalDrive(0, 1).getName(), "Renamed");
    EXPECT_EQ(posted, std::vector<unsigned int>{FSA_POLL_REFRESH});
    withValue(served(VEX_OBJ_CONCRETE_POOL), "SPElementName", "Data");
    ASSERT_EQ(refresh(false), 0u);
    withValue(served(VEX_OBJ_CONCRETE_POOL), "SPElementName", "Renamed");
}

TEST_F(FsaModifyTest, AGroupMemberThatWasNotSentIsTakenFromTheCache) {
    const storlib::ReadCacheMode read = logicalDrive(0, 1).getReadCacheMode();
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONCRETE_POOL, pool1, {uintValue("SPWriteCacheMode", 0)}), 0u);
    EXPECT_TRUE(logged("fsaifSetLDCache succeeded"));
    EXPECT_EQ(logicalDrive(0, 1).getWriteCacheMode(), storlib::WriteCacheMode::WriteThrough);
    EXPECT_EQ(logicalDrive(0, 1).getReadCacheMode(), read);

    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONTROLLER, controller0, {uintValue("CSStayAwakeStart", 7)}), 0u);
    EXPECT_TRUE(logged("fsaifSetPMStayAwakePeriod succeeded"));
    EXPECT_EQ(adapter(0).getStayAwakeStart(), 7u);
    EXPECT_EQ(adapter(0).getStayAwakeStop(), 0u);
}

TEST_F(FsaModifyTest, ControllerSettingsReachTheControllerAndLogTheirWrapper) {
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONTROLLER, controller0,
                                  {boolValue("CSCopyBack", true), uintValue("CSBackgroundConsistencyCheckPeriod", 14)}),
              0u);
    EXPECT_TRUE(logged("fsaifSetCopyBack succeeded"));
    EXPECT_TRUE(logged("fsaifBgConsistencyCheckRate succeeded"));
    EXPECT_TRUE(adapter(0).isCopyBackEnabled());
    EXPECT_EQ(adapter(0).getBackgroundConsistencyCheckPeriod(), 14u);
    // Settings the client did not name are left alone.
    EXPECT_FALSE(logged("fsaifSetSataNCQ succeeded"));
    ASSERT_EQ(refresh(false), 0u);
    EXPECT_TRUE(property(withValue(served(VEX_OBJ_CONTROLLER), "CSName", "vexController_0"), "CSCopyBack")
                    .getBoolValue().getValues().at(0));
}

TEST_F(FsaModifyTest, ARefusalIsLoggedAsFailedAndStillPostsARefresh) {
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONTROLLER, controller0, {uintValue("CSPerfMode", 99)}),
              unsigned{FSAIF_FW_FAILURE});
    EXPECT_TRUE(logged("fsaifSetPerformanceMode failed"));
    EXPECT_EQ(posted.size(), 1u);
}

TEST_F(FsaModifyTest, AValueNeitherSentNorCachedAbortsWithoutCallingTheController) {
    const std::vector<CIMProperty> unknownPool = {stringValue("SPInstanceID", "0_9", true)};
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONCRETE_POOL, unknownPool, {uintValue("SPVerifytimer", 5)}),
              unsigned{FSAIF_CACHE_OBJECT_NOT_FOUND});
    EXPECT_TRUE(logged("! Failed to get 'SPPowerOfftimer' from cache; Op aborted."));
    EXPECT_FALSE(logged("fsaifSetPMTimers failed"));
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONCRETE_POOL, {}, {uintValue("SPVerifytimer", 5)}),
              unsigned{FSAIF_INVALID_OBJECT_REF});
    EXPECT_TRUE(logged("Failed to get Instance ID, Can not continue"));
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONCRETE_POOL, pool1, {stringValue("SPIsAFastTier3", "maybe")}),
              unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(logged("No valid data for isfasttier3"));
}

TEST_F(FsaModifyTest, OtherTypesAreAnsweredWithoutTheController) {
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_STORAGE_VOLUME, {}, {stringValue("SVElementName", "x")}), 0u);
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_PHYSICAL_DRIVE, {}, {}), 0u);
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_ENCLOSURE, {}, {}), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_EQ(fsa->modifyInstance(static_cast<_eVEXObjectType>(-1), {}, {}), unsigned{FSAIF_INVALID_PARAM});
    EXPECT_TRUE(posted.empty());
}

TEST_F(FsaModifyTest, WithoutALibraryHandleTheCodeIsTwentyOne) {
    fsa->terminate();
    EXPECT_EQ(fsa->modifyInstance(VEX_OBJ_CONTROLLER, controller0, {boolValue("CSCopyBack", true)}), 21u);
    EXPECT_TRUE(logged("FSAIF_UNLISTED_ERROR"));
    EXPECT_EQ(posted.size(), 1u);
}

}  // namespace vex::cim::fwf::test
