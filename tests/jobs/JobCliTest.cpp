// vexraid job on the demo system (its clock stopped): the running verify set
// to low priority and aborted through RequestStateChange, followed to its
// end with --json, and the refusals a user can meet.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "CliRunner.h"

namespace vex::clitest {
namespace {

const std::string kVerify = "VEX_ConcreteJob.InstanceID=\"0_1\"";

TEST(JobCliTest, AbortsAndReprioritisesTheVerifyAndFollowsItToItsEnd) {
    const CliRunner vexraid;
    Outcome r = vexraid({"job", kVerify, "--priority", "low"});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    r = vexraid({"--json", "gi", kVerify});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    nlohmann::json job = nlohmann::json::parse(r.out);
    EXPECT_EQ(job["properties"]["Priority"], 3) << r.out;
    EXPECT_EQ(job["properties"]["JobState"], 4) << r.out;

    r = vexraid({"job", kVerify, "--abort"});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    r = vexraid({"--json", "job", kVerify, "--timeout", "5", "--interval", "0.1"});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    const nlohmann::json outcome = nlohmann::json::parse(r.out);
    ASSERT_EQ(outcome.size(), 1u) << r.out;
    EXPECT_EQ(outcome[0]["InstanceID"], "0_1");
    EXPECT_EQ(outcome[0]["JobStatus"], "aborted");
    EXPECT_LT(outcome[0]["PercentComplete"].get<unsigned>(), 100u);
    // Ended jobs are not running ones, nor in the summary.
    r = vexraid({"job"});
    EXPECT_EQ(r.out, "no running jobs\n");
    EXPECT_NE(vexraid({"summary"}).out.find("Jobs (0)"), std::string::npos);

    // An ended job takes no further change.
    r = vexraid({"job", kVerify, "--abort"});
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.err.find("refused the change: the job has ended"), std::string::npos) << r.err;
    EXPECT_EQ(vexraid({"job", kVerify, "--priority", "high"}).exitCode, 2);
    // Usage: a change needs one job, and a priority it knows.
    r = vexraid({"job", "--abort"});
    EXPECT_EQ(r.exitCode, 64);
    EXPECT_NE(r.err.find("--abort and --priority need the job"), std::string::npos) << r.err;
    EXPECT_EQ(vexraid({"job", kVerify, "--priority", "urgent"}).exitCode, 64);
}

}  // namespace
}  // namespace vex::clitest
