// getRepositoryObject: the one read of the cache. The read lock is held only
// to take a share of the type's list; the lookup and the copies are made from
// that list after the lock is released (a list is never changed while it is
// shared), so one slow answer never holds up the writers. What it hands out
// are copies the caller owns.
#include "controller/CacheKeyMatch.h"
#include "controller/CacheTrace.h"
#include "controller/RepositoryLock.h"
#include "controller/VexCacheManager.h"
#include "controller/ViewProjection.h"

namespace vex::cim::fwf {

using cache::CachedInstance;
using cache::CacheTrace;
using cache::RepositoryLock;

namespace {

using StoredList = std::vector<CachedInstance>;

enum class ReadOutcome { Found, NoBaseMatch, NoViewMatch };

ReadOutcome readBaseByKeys(const StoredList& stored, const std::vector<CIMProperty>& keys,
                           std::vector<CIMInstance>& out) {
    bool appended = false;
    for (const CachedInstance& instance : stored) {
        if (cache::matchesKeys(keys, instance)) {
            out.push_back(instance.toInstance());
            appended = true;
        }
    }
    return appended ? ReadOutcome::Found : ReadOutcome::NoBaseMatch;
}

ReadOutcome readBase(const StoredList& stored, const std::vector<CIMProperty>& keys,
                     bool keysOnly, std::vector<CIMInstance>& out) {
    if (!keys.empty()) {
        return readBaseByKeys(stored, keys, out);
    }
    if (!keysOnly) {
        // The whole list replaces what the caller's vector held.
        out.clear();
        cache::appendInstances(stored, out);
        return ReadOutcome::Found;
    }
    out.reserve(out.size() + stored.size());
    for (const CachedInstance& instance : stored) {
        out.push_back(cache::buildKeysInstance(instance));
    }
    return ReadOutcome::Found;
}

ReadOutcome readViewByKeys(const StoredList& stored, const std::string& viewClass,
                           const std::vector<CIMProperty>& keys, std::vector<CIMInstance>& out) {
    // The stored names of the keys are the same for every instance.
    std::vector<std::string> storedNames;
    storedNames.reserve(keys.size());
    for (const CIMProperty& key : keys) {
        storedNames.push_back(viewClass + key.getName());
    }
    bool appended = false;
    for (const CachedInstance& instance : stored) {
        if (cache::matchesViewKeys(keys, storedNames, instance)) {
            out.emplace_back();
            cache::buildViewInstance(instance, viewClass, false, out.back());
            appended = true;
        }
    }
    return appended ? ReadOutcome::Found : ReadOutcome::NoViewMatch;
}

ReadOutcome readView(const StoredList& stored, const std::string& viewClass,
                     const std::vector<CIMProperty>& keys, bool keysOnly,
                     std::vector<CIMInstance>& out) {
    if (!keys.empty()) {
        return readViewByKeys(stored, viewClass, keys, out);
    }
    out.reserve(out.size() + stored.size());
    for (const CachedInstance& instance : stored) {
        CIMInstance built;
        if (cache::buildViewInstance(instance, viewClass, keysOnly, built)) {
            out.push_back(std::move(built));
        }
    }
    return ReadOutcome::Found;  // no instance with the prefix is an empty success
}

}  // namespace

unsigned int VexCacheManager::getRepositoryObject(_eVEXObjectType type,
                                                  const std::string& viewClass,
                                                  const std::vector<CIMProperty>& keys,
                                                  bool keysOnly,
                                                  std::vector<CIMInstance>& out) const {
    CacheTrace trace("ENTER::getRepositoryObject", "EXIT::getRepositoryObject");
    const bool updater = callerIsUpdater();
    std::shared_ptr<const InstanceList> list;
    RepositoryLock lock(m_lock, RepositoryLock::Mode::Read);
    if (!lock.held()) {
        return VEX_CM_SYSTEM_ERROR;
    }
    const Contents& contents = readableContents(updater);
    const auto found = contents.find(type);
    if (found == contents.end()) {
        if (!lock.release()) {
            TkzLogMsg(TKZ_LOG_FATAL, "VEX_CM_SYSTEM_ERROR:: TkzReadWriteLock_ReadUnLock");
            return VEX_CM_SYSTEM_ERROR;
        }
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_DEVTYPE_NOT_EXIST--Device Type:: %d",
                  static_cast<int>(type));
        return VEX_CM_DEVTYPE_NOT_EXIST;
    }
    list = found->second;
    list->share();
    const bool released = lock.release();
    const ReadOutcome outcome = viewClass.empty()
                                    ? readBase(list->items, keys, keysOnly, out)
                                    : readView(list->items, viewClass, keys, keysOnly, out);
    if (!released) {
        return VEX_CM_SYSTEM_ERROR;
    }
    switch (outcome) {
    case ReadOutcome::NoBaseMatch:
        // "View CLass" stands in this text for base classes too.
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_NOT_EXISTS--View CLass--Device Type:: %d",
                  static_cast<int>(type));
        return VEX_CM_ENTRY_NOT_EXISTS;
    case ReadOutcome::NoViewMatch:
        TkzLogMsg(TKZ_LOG_ERROR, "VEX_CM_ENTRY_NOT_EXISTS--SubView Class--Device Type:: %d",
                  static_cast<int>(type));
        return VEX_CM_ENTRY_NOT_EXISTS;
    case ReadOutcome::Found:
        break;
    }
    return VEX_CM_SUCCESS;
}

}  // namespace vex::cim::fwf
