// Profile discovery as a generic DMTF client makes it, naming only DMTF
// classes: every registered profile in the interop namespace, from the
// profile to its central systems (CIM_ElementConformsToProfile), from each
// system back to the profile, from each sub-profile to the profile it
// refines (CIM_ReferencedProfile), and from the central system along the
// sub-profile's scoping path to its own central class.
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "CliRunner.h"

namespace vex::clitest {
namespace {

const std::string kInterop = "root/PG_InterOp";

std::vector<std::string> lines(const Outcome& outcome) {
    std::vector<std::string> out;
    std::istringstream in(outcome.out);
    for (std::string line; std::getline(in, line);) {
        if (!line.empty()) out.push_back(line);
    }
    return out;
}

bool contains(const std::vector<std::string>& all, const std::string& part) {
    for (const std::string& line : all) {
        if (line.find(part) != std::string::npos) return true;
    }
    return false;
}

// The association and central class a sub-profile's instances hang off the
// central system by.
const std::map<std::string, std::pair<std::string, std::string>> kScopingPaths = {
    {"Block Services", {"CIM_HostedStoragePool", "CIM_StoragePool"}},
    {"Disk Drive Lite", {"CIM_SystemDevice", "CIM_DiskDrive"}},
    {"Extent Composition", {"CIM_SystemDevice", "CIM_StorageExtent"}},
    {"Job Control", {"CIM_OwningJobElement", "CIM_ConcreteJob"}},
    {"Physical Package", {"CIM_SystemPackaging", "CIM_PhysicalPackage"}},
    {"Software", {"CIM_ElementSoftwareIdentity", "CIM_SoftwareIdentity"}},
    {"Storage Enclosure", {"CIM_SystemPackaging", "CIM_Chassis"}},
    {"Battery", {"CIM_SystemDevice", "CIM_Battery"}},
};

TEST(DiscoveryWalk, EveryProfileReachesItsCentralInstancesAndBack) {
    CliRunner vexraid;
    const Outcome listed = vexraid({"-n", kInterop, "ein", "CIM_RegisteredProfile"});
    ASSERT_EQ(listed.exitCode, 0) << listed.err;
    std::vector<std::string> profiles, subProfiles;
    for (const std::string& path : lines(listed)) {
        (path.find("VEX_RegisteredSubProfile.") != std::string::npos ? subProfiles : profiles).push_back(path);
    }
    ASSERT_FALSE(profiles.empty());
    ASSERT_EQ(subProfiles.size(), kScopingPaths.size());

    std::string controller;
    for (const std::string& profile : profiles) {
        const Outcome systems = vexraid({"ain", profile, "-a", "CIM_ElementConformsToProfile", "-r", "CIM_ComputerSystem"});
        ASSERT_EQ(systems.exitCode, 0) << systems.err;
        ASSERT_FALSE(lines(systems).empty()) << profile << " reaches no central system";
        for (const std::string& system : lines(systems)) {
            const Outcome back = vexraid({"ain", system, "-a", "CIM_ElementConformsToProfile", "-r", "CIM_RegisteredProfile"});
            EXPECT_TRUE(contains(lines(back), profile)) << system << " does not lead back to " << profile;
            if (controller.empty() && system.find("VEX_ControllerComputerSystem.") != std::string::npos) {
                controller = system.substr(system.find(':') + 1);  // its path in the implementation namespace
            }
        }
    }
    ASSERT_FALSE(controller.empty()) << "no controller conforms to a profile";

    for (const std::string& sub : subProfiles) {
        const Outcome parents = vexraid({"ain", sub, "-a", "CIM_ReferencedProfile", "-r", "CIM_RegisteredProfile"});
        ASSERT_EQ(parents.exitCode, 0) << parents.err;
        EXPECT_TRUE(contains(lines(parents), profiles.front())) << sub;
        for (const auto& [name, path] : kScopingPaths) {
            if (sub.find("+" + name + "+") == std::string::npos) continue;
            const Outcome central = vexraid({"ain", controller, "-a", path.first, "-r", path.second});
            EXPECT_EQ(central.exitCode, 0) << central.err;
            EXPECT_FALSE(lines(central).empty()) << name << ": nothing by " << path.first << " of class " << path.second;
        }
    }
}

}  // namespace
}  // namespace vex::clitest
