// The repository itself, the generation a caller works on, and the
// whole-entry writes: add, swap and flush.
#include "controller/VexCacheManager.h"

#include "controller/CacheKeyMatch.h"
#include "controller/CacheTrace.h"
#include "controller/CallerThread.h"
#include "controller/RepositoryLock.h"

namespace vex::cim::fwf {

using cache::CachedInstance;
using cache::CacheTrace;
using cache::RepositoryLock;

VexCacheManager::VexCacheManager() : m_lock(TkzReadWriteLockInit()) {}

VexCacheManager::~VexCacheManager() {
    TkzReadWriteLockDestroy(&m_lock);
}

bool VexCacheManager::callerIsUpdater() {
    const unsigned long long updater = threadId.load();
    return updater != cache::kNoThread && cache::callerThreadId() == updater;
}

// A list never handed out is changed in place; a shared one is copied first
// (the copy shares the instances, not their values).
VexCacheManager::Instances& VexCacheManager::writable(SharedList& list) {
    if (list->shared.load(std::memory_order_relaxed)) {
        list = std::make_shared<InstanceList>(list->items);
    }
    return list->items;
}

void VexCacheManager::shareAll(const Contents& contents) {
    for (const auto& entry : contents) {
        entry.second->share();
    }
}

VexCacheManager::Contents& VexCacheManager::writableContents(bool updater) {
    if (!updater) {
        return m_published;
    }
    if (!m_staged) {
        shareAll(m_published);
        m_staged = m_published;  // shares every list
    }
    return *m_staged;
}

const VexCacheManager::Contents& VexCacheManager::readableContents(bool updater) const {
    return updater && m_staged ? *m_staged : m_published;
}

void VexCacheManager::publishStaged() {
    Contents replaced;  // freed outside the lock
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (lock.held() && m_staged) {
        replaced.swap(m_published);
        m_published.swap(*m_staged);
        m_staged.reset();
    }
}

unsigned int VexCacheManager::addObjInstance(_eVEXObjectType type, const CIMInstance& inst) {
    CacheTrace trace("ENTER::addObjInstance", "EXIT::addObjInstance");
    CachedInstance copy(inst);  // made before locking: the lock covers only compare and store
    const bool updater = callerIsUpdater();
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    Contents& contents = writableContents(updater);
    const auto found = contents.find(type);
    if (found == contents.end()) {
        contents.emplace(type, std::make_shared<InstanceList>(Instances(1, std::move(copy))));
        return lock.releaseWith(VEX_CM_SUCCESS);
    }
    for (const CachedInstance& stored : found->second->items) {
        if (cache::sameIdentity(copy, stored)) {
            if (!lock.release()) {
                return VEX_CM_SYSTEM_ERROR;
            }
            TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_ALREADY_EXIST--Device Type:: %d",
                      static_cast<int>(type));
            return VEX_CM_ENTRY_ALREADY_EXIST;
        }
    }
    writable(found->second).push_back(std::move(copy));
    return lock.releaseWith(VEX_CM_SUCCESS);
}

unsigned int VexCacheManager::exchange(_eVEXObjectType type, SharedList& list, bool& exchanged) {
    exchanged = false;
    const bool updater = callerIsUpdater();
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    Contents& contents = writableContents(updater);
    const auto found = contents.find(type);
    if (found == contents.end()) {
        contents.emplace(type, std::move(list));  // the caller keeps its own list
        return lock.releaseWith(VEX_CM_SUCCESS);
    }
    found->second.swap(list);
    exchanged = true;
    return lock.releaseWith(VEX_CM_SUCCESS);
}

unsigned int VexCacheManager::swapCachedInstances(_eVEXObjectType type,
                                                  std::vector<CachedInstance>& list) {
    CacheTrace trace("ENTER::swapObjectInstance", "EXIT::swapObjectInstance");
    SharedList shared = std::make_shared<InstanceList>(list);
    bool exchanged = false;
    const unsigned int result = exchange(type, shared, exchanged);
    if (exchanged) {
        list = shared->items;  // the previous contents, taken outside the lock
    }
    return result;
}

unsigned int VexCacheManager::swapObjectInstance(_eVEXObjectType type,
                                                 std::vector<CIMInstance>& list) {
    CacheTrace trace("ENTER::swapObjectInstance", "EXIT::swapObjectInstance");
    SharedList shared = std::make_shared<InstanceList>(cache::toCached(list));
    bool exchanged = false;
    const unsigned int result = exchange(type, shared, exchanged);
    if (exchanged) {
        std::vector<CIMInstance> previous;
        cache::appendInstances(shared->items, previous);
        list.swap(previous);
    }
    return result;
}

unsigned int VexCacheManager::flushCache() {
    CacheTrace trace("ENTER::flushCache", "EXIT::flushCache");
    Contents erased;
    const bool updater = callerIsUpdater();
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Write);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    erased.swap(writableContents(updater));  // freed after the lock is released
    return lock.releaseWith(VEX_CM_SUCCESS);
}

}  // namespace vex::cim::fwf
