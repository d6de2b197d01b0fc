// The association base over real end classes served through the facade (the
// registered profile and subprofile plug-ins), with a matching rule the tests
// set.
#include <gtest/gtest.h>

#include <functional>

#include "LogCapture.h"
#include "PluginTestSupport.h"
#include "framework/AbstractAssociationProviderPlugin.h"
#include "framework/CIMException.h"
#include "framework/PropertyBuilders.h"

namespace vex::cim::fwf {
namespace {

using test::classPath;
using test::startedFacade;
using test::wasLogged;

constexpr const char* kAssoc = "VEX_TestLink";

class TestAssociation : public AbstractAssociationProviderPlugin {
public:
    std::string antecedent = "VEX_RegisteredProfile";
    std::string dependent = "VEX_RegisteredSubProfile";
    std::function<bool(CIMInstance&, CIMInstance&, std::vector<CIMProperty>&)> rule =
        [](CIMInstance&, CIMInstance&, std::vector<CIMProperty>&) { return true; };
    std::vector<std::pair<std::string, std::string>> calls;  // InstanceIDs, in call order

    bool MatchInstances(CIMInstance& a, CIMInstance& d, std::vector<CIMProperty>& extra) override {
        calls.emplace_back(stringValueOf(a, "InstanceID"), stringValueOf(d, "InstanceID"));
        return rule(a, d, extra);
    }
    std::string getAntecedent() override { return antecedent; }
    std::string getDependent() override { return dependent; }
    std::string getAntecedentPropertyName() override { return "Antecedent"; }
    std::string getDependentPropertyName() override { return "Dependent"; }
};

std::vector<CIMInstance> enumerate(const std::string& className) {
    CIMObjectPath path = classPath(kInteropNameSpace, className);
    std::vector<CIMInstance> out;
    startedFacade().enumerateInstances(path, out);
    return out;
}

CIMObjectPath referenceAt(const CIMInstance& instance, unsigned int index) {
    return instance.getProperty(index).getObjectPathValue().getValues().at(0);
}

class AssociationProviderBase : public ::testing::Test {
protected:
    void SetUp() override {
        startedFacade();
        test::clearLog();
    }
    CIMObjectPath assocPath = classPath(kInteropNameSpace, kAssoc);
    TestAssociation link;
};

TEST_F(AssociationProviderBase, PairsTheFullCrossProductInEnumerationOrder) {
    const std::vector<CIMInstance> subs = enumerate("VEX_RegisteredSubProfile");
    ASSERT_GE(subs.size(), 3u);
    link.antecedent = link.dependent = "VEX_RegisteredSubProfile";
    link.rule = [](CIMInstance& a, CIMInstance& d, std::vector<CIMProperty>& extra) {
        extra.push_back(stringProperty("First", stringValueOf(a, "RegisteredName")));
        extra.push_back(stringProperty("Second", stringValueOf(d, "RegisteredName")));
        return stringValueOf(a, "InstanceID") < stringValueOf(d, "InstanceID");
    };
    std::vector<CIMInstance> out;
    link.enumerateInstances(assocPath, out, false);

    const std::size_t n = subs.size();
    ASSERT_EQ(link.calls.size(), n * n);
    EXPECT_EQ(link.calls[1].first, stringValueOf(subs[0], "InstanceID"));   // first end outer
    EXPECT_EQ(link.calls[1].second, stringValueOf(subs[1], "InstanceID"));  // second end inner
    EXPECT_EQ(link.calls[n].first, stringValueOf(subs[1], "InstanceID"));
    EXPECT_EQ(out.size(), n * (n - 1) / 2);

    const CIMInstance& first = out.at(0);
    EXPECT_EQ(first.getClassName(), kAssoc);
    EXPECT_EQ(first.getNameSpace(), kInteropNameSpace);
    ASSERT_EQ(first.getPropertyCount(), 4u);
    const std::vector<std::string> order = {"Antecedent", "Dependent", "First", "Second"};
    for (unsigned int i = 0; i < 4; ++i) {
        EXPECT_EQ(first.getProperty(i).getName(), order[i]);
    }
    for (unsigned int i = 0; i < 2; ++i) {
        EXPECT_EQ(first.getProperty(i).getType(), CIM_REFERENCE);
        EXPECT_TRUE(first.getProperty(i).isKey());
        EXPECT_FALSE(first.getProperty(i).isViewKey());
    }
    EXPECT_EQ(first.getKeyPropertyList().size(), 2u);
    EXPECT_EQ(referenceAt(first, 0).getClassName(), "VEX_RegisteredSubProfile");
}

TEST_F(AssociationProviderBase, EndWithoutPluginOrInstancesLinksNothing) {
    link.dependent = "VEX_ControllerComputerSystem";  // not served without controllers
    std::vector<CIMInstance> out;
    link.enumerateInstances(assocPath, out, false);
    EXPECT_TRUE(out.empty());
    EXPECT_TRUE(link.calls.empty());

    CIMObjectPath profile = enumerate("VEX_RegisteredProfile").at(0).getPath();
    std::string assocClass = kAssoc;
    std::string empty;
    std::vector<CIMObjectPath> names;
    link.associatorNames(profile, assocClass, names, empty, empty, empty);
    EXPECT_TRUE(names.empty());
    EXPECT_TRUE(wasLogged("No instances of association class VEX_TestLink"));
    EXPECT_TRUE(wasLogged("No instances for the association class : VEX_TestLink"));
}

TEST_F(AssociationProviderBase, GetInstanceFindsThePathWhateverItsKeyOrder) {
    std::vector<CIMObjectPath> names;
    link.enumerateInstanceNames(assocPath, names);
    ASSERT_GE(names.size(), 2u);
    const CIMObjectPath wanted = names[1];
    std::vector<CIMProperty> keys = wanted.getKeyBindings();
    std::swap(keys[0], keys[1]);
    CIMObjectPath reordered("otherhost", kInteropNameSpace, "vex_testlink", keys);

    std::vector<CIMInstance> got;
    link.getCIMInstance(reordered, got);
    ASSERT_EQ(got.size(), 1u);
    EXPECT_EQ(got[0].getPath(), wanted);

    keys[0] = keys[1];  // both references to the same subprofile: no such link
    keys[0].setName("Antecedent");
    CIMObjectPath missing("", kInteropNameSpace, kAssoc, keys);
    got.clear();
    link.getCIMInstance(missing, got);
    EXPECT_TRUE(got.empty());
}

TEST_F(AssociationProviderBase, RolesMatchTheReferenceNamesInAnyCase) {
    CIMObjectPath sub = enumerate("VEX_RegisteredSubProfile").at(0).getPath();
    std::vector<CIMInstance> out;
    link.references(sub, kAssoc, out, "dEPENDENT");
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(referenceAt(out[0], 1), sub);

    out.clear();
    link.references(sub, kAssoc, out, "Antecedent");  // the subprofile is never first
    EXPECT_TRUE(out.empty());
    EXPECT_TRUE(wasLogged("----------------Antecedent//////Dependent", 4));

    CIMObjectPath profile = enumerate("VEX_RegisteredProfile").at(0).getPath();
    std::string assocClass = kAssoc;
    std::string resultClass;
    std::string role = "antecedent";
    std::string resultRole = "DEPENDENT";
    std::vector<CIMObjectPath> names;
    link.associatorNames(profile, assocClass, names, resultClass, role, resultRole);
    EXPECT_EQ(names.size(), enumerate("VEX_RegisteredSubProfile").size());
    resultRole = "Antecedent";
    names.clear();
    link.associatorNames(profile, assocClass, names, resultClass, role, resultRole);
    EXPECT_TRUE(names.empty());
}

TEST_F(AssociationProviderBase, ReferencesFromAnUnrelatedObjectAreEmpty) {
    CIMObjectPath host = classPath(kInteropNameSpace, "VEX_HostComputerSystem");
    host.setKeyBindings({stringProperty("Name", "nohost", true)});
    std::vector<CIMObjectPath> names;
    link.referencesNames(host, kAssoc, "", names);
    EXPECT_TRUE(names.empty());
    EXPECT_TRUE(wasLogged("No object paths refering the objectpath : " + host.toString()));
}

TEST_F(AssociationProviderBase, AssociatorsSkipFarEndsThatCannotBeFetched) {
    // Links to "Software" and "Storage Enclosure" point to a class nobody serves.
    link.rule = [](CIMInstance&, CIMInstance& d, std::vector<CIMProperty>&) {
        if (stringValueOf(d, "RegisteredName").rfind("S", 0) == 0) {
            d.setPath(CIMObjectPath("", kInteropNameSpace, "VEX_Gone", {}));
        }
        return true;
    };
    CIMObjectPath profile = enumerate("VEX_RegisteredProfile").at(0).getPath();
    std::string assocClass = kAssoc;
    std::string empty;
    const char* properties[] = {"RegisteredName", nullptr};
    std::vector<CIMInstance> far;
    link.associators(profile, assocClass, far, empty, empty, empty, properties);
    EXPECT_EQ(far.size(), enumerate("VEX_RegisteredSubProfile").size() - 2);
    for (const CIMInstance& instance : far) {
        EXPECT_EQ(instance.getClassName(), "VEX_RegisteredSubProfile");
        EXPECT_EQ(instance.getPropertyCount(), 2u);  // the key and the listed property
    }
    bool skipped = false;
    for (const test::LoggedLine& line : test::loggedLines()) {
        skipped = skipped || line.text.rfind("associators :: Failed to retrieve instance for "
                                             "object path //",
                                             0) == 0;
    }
    EXPECT_TRUE(skipped);
}

TEST_F(AssociationProviderBase, ResultClassNamingAnEndFiltersTheFarEnd) {
    CIMObjectPath profile = enumerate("VEX_RegisteredProfile").at(0).getPath();
    const std::size_t all = enumerate("VEX_RegisteredSubProfile").size();
    std::string assocClass = kAssoc;
    std::string empty;
    auto count = [&](std::string resultClass) {
        std::vector<CIMObjectPath> names;
        link.associatorNames(profile, assocClass, names, resultClass, empty, empty);
        return names.size();
    };
    EXPECT_EQ(count("registeredSUBprofile"), all);
    EXPECT_EQ(count("VEX_RegisteredProfile"), 0u);  // names the source's own end
    EXPECT_EQ(count("CIM_RegisteredProfile"), 0u);  // names no end: nothing (the adapter
                                                     // resolves DMTF names first)
}

TEST_F(AssociationProviderBase, ResultantClassIsTheFirstEndClassContainingTheFilter) {
    link.antecedent = "VEX_ApplicationSoftwareIdentity";
    link.dependent = "VEX_RegisteredProfile, VEX_RegisteredSubProfile";
    std::string out = "untouched";
    EXPECT_TRUE(link.getResultantClass("registeredsub", out));
    EXPECT_EQ(out, "VEX_RegisteredSubProfile");
    EXPECT_TRUE(link.getResultantClass("VEX_REGISTEREDPROFILE", out));
    EXPECT_EQ(out, "VEX_RegisteredProfile");
    EXPECT_TRUE(link.getResultantClass("Profile", out));  // antecedent has none, dependent's first
    EXPECT_EQ(out, "VEX_RegisteredProfile");
    EXPECT_TRUE(link.getResultantClass("software", out));
    EXPECT_EQ(out, "VEX_ApplicationSoftwareIdentity");
    out = "untouched";
    EXPECT_FALSE(link.getResultantClass("CIM_ComputerSystem", out));
    EXPECT_EQ(out, "untouched");
}

}  // namespace
}  // namespace vex::cim::fwf
