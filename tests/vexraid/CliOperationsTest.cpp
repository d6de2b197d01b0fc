// vexraid end to end on the demo system: enumerations, exact values and a
// get through JSON read back, polymorphic enumeration, associations, a method
// call, a modification, the summary, jobs and indications.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>

#include "BuiltinSchema.h"

#include "CliRunner.h"

namespace vex::clitest {
namespace {

using nlohmann::json;

const std::string kController0 =
    "VEX_ControllerComputerSystem.CreationClassName=\"VEX_ControllerComputerSystem\",Name=\"vexController_0\"";

std::size_t lines(const std::string& text) {
    std::size_t n = 0;
    for (char c : text) n += c == '\n' ? 1 : 0;
    return n;
}

class CliOperationsTest : public ::testing::Test {
protected:
    json jsonOf(const std::vector<std::string>& args) {
        std::vector<std::string> all = {"--json"};
        all.insert(all.end(), args.begin(), args.end());
        const Outcome r = vexraid(all);
        EXPECT_EQ(r.exitCode, 0) << r.err;
        return json::parse(r.out);
    }
    static CliRunner vexraid;
};

CliRunner CliOperationsTest::vexraid;

TEST_F(CliOperationsTest, EnumeratesTheDemoSystem) {
    const struct {
        const char* cls;
        std::size_t count;
    } expected[] = {{"VEX_ControllerComputerSystem", 2}, {"VEX_DiskDrive", 18}, {"VEX_StorageVolume", 5},
                    {"VEX_ConcreteStoragePool", 5},      {"VEX_Battery", 2},    {"VEX_ConcreteJob", 1}};
    for (const auto& e : expected) {
        const Outcome r = vexraid({"ein", e.cls});
        EXPECT_EQ(r.exitCode, 0) << e.cls << ": " << r.err;
        EXPECT_EQ(lines(r.out), e.count) << e.cls << ":\n" << r.out;
    }
    // A DMTF class reaches every provider class derived from it.
    EXPECT_EQ(lines(vexraid({"ein", "CIM_ComputerSystem"}).out), 3u);
}

TEST_F(CliOperationsTest, JsonReadsBackWithValuesOfTheirTypes) {
    const json cards = jsonOf({"ei", "VEX_Card"});
    ASSERT_EQ(cards.size(), 2u);
    EXPECT_EQ(cards[0]["class"], "VEX_Card");
    EXPECT_EQ(cards[0]["properties"]["Model"], "VEX-8160i");
    EXPECT_EQ(cards[0]["properties"]["SerialNumber"], "VX4A1F0C");
    EXPECT_EQ(cards[1]["properties"]["Model"], "VEX-8160e");

    const json pools = jsonOf({"ei", "VEX_ConcreteStoragePool", "-p", "InstanceID,ElementName,TotalManagedSpace"});
    ASSERT_EQ(pools.size(), 5u);
    EXPECT_EQ(pools[1]["properties"]["InstanceID"], "0_1");
    EXPECT_EQ(pools[1]["properties"]["ElementName"], "Data");
    EXPECT_TRUE(pools[1]["properties"]["TotalManagedSpace"].is_number_unsigned());
    EXPECT_EQ(pools[1]["properties"].size(), 3u);

    // A path printed by vexraid reads back as a path.
    const json one = jsonOf({"gi", pools[1]["path"].get<std::string>()});
    EXPECT_EQ(one["properties"]["ElementName"], "Data");
}

TEST_F(CliOperationsTest, FollowsAssociationsFromTheHostPackage) {
    const json hosts = jsonOf({"ein", "VEX_HostComputerSystem"});
    ASSERT_EQ(hosts.size(), 1u);
    const json packages = jsonOf({"ain", hosts[0].get<std::string>(), "--assoc-class", "VEX_HostComputerSystemPackage"});
    ASSERT_EQ(packages.size(), 1u);
    EXPECT_NE(packages[0].get<std::string>().find("VEX_HostPhysicalPackage"), std::string::npos);
    const json references = jsonOf({"ri", hosts[0].get<std::string>(), "-r", "CIM_SystemPackaging"});
    ASSERT_EQ(references.size(), 1u);
    EXPECT_EQ(references[0]["class"], "VEX_HostComputerSystemPackage");
}

// The routines the provider runs are the methods the schema declares.
TEST_F(CliOperationsTest, InvokesAMethodAndPrintsItsOutput) {
    const json result = jsonOf({"--user", "root", "cm", kController0, "getRoutineList"});
    EXPECT_EQ(result["returnValue"], 0);
    const json& routines = result["outArgs"]["Routine_List"];
    ASSERT_TRUE(routines.is_array());
    EXPECT_NE(std::find(routines.begin(), routines.end(), "getRoutineList"), routines.end());
    const vex::mof::ClassDecl* controller = vex::mof::builtinSchema().find("VEX_ControllerComputerSystem");
    ASSERT_NE(controller, nullptr);
    for (const json& name : routines) {
        EXPECT_NE(controller->method(name.get<std::string>()), nullptr) << name << " is not declared";
    }
}

// An untyped value takes the type the property has; the change reaches the
// controller and the next process sees it.
TEST_F(CliOperationsTest, ModifiesAControllerSetting) {
    CliRunner own;  // a state of its own: this changes the controller
    const std::vector<std::string> get = {"--json", "gi", kController0, "-p", "CopyBack"};
    EXPECT_EQ(json::parse(own(get).out)["properties"]["CopyBack"], false);
    const Outcome modified = own({"--user", "root", "mi", kController0, "CopyBack=true"});
    ASSERT_EQ(modified.exitCode, 0) << modified.err;
    EXPECT_EQ(json::parse(own(get).out)["properties"]["CopyBack"], true);
}

TEST_F(CliOperationsTest, SummarisesTheSystem) {
    const Outcome r = vexraid({"summary"});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    for (const char* line : {"Controllers (2)", "Drives (17)", "Pools (5)", "Volumes (5)", "Jobs (1)",
                             "vexController_0  VEX-8160i", "0_2  Archive  RAID6"}) {
        EXPECT_NE(r.out.find(line), std::string::npos) << line << " in\n" << r.out;
    }
    EXPECT_EQ(jsonOf({"summary"})["pools"][1]["RAID"], "RAID5");
}

TEST_F(CliOperationsTest, WaitsForJobsAndIndicationsUntilItsTimeout) {
    // The clock stands still: the verify stays where the description has it.
    const Outcome job = vexraid({"job", "--timeout", "1", "--interval", "0.2"});
    EXPECT_EQ(job.exitCode, 1) << job.err;
    EXPECT_NE(job.out.find("] "), std::string::npos) << job.out;
    EXPECT_NE(job.out.find("%  0_1  verify  LogicalDrive:0_2"), std::string::npos) << job.out;
    const Outcome watch = vexraid({"watch", "--timeout", "1"});
    EXPECT_EQ(watch.exitCode, 0) << watch.err;
}

TEST_F(CliOperationsTest, ListsTheRegisteredClassesWithoutAProvider) {
    const Outcome r = vexraid.bare({"--provider", "/nowhere.so", "--json", "classes"});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    const json classes = json::parse(r.out);
    EXPECT_EQ(classes.size(), 173u);
}

}  // namespace
}  // namespace vex::clitest
