// modifyObjectInstance: patching property values of stored instances.
#include "controller/CacheKeyMatch.h"
#include "controller/CacheTrace.h"
#include "controller/RepositoryLock.h"
#include "controller/VexCacheManager.h"

namespace vex::cim::fwf {

using cache::CachedInstance;
using cache::CacheTrace;
using cache::RepositoryLock;

namespace {

// Sets each changed value, converted to the stored property's own type.
// False at the first property the instance lacks; earlier changes stay.
bool applyChanges(CachedInstance& stored, const std::vector<CIMProperty>& changes) {
    for (const CIMProperty& change : changes) {
        CIMProperty* target = stored.find(change.getName());
        if (target == nullptr) {
            return false;
        }
        target->setPropValue(target->getType(), change);
    }
    return true;
}

}  // namespace

// Every matching instance is changed, but the answer follows the last
// instance of the list alone: callers read VEX_CM_ENTRY_NOT_EXISTS as "not
// found" although earlier matches were already updated. Kept on purpose.
unsigned int VexCacheManager::modifyObjectInstance(_eVEXObjectType type,
                                                   const std::vector<CIMProperty>& keys,
                                                   const std::vector<CIMProperty>& changes) {
    CacheTrace trace("ENTER::modifyObjectInstance", "EXIT::modifyObjectInstance");
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    const auto found = m_objects.find(type);
    if (found == m_objects.end()) {
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_DEVTYPE_NOT_EXIST--Device Type:: %d",
                  static_cast<int>(type));
        return lock.releaseWith(VEX_CM_DEVTYPE_NOT_EXIST);
    }
    bool lastMatched = true;  // an empty list answers success
    for (CachedInstance& stored : found->second) {
        lastMatched = cache::matchesKeys(keys, stored);
        if (lastMatched && !applyChanges(stored, changes)) {
            TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_NOT_EXISTS mod prop not found");
            return lock.releaseWith(VEX_CM_ENTRY_NOT_EXISTS);
        }
    }
    if (!lastMatched) {
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_NOT_EXISTS Key don't matched");
        return lock.releaseWith(VEX_CM_ENTRY_NOT_EXISTS);
    }
    return lock.releaseWith(VEX_CM_SUCCESS);
}

}  // namespace vex::cim::fwf
