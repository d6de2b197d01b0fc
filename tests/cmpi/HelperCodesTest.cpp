// Which method return values count as a completed call.
#include "HelperFixture.h"
#include "cmpi/CMPIAdapterMethodResult.h"

namespace vex::cmpitest {
namespace {

namespace method = vex::cim::adap::cmpi::method;

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
