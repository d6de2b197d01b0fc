// A job's life through the provider: a controller task seen as a running job,
// reprioritised or aborted through RequestStateChange, shown at its final
// state while the controller lists it, and kept as a completed-job record
// once it leaves (with its deletion indicated). The simulator's clock
// drives every step.
#include <storlib/Simulator.h>

#include "InProcessFixture.h"
#include "events/CompletedJobRemover.h"
#include "events/FsaIfEventManager.h"
#include "providers/storage/CompletedJobRecord.h"
#include "framework/PropertyBuilders.h"

namespace vex::datapath {
namespace {

using namespace cim::fwf;

std::vector<CIMInstance> gDelivered;

bool collect(CIMInstance& indication) {
    gDelivered.push_back(indication);
    return true;
}

unsigned number(const CIMInstance& job, const char* name) {
    const CIMProperty* p = job.getPropertyByName(name);
    if (p == nullptr) return 9999;
    if (p->getType() == CIM_UINT32) return p->getUint32Value().getValues().at(0);
    return p->getUint16Value().getValues().at(0);
}

std::vector<unsigned short> status(const CIMInstance& job) {
    return job.getPropertyByName("OperationalStatus")->getUint16Value().getValues();
}

std::string datetime(const CIMInstance& job, const char* name) {
    const CIMProperty* p = job.getPropertyByName(name);
    if (p == nullptr || p->getStringValue().getValues().empty()) return std::string();
    return p->getStringValue().getValues().front();
}

CIMObjectPath controller0() {
    return CIMObjectPath("", "root/tkz/vex/smi_15", "VEX_ControllerComputerSystem",
                         {stringProperty("CreationClassName", "VEX_ControllerComputerSystem", true),
                          stringProperty("Name", "vexController_0", true)});
}

class JobLifeTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(facade().registerForEvent(&collect));
        gDelivered.clear();
    }
    void TearDown() override { facade().deRegisterForEvent(); }

    static storlib::Simulator simulator() { return storlib::Simulator(demoSystem().library()); }

    // Rebuilds the cache and compares the jobs, as the refresh thread does
    // with the lifecycle setting on.
    static void refreshAndCompare() {
        refreshCycle();
        FsaIfEventManager::getInstance()->compareLrcObjects();
    }

    static std::optional<CIMInstance> job(const std::string& id, const char* className = "VEX_ConcreteJob") {
        for (const CIMInstance& j : enumerateThroughFacade(className)) {
            if (stringValueOf(j, "InstanceID") == id) return j;
        }
        return std::nullopt;
    }

    static unsigned requestStateChange(const CIMObjectPath& job, std::vector<CIMProperty> args) {
        CIMMethodParam in, out;
        for (const CIMProperty& a : args) in.addArgument(a);
        return facade().invokeMethod(job, "RequestStateChange", in, out);
    }

    // Starts a verify of a logical drive through the controller class; answers its job's InstanceID.
    static std::string startVerify(const std::string& logicalDrive) {
        std::set<std::string> before;
        for (const CIMInstance& j : enumerateThroughFacade("VEX_ConcreteJob")) before.insert(stringValueOf(j, "InstanceID"));
        CIMObjectPath controller = controller0();
        CIMMethodParam in, out;
        in.addArgument(stringProperty("SPInstanceID", logicalDrive));
        in.addArgument(booleanProperty("bFix", false));
        EXPECT_EQ(facade().invokeMethod(controller, "VerifyVD", in, out), 0u);
        refreshCycle();
        for (const CIMInstance& j : enumerateThroughFacade("VEX_ConcreteJob")) {
            if (before.count(stringValueOf(j, "InstanceID")) == 0) return stringValueOf(j, "InstanceID");
        }
        return {};
    }
};

// The demo system's running verify, finished by the controller: the job shows
// it completed while the controller lists the task, then leaves with a
// deletion indication and a "Completed" record that keeps its times. The
// controller that runs it reaches it.
TEST_F(JobLifeTest, AFinishedVerifyEndsAsACompletedRecord) {
    FsaIfEventManager::getInstance()->compareLrcObjects();  // the "before" of the comparisons
    std::vector<CIMInstance> jobs = enumerateThroughFacade("VEX_ConcreteJob");
    ASSERT_EQ(jobs.size(), 1u);
    const std::string id = stringValueOf(jobs[0], "InstanceID");
    EXPECT_EQ(number(jobs[0], "JobState"), 4u);
    EXPECT_EQ(status(jobs[0]), std::vector<unsigned short>{2});
    EXPECT_LT(number(jobs[0], "PercentComplete"), 100u);
    const std::string started = datetime(jobs[0], "StartTime");
    ASSERT_GE(started.size(), 4u);
    EXPECT_EQ(started.substr(started.size() - 4), "+530");
    EXPECT_EQ(datetime(jobs[0], "TimeBeforeRemoval"), "00000000000500.000000:000");
    std::vector<CIMObjectPath> owned;
    std::string owning = "VEX_OwningJobElement", none;
    CIMObjectPath controller = controller0();
    facade().associatorsNames(controller, owning, owned, none, none, none);
    ASSERT_EQ(owned.size(), 1u);
    EXPECT_EQ(owned[0].getKeyBindings().at(0).getStringValue().getValues().at(0), id);

    ASSERT_TRUE(simulator().advanceTime(10));
    refreshAndCompare();
    const CIMInstance later = *job(id);
    EXPECT_EQ(datetime(later, "StartTime"), started);
    EXPECT_NE(datetime(later, "ElapsedTime"), datetime(jobs[0], "ElapsedTime"));

    ASSERT_TRUE(simulator().finishAllTasks());
    refreshAndCompare();
    const std::optional<CIMInstance> done = job(id);
    ASSERT_TRUE(done);
    EXPECT_EQ(number(*done, "JobState"), 7u);
    EXPECT_EQ(status(*done), (std::vector<unsigned short>{2, 17}));
    EXPECT_EQ(number(*done, "PercentComplete"), 100u);
    for (const CIMInstance& sent : gDelivered) EXPECT_NE(sent.getClassName(), "CIM_InstDeletion");

    gDelivered.clear();
    ASSERT_TRUE(simulator().advanceTime(301));
    refreshAndCompare();
    EXPECT_FALSE(job(id));
    ASSERT_EQ(gDelivered.size(), 1u);
    EXPECT_EQ(gDelivered[0].getClassName(), "CIM_InstDeletion");
    const std::optional<CIMInstance> record = job(id, "VEX_CompletedJob");
    ASSERT_TRUE(record);
    EXPECT_EQ(stringValueOf(*record, "JobStatus"), "Completed");
    EXPECT_EQ(number(*record, "PercentComplete"), 100u);
    EXPECT_EQ(datetime(*record, "StartTime"), started);
    EXPECT_EQ(stringValueOf(*record, "Name"), stringValueOf(*done, "Name"));
}

// A verify started through the controller class becomes a job that can be
// set to low priority and aborted; refused requests change nothing.
TEST_F(JobLifeTest, AVerifyStartedThroughTheProviderIsReprioritisedAndAborted) {
    const std::string id = startVerify("0_0");
    const std::optional<CIMInstance> started = job(id);
    const CIMObjectPath path = started->getPath();
    EXPECT_EQ(number(*started, "JobState"), 4u);

    EXPECT_EQ(requestStateChange(path, {uint16Property("RequestedState", 32771)}), 0u);
    refreshCycle();
    EXPECT_EQ(number(*job(id), "Priority"), 3u);

    // Refused: no state, an unknown state, a timeout, a job of a controller that does not exist.
    EXPECT_EQ(requestStateChange(path, {}), 3u);
    EXPECT_EQ(requestStateChange(path, {uint16Property("RequestedState", 3)}), 3u);
    EXPECT_GE(loggedCount("Invalid RequestedState Parameter Value"), 2);
    EXPECT_EQ(requestStateChange(path, {uint16Property("RequestedState", 4),
                                        stringProperty("TimeoutPeriod", "00000000000100.000000:000")}),
              3u);
    EXPECT_GE(loggedCount("Use Of Timeout Parameter Not Supported"), 1);
    const CIMObjectPath elsewhere("", "root/tkz/vex/smi_15", "VEX_ConcreteJob",
                                  {stringProperty("InstanceID", "7" + id.substr(id.find('_')), true)});
    EXPECT_EQ(requestStateChange(elsewhere, {uint16Property("RequestedState", 4)}), 3u);
    refreshCycle();
    EXPECT_EQ(number(*job(id), "JobState"), 4u);
    EXPECT_EQ(number(*job(id), "Priority"), 3u);

    EXPECT_EQ(requestStateChange(path, {uint16Property("RequestedState", 4)}), 0u);
    refreshCycle();
    const CIMInstance aborted = *job(id);
    EXPECT_EQ(number(aborted, "JobState"), 8u);
    EXPECT_EQ(status(aborted), (std::vector<unsigned short>{10, 17}));
    EXPECT_LT(number(aborted, "PercentComplete"), 100u);
    // A job that has just ended takes no further change.
    EXPECT_EQ(requestStateChange(path, {uint16Property("RequestedState", 32769)}), 3u);
    EXPECT_GE(loggedCount("invokeMethod :: Method RequestStateChange failed on VEX_ConcreteJob."), 5);
}

// A verify stopped by a lost member ends in Exception with Error.
TEST_F(JobLifeTest, AVerifyThatLosesAMemberEndsInError) {
    const std::string id = startVerify("0_1");
    ASSERT_TRUE(simulator().advanceTime(5));
    ASSERT_TRUE(simulator().failDrive(storlib::Addr::device(0, 0, 2)));
    refreshCycle();
    const std::optional<CIMInstance> failed = job(id);
    ASSERT_TRUE(failed);
    EXPECT_EQ(number(*failed, "JobState"), 10u);
    EXPECT_EQ(status(*failed), (std::vector<unsigned short>{6, 17}));
    EXPECT_LT(number(*failed, "PercentComplete"), 100u);
}

// The remover's pass (its thread is never started) drops only the records of
// ended jobs whose last change has aged.
TEST_F(JobLifeTest, TheRemoverDropsAgedRecordsOnly) {
    CIMDateTime now;
    now.getCurrentDateTime();
    auto record = [](const std::string& id, const std::string& changed) {
        return completedJobRecord({stringProperty("InstanceID", id, true), uint16Property("PercentComplete", 100),
                                   CIMProperty("LastTimeOfModification", CIMValue<std::string>(changed), false,
                                               CIM_DATETIME, false)});
    };
    AbstractProviderPlugin* done = facade().getPlugIn("VEX_CompletedJob");
    ASSERT_NE(done, nullptr);
    done->pushCompletedJobObject(record("0_90", "20200101000000.000000+530"));
    done->pushCompletedJobObject(record("0_91", now.toString()));
    done->pushCompletedJobObject(record("0_92", "garbage"));
    EXPECT_GE(removeExpiredCompletedJobs(), 1u);
    std::set<std::string> kept;
    for (const CIMInstance& r : enumerateThroughFacade("VEX_CompletedJob")) kept.insert(stringValueOf(r, "InstanceID"));
    EXPECT_EQ(kept.count("0_90"), 0u);
    EXPECT_EQ(kept.count("0_91") + kept.count("0_92"), 2u);
}

}  // namespace
}  // namespace vex::datapath
