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
    const bool updater = callerIsUpdater();
    SharedList erased;  // freed once the lock is released
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    Contents& contents = writableContents(updater);
    const auto found = contents.find(type);
    if (found == contents.end()) {
        if (!lock.release()) {
            return VEX_CM_SYSTEM_ERROR;
        }
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_DEVTYPE_NOT_EXIST--Device Type:: %d",
                  static_cast<int>(type));
        return VEX_CM_DEVTYPE_NOT_EXIST;
    }
    if (keys.empty() || found->second->items.empty()) {
        erased.swap(found->second);
        contents.erase(found);
        return lock.releaseWith(VEX_CM_SUCCESS);
    }
    const Instances& stored = found->second->items;
    const auto match = std::find_if(stored.begin(), stored.end(), [&](const CachedInstance& each) {
        return cache::matchesKeys(keys, each);
    });
    if (match == stored.end()) {
        if (!lock.release()) {
            return VEX_CM_SYSTEM_ERROR;
        }
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_NOT_EXISTS--Device Type:: %d",
                  static_cast<int>(type));
        return VEX_CM_ENTRY_NOT_EXISTS;
    }
    const auto position = match - stored.begin();
    Instances& list = writable(found->second);
    list.erase(list.begin() + position);
    if (list.empty()) {
        erased.swap(found->second);
        contents.erase(found);
    }
    return lock.releaseWith(VEX_CM_SUCCESS);
}

}  // namespace vex::cim::fwf
