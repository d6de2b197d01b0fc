// deleteObjectInstance: erasing one instance or a whole type.
#include "controller/CacheKeyMatch.h"
#include "controller/CacheTrace.h"
#include "controller/RepositoryLock.h"
#include "controller/VexCacheManager.h"

#include <algorithm>

namespace vex::cim::fwf {

using cache::CachedInstance;
using cache::CacheTrace;
using cache::RepositoryLock;

// A type whose last instance goes is erased with it, so a later read of the
// type answers VEX_CM_DEVTYPE_NOT_EXIST rather than an empty success.
unsigned int VexCacheManager::deleteObjectInstance(_eVEXObjectType type,
                                                   const std::vector<CIMProperty>& keys) {
    CacheTrace trace("ENTER::deleteObjectInstance", "EXIT::deleteObjectInstance");
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    const auto found = m_objects.find(type);
    if (found == m_objects.end()) {
        if (!lock.release()) {
            return VEX_CM_SYSTEM_ERROR;
        }
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_DEVTYPE_NOT_EXIST--Device Type:: %d",
                  static_cast<int>(type));
        return VEX_CM_DEVTYPE_NOT_EXIST;
    }
    std::vector<CachedInstance>& list = found->second;
    if (keys.empty() || list.empty()) {
        std::vector<CachedInstance> erased;
        erased.swap(list);  // freed once the lock is released
        m_objects.erase(found);
        return lock.releaseWith(VEX_CM_SUCCESS);
    }
    const auto match = std::find_if(list.begin(), list.end(), [&](const CachedInstance& stored) {
        return cache::matchesKeys(keys, stored);
    });
    if (match == list.end()) {
        if (!lock.release()) {
            return VEX_CM_SYSTEM_ERROR;
        }
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_NOT_EXISTS--Device Type:: %d",
                  static_cast<int>(type));
        return VEX_CM_ENTRY_NOT_EXISTS;
    }
    list.erase(match);
    if (list.empty()) {
        m_objects.erase(found);
    }
    return lock.releaseWith(VEX_CM_SUCCESS);
}

}  // namespace vex::cim::fwf
