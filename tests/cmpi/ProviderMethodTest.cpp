// How the outcome of an extrinsic method reaches the client: a failure's
// code becomes the method's return value, with rc 1 and its message.
#include "ProviderFixture.h"

namespace vex::cmpitest {
namespace {

using cmpihost::Response;
using cmpihost::Value;

const cmpihost::ObjectPath kHost(kImplNs, "VEX_HostComputerSystem");

class ProviderMethodTest : public ProviderTest {
protected:
    void SetUp() override {
        ProviderTest::SetUp();
        start();
    }
};

TEST_F(ProviderMethodTest, ReturnValueOutsideTheCompletedSetFailsWithReturnValue1) {
    // The host system offers no method: its plug-in answers 7.
    Response r = cimom().invokeMethod(kHost, "RequestStateChange");
    EXPECT_TRUE(hasStatus(r, CMPI_RC_ERR_FAILED, " :: Operation Failed"));
    EXPECT_EQ(r.returnValue(), Value::uint32(1));
    EXPECT_EQ(r.doneCount, 1);
    EXPECT_TRUE(r.outArgs.empty());
    EXPECT_TRUE(loggedAt(2, "InvokeMethod returns error = 7"));
    EXPECT_TRUE(loggedAt(5, "CMPIAdapter::InvokeMethod:RequestStateChange"));
    EXPECT_TRUE(loggedAt(2, "InvokeMethod operation failed,                 refer previous log "
                            "lines for reason"));
}

TEST_F(ProviderMethodTest, FailureCodeBecomesTheReturnValue) {
    Response unknown = cimom().invokeMethod({kImplNs, "VEX_NoSuchClass"}, "Go");
    EXPECT_EQ(unknown.status.rc, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(unknown.returnValue(), Value::uint32(5));
    EXPECT_TRUE(unknown.status.message.has_value());
}

// On a system with controllers the controller's routines answer.
TEST_F(ProviderMethodTest, CompletedCallReturnsItsValueAndOutArguments) {
    cimom().unload();
    useSystem("demo.json");
    start();
    Response controllers =
        cimom().enumerateInstanceNames({kImplNs, "VEX_ControllerComputerSystem"});
    ASSERT_TRUE(controllers.ok()) << controllers.status.toString();
    ASSERT_FALSE(controllers.paths.empty());
    const cmpihost::ObjectPath& controller = controllers.paths.front();

    Response listed = cimom().invokeMethod(controller, "getRoutineList");
    EXPECT_TRUE(hasStatus(listed, CMPI_RC_OK, ""));
    EXPECT_EQ(listed.returnValue(), Value::uint32(0));
    EXPECT_EQ(listed.doneCount, 1);
    const Value* routines = cmpihost::findNamed(listed.outArgs, "Routine_List");
    ASSERT_NE(routines, nullptr);
    EXPECT_EQ(routines->type(), CMPI_stringA);
    EXPECT_FALSE(routines->elements().empty());

    // A routine that refuses a missing argument answers 4: not a completed call.
    Response rescan = cimom().invokeMethod(controller, "SetAlarmState");
    EXPECT_TRUE(hasStatus(rescan, CMPI_RC_ERR_FAILED, " :: Operation Failed"));
    EXPECT_EQ(rescan.returnValue(), Value::uint32(1));
}

}  // namespace
}  // namespace vex::cmpitest
