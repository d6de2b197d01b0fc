#include <gtest/gtest.h>

#include "TestProperties.h"
#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf::test {
namespace {

TEST(CIMObjectPathText, StringKeysQuotedReferencesNestedNumbersBare) {
    const CIMObjectPath pool("", "root/tkz/vex/smi_15", "VEX_ConcreteStoragePool",
                             {stringKey("InstanceID", "0_1")});
    const CIMObjectPath path("host", "root/tkz/vex/smi_15", "VEX_Assoc",
                             {stringKey("k", "v"), refKey("ref", pool),
                              uint16Prop("num", 12, true)});
    EXPECT_EQ(path.toString(),
              "//host/root/tkz/vex/smi_15:VEX_Assoc.k=\"v\","
              "ref=///root/tkz/vex/smi_15:VEX_ConcreteStoragePool.InstanceID=\"0_1\",num=");
}

TEST(CIMObjectPathText, OnlyTagsStringAndReferenceShowAValue) {
    const CIMProperty dateKey("When", CIMValue<std::string>("20240101000000.000000+530", false,
                                                            false), true, CIM_DATETIME, false);
    const CIMProperty emptyString("Empty", CIMValue<std::string>(), true, CIM_STRING, false);
    const CIMObjectPath path("", "ns", "C", {dateKey, emptyString});
    EXPECT_EQ(path.toString(), "///ns:C.When=,Empty=\"\"");
    EXPECT_EQ(CIMObjectPath().toString(), "///:.");
}

TEST(CIMObjectPathEquality, HostAndCaseOfNamespaceAndClassDoNotMatter) {
    const CIMObjectPath local = volumePath("", "0_1");
    CIMObjectPath received = volumePath("cimom.example", "0_1");
    received.setNameSpace("ROOT/Tkz/Vex/SMI_15");
    received.setClassName("vex_storagevolume");
    EXPECT_TRUE(local == received);
    EXPECT_TRUE(received == local);

    received.setNameSpace("root/PG_InterOp");
    EXPECT_FALSE(local == received);
    EXPECT_FALSE(volumePath("", "0_1") == CIMObjectPath("", "root/tkz/vex/smi_15",
                                                        "VEX_StoragePool",
                                                        volumePath("", "0_1").getKeyBindings()));
}

TEST(CIMObjectPathEquality, KeysMatchByExactNameInAnyOrder) {
    const CIMObjectPath ordered = volumePath("", "0_1");
    std::vector<CIMProperty> keys = ordered.getKeyBindings();
    std::swap(keys[0], keys[1]);
    const CIMObjectPath swapped("", ordered.getNameSpace(), ordered.getClassName(), keys);
    EXPECT_TRUE(ordered == swapped);

    EXPECT_FALSE(ordered == volumePath("", "0_2"));

    keys[0].setName("deviceid");  // names are case-sensitive
    EXPECT_FALSE(ordered == CIMObjectPath("", ordered.getNameSpace(), ordered.getClassName(),
                                          keys));
}

TEST(CIMObjectPathEquality, OnlyThisPathsKeysAreLookedUp) {
    const CIMObjectPath full = volumePath("", "0_1");
    const CIMObjectPath partial("", full.getNameSpace(), full.getClassName(),
                                {stringKey("DeviceID", "0_1")});
    EXPECT_TRUE(partial == full);
    EXPECT_FALSE(full == partial);
    EXPECT_TRUE(full != partial);
}

TEST(CIMObjectPathEquality, NestedReferenceKeysIgnoreTheirHostsToo) {
    const CIMObjectPath a("", "ns", "Assoc", {refKey("Antecedent", volumePath("", "0_1"))});
    const CIMObjectPath b("x", "ns", "Assoc", {refKey("Antecedent", volumePath("y", "0_1"))});
    EXPECT_TRUE(a == b);
}

}  // namespace
}  // namespace vex::cim::fwf::test
