// The names enumeration of every cached class yields exactly its CIM keys,
// and the cache tells the entries of a type apart by the keys of the entry's
// own class.
#include <algorithm>
#include <set>

#include "FsaTestSupport.h"
#include "controller/CachedClassKeys.h"

namespace vex::cim::fwf::test {

namespace {

class FsaKeysTest : public FsaTest {};

std::set<std::string> keysOf(const CachedClassKeys& row) {
    std::set<std::string> keys;
    for (const char* key : row.keys) {
        if (key != nullptr) {
            keys.insert(key);
        }
    }
    return keys;
}

std::set<std::string> nameSet(const std::vector<std::string>& names) {
    return std::set<std::string>(names.begin(), names.end());
}

// The demo system and, for type 5, a logical drive over the size limit.
const char* const kWithSourcePool = R"({"controllers": [{
  "legacyLbaLimitMB": 1000,
  "drives": [{"channel": 0, "device": 0, "sizeMB": 572204}, {"channel": 0, "device": 1, "sizeMB": 572204}],
  "logicalDrives": [{"id": 0, "name": "Big", "raidLevel": "RAID1", "members": ["0:0", "0:1"],
                     "dataSizeMB": 5000, "extendedLba": false}]}]})";

// Checks every class of the key table whose type holds instances; answers
// the classes checked.
std::set<std::string> checkKeys(const FsaTest& test) {
    std::set<std::string> checked;
    for (size_t i = 0; i < kCachedClassKeyCount; ++i) {
        const CachedClassKeys& row = kCachedClassKeys[i];
        const std::vector<CIMInstance> instances = test.names(row.type, row.prefix);
        for (const CIMInstance& instance : instances) {
            EXPECT_EQ(nameSet(propertyNames(instance)), keysOf(row)) << row.className;
            std::vector<std::string> pathKeys;
            for (const CIMProperty& key : instance.getPath().getKeyBindings()) {
                pathKeys.push_back(key.getName());
            }
            EXPECT_EQ(nameSet(pathKeys), keysOf(row)) << row.className;
        }
        if (!instances.empty()) {
            checked.insert(row.className);
        }
    }
    return checked;
}

}  // namespace

TEST_F(FsaKeysTest, NamesEnumerationYieldsExactlyTheKeysOfEachClass) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    std::set<std::string> checked = checkKeys(*this);
    ASSERT_EQ(start(writeSystem(kWithSourcePool)), 0u);
    const std::set<std::string> withSourcePool = checkKeys(*this);
    checked.insert(withSourcePool.begin(), withSourcePool.end());
    // Every class whose instances this layer writes was seen: all but the
    // indication channel and the settings made by CreateSetting.
    for (size_t i = 0; i < kCachedClassKeyCount; ++i) {
        const std::string name = kCachedClassKeys[i].className;
        const bool writtenElsewhere = name == "VEX_EventIndication" || name == "VEX_PrimordialGeneratedStorageSettings" ||
                                      name == "VEX_ConcreteGeneratedStorageSettings";
        EXPECT_EQ(checked.count(name), writtenElsewhere ? 0u : 1u) << name;
    }
}

TEST_F(FsaKeysTest, TheTableListsTheCachedClassFamily) {
    size_t family = 0;
    std::set<std::string> classes;
    for (size_t i = 0; i < kCachedClassKeyCount; ++i) {
        family += kCachedClassKeys[i].servedFamily ? 1 : 0;
        classes.insert(kCachedClassKeys[i].className);
    }
    EXPECT_EQ(family, 26u);
    EXPECT_EQ(classes.size(), kCachedClassKeyCount);
}

TEST_F(FsaKeysTest, ViewsCarryTheirKeysUnderThePrefix) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    const auto systems = served(VEX_OBJ_CONTROLLER, "CS");
    const CIMInstance& system = withValue(systems, "Name", "vexController_1");
    EXPECT_EQ(text(system, "CreationClassName"), "VEX_ControllerComputerSystem");
    EXPECT_EQ(text(system, "NameFormat"), "Other");
    const auto products = served(VEX_OBJ_CONTROLLER, "PRD");
    EXPECT_EQ(text(withValue(products, "IdentifyingNumber", "VX4A2B17"), "Vendor"), "TKZ");
    // A get by the view's own key names finds the one controller.
    std::vector<CIMInstance> found;
    const std::vector<CIMProperty> key = {
        CIMProperty("Name", CIMValue<std::string>("vexController_0"), true, CIM_STRING, false)};
    ASSERT_EQ(VexCacheManager::getInstance(true)->getRepositoryObject(VEX_OBJ_CONTROLLER, "CS", key, false, found), 0u);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(text(found[0], "ElementName"), "Controller_0");
}

}  // namespace vex::cim::fwf::test
