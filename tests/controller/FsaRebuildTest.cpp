// The cache build in its four flag combinations: what a refresh erases,
// keeps and re-reads, and where a logical drive's pool goes.
#include <storlib/SystemConfig.h>

#include "FsaTestSupport.h"
#include "framework/LogCapture.h"

namespace vex::cim::fwf::test {

namespace {

class FsaRebuildTest : public FsaTest {
protected:
    // A setting as CreateSetting leaves it: only the InstanceID.
    static CIMInstance setting(const std::string& id) {
        CIMInstance instance;
        instance.addCimKeyBinding(CIMProperty("InstanceID", CIMValue<std::string>(id), true, CIM_STRING, false));
        return instance;
    }
    static void storeInBoth(_eVEXObjectType type, const CIMInstance& instance) {
        VexCacheManagerTestAccess::first()->addObjInstance(type, instance);
        VexCacheManagerTestAccess::second()->addObjInstance(type, instance);
    }
    std::vector<std::string> values(_eVEXObjectType type, const std::string& name) const {
        return valuesOf(served(type), name);
    }
};

// One controller, limit 1000 MiB: pool 0 over the limit without extended
// addressing, pool 1 under it, pool 2 over it with extended addressing.
const char* const kLimitSystem = R"({"controllers": [{
  "legacyLbaLimitMB": 1000,
  "drives": [{"channel": 0, "device": 0, "sizeMB": 572204}, {"channel": 0, "device": 1, "sizeMB": 572204}],
  "logicalDrives": [
    {"id": 0, "name": "Over", "raidLevel": "RAID1", "members": ["0:0", "0:1"], "dataSizeMB": 5000, "extendedLba": false},
    {"id": 1, "name": "Under", "raidLevel": "RAID1", "members": ["0:0", "0:1"], "dataSizeMB": 1000, "extendedLba": false},
    {"id": 2, "name": "Extended", "raidLevel": "RAID1", "members": ["0:0", "0:1"], "dataSizeMB": 5000, "extendedLba": true}]}]})";

// One controller and no drives.
const char* const kNoDrives = R"({"controllers": [{"model": "VEX-8160i"}]})";

}  // namespace

TEST_F(FsaRebuildTest, ALogicalDriveOverTheLimitWithoutTheFlagIsASourcePool) {
    ASSERT_EQ(start(writeSystem(kLimitSystem)), 0u);
    EXPECT_EQ(values(VEX_OBJ_SSP_POOL, "SPInstanceID"), Ids{"0_0"});
    EXPECT_EQ(values(VEX_OBJ_CONCRETE_POOL, "SPInstanceID"), (Ids{"0_1", "0_2"}));
    // Every logical drive is a volume whichever pool type it went to.
    EXPECT_EQ(values(VEX_OBJ_STORAGE_VOLUME, "SVDeviceID"), (Ids{"0_0", "0_1", "0_2"}));
}

TEST_F(FsaRebuildTest, ARefreshKeepsTheSettingsAndAStartFlushesThem) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    ASSERT_EQ(served(VEX_OBJ_VOLUME_SETTING).size(), 5u);
    storeInBoth(VEX_OBJ_PRIMORDIAL_SETTING, setting("made-by-CreateSetting"));
    storeInBoth(VEX_OBJ_CONCRETE_SETTING, setting("made-by-CreateSetting"));
    ASSERT_EQ(refresh(false), 0u);
    EXPECT_EQ(served(VEX_OBJ_VOLUME_SETTING).size(), 5u);
    EXPECT_EQ(values(VEX_OBJ_PRIMORDIAL_SETTING, "InstanceID"), Ids{"made-by-CreateSetting"});
    EXPECT_EQ(values(VEX_OBJ_CONCRETE_SETTING, "InstanceID"), Ids{"made-by-CreateSetting"});
    // A build without rebuild starts from an empty cache and reads type 15 anew.
    VexCacheManager::initCacheUpdate();
    ASSERT_EQ(fsa->initialize(false, false, false, false), 0u);
    VexCacheManager::exitCacheUpdate();
    EXPECT_EQ(readCode(VEX_OBJ_PRIMORDIAL_SETTING), VEX_CM_DEVTYPE_NOT_EXIST);
    EXPECT_EQ(served(VEX_OBJ_VOLUME_SETTING).size(), 5u);
}

TEST_F(FsaRebuildTest, AFullRefreshRebuildsEveryTypeOnceAndLeavesTheDrivesTypeInPlace) {
    ASSERT_EQ(start(writeSystem(kNoDrives)), 0u);
    EXPECT_EQ(readCode(VEX_OBJ_PHYSICAL_DRIVE), VEX_CM_DEVTYPE_NOT_EXIST);
    ASSERT_EQ(refresh(false), 0u);
    EXPECT_EQ(readCode(VEX_OBJ_PHYSICAL_DRIVE), VEX_CM_SUCCESS);
    EXPECT_EQ(served(VEX_OBJ_CONTROLLER).size(), 1u);

    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    const size_t drives = served(VEX_OBJ_PHYSICAL_DRIVE).size();
    clearLog();
    ASSERT_EQ(refresh(false), 0u);
    ASSERT_EQ(refresh(false), 0u);
    EXPECT_EQ(served(VEX_OBJ_PHYSICAL_DRIVE).size(), drives);
    EXPECT_EQ(served(VEX_OBJ_CONTROLLER).size(), 2u);
    EXPECT_EQ(served(VEX_OBJ_JOB).size(), 1u);
    for (const LoggedLine& line : loggedLines()) {
        EXPECT_EQ(line.text.find("ALREADY_EXIST"), std::string::npos) << line.text;
    }
}

TEST_F(FsaRebuildTest, APartialRefreshRereadsOnlyTheJobs) {
    simulatorOn(shippedSystem("demo.json"));
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    ASSERT_EQ(served(VEX_OBJ_JOB).size(), 1u);
    ASSERT_TRUE(library().setCopyBack(0, true).ok());
    ASSERT_TRUE(library().setLogicalDriveName(storlib::Addr::logicalDrive(0, 1), "Renamed").ok());
    ASSERT_TRUE(simulator().finishAllTasks().ok());
    ASSERT_TRUE(simulator().advanceTime(301).ok());  // the controller drops its ended tasks

    ASSERT_EQ(refresh(true), 0u);
    EXPECT_EQ(readCode(VEX_OBJ_JOB), VEX_CM_DEVTYPE_NOT_EXIST);
    const CIMInstance controller = withValue(served(VEX_OBJ_CONTROLLER), "CSName", "vexController_0");
    EXPECT_FALSE(property(controller, "CSCopyBack").getBoolValue().getValues().at(0));
    withValue(served(VEX_OBJ_CONCRETE_POOL), "SPElementName", "Data");

    ASSERT_EQ(refresh(false), 0u);
    const CIMInstance reread = withValue(served(VEX_OBJ_CONTROLLER), "CSName", "vexController_0");
    EXPECT_TRUE(property(reread, "CSCopyBack").getBoolValue().getValues().at(0));
    withValue(served(VEX_OBJ_CONCRETE_POOL), "SPElementName", "Renamed");
}

TEST_F(FsaRebuildTest, APartialRefreshShowsTheProgressOfRunningTasks) {
    simulatorOn(shippedSystem("demo.json"));
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    const auto before = served(VEX_OBJ_JOB);
    ASSERT_EQ(before.size(), 1u);
    ASSERT_TRUE(simulator().advanceTime(60).ok());
    ASSERT_EQ(refresh(true), 0u);
    const auto after = served(VEX_OBJ_JOB);
    ASSERT_EQ(after.size(), 1u);
    EXPECT_EQ(text(after[0], "InstanceID"), text(before[0], "InstanceID"));
    EXPECT_GT(property(after[0], "PercentComplete").getUint16Value().getValues().at(0),
              property(before[0], "PercentComplete").getUint16Value().getValues().at(0));
}

}  // namespace vex::cim::fwf::test
