// The pooled cache on the demo system and a generated one: every read of
// every cached type agrees between the two repositories and with views and
// key lists derived here from the whole instances, and a refresh after
// faults, which reuses the values already pooled, gives exactly what a
// start from nothing gives on the same state.
#include <map>

#include <storlib/SystemGenerator.h>

#include "CacheExactEquality.h"
#include "FsaTestSupport.h"

namespace vex::cim::fwf::test {
namespace {

using Reads = std::map<std::string, std::vector<CIMInstance>>;


// The types a controller build writes (the settings 15 to 17 are carried
// across refreshes by the event code, not rebuilt here).
constexpr int kLastBuiltType = VEX_OBJ_RESERVED_13;

std::vector<std::string> prefixesOf(const std::vector<CIMInstance>& list) {
    std::vector<std::string> prefixes;
    for (const CIMInstance& instance : list) {
        for (const CIMProperty& property : instance.getPropertyList()) {
            const std::string prefix = property.getName().substr(0, 2);
            if (std::find(prefixes.begin(), prefixes.end(), prefix) == prefixes.end()) {
                prefixes.push_back(prefix);
            }
        }
    }
    return prefixes;
}

CIMInstance referenceKeys(const CIMInstance& stored) {
    CIMInstance keys;
    for (const CIMProperty& property : stored.getPropertyList()) {
        if (property.isKey()) {
            keys.addCimKeyBinding(property);
        }
    }
    return keys;
}

// Every read of every built type, checked against the whole instances.
Reads everyRead(VexCacheManager* repository) {
    Reads reads;
    for (int value = 0; value <= kLastBuiltType; ++value) {
        const auto type = static_cast<_eVEXObjectType>(value);
        const std::string name = std::to_string(value);
        std::vector<CIMInstance> whole;
        if (repository->getRepositoryObject(type, "", {}, false, whole) != VEX_CM_SUCCESS) {
            continue;
        }
        reads[name] = whole;
        std::vector<CIMInstance> expected;
        for (const CIMInstance& instance : whole) {
            expected.push_back(referenceKeys(instance));
        }
        repository->getRepositoryObject(type, "", {}, true, reads[name + " keys"]);
        EXPECT_EQ(exactly(expected), exactly(reads[name + " keys"])) << "type " << name;
        for (const std::string& prefix : prefixesOf(whole)) {
            for (bool keysOnly : {false, true}) {
                const std::string read = name + " " + prefix + (keysOnly ? " keys" : "");
                expected.clear();
                for (const CIMInstance& instance : whole) {
                    CIMInstance view;
                    if (referenceView(instance, prefix, keysOnly, view)) {
                        expected.push_back(view);
                    }
                }
                repository->getRepositoryObject(type, prefix, {}, keysOnly, reads[read]);
                EXPECT_EQ(exactly(expected), exactly(reads[read])) << read;
            }
        }
    }
    return reads;
}

std::string exactly(const Reads& reads) {
    std::string text;
    for (const auto& [read, list] : reads) {
        text += "read " + read + "\n" + test::exactly(list);
    }
    return text;
}

class CacheSystemsTest : public FsaTest {
protected:
    void checkSystem(const std::string& systemFile) {
        ASSERT_EQ(start(systemFile), 0u);
        const Reads started = everyRead(Cache::getInstance(true));
        EXPECT_GT(started.size(), 10u);
        EXPECT_EQ(exactly(started), exactly(everyRead(Cache::getInstance(false))));
        ASSERT_EQ(refresh(false), 0u);
        EXPECT_EQ(exactly(started), exactly(everyRead(Cache::getInstance(true))));

        simulatorOn(systemFile);
        ASSERT_TRUE(simulator().failDrive(storlib::Addr::device(0, 0, 1)).ok());
        ASSERT_TRUE(simulator().setControllerStatus(0, 3).ok());
        ASSERT_TRUE(simulator().setControllerTemperature(0, 71).ok());
        ASSERT_TRUE(simulator().advanceTime(90).ok());
        ASSERT_EQ(refresh(false), 0u);
        ASSERT_EQ(refresh(true), 0u);
        const Reads refreshed = everyRead(Cache::getInstance(true));
        EXPECT_TRUE(exactly(started) != exactly(refreshed));  // the faults show
        EXPECT_EQ(exactly(refreshed), exactly(everyRead(Cache::getInstance(false))));

        ASSERT_EQ(start(systemFile), 0u);
        EXPECT_EQ(exactly(everyRead(Cache::getInstance(true))), exactly(refreshed));
    }
};

TEST_F(CacheSystemsTest, DemoSystemReadsAgreeAcrossRepositoriesViewsAndRebuilds) {
    checkSystem(shippedSystem("demo.json"));
}

TEST_F(CacheSystemsTest, GeneratedSystemReadsAgreeAcrossRepositoriesViewsAndRebuilds) {
    storlib::GeneratorParams params;
    params.controllers = 2;
    params.drivesPerController = 24;
    params.volumesPerController = 8;
    checkSystem(writeSystem(storlib::generateSystemDescription(params)));
}

}  // namespace
}  // namespace vex::cim::fwf::test
