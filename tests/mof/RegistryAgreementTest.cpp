// The schema and the plug-in registry name the same classes: every
// registered plug-in has its class declared, registered with the object
// manager in (at least) the namespaces the provider offers it in, as an
// association when its plug-in is one; and the schema declares nothing the
// provider has no plug-in for.
#include <gtest/gtest.h>

#include "BuiltinSchema.h"
#include "framework/PluginRegistry.h"

namespace vex::moftest {
namespace {

using cim::fwf::PluginGroup;

unsigned schemaBits(unsigned registryBits) {
    return ((registryBits & cim::fwf::kServedInImplementation) ? mof::kInImplementation : 0u) |
           ((registryBits & cim::fwf::kServedInInterop) ? mof::kInInterop : 0u);
}

TEST(RegistryAgreement, EveryPluginHasItsClassDeclaredWhereItIsOffered) {
    const mof::ProviderSchema& schema = mof::builtinSchema();
    const cim::fwf::PluginRegistration* rows = cim::fwf::pluginRegistrations();
    for (std::size_t i = 0; i < cim::fwf::pluginRegistrationCount(); ++i) {
        const cim::fwf::PluginRegistration& row = rows[i];
        const mof::ClassDecl* cls = schema.find(row.name);
        ASSERT_NE(cls, nullptr) << row.name << " has no class declaration";
        const unsigned wanted = schemaBits(row.nameSpaces);
        EXPECT_EQ(schema.namespacesOf(cls->name) & wanted, wanted) << cls->name << " is not registered where it is offered";
        EXPECT_EQ(cls->isAssociation(), row.group == PluginGroup::Association) << cls->name;
    }
    EXPECT_EQ(schema.classes().size(), cim::fwf::pluginRegistrationCount()) << "the schema declares classes without plug-in";
}

TEST(RegistryAgreement, OnlyTheConformanceAssociationsAreRegisteredBeyondWhereTheyAreOffered) {
    const mof::ProviderSchema& schema = mof::builtinSchema();
    const cim::fwf::PluginRegistration* rows = cim::fwf::pluginRegistrations();
    std::vector<std::string> wider;
    for (std::size_t i = 0; i < cim::fwf::pluginRegistrationCount(); ++i) {
        const mof::ClassDecl* cls = schema.find(rows[i].name);
        if (cls != nullptr && schema.namespacesOf(cls->name) != schemaBits(rows[i].nameSpaces)) wider.push_back(cls->name);
    }
    EXPECT_EQ(wider, (std::vector<std::string>{"VEX_HostComputerSystemConformsToProfile", "VEX_ElementConformsToProfile",
                                               "VEX_ControllerComputerSystemConformsToProfile"}));
}

}  // namespace
}  // namespace vex::moftest
