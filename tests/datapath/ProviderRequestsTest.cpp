// Gets that name no instance or name it badly, modifications, methods, and
// the start without controllers, through the loaded provider.
#include <storlib/Adapter.h>
#include <storlib/LogicalDrive.h>

#include "ProviderFixture.h"

namespace vex::datapath {
namespace {

using cmpihost::Instance;
using cmpihost::ObjectPath;
using cmpihost::Response;
using cmpihost::Value;

class ProviderRequestsTest : public ProviderTest {
protected:
    void SetUp() override { startOn(shippedSystem("demo.json")); }

    Instance first(const std::string& className) {
        std::vector<Instance> instances = enumerate(className);
        EXPECT_FALSE(instances.empty()) << className;
        return instances.empty() ? Instance() : instances.front();
    }

    Response modify(const ObjectPath& path, const std::string& property, Value value) {
        Instance changed(path);
        changed.set(property, std::move(value));
        return cimom().modifyInstance(path, changed, std::vector<std::string>{property});
    }

    const storlib::Adapter& controller(std::size_t index) {
        m_snapshot = system().snapshot();
        return *m_snapshot->getAdapter(index);
    }

private:
    std::shared_ptr<const storlib::SystemConfig> m_snapshot;
};

TEST_F(ProviderRequestsTest, GetThatNamesNoInstanceIsAnsweredEmpty) {
    ObjectPath drive = first("VEX_DiskDrive").path;
    ObjectPath unknown = drive;
    cmpihost::setNamed(unknown.keys, "DeviceID", Value::string("9_9_9"));
    ObjectPath wrongType = drive;
    cmpihost::setNamed(wrongType.keys, "DeviceID", Value::uint32(7));
    ObjectPath malformed(kImplNs, "VEX_DiskDriveView", {{"DDDeviceID", Value::string("x_y")}});
    for (const ObjectPath& path : {unknown, wrongType, malformed}) {
        Response got = cimom().getInstance(path);
        EXPECT_TRUE(got.ok()) << path.toString() << ": " << got.status.toString();
        EXPECT_TRUE(got.instances.empty()) << path.toString();
    }
    // Still serving, and a subset of the keys that names one drive finds it.
    ObjectPath byDeviceId(kImplNs, "VEX_DiskDrive", {{"DeviceID", *drive.key("DeviceID")}});
    Response got = cimom().getInstance(byDeviceId);
    ASSERT_TRUE(got.ok()) << got.status.toString();
    ASSERT_EQ(got.instances.size(), 1u);
    EXPECT_EQ(got.instances[0].path.keys, drive.keys);
}

TEST_F(ProviderRequestsTest, GetWhoseKeysNameSeveralInstancesFails) {
    ObjectPath noKeys(kImplNs, "VEX_DiskDrive");
    Response got = cimom().getInstance(noKeys);
    EXPECT_EQ(got.status.rc, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(got.status.message.value_or(""), "Key is not proper for  VEX_DiskDrive getInstance");
    EXPECT_TRUE(got.instances.empty());
}

TEST_F(ProviderRequestsTest, ReadOnlyClassRefusesModification) {
    Response r = modify(first("VEX_SESElement").path, "ElementDesc", Value::string("x"));
    EXPECT_EQ(r.status.rc, CMPI_RC_ERR_NOT_SUPPORTED) << r.status.toString();
}

// The new name reaches the controller; the cache shows it once it is read
// again (here: by the next start).
TEST_F(ProviderRequestsTest, PoolNameChangeReachesTheController) {
    const Instance pool = first("VEX_ConcreteStoragePool");
    Response r = modify(pool.path, "ElementName", Value::string("Archive"));
    ASSERT_TRUE(r.ok()) << r.status.toString();
    bool renamed = false;
    for (const storlib::RaidObject* object : storlib::FilterCollection(controller(0), "LogicalDrive")) {
        renamed = renamed || object->as<storlib::LogicalDrive>()->getName() == "Archive";
    }
    EXPECT_TRUE(renamed);
    restart();
    Response got = cimom().getInstance(pool.path);
    ASSERT_EQ(got.instances.size(), 1u) << got.status.toString();
    EXPECT_EQ(got.instances[0].property("ElementName")->asString(), "Archive");
}

TEST_F(ProviderRequestsTest, ControllerSettingThroughEitherClass) {
    const Instance system = first("VEX_ControllerComputerSystem");
    const bool copyBack = system.property("CopyBack")->asBool();
    ASSERT_TRUE(modify(system.path, "CopyBack", Value::boolean(!copyBack)).ok());
    EXPECT_EQ(controller(0).isCopyBackEnabled(), !copyBack);
    // The view names the stored property itself.
    const Instance view = first("VEX_ControllerView");
    ASSERT_TRUE(modify(view.path, "CSCopyBack", Value::boolean(copyBack)).ok());
    EXPECT_EQ(controller(0).isCopyBackEnabled(), copyBack);
}

TEST_F(ProviderRequestsTest, ControllerRefusalFailsTheModification) {
    const Instance system = first("VEX_ControllerComputerSystem");
    const Value* rate = system.property("GlobalMaxSASPhyLinkRate");
    ASSERT_NE(rate, nullptr);
    const auto before = controller(0).getGlobalMaxSASPhyLinkRate();
    Response r = modify(system.path, "GlobalMaxSASPhyLinkRate", Value::uint32(5));  // no SAS link rate
    EXPECT_EQ(r.status.rc, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(r.status.message.value_or(""), "Modify Instance Failed");
    EXPECT_EQ(controller(0).getGlobalMaxSASPhyLinkRate(), before);
}

// The method name is the routine name; a class without methods refuses.
TEST_F(ProviderRequestsTest, MethodsRunAsControllerRoutines) {
    Response listed = cimom().invokeMethod(first("VEX_EnclosureChassis").path, "getRoutineList");
    ASSERT_TRUE(listed.ok()) << listed.status.toString();
    EXPECT_EQ(listed.returnValue().asUnsigned(), 0u);
    ASSERT_NE(cmpihost::findNamed(listed.outArgs, "Routine_List"), nullptr);
    EXPECT_EQ(cimom().invokeMethod(first("VEX_Card").path, "NoSuchRoutine").status.rc, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(cimom().invokeMethod(first("VEX_DiskDrive").path, "getRoutineList").status.rc, CMPI_RC_ERR_FAILED);
}

}  // namespace
}  // namespace vex::datapath
