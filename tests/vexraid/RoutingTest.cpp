// Routing a request as an object manager does, from the schema compiled in:
// refusals for unknown namespaces and classes, the classes an enumeration
// of a DMTF class reaches, and the association classes that can link an
// object.
#include <gtest/gtest.h>

#include <algorithm>

#include "BuiltinSchema.h"
#include "Errors.h"
#include "Routing.h"

namespace vexraid {
namespace {

using cmpihost::ObjectPath;
using vex::mof::builtinSchema;

constexpr const char* kImpl = "root/tkz/vex/smi_15";
constexpr const char* kInterop = "root/PG_InterOp";

CMPIrc refusal(const std::function<void()>& request) {
    try {
        request();
    } catch (const CimError& e) {
        return e.rc();
    }
    return CMPI_RC_OK;
}

bool contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(Routing, RefusesWhatNoObjectManagerWouldRouteToTheProvider) {
    const auto& s = builtinSchema();
    EXPECT_EQ(refusal([&] { requireServedClass(s, ObjectPath("root/cimv2", "VEX_Card")); }), CMPI_RC_ERR_INVALID_NAMESPACE);
    EXPECT_EQ(refusal([&] { requireServedClass(s, ObjectPath(kImpl, "VEX_NoSuchClass")); }), CMPI_RC_ERR_INVALID_CLASS);
    // Registered only in the interop namespace.
    EXPECT_EQ(refusal([&] { requireServedClass(s, ObjectPath(kImpl, "VEX_RegisteredProfile")); }), CMPI_RC_ERR_INVALID_CLASS);
    // A DMTF class is no provider class.
    EXPECT_EQ(refusal([&] { requireServedClass(s, ObjectPath(kImpl, "CIM_StorageVolume")); }), CMPI_RC_ERR_INVALID_CLASS);
    EXPECT_EQ(requireServedClass(s, ObjectPath(kInterop, "vex_registeredprofile")).name, "VEX_RegisteredProfile");
    EXPECT_EQ(refusal([&] { requireMethod(*s.find("VEX_Battery"), "Explode"); }), CMPI_RC_ERR_METHOD_NOT_FOUND);
}

TEST(Routing, AnEnumerationOfADmtfClassReachesTheProviderClassesDerivedFromIt) {
    const auto& s = builtinSchema();
    const auto systems = enumerationClasses(s, ObjectPath(kImpl, "CIM_ComputerSystem"));
    EXPECT_EQ(systems, (std::vector<std::string>{"VEX_HostComputerSystem", "VEX_ControllerComputerSystem"}));
    const auto extents = enumerationClasses(s, ObjectPath(kImpl, "CIM_StorageExtent"));
    EXPECT_TRUE(contains(extents, "VEX_StorageVolume"));
    EXPECT_TRUE(contains(extents, "VEX_PrimordialStorageExtent"));
    EXPECT_FALSE(contains(extents, "VEX_DiskDrive"));
    // In the interop namespace only the classes registered there.
    EXPECT_EQ(enumerationClasses(s, ObjectPath(kInterop, "CIM_ComputerSystem")).size(), 2u);
    EXPECT_TRUE(enumerationClasses(s, ObjectPath(kInterop, "CIM_StorageVolume")).empty());
    EXPECT_EQ(refusal([&] { enumerationClasses(s, ObjectPath(kImpl, "CIM_NoSuchThing")); }), CMPI_RC_ERR_INVALID_CLASS);
}

TEST(Routing, AssociationClassesAreThoseWithAReferenceTheSourceFits) {
    const auto& s = builtinSchema();
    const ObjectPath battery(kImpl, "VEX_Battery");
    const auto all = associationClasses(s, battery, std::nullopt, std::nullopt);
    EXPECT_TRUE(contains(all, "VEX_BatterySystemDevice"));
    EXPECT_TRUE(contains(all, "VEX_AssociatedBattery"));
    // CIM_Dependency references any managed element.
    EXPECT_FALSE(contains(all, "VEX_CSBaseInstance"));
    EXPECT_TRUE(contains(all, "VEX_AffectedJobElement"));
    const auto systemDevices = associationClasses(s, battery, std::string("CIM_SystemDevice"), std::nullopt);
    EXPECT_EQ(systemDevices, std::vector<std::string>{"VEX_BatterySystemDevice"});
    EXPECT_TRUE(associationClasses(s, battery, std::nullopt, std::string("GroupComponent")).empty());
    EXPECT_EQ(refusal([&] { associationClasses(s, battery, std::string("CIM_Nothing"), std::nullopt); }),
              CMPI_RC_ERR_INVALID_CLASS);
}

}  // namespace
}  // namespace vexraid
