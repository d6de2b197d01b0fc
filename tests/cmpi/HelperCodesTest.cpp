// Error codes at the CMPI boundary, property lists, and which method return
// values count as a completed call.
#include "HelperFixture.h"
#include "cmpi/CMPIAdapterMethodResult.h"
#include "cmpi/CMPIHelper.h"

namespace vex::cmpitest {
namespace {

using vex::cim::adap::cmpi::CMPIHelper;
namespace method = vex::cim::adap::cmpi::method;

TEST(HelperCodesTest, OnlyCimStatusCodesPassTheBoundary) {
    for (unsigned int code : {2u, 5u, 6u, 7u, 17u, 18u}) {
        EXPECT_EQ(CMPIHelper::ConvertFrameWorkErrorCodeToCmpiErrorCode(code), static_cast<CMPIrc>(code));
    }
    for (unsigned int code : {0u, 1u, 19u, 20u, 24u, 51u, 200u}) {
        EXPECT_EQ(CMPIHelper::ConvertFrameWorkErrorCodeToCmpiErrorCode(code), CMPI_RC_ERR_FAILED)
            << code;
    }
}

TEST(HelperCodesTest, PropertyListBecomesNamesAndReplacesWhatWasThere) {
    std::vector<std::string> names{"old"};
    CMPIHelper::ConvertChartoStringVector(nullptr, names);
    EXPECT_TRUE(names.empty());
    const char* list[] = {"ElementName", "Name", nullptr};
    CMPIHelper::ConvertChartoStringVector(list, names);
    EXPECT_EQ(names, (std::vector<std::string>{"ElementName", "Name"}));
}

TEST(HelperCodesTest, MethodReturnValuesOfACompletedCall) {
    for (unsigned int value = 0; value < 40; ++value) {
        bool completed = value == 0 || value == 5 || value == 6 || value == 24 || value == 25;
        EXPECT_EQ(method::isCompletedReturnValue(value), completed) << value;
    }
    clearLog();
    auto e = thrownBy([] { method::requireCompleted(4); });
    ASSERT_TRUE(e.has_value());
    EXPECT_EQ(e->getErrCode(), 1u);
    EXPECT_EQ(e->getErrMessage(), " :: Operation Failed");
    EXPECT_TRUE(loggedAt(2, "InvokeMethod returns error = 4"));
    EXPECT_FALSE(thrownBy([] { method::requireCompleted(5); }).has_value());
}

}  // namespace
}  // namespace vex::cmpitest
