#include <gtest/gtest.h>

#include <string>

#include "framework/CIMException.h"

namespace vex::cim::fwf::test {
namespace {

TEST(CIMExceptionMessage, FormatsCodeAndText) {
    const CIMException error(CIM_ERR_KEY_NOT_PROPER, "Key is not proper for  %s getInstance",
                             "VEX_StorageVolume");
    EXPECT_EQ(error.getErrCode(), 20u);
    EXPECT_EQ(error.getErrMessage(), "Key is not proper for  VEX_StorageVolume getInstance");

    const CIMException plain(CIM_ERR_NOT_SUPPORTED, " :: Not supported");
    EXPECT_EQ(plain.getErrCode(), 7u);
    EXPECT_EQ(plain.getErrMessage(), " :: Not supported");
}

TEST(CIMExceptionMessage, OverlongArgumentIsCutToTheBuffer) {
    const std::string huge(10000, 'a');
    const CIMException error(CIM_ERR_FAILED, "Failed to retrieve objects of %s", huge.c_str());
    const std::string& message = error.getErrMessage();
    ASSERT_EQ(message.size(), CIMException::kMessageSize - 1);
    EXPECT_EQ(message.rfind("Failed to retrieve objects of aaa", 0), 0u);
    EXPECT_EQ(message.find_first_not_of('a', 30), std::string::npos);
}

TEST(CIMExceptionMessage, PercentInClientTextIsNotInterpreted) {
    const CIMException error(CIM_ERR_INVALID_CLASS, "%s :: Incorrect Class Name requested",
                             "VEX_%s%n%d");
    EXPECT_EQ(error.getErrMessage(), "VEX_%s%n%d :: Incorrect Class Name requested");
}

}  // namespace
}  // namespace vex::cim::fwf::test
