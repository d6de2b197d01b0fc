#include <gtest/gtest.h>

#include <stdexcept>

#include "TestProperties.h"
#include "framework/CIMInstance.h"
#include "framework/CIMMethodParam.h"

namespace vex::cim::fwf::test {
namespace {

TEST(CIMInstancePath, SetPathTakesTheAddressButNeverTheKeys) {
    CIMInstance instance;
    instance.setPath(volumePath("host", "0_1"));
    const CIMObjectPath path = instance.getPath();
    EXPECT_EQ(path.getHostName(), "host");
    EXPECT_EQ(path.getNameSpace(), "root/tkz/vex/smi_15");
    EXPECT_EQ(path.getClassName(), "VEX_StorageVolume");
    EXPECT_TRUE(path.getKeyBindings().empty());
    EXPECT_EQ(instance.getPropertyCount(), 0u);
}

TEST(CIMInstancePath, KeyBindingsShowInPropertiesAndPath) {
    CIMInstance instance;
    instance.setPath(volumePath("host", "ignored"));
    instance.addCimKeyBinding(stringKey("DeviceID", "0_1"));
    instance.addProperty(stringProp("ElementName", "Volume 1"));
    instance.addCimKeyBinding(stringKey("CreationClassName", "VEX_StorageVolume"));

    ASSERT_EQ(instance.getPropertyCount(), 3u);
    EXPECT_EQ(instance.getProperty(1).getName(), "ElementName");
    ASSERT_EQ(instance.getKeyPropertyList().size(), 2u);
    EXPECT_EQ(instance.getKeyPropertyList()[1].getName(), "CreationClassName");
    EXPECT_TRUE(instance.getPath() == volumePath("", "0_1"));

    // A new setPath changes the address and leaves the keys alone.
    instance.setPath(CIMObjectPath("", "root/tkz/vex/smi_15", "VEX_StorageVolume", {}));
    EXPECT_EQ(instance.getPath().getHostName(), "");
    EXPECT_EQ(instance.getPath().getKeyBindings().size(), 2u);
}

TEST(CIMInstancePath, RemoveAllPropertiesLeavesThePath) {
    CIMInstance instance;
    instance.setPath(volumePath("h", "x"));
    instance.addCimKeyBinding(stringKey("DeviceID", "0_1"));
    instance.addProperty(uint16Prop("HealthState", 5));
    const std::string before = instance.getPath().toString();

    instance.removeAllProperties();
    EXPECT_EQ(instance.getPropertyCount(), 0u);
    EXPECT_TRUE(instance.getPropertyList().empty());
    EXPECT_EQ(instance.getPath().toString(), before);
}

TEST(CIMInstanceProperties, IndexIsRangeChecked) {
    CIMInstance instance;
    EXPECT_THROW(instance.getProperty(0), std::out_of_range);
    instance.addProperty(uint16Prop("A", 1));
    EXPECT_NO_THROW(instance.getProperty(0));
    EXPECT_THROW(instance.getProperty(1), std::out_of_range);
    EXPECT_THROW(instance.getProperty(0xffffffffu), std::out_of_range);
}

TEST(CIMInstanceProperties, LookUpByExactNameAndRenameInPlace) {
    CIMInstance instance;
    instance.addProperty(stringProp("Name", "first"));
    instance.addProperty(stringProp("Name", "second"));
    EXPECT_EQ(instance.getPropertyByName("name"), nullptr);
    EXPECT_EQ(instance.getPropertyByName("Missing"), nullptr);

    CIMProperty* found = instance.getPropertyByName("Name");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->getStringValue().getValues()[0], "first");
    found->setName("CSName");
    EXPECT_EQ(instance.getProperty(0).getName(), "CSName");

    const CIMInstance& readOnly = instance;
    ASSERT_NE(readOnly.getPropertyByName("Name"), nullptr);
    EXPECT_EQ(readOnly.getPropertyByName("Name")->getStringValue().getValues()[0], "second");
}

TEST(CIMMethodParamArguments, LookUpIsExactAndIndexIsRangeChecked) {
    CIMMethodParam params;
    params.addArgument(uint16Prop("TaskPriority", 3));
    params.addArgument(stringProp("VDName", "vol"));
    EXPECT_EQ(params.getArgumentCount(), 2u);
    EXPECT_EQ(params.getArgument(1).getName(), "VDName");
    EXPECT_THROW(params.getArgument(2), std::out_of_range);

    EXPECT_EQ(params.getArgumentByName("vdname"), nullptr);
    ASSERT_NE(params.getArgumentByName("VDName"), nullptr);
    EXPECT_EQ(params.getArgumentByName("VDName")->getStringValue().getValues()[0], "vol");

    params.clearArgument();
    EXPECT_EQ(params.getArgumentCount(), 0u);
    EXPECT_EQ(params.getArgumentByName("VDName"), nullptr);
}

TEST(CIMMethodParamArguments, ToStringShowsEveryArgument) {
    CIMMethodParam params;
    params.addArgument(uint16Prop("TaskPriority", 3));
    params.addArgument(CIMProperty("Drives", CIMValue<std::string>(
                                                 std::vector<std::string>{"0_0_1", "0_0_2"},
                                                 false, false),
                                   false, CIM_STRING_ARRAY, false));
    params.addArgument(refKey("Pool", CIMObjectPath("", "ns", "C", {stringKey("ID", "1")})));
    params.addArgument(CIMProperty("Fix", CIMValue<bool>(true, false, false), false, CIM_BOOLEAN,
                                   false));
    EXPECT_EQ(params.toString(),
              "CIMMethodParam[4]: TaskPriority(20)=3; Drives(19)={\"0_0_1\",\"0_0_2\"}; "
              "Pool(28)=///ns:C.ID=\"1\"; Fix(0)=true");
    EXPECT_EQ(CIMMethodParam().toString(), "CIMMethodParam[0]:");
}

}  // namespace
}  // namespace vex::cim::fwf::test
