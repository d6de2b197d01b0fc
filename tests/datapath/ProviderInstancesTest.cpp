// Every cached class through the loaded provider: one instance per object of
// the simulated system, names that are exactly the class's keys, and a get
// by any enumerated path that returns that very instance.
#include <cstdio>
#include <fstream>
#include <map>

#include "ExpectedCounts.h"
#include "ProviderFixture.h"
#include "controller/CachedClassKeys.h"

namespace vex::datapath {
namespace {

using cmpihost::Instance;
using cmpihost::ObjectPath;
using cmpihost::Response;

// The CIM keys of a class, as the key table of the cached classes lists them.
std::set<std::string> keysOfClass(const std::string& className) {
    std::set<std::string> keys;
    for (std::size_t i = 0; i < cim::fwf::kCachedClassKeyCount; ++i) {
        if (className == cim::fwf::kCachedClassKeys[i].className) {
            for (const char* key : cim::fwf::kCachedClassKeys[i].keys) {
                if (key != nullptr) {
                    keys.insert(key);
                }
            }
        }
    }
    return keys;
}

class ProviderInstancesTest : public ProviderTest {
protected:
    std::map<std::string, std::size_t> expected() {
        return expectedInstanceCounts(*system().snapshot());
    }

    void checkCounts() {
        for (const auto& [className, count] : expected()) {
            EXPECT_EQ(enumerate(className).size(), count) << className;
        }
    }

    // The names are the keys, and name the same instances as the enumeration.
    void checkNames(const std::string& className) {
        const std::vector<Instance> instances = enumerate(className);
        Response names = cimom().enumerateInstanceNames({kImplNs, className});
        ASSERT_TRUE(names.ok()) << className << ": " << names.status.toString();
        std::set<std::string> enumerated, named;
        for (const Instance& instance : instances) {
            enumerated.insert(instance.path.toString());
        }
        for (const ObjectPath& path : names.paths) {
            EXPECT_EQ(namesOf(path.keys), keysOfClass(className)) << path.toString();
            named.insert(path.toString());
        }
        EXPECT_EQ(named, enumerated) << className;
        EXPECT_EQ(named.size(), instances.size()) << className << ": paths are not unique";
    }

    // A get by the path of the first, a middle and the last instance.
    void checkGets(const std::string& className) {
        const std::vector<Instance> instances = enumerate(className);
        for (std::size_t i : {std::size_t{0}, instances.size() / 2, instances.size() - 1}) {
            if (i >= instances.size()) {
                continue;
            }
            Response got = cimom().getInstance(instances[i].path);
            ASSERT_TRUE(got.ok()) << instances[i].path.toString() << ": " << got.status.toString();
            ASSERT_EQ(got.instances.size(), 1u) << instances[i].path.toString();
            EXPECT_EQ(got.instances[0], instances[i]) << instances[i].path.toString();
        }
    }

    void checkEveryClass() {
        ASSERT_GT(expected().at("VEX_DiskDrive"), 0u);
        checkCounts();
        for (const auto& [className, count] : expected()) {
            if (count != 0) {
                checkNames(className);
                checkGets(className);
            }
        }
    }
};

TEST_F(ProviderInstancesTest, DemoSystem) {
    startOn(shippedSystem("demo.json"));
    checkEveryClass();
}

TEST_F(ProviderInstancesTest, GeneratedSystem) {
    storlib::GeneratorParams params;
    params.controllers = 3;
    params.drivesPerController = 30;
    params.volumesPerController = 7;
    startOn(params);
    checkEveryClass();
}

// A logical drive over the controller's legacy size limit (and without
// extended LBA) is a source pool; the concrete pool class, with nothing to
// show, answers an empty success.
TEST_F(ProviderInstancesTest, OversizedPoolIsASourcePool) {
    const char* description = R"({"controllers": [{
      "legacyLbaLimitMB": 1000,
      "drives": [{"channel": 0, "device": 0, "sizeMB": 572204}, {"channel": 0, "device": 1, "sizeMB": 572204}],
      "logicalDrives": [{"id": 0, "name": "Big", "raidLevel": "RAID1", "members": ["0:0", "0:1"],
                         "dataSizeMB": 5000, "extendedLba": false}]}]})";
    const std::string file = ::testing::TempDir() + "vex-datapath-oversized.json";
    std::ofstream(file) << description;
    startOn(file);
    ASSERT_EQ(expected().at("VEX_SourceStoragePoolView"), 1u);
    checkEveryClass();
    std::remove(file.c_str());
}

}  // namespace
}  // namespace vex::datapath
