#include <gtest/gtest.h>

#include "framework/CommonFunctions.h"

namespace vex::cim::fwf::test {
namespace {

namespace cf = CommonFunctions;

TEST(CommonFunctionsNames, LowerCaseAndCaseInsensitiveCompare) {
    EXPECT_EQ(cf::toLower("VEX_StorageVolume"), "vex_storagevolume");
    EXPECT_EQ(cf::toLower("root/PG_InterOp 15"), "root/pg_interop 15");
    EXPECT_EQ(cf::toLower("\xC4X"), "\xC4x") << "non-ASCII bytes stay as they are";
    EXPECT_TRUE(cf::equalsIgnoreCase("VEX_DiskDrive", "vex_diskdrive"));
    EXPECT_FALSE(cf::equalsIgnoreCase("VEX_DiskDrive", "VEX_DiskDrives"));
    EXPECT_TRUE(cf::containsIgnoreCase("VEX_ConcreteStoragePool", "storagepool"));
    EXPECT_FALSE(cf::containsIgnoreCase("VEX_StorageVolume", "pool"));
}

TEST(CommonFunctionsLists, ItemsByIndex) {
    const std::string ends = "VEX_StorageVolume, VEX_ConcreteStoragePool,VEX_DiskDrive";
    EXPECT_EQ(cf::getStringCount(ends), 3u);
    EXPECT_EQ(cf::getStringAt(ends, 0), "VEX_StorageVolume");
    EXPECT_EQ(cf::getStringAt(ends, 1), "VEX_ConcreteStoragePool");
    EXPECT_EQ(cf::getStringAt(ends, 2), "VEX_DiskDrive");
    EXPECT_EQ(cf::getStringAt(ends, 3), "");

    EXPECT_EQ(cf::getStringAt("VEX_Single", 0), "VEX_Single");
    EXPECT_EQ(cf::getStringCount(""), 0u);
    EXPECT_EQ(cf::getStringAt("", 0), "");
    EXPECT_EQ(cf::getStringAt("a,,b", 1), "");
    EXPECT_EQ(cf::getStringAt("a,,b", 2), "b");
}

TEST(CommonFunctionsLists, IdentifierFieldsWithTheirOwnSeparator) {
    EXPECT_EQ(cf::getStringAt("1_0_12", 0, '_'), "1");
    EXPECT_EQ(cf::getStringAt("1_0_12", 2, '_'), "12");
    EXPECT_EQ(cf::getStringAt("vexController_3", 1, '_'), "3");
    EXPECT_EQ(cf::getStringCount("1_0_12", '_'), 3u);
}

TEST(CommonFunctionsLists, PropertyListToNames) {
    const char* list[] = {"ElementName", "OperationalStatus", nullptr};
    EXPECT_EQ(cf::propertyListToNames(list),
              (std::vector<std::string>{"ElementName", "OperationalStatus"}));
    const char* empty[] = {nullptr};
    EXPECT_TRUE(cf::propertyListToNames(empty).empty());
    EXPECT_TRUE(cf::propertyListToNames(nullptr).empty());
}

TEST(CommonFunctionsFormat, FormatsAnyLength) {
    EXPECT_EQ(cf::formatString("vexController_%d", 2), "vexController_2");
    EXPECT_EQ(cf::formatString("%d_%d_%d", 1, 0, 12), "1_0_12");
    const std::string long_text(5000, 'z');
    EXPECT_EQ(cf::formatString("[%s]", long_text.c_str()), "[" + long_text + "]");
    EXPECT_EQ(cf::formatString("%s", ""), "");
}

}  // namespace
}  // namespace vex::cim::fwf::test
