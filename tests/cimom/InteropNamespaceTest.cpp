// The profiles live in the interop namespace of the object manager that
// loaded the provider - root/PG_InterOp in OpenPegasus, root/interop in sfcb -
// and every reference to them, from either namespace, carries it; a system
// reached from a profile is where it is served.
#include <algorithm>

#include <cmpihost/CimomProfiles.h>

#include "cmpi/ProviderFixture.h"

namespace vex::cmpitest {
namespace {

using cmpihost::HostConfig;
using cmpihost::ObjectPath;
using cmpihost::Response;
using cmpihost::Value;

constexpr const char* kProfileID = "SNIA+Host Hardware RAID Controller+1.5.0";

struct Cimom {
    const char* name;
    HostConfig config;
    const char* interop;
};

class InteropNamespaceTest : public ProviderTest, public ::testing::WithParamInterface<Cimom> {
protected:
    void SetUp() override {
        ProviderTest::SetUp();
        useSystem("minimal.json");
        start(GetParam().config);
        cmpihost::addCimomProfiles(cimom().repository(), GetParam().config.flavor);
    }

    ObjectPath hostSystem() {
        Response r = cimom().enumerateInstanceNames(ObjectPath(kImplNs, "VEX_HostComputerSystem"));
        EXPECT_EQ(r.paths.size(), 1u) << r.status.toString();
        return r.paths.empty() ? ObjectPath() : r.paths.front();
    }

    ObjectPath profile() {
        ObjectPath path(GetParam().interop, "VEX_RegisteredProfile");
        path.addKey("InstanceID", Value::string(kProfileID));
        return path;
    }
};

TEST_P(InteropNamespaceTest, FromTheImplementationNamespaceTheProfileIsWhereItLives) {
    const ObjectPath host = hostSystem();
    Response profiles = cimom().associators(host, "VEX_HostComputerSystemConformsToProfile", {}, {}, {});
    ASSERT_TRUE(profiles.ok()) << profiles.status.toString();
    ASSERT_EQ(profiles.instances.size(), 1u);
    EXPECT_EQ(profiles.instances[0].nameSpace(), GetParam().interop);
    EXPECT_EQ(profiles.instances[0].className(), "VEX_RegisteredProfile");

    Response links = cimom().references(host, "VEX_HostComputerSystemConformsToProfile", {});
    ASSERT_TRUE(links.ok()) << links.status.toString();
    ASSERT_EQ(links.instances.size(), 1u);
    EXPECT_EQ(links.instances[0].nameSpace(), kImplNs);
    EXPECT_EQ(links.instances[0].property("ConformantStandard")->asRef().nameSpace, GetParam().interop);
    EXPECT_EQ(links.instances[0].property("ManagedElement")->asRef().nameSpace, kImplNs);

    Response back = cimom().getInstance(profiles.instances[0].path);
    ASSERT_TRUE(back.ok()) << back.status.toString();
    EXPECT_EQ(back.instances.at(0).nameSpace(), GetParam().interop);
}

TEST_P(InteropNamespaceTest, TheProfileLeadsToTheHostAndEveryController) {
    Response systems = cimom().associatorNames(profile(), "VEX_HostComputerSystemConformsToProfile", {}, {}, {});
    ASSERT_TRUE(systems.ok()) << systems.status.toString();
    ASSERT_EQ(systems.paths.size(), 1u);
    EXPECT_EQ(systems.paths[0].nameSpace, GetParam().interop);

    Response controllers = cimom().enumerateInstanceNames(ObjectPath(kImplNs, "VEX_ControllerComputerSystem"));
    Response conforming =
        cimom().associatorNames(profile(), "VEX_ControllerComputerSystemConformsToProfile", {}, {}, {});
    ASSERT_TRUE(conforming.ok()) << conforming.status.toString();
    EXPECT_FALSE(conforming.paths.empty());
    EXPECT_EQ(conforming.paths.size(), controllers.paths.size());
    for (const ObjectPath& controller : conforming.paths) {
        EXPECT_EQ(controller.className, "VEX_ControllerComputerSystem");
        Response back = cimom().getInstance(controller);
        EXPECT_TRUE(back.ok()) << controller.toString();
    }
}

// A client may use either name of the interop namespace; the answer names the
// one it asked.
TEST_P(InteropNamespaceTest, BothInteropNamesAreServed) {
    for (const char* ns : {"root/interop", "root/PG_InterOp"}) {
        Response subs = cimom().enumerateInstanceNames(ObjectPath(ns, "VEX_RegisteredSubProfile"));
        ASSERT_TRUE(subs.ok()) << ns << ": " << subs.status.toString();
        ASSERT_FALSE(subs.paths.empty());
        EXPECT_EQ(subs.paths[0].nameSpace, ns);
    }
}

// Neither object manager holds an SMI-S 1.5.0 profile of its own (the
// repository holds what each really has), so nothing points to one.
TEST_P(InteropNamespaceTest, NoLinkToAnObjectManagerProfileThatIsNotThere) {
    Response links = cimom().enumerateInstanceNames(ObjectPath(GetParam().interop, "VEX_ElementConformsToProfile"));
    ASSERT_TRUE(links.ok()) << links.status.toString();
    EXPECT_TRUE(links.paths.empty());
}

INSTANTIATE_TEST_SUITE_P(ObjectManagers, InteropNamespaceTest,
                         ::testing::Values(Cimom{"OpenPegasus", HostConfig::pegasus214(), "root/PG_InterOp"},
                                           Cimom{"sfcb", HostConfig::sfcb14(true, "root"), "root/interop"}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace vex::cmpitest
