// The always-registered classes as a management client discovers them: the
// registered profiles in the interop namespace, the conformance association
// to the host system, its package, and the provider software.
#include <gtest/gtest.h>

#include <set>
#include <thread>

#include "PluginTestSupport.h"
#include "framework/CommonFunctions.h"
#include "framework/InteropProfilePaths.h"
#include "framework/PropertyBuilders.h"
#include "providers/device/HostIdentity.h"

namespace vex::cim::fwf {
namespace {

using test::classPath;
using test::startedFacade;

std::vector<CIMInstance> enumerate(const std::string& nameSpace, const std::string& className) {
    CIMObjectPath path = classPath(nameSpace, className);
    std::vector<CIMInstance> out;
    startedFacade().enumerateInstances(path, out);
    return out;
}

std::vector<CIMInstance> associated(CIMObjectPath source, std::string assocClass,
                                    std::string role = "") {
    std::string resultClass;
    std::string resultRole;
    std::vector<CIMInstance> out;
    startedFacade().associators(source, assocClass, out, resultClass, role, resultRole, nullptr);
    return out;
}

unsigned short uint16Of(const CIMInstance& instance, const std::string& name) {
    const CIMProperty* property = instance.getPropertyByName(name);
    return property == nullptr ? 0 : property->getUint16Value().getValues().at(0);
}

std::vector<unsigned short> uint16sOf(const CIMInstance& instance, const std::string& name) {
    const CIMProperty* property = instance.getPropertyByName(name);
    return property == nullptr ? std::vector<unsigned short>{}
                               : property->getUint16Value().getValues();
}

TEST(DeviceProviders, RegisteredProfilesNameTheProviderProfileAndItsSubprofiles) {
    const std::vector<CIMInstance> profiles = enumerate(kInteropNameSpace, "VEX_RegisteredProfile");
    ASSERT_EQ(profiles.size(), 1u);
    const CIMInstance& hhrc = profiles[0];
    EXPECT_EQ(stringValueOf(hhrc, "InstanceID"), "SNIA+Host Hardware RAID Controller+1.5.0");
    EXPECT_EQ(stringValueOf(hhrc, "RegisteredName"), "Host Hardware RAID Controller");
    EXPECT_EQ(stringValueOf(hhrc, "RegisteredVersion"), "1.5.0");
    EXPECT_EQ(uint16Of(hhrc, "RegisteredOrganization"), 11);  // SNIA
    EXPECT_EQ(uint16sOf(hhrc, "AdvertiseTypes"), std::vector<unsigned short>{3});  // SLP
    EXPECT_EQ(hhrc.getKeyPropertyList().size(), 1u);

    std::set<std::string> ids;
    for (const CIMInstance& sub : enumerate(kInteropNameSpace, "VEX_RegisteredSubProfile")) {
        const std::string id = stringValueOf(sub, "InstanceID");
        EXPECT_EQ(id, CommonFunctions::formatString("%s+%s+%s",
                                                    uint16Of(sub, "RegisteredOrganization") == 11
                                                        ? "SNIA"
                                                        : "DMTF",
                                                    stringValueOf(sub, "RegisteredName").c_str(),
                                                    stringValueOf(sub, "RegisteredVersion").c_str()));
        ids.insert(id);
    }
    EXPECT_EQ(ids.count("SNIA+Block Services+1.5.0"), 1u);
    EXPECT_EQ(ids.count("SNIA+Disk Drive Lite+1.5.0"), 1u);
    EXPECT_EQ(ids.size(), 8u);
}

TEST(DeviceProviders, HostGetInstanceAcceptsItsKeysInAnyOrder) {
    CIMObjectPath byName("", kImplementationNameSpace, "VEX_HostComputerSystem",
                         {stringProperty("Name", hostName(), true),
                          stringProperty("CreationClassName", "VEX_HostComputerSystem", true)});
    std::vector<CIMInstance> got;
    startedFacade().getCIMInstance(byName, got);
    ASSERT_EQ(got.size(), 1u);
    EXPECT_EQ(got[0].getProperty(0).getName(), "CreationClassName");  // keys in class order

    CIMObjectPath other("", kImplementationNameSpace, "VEX_HostComputerSystem",
                        {stringProperty("Name", "not-" + hostName(), true)});
    got.clear();
    startedFacade().getCIMInstance(other, got);
    EXPECT_TRUE(got.empty());
}

TEST(DeviceProviders, ProviderSoftwareImplementsEveryProfileInTheInteropNamespace) {
    const std::vector<CIMInstance> software =
        enumerate(kImplementationNameSpace, "VEX_ApplicationSoftwareIdentity");
    ASSERT_EQ(software.size(), 1u);
    EXPECT_EQ(stringValueOf(software[0], "Name"), "vexRAIDProvider15");
    EXPECT_EQ(stringValueOf(software[0], "VersionString"),
              CommonFunctions::formatString("%u.%u.%u", uint16Of(software[0], "MajorVersion"),
                                            uint16Of(software[0], "MinorVersion"),
                                            uint16Of(software[0], "RevisionNumber")));

    const std::vector<CIMInstance> profiles =
        associated(software[0].getPath(), "VEX_RegProfileElementSoftwareIdentity");
    EXPECT_EQ(profiles.size(), 9u);  // the profile and its eight subprofiles
    for (const CIMInstance& profile : profiles) {
        EXPECT_EQ(profile.getNameSpace(), kInteropNameSpace);
    }

    CIMObjectPath source = software[0].getPath();
    std::vector<CIMInstance> links;
    startedFacade().references(source, "VEX_RegProfileElementSoftwareIdentity", links, "");
    ASSERT_EQ(links.size(), 9u);
    EXPECT_EQ(uint16sOf(links[0], "ElementSoftwareStatus"),
              (std::vector<unsigned short>{2, 6}));
}

TEST(DeviceProviders, ProfileConformsToTheObjectManagersSmisProfileWhenItHasOne) {
    using adap::cmpi::g_cimPGSMIS5RegProfObjPath;
    CIMObjectPath assocPath = classPath(kInteropNameSpace, "VEX_ElementConformsToProfile");
    std::vector<CIMInstance> links;
    startedFacade().enumerateInstances(assocPath, links);
    EXPECT_TRUE(links.empty());  // no "SNIA+SMI-S+1.5.0" found at start

    const CIMObjectPath saved = g_cimPGSMIS5RegProfObjPath;
    g_cimPGSMIS5RegProfObjPath =
        CIMObjectPath("cimom", kInteropNameSpace, "PG_RegisteredProfile",
                      {stringProperty("InstanceID", "SNIA+SMI-S+1.5.0", true)});
    startedFacade().enumerateInstances(assocPath, links);
    const std::vector<CIMInstance> ours =
        associated(g_cimPGSMIS5RegProfObjPath, "VEX_ElementConformsToProfile");
    g_cimPGSMIS5RegProfObjPath = saved;

    ASSERT_EQ(links.size(), 1u);
    EXPECT_EQ(links[0].getProperty(0).getName(), "ConformantStandard");
    EXPECT_EQ(stringValueOf(ours.at(0), "RegisteredName"), "Host Hardware RAID Controller");
}

// Request threads of the object manager walk the same plug-ins at once.
TEST(DeviceProviders, ConcurrentWalksSeeTheSameAnswers) {
    const CIMObjectPath profile = enumerate(kInteropNameSpace, "VEX_RegisteredProfile").at(0).getPath();
    std::vector<std::thread> threads;
    std::vector<int> failures(4, 0);
    for (std::size_t t = 0; t < failures.size(); ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < 25; ++i) {
                failures[t] += associated(profile, "VEX_HostComputerSystemConformsToProfile")
                                           .size() == 1
                                   ? 0
                                   : 1;
                failures[t] += enumerate(kInteropNameSpace, "VEX_RegisteredSubProfile").size() ==
                                       8
                                   ? 0
                                   : 1;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (int failed : failures) {
        EXPECT_EQ(failed, 0);
    }
}

}  // namespace
}  // namespace vex::cim::fwf
