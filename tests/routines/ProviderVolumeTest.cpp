// End to end through the object manager: a client creates a RAID 5 on the
// storage configuration service, follows its build job to the end, and finds
// the new volume and pool; spares go through the spare service; the service
// classes and their associations answer as their classes declare.
#include <gtest/gtest.h>

#include <cmpihost/Host.h>
#include <storlib/HardDrive.h>
#include <storlib/Simulator.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "ProviderFixture.h"

namespace vex::datapath {
namespace {

using cmpihost::Instance;
using cmpihost::ObjectPath;
using cmpihost::Response;
using cmpihost::Value;

constexpr const char* kSystem = R"({"controllers": [{"drives": [
  {"channel": 0, "device": 0, "sizeMB": 100000}, {"channel": 0, "device": 1, "sizeMB": 100000},
  {"channel": 0, "device": 2, "sizeMB": 100000}, {"channel": 0, "device": 3, "sizeMB": 100000},
  {"channel": 0, "device": 4, "sizeMB": 100000}]}]})";

class ProviderVolumeTest : public ProviderTest {
protected:
    void SetUp() override {
        m_file = std::filesystem::temp_directory_path() / ("routines-e2e-" + std::to_string(::getpid()) + ".json");
        std::ofstream(m_file) << kSystem;
        startOn(m_file.string());
    }
    void TearDown() override {
        ProviderTest::TearDown();
        std::filesystem::remove(m_file);
    }
    ObjectPath only(const std::string& className) {
        const std::vector<Instance> all = enumerate(className);
        EXPECT_EQ(all.size(), 1u) << className;
        return all.empty() ? ObjectPath() : all.front().path;
    }
    static ObjectPath extent(int device) {
        ObjectPath path(kImplNs, "VEX_PrimordialStorageExtent");
        path.addKey("SystemName", Value::string("vexController_0"));
        path.addKey("DeviceID", Value::string("0_0_" + std::to_string(device)));
        return path;
    }
    static Value refs(const std::vector<ObjectPath>& paths) {
        Value::Array items;
        for (const ObjectPath& p : paths) {
            items.push_back(Value::ref(p));
        }
        return Value::array(CMPI_ref, items);
    }

    std::filesystem::path m_file;
};

TEST_F(ProviderVolumeTest, ARaid5IsCreatedBuiltAndServedAsVolumeAndPool) {
    const ObjectPath service = only("VEX_StorageConfigurationService");
    Response created = cimom().invokeMethod(
        service, "CreateOrModifyStoragePool",
        {{"InExtents", refs({extent(0), extent(1), extent(2)})}, {"ElementName", Value::string("Data")}});
    ASSERT_TRUE(created.ok()) << created.status.toString();
    ASSERT_EQ(created.returnValue().asUnsigned(), 0u);
    ASSERT_NE(cmpihost::findNamed(created.outArgs, "Pool"), nullptr);

    // The controller builds it; the next provider life sees the job running.
    restart();
    ASSERT_EQ(enumerate("VEX_ConcreteJob").size(), 1u);
    ASSERT_EQ(enumerate("VEX_ConcreteStoragePool").size(), 1u);
    ASSERT_EQ(enumerate("VEX_StorageVolume").size(), 1u);
    storlib::Simulator(system().library()).finishAllTasks();
    storlib::Simulator(system().library()).advanceTime(301);  // the controller drops its ended tasks
    restart();
    EXPECT_TRUE(enumerate("VEX_ConcreteJob").empty());
    EXPECT_EQ(enumerate("VEX_StorageVolume").size(), 1u);

    // Case matters: this is no method of the service, answered 0 and nothing done.
    const Value pool = *cmpihost::findNamed(created.outArgs, "Pool");
    Response ignored = cimom().invokeMethod(only("VEX_StorageConfigurationService"), "deletestoragepool", {{"Pool", pool}});
    EXPECT_EQ(ignored.returnValue().asUnsigned(), 0u);
    EXPECT_NE(system().snapshot()->getObject(storlib::Addr::logicalDrive(0, 0)), nullptr);
    Response deleted = cimom().invokeMethod(only("VEX_StorageConfigurationService"), "DeleteStoragePool", {{"Pool", pool}});
    EXPECT_EQ(deleted.returnValue().asUnsigned(), 0u);
    EXPECT_EQ(system().snapshot()->getObject(storlib::Addr::logicalDrive(0, 0)), nullptr);
}

TEST_F(ProviderVolumeTest, TheServicesAreHostedByTheirControllerAndDescribeThemselves) {
    const ObjectPath controller = only("VEX_ControllerComputerSystem");
    for (const char* association : {"VEX_StorageConfigurationServiceHostedService", "VEX_HostedSpareConfigurationService",
                                    "VEX_SpareConfCapElementCapabilities"}) {
        Response linked = cimom().associatorNames(controller, std::string(association), {}, {}, {});
        ASSERT_TRUE(linked.ok()) << association << ": " << linked.status.toString();
        EXPECT_EQ(linked.paths.size(), 1u) << association;
    }
    Response capabilities = cimom().associators(only("VEX_StorageConfigurationService"),
                                                std::string("VEX_StorageConfigurationServiceElementCapabilities"), {},
                                                {}, {});
    ASSERT_TRUE(capabilities.ok());
    ASSERT_EQ(capabilities.instances.size(), 1u);
    const Value* asynchronous = capabilities.instances[0].property("SupportedAsynchronousActions");
    ASSERT_NE(asynchronous, nullptr);
    EXPECT_EQ(asynchronous->elements().size(), 6u);
}

TEST_F(ProviderVolumeTest, SparesAreAssignedThroughTheSpareService) {
    const ObjectPath spares = only("VEX_SpareConfigurationService");
    Response assigned = cimom().invokeMethod(spares, "AssignSpares", {{"InExtents", refs({extent(4)})}});
    ASSERT_TRUE(assigned.ok()) << assigned.status.toString();
    EXPECT_EQ(assigned.returnValue().asUnsigned(), 0u);
    const auto* drive = system().snapshot()->getObject(storlib::Addr::device(0, 0, 4));
    EXPECT_TRUE(drive->as<storlib::HardDrive>()->isSpare());
    EXPECT_NE(cimom().invokeMethod(spares, "NoSuchMethod").returnValue().asUnsigned(), 0u);

    // Without the root group the request never reaches the controller.
    cmpihost::CallOptions nobody;
    nobody.as(cmpihost::Principal::user("nobody"));
    Response denied = cimom().invokeMethod(spares, "UnassignSpares", {{"InExtents", refs({extent(4)})}}, nobody);
    EXPECT_EQ(denied.status.rc, CMPI_RC_ERR_ACCESS_DENIED);
    drive = system().snapshot()->getObject(storlib::Addr::device(0, 0, 4));
    EXPECT_TRUE(drive->as<storlib::HardDrive>()->isSpare());
}

}  // namespace
}  // namespace vex::datapath
