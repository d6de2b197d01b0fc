// The job class: its one method, the completed-job record of a finished job,
// and the first enumeration that tells a client is watching jobs.
#include "InProcessFixture.h"
#include "framework/PropertyBuilders.h"
#include "providers/storage/CompletedJobRecord.h"

namespace vex::datapath {
namespace {

using cim::fwf::CIMMethodParam;
using cim::fwf::CIMObjectPath;
using cim::fwf::CIMProperty;
using cim::fwf::_CompletedJob;

_CompletedJob lastSeenAt(unsigned short percent) {
    return cim::fwf::completedJobRecord({cim::fwf::stringProperty("InstanceID", "0_3", true),
                                         cim::fwf::stringProperty("JobStatus", "Running"),
                                         cim::fwf::uint16Property("PercentComplete", percent)});
}

std::string jobStatus(const _CompletedJob& record) {
    return record[cim::fwf::CJ_JOB_STATUS].getStringValue().getValues().at(0);
}

unsigned short percent(const _CompletedJob& record) {
    return record[cim::fwf::CJ_PERCENT_COMPLETE].getUint16Value().getValues().at(0);
}

TEST(JobTest, FinishedJobIsCompletedAbove94Percent) {
    EXPECT_EQ(jobStatus(lastSeenAt(95)), "Completed");
    EXPECT_EQ(percent(lastSeenAt(95)), 100);
    EXPECT_EQ(jobStatus(lastSeenAt(94)), "Failed");
    EXPECT_EQ(percent(lastSeenAt(94)), 94);
    EXPECT_EQ(lastSeenAt(94)[cim::fwf::CJ_INSTANCE_ID].getName(), "InstanceID");
    EXPECT_EQ(lastSeenAt(94)[cim::fwf::CJ_START_TIME].getName(), "");  // not carried by the job
}

TEST(JobTest, OnlyRequestStateChangeReachesTheController) {
    const std::vector<cim::fwf::CIMInstance> jobs = enumerateThroughFacade("VEX_ConcreteJob");
    ASSERT_FALSE(jobs.empty());
    const CIMObjectPath path = jobs.front().getPath();
    CIMMethodParam in, out;
    EXPECT_EQ(facade().invokeMethod(path, "Rescan", in, out), 3u);
    EXPECT_EQ(loggedCount("invokeMethod :: Method Rescan not supported on VEX_ConcreteJob."), 1);
    // Handed to the controller interface, which has no such routine yet.
    EXPECT_EQ(facade().invokeMethod(path, "RequestStateChange", in, out), 3u);
    EXPECT_EQ(loggedCount("invokeMethod :: Method RequestStateChange failed on VEX_ConcreteJob."), 1);
}

TEST(JobTest, FirstJobEnumerationIsNotedOnce) {
    enumerateThroughFacade("VEX_ConcreteJob");
    enumerateThroughFacade("VEX_ConcreteJob");
    EXPECT_EQ(loggedCount("Got the first job progess query from agent"), 1);
}

}  // namespace
}  // namespace vex::datapath
