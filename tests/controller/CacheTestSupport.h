// What the cache tests share: access to the process-wide cache state, and
// short-hands for the instances they store.
#ifndef VEX_TESTS_CONTROLLER_CACHETESTSUPPORT_H
#define VEX_TESTS_CONTROLLER_CACHETESTSUPPORT_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controller/VexCacheManager.h"
#include "framework/LogCapture.h"
#include "framework/TestProperties.h"

namespace vex::cim::fwf {

// The repositories and flags are process-wide; tests put them back to their
// state at load through this friend of the cache.
struct VexCacheManagerTestAccess {
    static void reset();
    static VexCacheManager* first() { return VexCacheManager::sVexCacheRepoNew.load(); }
    static VexCacheManager* second() { return VexCacheManager::sVexCacheRepoOld.load(); }
    static bool secondIsLatest() { return VexCacheManager::sVexCacheRepoOldIsLatest.load(); }
};

namespace test {

using Ids = std::vector<std::string>;
using Cache = VexCacheManager;
inline constexpr _eVEXObjectType kDrives = VEX_OBJ_PHYSICAL_DRIVE;
inline constexpr _eVEXObjectType kControllers = VEX_OBJ_CONTROLLER;

// A string property flagged as a key of a view class.
inline CIMProperty viewKey(const std::string& name, const std::string& value) {
    return CIMProperty(name, CIMValue<std::string>(value, false, false), false, CIM_STRING, true);
}

// A drive: key DeviceID, non-key State.
CIMInstance drive(const std::string& id, const std::string& state = "OK");
// One string property over a list, "-" where it is missing.
Ids valuesOf(const std::vector<CIMInstance>& list, const std::string& name);
// The DeviceIDs stored under type; empty when the type has no entry.
Ids storedIds(VexCacheManager* repository, _eVEXObjectType type);
bool logged(const std::string& text);

// Each test starts with both repositories empty and the flags as at load.
class CacheTest : public ::testing::Test {
protected:
    void SetUp() override;

    VexCacheManager* first = nullptr;
    VexCacheManager* second = nullptr;
};

}  // namespace test
}  // namespace vex::cim::fwf

#endif
