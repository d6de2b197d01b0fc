// The schema as a whole: superclass chains, where classes are registered
// and what is wrong with a schema. The provider's own schema has no
// problems and declares exactly the classes of the plug-in registry.
#include <gtest/gtest.h>

#include <algorithm>

#include "BuiltinSchema.h"
#include "MofLexer.h"
#include "ProviderSchema.h"

namespace vex::mof {
namespace {

ProviderSchema small(const std::string& mof, const std::string& plan = "") {
    ProviderSchema s;
    s.addMof(mof, "s.mof");
    s.addChains("CIM_StorageVolume : CIM_StorageExtent : CIM_ManagedElement\nCIM_Dependency\n", "h.txt");
    s.addPlan(plan, "r.txt");
    return s;
}

bool mentions(const std::vector<std::string>& problems, const std::string& text) {
    return std::any_of(problems.begin(), problems.end(), [&](const std::string& p) { return p.find(text) != std::string::npos; });
}

TEST(ProviderSchema, AnswersIsAAlongTheProviderAndDmtfChains) {
    const ProviderSchema s = small("class VEX_V : CIM_StorageVolume { [Key] string D; };");
    EXPECT_TRUE(s.isA("vex_v", "CIM_ManagedElement"));
    EXPECT_TRUE(s.isA("VEX_V", "VEX_V"));
    EXPECT_FALSE(s.isA("CIM_StorageExtent", "VEX_V"));
    EXPECT_FALSE(s.isA("CIM_Unknown", "CIM_ManagedElement"));
}

TEST(ProviderSchema, PlacesClassesAndDerivesTheirProviderTypes) {
    const ProviderSchema s = small(
        "class VEX_A : CIM_StorageVolume { [Key] string D; uint32 Go(); };\n"
        "[Association] class VEX_L : CIM_Dependency { [Key] VEX_A REF Antecedent; [Key] VEX_A REF Dependent; };\n"
        "[Indication] class VEX_E : CIM_ManagedElement { string Text; };",
        "both VEX_A\ninterop VEX_L\nlifecycle VEX_A\n");
    EXPECT_EQ(s.namespacesOf("VEX_A"), kInBoth);
    EXPECT_EQ(s.namespacesOf("VEX_L"), kInInterop);
    EXPECT_EQ(s.namespacesOf("VEX_E"), kInImplementation);
    EXPECT_EQ(s.namespacesOf("CIM_StorageVolume"), 0u);
    const ProviderTypes a = s.typesOf(*s.find("VEX_A"));
    EXPECT_TRUE(a.instance && a.method && a.lifecycle && !a.association && !a.indication);
    const ProviderTypes l = s.typesOf(*s.find("VEX_L"));
    EXPECT_TRUE(l.instance && l.association && !l.method);
    const ProviderTypes e = s.typesOf(*s.find("VEX_E"));
    EXPECT_TRUE(e.indication && !e.instance);
    EXPECT_EQ(s.classesIn(kInteropNamespace).size(), 2u);
    EXPECT_TRUE(s.problems().empty()) << s.problems().front();
}

TEST(ProviderSchema, FindsWhatWouldBreakAnObjectManagerRepository) {
    const ProviderSchema s = small(
        "class VEX_A : CIM_Nowhere { [Key] string D; };\n"
        "class VEX_B : CIM_StorageVolume { string NoKey; };\n"
        "[Association] class VEX_L : CIM_Dependency { [Key] VEX_B REF Antecedent; [Key] VEX_Later REF Dependent; };\n"
        "class VEX_Later : CIM_StorageVolume { [Key] string D; };\n"
        "class VEX_A : CIM_StorageVolume { [Key] string D; };\n"
        "[Association] class VEX_One : CIM_Dependency { [Key] CIM_StorageVolume REF Antecedent; };",
        "interop VEX_L\nboth VEX_Missing\n");
    const std::vector<std::string> p = s.problems();
    EXPECT_TRUE(mentions(p, "s.mof:1: VEX_A needs the unknown class CIM_Nowhere"));
    EXPECT_TRUE(mentions(p, "VEX_B declares no Key property"));
    EXPECT_TRUE(mentions(p, "VEX_A is declared twice"));
    EXPECT_TRUE(mentions(p, "VEX_One is an association with fewer than two references"));
    EXPECT_TRUE(mentions(p, "VEX_L needs VEX_B declared before it in root/PG_InterOp"));
    EXPECT_TRUE(mentions(p, "registration names the unknown class vex_missing"));
    EXPECT_EQ(p.size(), 7u) << "one problem too many or too few";
}

TEST(ProviderSchema, RefusesMalformedChainsAndPlans) {
    ProviderSchema s;
    EXPECT_THROW(s.addChains("CIM_A : : CIM_B", "h.txt"), MofError);
    EXPECT_THROW(s.addChains("CIM_A : CIM_B\nCIM_A : CIM_C", "h.txt"), MofError);
    EXPECT_THROW(s.addPlan("everywhere VEX_A", "r.txt"), MofError);
    EXPECT_THROW(s.addPlan("both VEX_A\ninterop VEX_A", "r.txt"), MofError);
    EXPECT_THROW(s.addPlan("both", "r.txt"), MofError);
}

TEST(ProviderSchema, TheProvidersSchemaIsWhole) {
    const ProviderSchema& s = builtinSchema();
    const std::vector<std::string> problems = s.problems();
    EXPECT_TRUE(problems.empty()) << problems.front();
    EXPECT_EQ(s.classes().size(), 173u);
    for (const ClassDecl& cls : s.classes()) {
        EXPECT_EQ(cls.name.compare(0, 4, "VEX_"), 0) << cls.name;
    }
    EXPECT_TRUE(s.find("VEX_EventIndication")->isIndication());
    EXPECT_EQ(s.find("VEX_ControllerComputerSystem")->methods.size(), 76u);
}

}  // namespace
}  // namespace vex::mof
