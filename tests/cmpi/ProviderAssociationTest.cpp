// Association requests: a named association class serves alone (nothing when
// the source is at neither end), an unnamed one is found among the served
// associations; and the walk a management client makes from the interop
// namespace to the host system.
#include <algorithm>

#include "ProviderFixture.h"

namespace vex::cmpitest {
namespace {

using cmpihost::ObjectPath;
using cmpihost::Response;
using cmpihost::Value;

const ObjectPath kProfiles(kInteropNs, "VEX_RegisteredProfile");

class ProviderAssociationTest : public ProviderTest {
protected:
    void SetUp() override {
        ProviderTest::SetUp();
        start();
        // The object manager's own SMI-S profile, looked up at initialisation.
        cimom().repository().addPath(smisProfile());
    }

    static ObjectPath smisProfile() {
        ObjectPath path(kInteropNs, "PG_RegisteredProfile");
        path.addKey("InstanceID", Value::string("SNIA+SMI-S+1.5.0"));
        return path;
    }

    // The provider's own profile, as a client finds it.
    ObjectPath raidProfile() {
        Response r = cimom().enumerateInstanceNames(kProfiles);
        for (const ObjectPath& path : r.paths) {
            const Value* id = path.key("InstanceID");
            if (id != nullptr && id->asString().find("Host Hardware RAID Controller") != std::string::npos) {
                return path;
            }
        }
        ADD_FAILURE() << "no RAID controller profile among " << r.paths.size() << " profiles";
        return kProfiles;
    }
};

TEST_F(ProviderAssociationTest, NamedAssociationWithoutTheSourceAtAnEndGivesNothing) {
    Response r = cimom().associatorNames(raidProfile(), "VEX_HostComputerSystemPackage", {}, {}, {});
    EXPECT_TRUE(hasStatus(r, CMPI_RC_OK, ""));
    EXPECT_TRUE(r.paths.empty());
    EXPECT_EQ(r.doneCount, 1);
    EXPECT_TRUE(loggedAt(2, "Unrelated Association class VEX_HostComputerSystemPackage for "
                            "VEX_RegisteredProfile"));
}

TEST_F(ProviderAssociationTest, NamedClassThatIsNoAssociationIsRefused) {
    for (const char* cls : {"VEX_NoSuchAssociation", "VEX_HostComputerSystem"}) {
        Response r = cimom().referenceNames(raidProfile(), cls, {});
        EXPECT_TRUE(hasStatus(r, CMPI_RC_ERR_INVALID_CLASS,
                              "Failed to get plugin for association class"))
            << cls;
    }
}

TEST_F(ProviderAssociationTest, ClientWalksFromTheProfileToTheHostSystem) {
    ObjectPath profile = raidProfile();
    // Without an association class every association of the profile is
    // followed (the sub-profiles come along); the host system is one result.
    Response everything = cimom().associators(profile, {}, {}, {}, {});
    ASSERT_TRUE(everything.ok()) << everything.status.toString();
    EXPECT_EQ(std::count_if(everything.instances.begin(), everything.instances.end(),
                            [](const cmpihost::Instance& i) {
                                return i.className() == "VEX_HostComputerSystem";
                            }),
              1);

    Response systems = cimom().associators(profile, "VEX_HostComputerSystemConformsToProfile",
                                           "VEX_HostComputerSystem", {}, {});
    ASSERT_TRUE(systems.ok()) << systems.status.toString();
    ASSERT_EQ(systems.instances.size(), 1u);
    const cmpihost::Instance& host = systems.instances.front();
    EXPECT_EQ(host.className(), "VEX_HostComputerSystem");
    EXPECT_NE(host.property("NameFormat"), nullptr);

    Response links = cimom().references(host.path, "VEX_HostComputerSystemConformsToProfile", {});
    ASSERT_TRUE(links.ok()) << links.status.toString();
    ASSERT_EQ(links.instances.size(), 1u);
    const Value* standard = links.instances.front().property("ConformantStandard");
    ASSERT_NE(standard, nullptr);
    EXPECT_EQ(standard->asRef().key("InstanceID")->asString(),
              profile.key("InstanceID")->asString());

    Response back = cimom().getInstance(host.path);
    EXPECT_TRUE(back.ok()) << back.status.toString();
    EXPECT_EQ(back.instances.size(), 1u);
}

TEST_F(ProviderAssociationTest, ObjectManagersProfileIsFoundOnceAndLinkedToOurs) {
    Response linked = cimom().associatorNames(smisProfile(), "VEX_ElementConformsToProfile", {}, {}, {});
    ASSERT_TRUE(linked.ok()) << linked.status.toString();
    Response ours = cimom().enumerateInstanceNames(kProfiles);
    EXPECT_EQ(linked.paths.size(), ours.paths.size());
    EXPECT_FALSE(linked.paths.empty());

    auto upcalls = cimom().upcalls();
    long lookups = std::count_if(upcalls.begin(), upcalls.end(), [](const cmpihost::Upcall& u) {
        return u.function == "enumerateInstanceNames" && u.path.className == "PG_RegisteredProfile";
    });
    EXPECT_EQ(lookups, 1);
}

// Clients name DMTF classes: the association class and the result class are
// resolved through the object manager's class hierarchy, results carry the
// served classes' proper spelling, and a result class naming no end of an
// association gives nothing from it.
class DmtfNamedAssociationTest : public ProviderAssociationTest {
protected:
    void SetUp() override {
        ProviderAssociationTest::SetUp();
        cmpihost::ClassHierarchy& classes = cimom().classes();
        classes.add("VEX_HostComputerSystem", "CIM_ComputerSystem");
        classes.add("CIM_ComputerSystem", "CIM_System");
        classes.add("VEX_RegisteredProfile", "CIM_RegisteredProfile");
        classes.add("VEX_RegisteredSubProfile", "CIM_RegisteredSubProfile");
        classes.add("CIM_RegisteredSubProfile", "CIM_RegisteredProfile");
        classes.add("VEX_ElementConformsToProfile", "CIM_ElementConformsToProfile");
        classes.add("VEX_HostComputerSystemConformsToProfile", "CIM_ElementConformsToProfile");
        classes.add("VEX_SubProfileRequiresProfile", "CIM_ReferencedProfile");
    }

    std::vector<std::string> classNames(const Response& r) {
        std::vector<std::string> names;
        for (const ObjectPath& path : r.paths) {
            names.push_back(path.className);
        }
        return names;
    }
};

TEST_F(DmtfNamedAssociationTest, DiscoveryReachesTheCentralSystemByDmtfNames) {
    Response r = cimom().associatorNames(raidProfile(), "CIM_ElementConformsToProfile",
                                         "CIM_ComputerSystem", {}, {});
    ASSERT_TRUE(r.ok()) << r.status.toString();
    ASSERT_FALSE(r.paths.empty());
    for (const std::string& name : classNames(r)) {
        EXPECT_EQ(name, "VEX_HostComputerSystem");
    }
    // The sub-profiles are reached by the referenced-profile association,
    // and a filter naming a class at neither end of it leaves nothing.
    Response subs = cimom().associatorNames(raidProfile(), "CIM_ReferencedProfile",
                                            "CIM_RegisteredProfile", {}, {});
    ASSERT_TRUE(subs.ok()) << subs.status.toString();
    EXPECT_FALSE(subs.paths.empty());
    Response none = cimom().associatorNames(raidProfile(), "CIM_ReferencedProfile",
                                            "CIM_ComputerSystem", {}, {});
    ASSERT_TRUE(none.ok()) << none.status.toString();
    EXPECT_TRUE(none.paths.empty());
}

TEST_F(DmtfNamedAssociationTest, ReferencesCarryTheProperSpellingOfTheAssociation) {
    Response r = cimom().referenceNames(raidProfile(), "CIM_ElementConformsToProfile", {});
    ASSERT_TRUE(r.ok()) << r.status.toString();
    ASSERT_FALSE(r.paths.empty());
    for (const std::string& name : classNames(r)) {
        EXPECT_TRUE(name == "VEX_ElementConformsToProfile" ||
                    name == "VEX_HostComputerSystemConformsToProfile")
            << name;
    }
    Response unnamed = cimom().referenceNames(raidProfile(), {}, {});
    ASSERT_TRUE(unnamed.ok()) << unnamed.status.toString();
    for (const std::string& name : classNames(unnamed)) {
        EXPECT_EQ(name.rfind("VEX_", 0), 0u) << name;
    }
}

}  // namespace
}  // namespace vex::cmpitest
