// The files written for the object managers: what sfcb's registration and
// OpenPegasus' capabilities say for each kind of class, and the class MOF
// of each namespace.
#include <gtest/gtest.h>

#include "RegistrationWriters.h"

namespace vex::mof {
namespace {

ProviderSchema sample() {
    ProviderSchema s;
    s.addMof("class VEX_Sys : CIM_ComputerSystem { [Key] string Name; uint32 Rescan(); };\n"
             "class VEX_Prof : CIM_RegisteredProfile { [Key] string InstanceID; };\n"
             "[Association] class VEX_Conforms : CIM_ElementConformsToProfile {\n"
             "  [Key] CIM_RegisteredProfile REF ConformantStandard; [Key] VEX_Sys REF ManagedElement; };\n"
             "[Indication] class VEX_Event : CIM_ProcessIndication { string Text; };\n",
             "s.mof");
    s.addChains("CIM_ComputerSystem : CIM_ManagedElement\nCIM_RegisteredProfile : CIM_ManagedElement\n"
                "CIM_ElementConformsToProfile\nCIM_ProcessIndication : CIM_Indication\n", "h.txt");
    s.addPlan("both VEX_Sys\ninterop VEX_Prof\nboth VEX_Conforms\nlifecycle VEX_Sys\n", "r.txt");
    return s;
}

std::string entryOf(const std::string& text, const std::string& start, const std::string& end) {
    const std::size_t from = text.find(start);
    return from == std::string::npos ? "" : text.substr(from, text.find(end, from) - from);
}

// sfcb's interop namespace is root/interop.
TEST(RegistrationWriters, SfcbGetsOneEntryPerClassWithItsTypesAndNamespaces) {
    const std::string reg = sfcbRegistration(sample());
    EXPECT_EQ(entryOf(reg, "[VEX_Sys]", "#\n"),
              "[VEX_Sys]\n   provider: vexRAIDProvider15\n   location: vexRAIDProvider15\n"
              "   group: vexRAIDProvider15\n   unload: never\n   type: instance method indication\n"
              "   namespace: root/tkz/vex/smi_15 root/interop\n");
    EXPECT_NE(entryOf(reg, "[VEX_Prof]", "#\n").find("   type: instance\n   namespace: root/interop\n"), std::string::npos);
    EXPECT_NE(entryOf(reg, "[VEX_Conforms]", "#\n").find("type: instance association\n"), std::string::npos);
    EXPECT_NE(entryOf(reg, "[VEX_Event]", "#\n").find("type: indication\n   namespace: root/tkz/vex/smi_15\n"), std::string::npos);
}

TEST(RegistrationWriters, PegasusGetsTheModuleTheProviderAndCapabilitiesPerClass) {
    const std::string peg = pegasusRegistration(sample(), "1.5.0");
    EXPECT_NE(peg.find("    Location = \"vexRAIDProvider15\";\n    Vendor = \"VEX\";\n    Version = \"1.5.0\";\n"
                       "    InterfaceType = \"CMPI\";\n    InterfaceVersion = \"2.0.0\";"),
              std::string::npos);
    EXPECT_NE(peg.find("instance of PG_Provider\n{\n    Name = \"vexRAIDProvider15\";"), std::string::npos);
    const std::string sys = entryOf(peg, "CapabilityID = \"VEX_Sys\"", "\n};");
    EXPECT_NE(sys.find("Namespaces = {\"root/tkz/vex/smi_15\", \"root/PG_InterOp\"};\n    ProviderType = {2, 5};"),
              std::string::npos) << sys;
    EXPECT_NE(entryOf(peg, "CapabilityID = \"VEX_Conforms\"", "\n};").find("ProviderType = {2, 3};"), std::string::npos);
    EXPECT_NE(entryOf(peg, "CapabilityID = \"VEX_Event\"", "\n};").find("ProviderType = {4};"), std::string::npos);
    // Life-cycle indications are registered under the DMTF indication classes.
    for (const char* indication : {"CIM_InstCreation", "CIM_InstModification", "CIM_InstDeletion"}) {
        const std::string cap = entryOf(peg, std::string("CapabilityID = \"") + indication + "\"", "\n};");
        EXPECT_NE(cap.find("Namespaces = {\"root/tkz/vex/smi_15\"};\n    ProviderType = {4};"), std::string::npos) << indication;
    }
}

TEST(RegistrationWriters, EachNamespaceGetsTheDeclarationsOfItsClassesInOrder) {
    const std::string interop = namespaceMof(sample(), kInteropNamespace);
    const std::size_t sys = interop.find("class VEX_Sys"), prof = interop.find("class VEX_Prof"),
                      conforms = interop.find("class VEX_Conforms");
    EXPECT_TRUE(sys < prof && prof < conforms && conforms != std::string::npos) << interop;
    EXPECT_EQ(interop.find("VEX_Event"), std::string::npos);
    const std::string impl = namespaceMof(sample(), kImplementationNamespace);
    EXPECT_EQ(impl.find("VEX_Prof"), std::string::npos);
    EXPECT_NE(impl.find("[Indication] class VEX_Event : CIM_ProcessIndication { string Text; };"), std::string::npos);
}

}  // namespace
}  // namespace vex::mof
