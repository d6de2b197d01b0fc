// Instance requests through the adapter on a controller-less start: the
// profile and host classes are served, every other class is refused.
#include "ProviderFixture.h"

namespace vex::cmpitest {
namespace {

using cmpihost::ObjectPath;
using cmpihost::Response;

class ProviderInstanceTest : public ProviderTest {
protected:
    void SetUp() override {
        ProviderTest::SetUp();
        start();
    }
};

TEST_F(ProviderInstanceTest, ClassNamesAreFoundInAnyCase) {
    Response proper = cimom().enumerateInstanceNames({kInteropNs, "VEX_RegisteredProfile"});
    Response lower = cimom().enumerateInstanceNames({kInteropNs, "vex_registeredprofile"});
    ASSERT_TRUE(proper.ok()) << proper.status.toString();
    ASSERT_TRUE(lower.ok()) << lower.status.toString();
    EXPECT_FALSE(proper.paths.empty());
    EXPECT_EQ(proper.paths.size(), lower.paths.size());
    EXPECT_EQ(proper.doneCount, 1);
    EXPECT_TRUE(loggedAt(5, "CMPIAdapter::EnumInstanceNames ClassName:vex_registeredprofile"));
}

TEST_F(ProviderInstanceTest, WithoutControllersOtherClassesAreInvalid) {
    for (const char* cls : {"VEX_StorageVolume", "VEX_ControllerComputerSystem"}) {
        Response r = cimom().enumerateInstances({kImplNs, cls});
        EXPECT_EQ(r.status.rc, CMPI_RC_ERR_INVALID_CLASS) << cls << ": " << r.status.toString();
        EXPECT_TRUE(r.instances.empty());
    }
    EXPECT_TRUE(cimom().enumerateInstances({kImplNs, "VEX_HostComputerSystem"}).ok());
}

// Only the implementation namespace and the interop ones are served, each
// with its own classes; anything else is an invalid namespace or class.
TEST_F(ProviderInstanceTest, NamespacesAndClassesOutsideTheRegistrationAreRefused) {
    for (const char* ns : {"root/cimv2", "root/tkz/vex", ""}) {
        Response r = cimom().enumerateInstanceNames({ns, "VEX_HostComputerSystem"});
        EXPECT_TRUE(hasStatus(r, CMPI_RC_ERR_INVALID_NAMESPACE, " :: Invalid namespace")) << ns;
        EXPECT_EQ(cimom().getInstance({ns, "VEX_HostComputerSystem"}).status.rc, CMPI_RC_ERR_INVALID_NAMESPACE);
    }
    const struct {
        const char* ns;
        const char* cls;
    } refused[] = {{kImplNs, "VEX_RegisteredProfile"}, {kInteropNs, "VEX_ApplicationSoftwareIdentity"},
                   {kImplNs, "VEX_NoSuchClass"}};
    for (const auto& c : refused) {
        Response r = cimom().enumerateInstances({c.ns, c.cls});
        EXPECT_TRUE(hasStatus(r, CMPI_RC_ERR_INVALID_CLASS, " :: Invalid class")) << c.ns << ":" << c.cls;
    }
    for (const char* ns : {kImplNs, kInteropNs, "root/interop"}) {
        EXPECT_TRUE(cimom().enumerateInstanceNames({ns, "VEX_HostComputerSystem"}).ok()) << ns;
    }
}

TEST_F(ProviderInstanceTest, PathWithoutClassNameIsRefused) {
    Response r = cimom().enumerateInstanceNames({kImplNs, ""});
    EXPECT_TRUE(hasStatus(r, CMPI_RC_ERR_FAILED, "Failed to convert CMPI ObjectPath to CIM ObjectPath"));
    EXPECT_TRUE(loggedAt(2, "Failed to convert CMPI ObjectPath to CIM ObjectPath"));
}

TEST_F(ProviderInstanceTest, PropertyListFiltersWhatIsReturned) {
    Response r = cimom().enumerateInstances({kInteropNs, "VEX_RegisteredProfile"},
                                            std::vector<std::string>{"registeredname"});
    ASSERT_TRUE(r.ok()) << r.status.toString();
    ASSERT_FALSE(r.instances.empty());
    for (const cmpihost::Instance& instance : r.instances) {
        ASSERT_EQ(instance.properties.size(), 1u) << instance.path.toString();
        EXPECT_EQ(instance.properties[0].name, "RegisteredName");
        EXPECT_NE(instance.path.key("InstanceID"), nullptr);
    }
    Response got = cimom().getInstance(r.instances.front().path, std::vector<std::string>{});
    ASSERT_TRUE(got.ok()) << got.status.toString();
    ASSERT_EQ(got.instances.size(), 1u);
    EXPECT_TRUE(got.instances.front().properties.empty());
}

TEST_F(ProviderInstanceTest, CreateAndDeleteChangeNothing) {
    ObjectPath cls(kInteropNs, "VEX_RegisteredProfile");
    Response before = cimom().enumerateInstanceNames(cls);
    ASSERT_FALSE(before.paths.empty());

    Response created = cimom().createInstance(cls, cmpihost::Instance(before.paths.front()));
    EXPECT_TRUE(hasStatus(created, CMPI_RC_OK, ""));
    EXPECT_TRUE(created.paths.empty());
    EXPECT_EQ(created.doneCount, 1);
    Response deleted = cimom().deleteInstance(before.paths.front());
    EXPECT_TRUE(hasStatus(deleted, CMPI_RC_OK, ""));

    EXPECT_EQ(cimom().enumerateInstanceNames(cls).paths.size(), before.paths.size());
}

}  // namespace
}  // namespace vex::cmpitest
