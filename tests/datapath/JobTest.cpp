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

// The running verify of the demo system is linked to the volume it checks and
// to the controller that runs it, from either end; a completed job of the
// same identity replaces the earlier record.
TEST(JobTest, JobIsLinkedToItsVolumeAndController) {
    const std::vector<cim::fwf::CIMInstance> jobs = enumerateThroughFacade("VEX_ConcreteJob");
    ASSERT_EQ(jobs.size(), 1u);
    CIMObjectPath job = jobs.front().getPath();
    std::string none;
    auto far = [&](CIMObjectPath from, std::string assoc) {
        std::vector<CIMObjectPath> out;
        facade().associatorsNames(from, assoc, out, none, none, none);
        std::vector<std::string> names;
        for (const CIMObjectPath& path : out) {
            std::string id;
            for (const cim::fwf::CIMProperty& key : path.getKeyBindings()) {
                id = key.getName() == "DeviceID" ? key.getStringValue().getValues().at(0) : id;
            }
            names.push_back(path.getClassName() + ":" + id);
        }
        return names;
    };
    EXPECT_EQ(far(job, "VEX_AffectedJobElement"), std::vector<std::string>{"VEX_StorageVolume:0_2"});
    EXPECT_EQ(far(job, "VEX_OwningJobElement"), std::vector<std::string>{"VEX_ControllerComputerSystem:"});
    std::vector<cim::fwf::CIMInstance> volumes = enumerateThroughFacade("VEX_StorageVolume");
    std::size_t linked = 0;
    for (const cim::fwf::CIMInstance& volume : volumes) {
        linked += far(volume.getPath(), "VEX_AffectedJobElement").size();
    }
    EXPECT_EQ(linked, 1u);

    cim::fwf::AbstractProviderPlugin* done = facade().getPlugIn("VEX_CompletedJob");
    ASSERT_NE(done, nullptr);
    done->pushCompletedJobObject(lastSeenAt(40));
    done->pushCompletedJobObject(lastSeenAt(99));
    std::vector<CIMObjectPath> records;
    CIMObjectPath all("", "root/tkz/vex/smi_15", "VEX_CompletedJob", {});
    facade().enumerateInstanceNames(all, records);
    EXPECT_EQ(records.size(), 1u);
    std::vector<cim::fwf::CIMInstance> record;
    facade().getCIMInstance(records.at(0), record);
    ASSERT_EQ(record.size(), 1u);
    EXPECT_EQ(cim::fwf::stringValueOf(record[0], "JobStatus"), "Completed");
}

}  // namespace
}  // namespace vex::datapath
