// The administrator's tasks by name through vexraid, on the demo system:
// a mirror created and deleted, a spare released and refused, a drive
// located, refusals explained.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "CliRunner.h"

namespace vex::clitest {
namespace {

std::size_t lines(const std::string& text) {
    std::size_t n = 0;
    for (char c : text) n += c == '\n' ? 1 : 0;
    return n;
}

TEST(CliVolumeTest, AVolumeIsCreatedAndDeletedByName) {
    CliRunner vexraid;
    const std::size_t before = lines(vexraid({"ein", "VEX_StorageVolume"}).out);
    // The demo's two spares become free drives first.
    ASSERT_EQ(vexraid({"spare", "remove", "0_0_9"}).exitCode, 0);
    ASSERT_EQ(vexraid({"spare", "remove", "0_0_10"}).exitCode, 0);
    const Outcome created =
        vexraid({"--json", "volume", "create", "--level", "RAID1", "--drives", "0_0_9,0_0_10", "--name", "Mirror2"});
    ASSERT_EQ(created.exitCode, 0) << created.err;
    EXPECT_EQ(nlohmann::json::parse(created.out)["returnValue"], 0);
    EXPECT_EQ(lines(vexraid({"ein", "VEX_StorageVolume"}).out), before + 1);
    const Outcome listed = vexraid({"--json", "ei", "VEX_ConcreteStoragePool", "-p", "InstanceID,ElementName"});
    std::string created_id;
    for (const auto& pool : nlohmann::json::parse(listed.out)) {
        if (pool["properties"]["ElementName"] == "Mirror2") created_id = pool["properties"]["InstanceID"];
    }
    ASSERT_FALSE(created_id.empty()) << listed.out;

    // The drives are taken now: the controller refuses, and vexraid says so.
    const Outcome refused = vexraid({"volume", "create", "--level", "RAID1", "--drives", "0_0_9,0_0_10"});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_NE(refused.err.find("CreateVD refused: the controller refused the request"), std::string::npos) << refused.err;
    const Outcome tooFew = vexraid({"volume", "create", "--level", "RAID5", "--drives", "0_0_9,0_0_10"});
    EXPECT_EQ(tooFew.exitCode, 2);
    EXPECT_NE(tooFew.err.find("CreateVD refused: the request is malformed or the controller cannot satisfy it"),
              std::string::npos)
        << tooFew.err;

    const Outcome deleted = vexraid({"volume", "delete", created_id});
    EXPECT_EQ(deleted.exitCode, 0) << deleted.err;
    EXPECT_EQ(lines(vexraid({"ein", "VEX_StorageVolume"}).out), before);
}

TEST(CliVolumeTest, SparesAndLocateByName) {
    CliRunner vexraid;
    EXPECT_EQ(vexraid({"spare", "remove", "0_0_9"}).exitCode, 0);
    EXPECT_EQ(vexraid({"spare", "assign", "0_0_9", "--to", "0_1"}).exitCode, 0);
    EXPECT_EQ(vexraid({"spare", "remove", "0_0_8"}).exitCode, 2);  // no spare
    const Outcome inUse = vexraid({"spare", "assign", "0_0_1"});
    EXPECT_EQ(inUse.exitCode, 2);
    EXPECT_EQ(vexraid({"--json", "locate", "0_0_3"}).exitCode, 0);
    EXPECT_EQ(vexraid({"locate", "0_0_3", "--off"}).exitCode, 0);
    EXPECT_EQ(vexraid({"locate", "zero"}).exitCode, 64);
}

}  // namespace
}  // namespace vex::clitest
