#include "CacheTestSupport.h"

namespace vex::cim::fwf {

void VexCacheManagerTestAccess::reset() {
    VexCacheManager::getInstance(true);  // creates the pair on first use
    first()->flushCache();
    second()->flushCache();
    VexCacheManager::sVexCacheRepoNewIsLatest.store(true);
    VexCacheManager::sVexCacheRepoOldIsLatest.store(false);
    VexCacheManager::flagSwapped.store(false);
    VexCacheManager::exitCacheUpdate();
}

namespace test {

CIMInstance drive(const std::string& id, const std::string& state) {
    CIMInstance instance;
    instance.addCimKeyBinding(stringKey("DeviceID", id));
    instance.addProperty(stringProp("State", state));
    return instance;
}

Ids valuesOf(const std::vector<CIMInstance>& list, const std::string& name) {
    Ids values;
    for (const CIMInstance& instance : list) {
        const CIMProperty* property = instance.getPropertyByName(name);
        values.push_back(property ? property->getStringValue().getValues().at(0) : "-");
    }
    return values;
}

Ids storedIds(VexCacheManager* repository, _eVEXObjectType type) {
    std::vector<CIMInstance> list;
    repository->getRepositoryObject(type, "", {}, false, list);
    return valuesOf(list, "DeviceID");
}

bool logged(const std::string& text) {
    for (const LoggedLine& line : loggedLines()) {
        if (line.text == text) {
            return true;
        }
    }
    return false;
}

void CacheTest::SetUp() {
    VexCacheManagerTestAccess::reset();
    first = VexCacheManagerTestAccess::first();
    second = VexCacheManagerTestAccess::second();
    clearLog();
}

}  // namespace test
}  // namespace vex::cim::fwf
