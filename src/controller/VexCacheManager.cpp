// The repository itself and its whole-entry writes: add, swap and flush.
#include "controller/VexCacheManager.h"

#include "controller/CacheKeyMatch.h"
#include "controller/CacheTrace.h"
#include "controller/RepositoryLock.h"

namespace vex::cim::fwf {

using cache::CachedInstance;
using cache::CacheTrace;
using cache::RepositoryLock;

VexCacheManager::VexCacheManager() : m_lock(TkzReadWriteLockInit()) {}

VexCacheManager::~VexCacheManager() {
    TkzReadWriteLockDestroy(&m_lock);
}

unsigned int VexCacheManager::addObjInstance(_eVEXObjectType type, const CIMInstance& inst) {
    CacheTrace trace("ENTER::addObjInstance", "EXIT::addObjInstance");
    CachedInstance copy(inst);  // copied before locking: the lock covers only compare and store
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    const auto found = m_objects.find(type);
    if (found == m_objects.end()) {
        std::vector<CachedInstance> list;
        list.push_back(std::move(copy));
        m_objects.emplace(type, std::move(list));
        return lock.releaseWith(VEX_CM_SUCCESS);
    }
    for (const CachedInstance& stored : found->second) {
        if (cache::sameIdentity(copy, stored)) {
            if (!lock.release()) {
                return VEX_CM_SYSTEM_ERROR;
            }
            TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_ALREADY_EXIST--Device Type:: %d",
                      static_cast<int>(type));
            return VEX_CM_ENTRY_ALREADY_EXIST;
        }
    }
    found->second.push_back(std::move(copy));
    return lock.releaseWith(VEX_CM_SUCCESS);
}

unsigned int VexCacheManager::swapObjectInstance(_eVEXObjectType type,
                                                 std::vector<CIMInstance>& list) {
    CacheTrace trace("ENTER::swapObjectInstance", "EXIT::swapObjectInstance");
    std::vector<CachedInstance> incoming = cache::toCached(list);
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    const auto found = m_objects.find(type);
    if (found == m_objects.end()) {
        m_objects.emplace(type, std::move(incoming));  // the caller keeps its list
        return lock.releaseWith(VEX_CM_SUCCESS);
    }
    found->second.swap(incoming);
    const unsigned int result = lock.releaseWith(VEX_CM_SUCCESS);
    // The previous contents go back to the caller; built outside the lock.
    std::vector<CIMInstance> previous;
    cache::appendInstances(incoming, previous);
    list.swap(previous);
    return result;
}

unsigned int VexCacheManager::flushCache() {
    CacheTrace trace("ENTER::flushCache", "EXIT::flushCache");
    Contents erased;
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    erased.swap(m_objects);  // freed after the lock is released
    return lock.releaseWith(VEX_CM_SUCCESS);
}

}  // namespace vex::cim::fwf
