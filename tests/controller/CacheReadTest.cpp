// Reads: base class and view class, with and without keys.
#include "CacheTestSupport.h"

namespace vex::cim::fwf::test {
namespace {

Ids namesOf(const CIMInstance& instance) {
    Ids names;
    for (const CIMProperty& property : instance.getPropertyList()) {
        names.push_back(property.getName());
    }
    return names;
}

// A controller carrying two views, "CS" (system) and "CD" (card), and "PC".
CIMInstance controller(const std::string& name) {
    CIMInstance instance;
    CIMProperty system = viewKey("CSName", name);
    system.setKey(true);
    instance.addCimKeyBinding(system);
    instance.addProperty(stringProp("CSMaxArrays", "64"));
    instance.addProperty(viewKey("CDTag", name + "-card"));
    instance.addProperty(stringProp("CDModel", "X"));
    instance.addProperty(stringProp("PCDeviceID", name + "-pc"));
    return instance;
}

class CacheRead : public CacheTest {
protected:
    void SetUp() override {
        CacheTest::SetUp();
        for (const char* name : {"ctl0", "ctl1"}) {
            ASSERT_EQ(first->addObjInstance(kControllers, controller(name)), VEX_CM_SUCCESS);
        }
    }
    unsigned int read(const std::string& view, const std::vector<CIMProperty>& keys, bool keysOnly) {
        return first->getRepositoryObject(kControllers, view, keys, keysOnly, out);
    }
    std::vector<CIMInstance> out;
};

TEST_F(CacheRead, OnlyTheWholeListReplacesTheCallersVector) {
    out.push_back(drive("stale"));
    EXPECT_EQ(read("", {}, false), VEX_CM_SUCCESS);
    EXPECT_EQ(valuesOf(out, "CSName"), Ids({"ctl0", "ctl1"}));
    EXPECT_EQ(read("", {viewKey("CSName", "ctl1")}, false), VEX_CM_SUCCESS);
    EXPECT_EQ(read("CS", {}, false), VEX_CM_SUCCESS);
    EXPECT_EQ(valuesOf(out, "CSName"), Ids({"ctl0", "ctl1", "ctl1", "-", "-"}));

    out.clear();  // base keys only: the key-flagged properties, as the path's keys
    EXPECT_EQ(read("", {}, true), VEX_CM_SUCCESS);
    ASSERT_EQ(out.size(), 2u);
    EXPECT_EQ(namesOf(out[0]), Ids({"CSName"}));
    EXPECT_EQ(out[0].getPath().getKeyBindings().size(), 1u);
}

TEST_F(CacheRead, MissesAnswerWithTheirOwnTexts) {
    EXPECT_EQ(read("", {viewKey("CSName", "nope")}, false), VEX_CM_ENTRY_NOT_EXISTS);
    EXPECT_TRUE(logged("VEX_CM_ENTRY_NOT_EXISTS--View CLass--Device Type:: 1"));
    EXPECT_EQ(read("CS", {viewKey("Name", "nope")}, false), VEX_CM_ENTRY_NOT_EXISTS);
    EXPECT_TRUE(logged("VEX_CM_ENTRY_NOT_EXISTS--SubView Class--Device Type:: 1"));
    EXPECT_EQ(read("ZZ", {}, false), VEX_CM_SUCCESS);  // no such prefix: empty success
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(first->getRepositoryObject(kDrives, "", {}, false, out), VEX_CM_DEVTYPE_NOT_EXIST);
    EXPECT_TRUE(logged("VEX_CM_DEVTYPE_NOT_EXIST--Device Type:: 0"));
}

TEST_F(CacheRead, ViewPrefixIsAPrefixTestOnly) {
    ASSERT_EQ(read("C", {}, false), VEX_CM_SUCCESS);
    ASSERT_EQ(out.size(), 2u);
    EXPECT_EQ(namesOf(out[0]), Ids({"SName", "SMaxArrays", "DTag", "DModel"}));

    out.clear();
    ASSERT_EQ(read("CS", {}, false), VEX_CM_SUCCESS);
    EXPECT_EQ(namesOf(out[1]), Ids({"Name", "MaxArrays"}));
    EXPECT_EQ(valuesOf(out, "Name"), Ids({"ctl0", "ctl1"}));
    EXPECT_EQ(out[1].getPath().getKeyBindings().size(), 1u);  // the view key
}

TEST_F(CacheRead, ViewKeysOnlyTakesViewKeysButKeyedReadsTakeEverything) {
    ASSERT_EQ(read("CD", {}, true), VEX_CM_SUCCESS);
    ASSERT_EQ(out.size(), 2u);
    EXPECT_EQ(namesOf(out[1]), Ids({"Tag"}));

    out.clear();  // a prefix without view keys still yields one (empty) instance each
    ASSERT_EQ(read("PC", {}, true), VEX_CM_SUCCESS);
    ASSERT_EQ(out.size(), 2u);
    EXPECT_EQ(out[0].getPropertyCount(), 0u);

    out.clear();  // keys compare by type and value under prefix + name, flags aside
    ASSERT_EQ(read("CD", {stringKey("Tag", "ctl1-card")}, true), VEX_CM_SUCCESS);
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(namesOf(out[0]), Ids({"Tag", "Model"}));
    EXPECT_EQ(read("CS", {uint16Prop("Name", 0)}, false), VEX_CM_ENTRY_NOT_EXISTS);
}

}  // namespace
}  // namespace vex::cim::fwf::test
